#pragma once

// Een nieuw bestand onder een tijdelijke, verborgen naam naast zijn bestemming. Omdat het er in dezelfde
// directory ligt, kan het de plaats van de bestemming met één hernoeming innemen: op elk moment staat daar
// het oude bestand of het nieuwe.

#include <sys/stat.h>

#include <string>

namespace kern {

/// Geeft een open bestand de eigenaar en de groep van een ander. Alleen root kan iets weggeven; false, met de
/// reden in errno, als het niet lukt.
bool neemEigenaarOver(int bestand, const struct stat& van);

class Buurbestand {
  public:
    /// Maakt het bestand, alleen voor de eigen gebruiker. Lukt dat niet, dan is het niet open en staat de
    /// reden in errno.
    /// @param bestemming  een pad in de codering van het bestandssysteem; het hoeft er nog niet te zijn.
    explicit Buurbestand(std::string bestemming);
    Buurbestand(const Buurbestand&) = delete;
    Buurbestand& operator=(const Buurbestand&) = delete;

    /// Haalt het bestand weg als het zijn naam niet kreeg.
    ~Buurbestand();

    bool isOpen() const { return kanaal_ >= 0; }

    /// Waar geschreven kan worden; blijft van dit object.
    int geefKanaal() const { return kanaal_; }

    /// Neemt eigenaar, groep en rechten over. Een vreemde eigenaar kan alleen root houden; de rechten zijn
    /// wat de klas nodig heeft, en die hoe dan ook. False, met de reden in errno, als ook dat niet lukt.
    bool neemRechtenOver(const struct stat& van) const;

    /// Laat het systeem vast beginnen de inhoud naar de schijf te schrijven, als het dat kan. Neemt het
    /// bestand de plaats van een ander in, dan doet ext4 dat hoe dan ook, maar zonder deze wenk pas bij de
    /// hernoeming, en dan wacht iedereen die iets in dezelfde directory doet.
    void beginTeBewaren() const;

    /// Sluit het bestand en zet het op de plaats van de bestemming. False, met de reden in errno, als dat
    /// niet lukt; de bestemming is dan wat zij was.
    bool neemPlaatsIn();

    /// Hetzelfde voor uitvoer die opnieuw te maken is: ruilt van naam met de bestemming en haalt haar dan
    /// weg, of hernoemt waar niets te ruilen valt. ext4 schrijft wat bij een hernoeming een ander vervangt
    /// eerst naar de schijf, bij een ruil niet. Dat scheelt bij een groot bestand een derde van de tijd; valt
    /// de stroom uit, dan kan de bestemming leeg zijn, zoals elk bestand dat net geschreven is.
    bool ruil();

  private:
    bool sluit();
    bool hernoem();
    bool wisselNamen() const;

    std::string bestemming_;
    std::string naam_;
    int kanaal_;
    bool bestaat_;
};

}  // namespace kern
