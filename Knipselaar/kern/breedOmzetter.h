#pragma once

// Maakt van de bytes van een tekst in UTF-16 of UTF-32 dezelfde tekst in UTF-8. Neemt haar in blokken van
// elke grootte aan en onthoudt ertussen niet meer dan een half teken. Wat niet te lezen is wordt U+FFFD: een
// los surrogaat, een waarde voorbij U+10FFFF, een half teken aan het einde.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "Knipselaar/kern/bytes.h"

namespace kern {

/// Hoe breed de eenheden van een tekst zijn en in welke volgorde hun bytes staan.
struct BreedFormaat {
    unsigned eenheid;  ///< bytes per eenheid: 2 voor UTF-16, 4 voor UTF-32; zo lang is ook het merkteken
    bool grootEerst;   ///< de hoogste byte vooraan (big-endian)
};

/// Het formaat dat een merkteken (BOM) aanwijst; niets als de tekst niet met een breed merkteken begint.
/// FF FE 00 00 is UTF-32, ook al zou het UTF-16 met een NUL kunnen zijn: zo beslist de toolkit ook.
std::optional<BreedFormaat> herkenBreedFormaat(std::string_view begin);

class BreedOmzetter {
  public:
    explicit BreedOmzetter(BreedFormaat formaat) : formaat_(formaat) {}

    /// Zet het volgende blok om en hangt de uitkomst achter uit, tot en met het laatste teken dat heel is.
    void zetOm(std::string_view blok, Bytes& uit);

    /// Sluit de tekst af: van een half teken komt alsnog iets.
    void sluitAf(Bytes& uit);

  private:
    void neemHele(bool einde, Bytes& uit);
    std::uint32_t leesEenheid(std::size_t plek) const;

    BreedFormaat formaat_;
    std::string ruw_;  ///< nog niet omgezet: hoogstens een half teken tussen twee blokken
};

}  // namespace kern
