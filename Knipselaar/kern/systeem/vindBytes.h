#pragma once

// Zoeken in bytes, zoals de C-bibliotheek van het systeem dat het snelst kan.

#include <cstddef>
#include <string_view>

namespace kern {

/// Waar de naald het eerst staat, of npos. Blijft ook bij bijna-treffers lineair; std::string_view::find doet
/// dat niet.
std::size_t vindBytes(std::string_view hooi, std::string_view naald);

}  // namespace kern
