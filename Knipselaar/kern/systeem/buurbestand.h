#pragma once

// Een nieuw bestand onder een tijdelijke, verborgen naam naast zijn bestemming. Omdat het er in dezelfde
// directory ligt, kan het de plaats van de bestemming in één stap innemen: op elk moment staat daar het oude
// bestand of het nieuwe.

#include <filesystem>
#include <string>
#include <system_error>

#include "Knipselaar/kern/systeem/bestand.h"
#include "Knipselaar/kern/systeem/verlies.h"

namespace kern {

class Buurbestand {
  public:
    /// Maakt het bestand, alleen voor de eigen gebruiker. Lukt dat niet, dan is het niet open.
    /// @param bestemming  een pad; het hoeft er nog niet te zijn.
    explicit Buurbestand(std::string bestemming);
    Buurbestand(const Buurbestand&) = delete;
    Buurbestand& operator=(const Buurbestand&) = delete;

    /// Haalt het bestand weg als het zijn naam niet kreeg.
    ~Buurbestand();

    bool isOpen() const { return bestand_.isOpen(); }

    /// Waarom het bestand niet te maken was; leeg als het er kwam.
    const std::error_code& geefFout() const { return fout_; }

    /// Waar geschreven kan worden; blijft van dit object.
    int geefKanaal() const { return bestand_.geefKanaal(); }

    /// Sluit het bestand en zet het op de plaats van de bestemming, met de eigenaar, groep, rechten,
    /// toegangslijst en aantekeningen van wat daar staat (op Windows: kenmerken en toegangslijst). Een
    /// vreemde eigenaar kan alleen een beheerder houden; dan vervallen de bijzondere rechten. Wat niet te
    /// houden was zegt geefVerlies; niemand mag daardoor meer dan eerst. Lukt het niet, dan is de bestemming
    /// wat zij was.
    /// @param oud  van de bestemming.
    std::error_code vervang(const Kenmerken& oud);

    /// De eerste helft van vervang: sluit het bestand met alles wat het over hoort te nemen. De bestemming
    /// verandert nog niet. Wie veel bestanden vervangt, zet ze eerst alle klaar en dan vast (zie schijf.h).
    std::error_code maakKlaar(const Kenmerken& oud);

    /// De tweede helft, na maakKlaar: alleen nog de hernoeming.
    std::error_code neemPlaatsIn() { return hernoem(); }

    const Verlies& geefVerlies() const { return verlies_; }

    /// Sluit het bestand en zet het op de plaats van de bestemming, of die er al is of niet, voor uitvoer die
    /// opnieuw te maken is. Lukt het niet, dan is de bestemming wat zij was. Valt kort erna de stroom uit,
    /// dan kan de bestemming leeg zijn, zoals elk bestand dat net geschreven is.
    /// @param rechten  die van een nieuw bestand; wat de gebruiker zijn bestanden nooit geeft gaat eraf.
    std::error_code ruil(std::filesystem::perms rechten);

  private:
    std::error_code hernoem();
    bool wisselNamen() const;

    std::string bestemming_;
    std::string naam_;
    Bestand bestand_;
    std::error_code fout_;
    Verlies verlies_;
    bool bestaat_ = false;
};

}  // namespace kern
