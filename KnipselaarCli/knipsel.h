#pragma once

// Wat er na het knippen van een bestand overblijft, als een rij stukken bytes: wat blijft staat nog in de
// brontekst, wat ervoor in de plaats komt bezit het knipsel zelf.

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "KnipselaarCli/brontekst.h"
#include "KnipselaarCli/ontleding.h"

namespace cli {

/// Getrouw: buiten de blokken blijft elke byte staan. Venster: zoals het venster het doet, in UTF-8 met LF en
/// een regeleinde achter de laatste regel.
enum class Manier { getrouw, venster };

/// Voor wie het knipsel is. De oplossing is alleen de markers kwijt, en wat er alleen voor de student staat.
enum class Versie : std::uint8_t { student, oplossing };

struct KnipWens {
    Manier manier = Manier::getrouw;
    bool inspringen = false;  ///< de vervangtekst springt in zoals de beginmarker; alleen getrouw
    std::string_view vervanging;
};

/// Een stuk van het bestand dat verandert: deze ruwe bytes maken plaats voor andere. Het kan leeg zijn.
struct Wijziging {
    std::size_t begin;
    std::size_t eind;
    std::string_view nieuw;
};

class Knipsel {
  public:
    /// De brontekst, de ontleding en de vervangtekst moeten langer leven. Gooit CodeerFout als de
    /// vervangtekst niet in de codering van het bestand past.
    Knipsel(const Brontekst& bron, const Ontleding& ontleding, const KnipWens& wens);
    Knipsel(const Knipsel&) = delete;
    Knipsel& operator=(const Knipsel&) = delete;
    ~Knipsel() = default;

    /// Geeft wat er overblijft, op volgorde.
    void geef(const std::function<void(std::string_view)>& uit);

    /// Alle stukken achter elkaar.
    std::string geefInhoud();

    /// De wijzigingen die van het bestand het knipsel maken, op volgorde. Geldig zolang het knipsel er is.
    /// Bij de manier "venster" alleen na de lezing "volledig", en met de regeleinden waarmee het geschreven
    /// wordt.
    std::vector<Wijziging> geefWijzigingen();

  private:
    std::string_view geefVervanging(const kern::Blok& blok);
    std::string_view geefVensterVervanging();
    std::string_view geefGetrouweVervanging(const kern::Blok& blok);
    std::string_view geefBlijvend(std::size_t begin, std::size_t eind) const;
    void zetOm(const std::function<void(std::string_view)>& uit);
    void vergelijkRegels(kern::Regel deel, std::vector<Wijziging>& uit);
    std::string_view zoalsGeschreven(std::string_view tekst);

    const Brontekst& bron_;
    const Ontleding& ontleding_;
    KnipWens wens_;
    std::deque<std::string> eigen_;  ///< vervangingen; een deque: wat erin staat blijft op zijn plaats
    std::deque<std::string>
        geschreven_;                 ///< tekst van de manier "venster" met de regeleinden van dit systeem
    std::string vorigeInspringing_;  ///< van de laatste in eigen_, met het regeleinde dat volgde
    std::string vorigRegeleinde_;
};

}  // namespace cli
