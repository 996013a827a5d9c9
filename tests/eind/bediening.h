#pragma once

// Bedient het gebouwde programma van buiten, zoals een gebruiker: een proces op een eigen beeldscherm met
// vensterbeheer, toetsen en muisklikken via de X-server. Wacht altijd op wat er te zien is, nooit op de klok.

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "tests/hulp/omgeving.h"
#include "tests/hulp/opdracht.h"

using hulp::voerUit;

class Bediening : public testing::Test {
  protected:
    static constexpr const char* hoofdvenster = "^Knipselaar$";
    static constexpr const char* openDialoog = "^Kies een origineel bestand[.]$";
    static constexpr const char* opslaanDialoog = "^Sla aangepast bestand op[.]$";

    Bediening();
    ~Bediening() override;

    /// Start het programma en wacht tot het venster er staat en de toetsen krijgt.
    void start(const std::vector<std::string>& argumenten = {});

    /// Drukt toetsen in, zoals "ctrl+o".
    static void druk(const std::string& toetsen);

    /// Wacht tot een venster met deze titel zichtbaar is en de toetsen krijgt; geeft zijn nummer.
    static std::string wachtOpVenster(const std::string& titel);
    static bool isZichtbaar(const std::string& titel);
    static void wachtTotWeg(const std::string& titel);

    /// Typt in een bestandsdialoog een pad en bevestigt het.
    static void typPad(const std::string& titel, const std::filesystem::path& pad);

    /// Kiest in een bestandsdialoog een pad en wacht tot het hoofdvenster weer aan de beurt is.
    static void kiesPad(const std::string& titel, const std::filesystem::path& pad);

    /// Klikt op een plaats van het hoofdvenster, in punten vanaf zijn linkerbovenhoek.
    static void klik(int x, int y, int knop = 1);

    /// Een afdruk van een venster als bestand; voor wie wil kijken, en om te zien dat er iets veranderde.
    static std::string kiekje(const std::string& venster);

    /// Sluit het actieve venster zoals het sluitkruis dat doet, tot een voorwaarde geldt. De vensterbeheerder
    /// mist een toets die komt terwijl hij nog bezig is.
    template <typename Voorwaarde>
    static bool sluitTot(Voorwaarde&& voorwaarde) {
        return hulp::wachtTot([&voorwaarde] {
            druk("alt+F4");
            return hulp::wachtTot(voorwaarde, 1000);
        });
    }

    /// Wacht tot het programma zelf ophoudt; geeft zijn afloopstatus, of -1 als het blijft lopen.
    int wachtOpEinde();

    /// Wat het programma op de foutuitvoer schreef.
    std::string fouten() const;

    /// De waarde van een sleutel in de opslag op schijf.
    std::string leesSleutel(const std::string& groep, const std::string& sleutel) const;

    hulp::Omgeving omgeving_{true};
    std::unique_ptr<hulp::Kindproces> programma_;
};
