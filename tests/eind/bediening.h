#pragma once

// Bedient het gebouwde programma van buiten, zoals een gebruiker: een proces op een eigen beeldscherm met
// vensterbeheer. Toetsen gaan op elk beeldscherm, muisklikken en afdrukken alleen via de X-server. Wacht
// altijd op wat er te zien is, nooit op de klok. Waar iets staat en of het te gebruiken is, vraagt het zoals
// een schermlezer: elke uitgave van de toolkit legt haar venster net anders neer. Een ding staat hier als een
// rol en een naam, zoals: push button "Openen".

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "tests/eind/scherm.h"
#include "tests/hulp/opdracht.h"
#include "tests/hulp/schermomgeving.h"
#include "tests/hulp/wachten.h"

using hulp::voerUit;

/// Een stuk van het hoofdvenster, in punten vanaf zijn linkerbovenhoek.
struct Vlak {
    int links = 0;
    int boven = 0;
    int breedte = 0;
    int hoogte = 0;
};

/// Een bestand met één blok tussen de standaardmarkers.
inline const std::string origineel = "a\n//**** Student Begin ****//\nb\n//**** Student Eind ****//\nc\n";

class Bediening : public testing::Test {
  protected:
    static constexpr const char* hoofdvenster = "^Knipselaar$";
    static constexpr const char* openDialoog = "^Kies een origineel bestand[.]$";
    static constexpr const char* opslaanDialoog = "^Sla aangepast bestand op[.]$";
    static constexpr const char* linkereditor = "panel \"Origineel\"";
    static constexpr const char* rechtereditor = "panel \"Aangepast\"";
    static constexpr const char* bronVeld = "text \"Bron directory\"";
    static constexpr const char* doelVeld = "text \"Bestemming directory\"";
    static constexpr const char* openKnop = "push button \"Openen\"";
    static constexpr const char* opslaanKnop = "push button \"Opslaan\"";
    static constexpr const char* knipKnop = "push button \"Zoeken en vervangen\"";

    explicit Bediening(hulp::Beeldscherm beeldscherm = hulp::Beeldscherm::vensterbeheer);
    ~Bediening() override;

    /// Het programma dat bediend wordt: dat van deze bouw, of wat KNIPSELAAR_PROGRAMMA noemt (een pad of een
    /// naam uit PATH), zoals een geïnstalleerd programma.
    static std::string programmaPad();

    /// Start het programma en wacht tot het venster er staat en de toetsen krijgt. Op Wayland is het altijd
    /// van een gewone gebruiker.
    void start(const std::vector<std::string>& argumenten = {});

    /// Hetzelfde als een gebruiker die niet overal bij mag, ook als root de tests draait. De omgeving is
    /// daarna van die gebruiker, met alles wat erin staat.
    void startAlsGewoneGebruiker();

    /// Drukt toetsen in, zoals "ctrl+o".
    void druk(const std::string& toetsen) const;

    /// Typt tekst waar de toetsen nu zijn.
    void typ(const std::string& tekst) const;

    /// Wacht tot een venster met deze titel zichtbaar is en de toetsen krijgt.
    void wachtOpVenster(const std::string& titel) const;
    bool isZichtbaar(const std::string& titel) const;
    void wachtTotWeg(const std::string& titel) const;

    /// Als wachtOpVenster; geeft het nummer dat de X-server het venster gaf.
    std::string vensterNummer(const std::string& titel) const;

    /// Klikt op een ding in het hoofdvenster en wacht tot het de toetsen heeft. Een vensterbeheerder geeft
    /// een klik later door dan de toetsen die erna komen.
    void gaMetKlikNaar(const std::string& ding) const;

    /// Of een veld in het hoofdvenster de toetsen heeft en precies deze tekst.
    bool staatIn(const std::string& veld, const std::string& tekst) const;

    /// Vervangt de tekst van een veld in het hoofdvenster dat de toetsen al heeft.
    void vervang(const std::string& veld, const std::string& tekst) const;

    /// Typt in een bestandsdialoog een pad en bevestigt het.
    void typPad(const std::string& titel, const std::filesystem::path& pad) const;

    /// Kiest in een bestandsdialoog een pad en wacht tot het hoofdvenster weer aan de beurt is.
    void kiesPad(const std::string& titel, const std::filesystem::path& pad) const;

    /// Wat een schermlezer in het venster vindt, een ding per regel.
    std::string boom() const;

    /// Waar een ding staat; wacht tot het er is. Heten er meer zo, dan het laatste: een vak heet als wat erin
    /// zit.
    Vlak zoek(const std::string& ding) const;

    /// Klikt midden op een stuk van het hoofdvenster, en haalt de muis daar weg.
    void klik(const Vlak& plek, int knop = 1, int keren = 1) const;

    /// Of een ding er is en niet uit staat.
    bool isBruikbaar(const std::string& ding) const;
    void wachtOpBruikbaar(const std::string& ding) const;

    /// Of er op dit stuk van het hoofdvenster zwarte tekst staat.
    bool heeftTekst(const Vlak& vlak) const;

    /// Wacht tot het hoofdvenster "Enkel bestand" toont. Vlak na het starten, voor het programma voor het
    /// eerst naar de modus kijkt, zijn ook de kiezers nog bruikbaar.
    void wachtOpBeginmodus() const;

    /// De kleuren van een venster, rij na rij drie bytes per punt.
    /// @param vlak  het stuk dat telt; standaard alles.
    static std::string kiekje(const std::string& venster, const Vlak& vlak = {});

    /// Wacht op een voorwaarde zolang die nog een gevolg kan zijn van wat net gedrukt is: even, op een drukke
    /// machine langer.
    template <typename Voorwaarde>
    static bool volgt(Voorwaarde&& voorwaarde) {
        constexpr int evenMs = 1500;
        return hulp::wachtTot(voorwaarde, evenMs * hulp::drukte());
    }

    /// Drukt toetsen in tot een voorwaarde geldt. Wat tijdens een knipbeurt gedrukt wordt vervalt, en een
    /// vensterbeheerder mist een toets die komt terwijl hij nog bezig is.
    template <typename Voorwaarde>
    bool drukTot(const std::string& toetsen, Voorwaarde&& voorwaarde) const {
        return hulp::wachtTot([&] {
            druk(toetsen);
            return volgt(voorwaarde);
        });
    }

    /// Wacht tot het programma iets te vragen is: dan is het klaar met wat het deed.
    void wachtOpAntwoord() const;

    /// Geeft met toetsen een opdracht die om een pad om op te slaan vraagt, ook vlak na een knipbeurt.
    void vraagOpslaan(const std::string& toetsen) const;

    /// Sluit het actieve venster zoals het sluitkruis dat doet, tot een voorwaarde geldt.
    template <typename Voorwaarde>
    bool sluitTot(Voorwaarde&& voorwaarde) const {
        return drukTot("alt+F4", voorwaarde);
    }

    /// Wacht tot het programma zelf ophoudt; geeft zijn afloopstatus, of -1 als het blijft lopen.
    int wachtOpEinde();

    /// Wat het programma op de foutuitvoer schreef.
    std::string fouten() const;

    /// De waarde van een sleutel in de opslag op schijf.
    std::string leesSleutel(const std::string& groep, const std::string& sleutel) const;

    /// Start een opdracht die het programma wordt en wacht tot het venster er staat en de toetsen krijgt.
    void startOpdracht(const std::vector<std::string>& opdracht);

    /// De opdracht waarmee een schermlezer iets doet.
    std::vector<std::string> schermlezer(const std::vector<std::string>& vraag) const;

    hulp::Schermomgeving omgeving_;
    std::unique_ptr<hulp::Kindproces> programma_;

  private:
    std::vector<std::string> wordGewoneGebruiker();
    void startAls(const std::vector<std::string>& als, const std::vector<std::string>& argumenten);
    std::string kijk(const std::vector<std::string>& vraag) const;

    hulp::Beeldscherm beeldscherm_;
    std::unique_ptr<Scherm> scherm_;            ///< op Wayland vanaf de start
    std::string uitvoerbaar_ = programmaPad();  ///< waar de gebruiker het programma vindt
    std::vector<std::string> schermlezer_{SCHERMLEZER};
};
