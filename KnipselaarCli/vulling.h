#pragma once

// Wat er in een bestand voor een blok in de plaats komt, in de codering en met de regeleinden van dat
// bestand.

#include <cstddef>
#include <deque>
#include <span>
#include <string>
#include <string_view>

#include "Knipselaar/kern/ontleding.h"
#include "KnipselaarCli/brontekst.h"

namespace cli {

/// Getrouw: buiten de blokken blijft elke byte staan. Venster: zoals het venster het doet, in UTF-8 met LF en
/// een regeleinde achter de laatste regel.
enum class Manier { getrouw, venster };

/// Bij de manier "venster" telt alleen de vervangtekst.
struct KnipWens {
    Manier manier = Manier::getrouw;
    bool inspringen = false;    ///< de vervangtekst springt in zoals de beginmarker
    bool regelsGelijk = false;  ///< lege regels vullen aan wat er aan regels minder komt
    std::string_view vervanging;
    std::span<const std::string> geef = {};  ///< waarmee een regel begint die de student krijgt
};

/// Hoeveel regels er getrouw voor een blok in de plaats komen.
/// @param tekst  waar het blok in staat.
std::size_t telVulling(std::string_view tekst, const kern::Blok& blok, const KnipWens& wens);

/// Hoeveel regels een blok heeft, met zijn markers.
std::size_t telBlok(const kern::Blok& blok);

class Vulling {
  public:
    /// De brontekst en wat de wens noemt moeten langer leven.
    Vulling(const Brontekst& bron, const KnipWens& wens) : bron_(bron), wens_(wens) {}
    Vulling(const Vulling&) = delete;
    Vulling& operator=(const Vulling&) = delete;
    ~Vulling() = default;

    /// Of de vervangtekst voor dit blok in de plaats komt.
    bool heeftVervangtekst(const kern::Blok& blok) const;

    /// Wat er voor een blok komt; geldig zolang dit object er is. Gooit CodeerFout als de vervangtekst niet
    /// in de codering van het bestand past.
    std::string_view geef(const kern::Blok& blok);

    /// Wat er komt voor een regel die zonder meer weggaat.
    std::string_view geefVoorRegel(kern::Regel regel) const;

  private:
    std::string_view geefRuw(kern::Regel regel) const;
    std::string_view kiesRegeleinde(const kern::Blok& blok) const;
    std::string_view geefVervangtekst(const kern::Blok& blok);
    std::string maakLegeRegels(const kern::Blok& blok) const;
    std::string maakGeefregels(const kern::Blok& blok) const;

    const Brontekst& bron_;
    KnipWens wens_;
    std::deque<std::string> eigen_;  ///< een deque: wat erin staat blijft op zijn plaats

    // De vervangtekst zoals zij het laatst omgezet is, en waar zij dezelfde voor blijft.
    std::string_view vervangtekst_;
    bool omgezet_ = false;
    std::string inspringing_;
    std::string regeleinde_;
};

}  // namespace cli
