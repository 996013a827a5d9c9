#pragma once

// Leest een brede tekst (UTF-16 of UTF-32) teken voor teken, met U+FFFD voor wat geen teken is, zoals de kern
// het doet. Van elk teken is te zeggen waar het in de bytes eindigt.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "KnipselaarCli/codering.h"

namespace cli {

class BreedLezer {
  public:
    /// @param bytes     zonder merkteken; moeten langer leven.
    /// @param codering  een brede.
    BreedLezer(std::string_view bytes, Codering codering) : bytes_(bytes), codering_(codering) {}

    /// Het volgende teken, of niets aan het einde.
    std::optional<std::uint32_t> lees();

    /// Waar het volgende teken begint.
    std::size_t geefPlek() const { return plek_; }

    /// Slaat het volgende teken over als het dit is. Geeft of het dat was.
    bool neem(std::uint32_t teken);

  private:
    std::optional<std::uint32_t> leesEenheid(std::size_t plek) const;

    std::string_view bytes_;
    Codering codering_;
    std::size_t plek_ = 0;
};

}  // namespace cli
