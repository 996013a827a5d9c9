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

    /// Het programma dat bediend wordt: dat van deze bouw, of wat KNIPSELAAR_PROGRAMMA noemt (een pad of een
    /// naam uit PATH), zoals een geïnstalleerd programma.
    static std::string programmaPad();

    /// Start het programma en wacht tot het venster er staat en de toetsen krijgt.
    void start(const std::vector<std::string>& argumenten = {});

    /// Hetzelfde als een gebruiker die niet overal bij mag, ook als root de tests draait. De omgeving is
    /// daarna van die gebruiker, met alles wat erin staat.
    void startAlsGewoneGebruiker();

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

    /// Of er op dit stuk van het hoofdvenster zwarte tekst staat. Wat uitgeschakeld is, is grijs; een venster
    /// dat nog niet aan de beurt is ook.
    /// @param uitsnede  als bij kiekje.
    static bool isBruikbaar(const std::string& uitsnede);

    /// Wacht tot het hoofdvenster "Enkel bestand" toont. Vlak na het starten, voor het programma voor het
    /// eerst naar de modus kijkt, zijn ook de kiezers nog bruikbaar.
    static void wachtOpBeginmodus();

    /// De kleuren van een venster, rij na rij drie bytes per punt.
    /// @param uitsnede  het stuk dat telt, als BREEDTExHOOGTE+LINKS+BOVEN in punten; standaard alles.
    static std::string kiekje(const std::string& venster, const std::string& uitsnede = "0x0+0+0");

    /// Drukt toetsen in tot een voorwaarde geldt. Wat tijdens een knipbeurt gedrukt wordt, vervalt.
    template <typename Voorwaarde>
    static bool drukTot(const std::string& toetsen, Voorwaarde&& voorwaarde) {
        constexpr int evenMs = 3000;
        return hulp::wachtTot([&] {
            druk(toetsen);
            return hulp::wachtTot(voorwaarde, evenMs);
        });
    }

    /// Geeft met toetsen een opdracht die om een pad om op te slaan vraagt, ook vlak na een knipbeurt.
    static void vraagOpslaan(const std::string& toetsen);

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

    /// Start een opdracht die het programma wordt en wacht tot het venster er staat en de toetsen krijgt.
    void startOpdracht(const std::vector<std::string>& opdracht);

    hulp::Omgeving omgeving_{true};
    std::unique_ptr<hulp::Kindproces> programma_;
};
