#pragma once

// De markerparen van een knipbeurt, klaargemaakt om ze alle tegelijk in een tekst te zoeken.

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "Knipselaar/kern/bijnaMarker.h"
#include "Knipselaar/kern/markerMasker.h"

namespace kern {

/// Een beginmarker met de eindmarker die erbij hoort.
struct Markerpaar {
    MarkerMasker begin;
    MarkerMasker eind;
};

/// Waar een regel op lijkt die bijna een marker is.
enum class Gelijkenis { begin, eind };

/// Bezit de paren; verandert na het maken niet meer en mag door meer draden gelezen worden.
class MarkerReeks {
  public:
    /// Zonder paren; er valt niets te zoeken.
    MarkerReeks() = default;

    /// @param paren  minstens één.
    explicit MarkerReeks(std::vector<Markerpaar> paren);

    const std::vector<Markerpaar>& geefParen() const { return paren_; }

    /// Of een regel een marker draagt; een marker die op elke regel past telt niet.
    /// @param regel  één regel in UTF-8 zonder regeleinde.
    bool draagtMarker(std::string_view regel) const;

    /// Waar een regel op lijkt; niets als zij op geen marker lijkt. Een regel die een marker draagt lijkt er
    /// meestal ook op.
    std::optional<Gelijkenis> lijktOpMarker(std::string_view regel) const;

  private:
    friend class Markerloper;

    std::vector<const MarkerMasker*> geefMaskers() const;

    std::vector<Markerpaar> paren_;
    std::optional<MarkerMasker> zeef_;  ///< wat alle markers gemeen hebben, als daar iets aan te winnen is
    std::optional<BijnaZoeker> bijna_;  ///< van elk paar eerst het begin en dan het eind
};

/// Loopt de regels van een tekst af waar een marker in kan staan. Markers lijken meestal op elkaar; wat ze
/// gemeen hebben wordt dan in één keer gezocht. Anders onthoudt elk masker waar het het eerst weer past.
class Markerloper {
  public:
    /// De reeks en de tekst moeten langer leven.
    /// @param regels  hele regels in UTF-8, elk gesloten door "\n".
    Markerloper(const MarkerReeks& reeks, std::string_view regels);

    /// De volgende regel, op volgorde. Of er echt een marker in staat, of iets wat erop lijkt, moet nog
    /// blijken.
    std::optional<Regel> volgende();

  private:
    struct Vondst {
        const MarkerMasker* masker;  ///< niets: wat bijna een marker is
        std::optional<Regel> regel;
    };

    std::optional<Regel> zoek(const MarkerMasker* masker, std::size_t vanaf) const;

    const MarkerReeks& reeks_;
    std::string_view regels_;
    std::vector<Vondst> vondsten_;
};

}  // namespace kern
