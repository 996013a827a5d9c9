#pragma once

// Namen en meldingen zoals een terminal ze veilig toont.

#include <string>
#include <string_view>

namespace cli {

/// Dezelfde tekst met elk besturingsteken als "\x1b": een bestandsnaam kan er anders de terminal mee
/// bedienen, of een melding in tweeën breken. Wat geen UTF-8 is blijft zoals het is.
std::string maakLeesbaar(std::string_view tekst);

}  // namespace cli
