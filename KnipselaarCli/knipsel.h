#pragma once

// Wat er na het knippen van een bestand overblijft, als een rij stukken bytes: wat blijft staat nog in de
// brontekst, wat ervoor in de plaats komt bezit het knipsel zelf.

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "KnipselaarCli/brontekst.h"
#include "KnipselaarCli/ontleding.h"
#include "KnipselaarCli/vulling.h"

namespace cli {

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
    template <typename Doe>
    void loopIngrepenAf(const Doe& doe);
    std::string_view geefVervanging(const kern::Blok& blok);
    std::string_view geefBlijvend(std::size_t begin, std::size_t eind) const;
    void zetOm(const std::function<void(std::string_view)>& uit);
    void vergelijkRegels(kern::Regel deel, std::vector<Wijziging>& uit);
    std::string_view zoalsGeschreven(std::string_view tekst);

    const Brontekst& bron_;
    const Ontleding& ontleding_;
    KnipWens wens_;
    Vulling vulling_;
    std::string vensterVervanging_;
    std::deque<std::string>
        geschreven_;  ///< tekst van de manier "venster" met de regeleinden van dit systeem
};

}  // namespace cli
