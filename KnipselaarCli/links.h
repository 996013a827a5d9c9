#pragma once

// Waar een link in een boom langs komt, stap voor stap. Een link die de boom uit gaat en er weer in komt
// ("../boom/a.c") wijst in een kopie van de boom naar het origineel; alleen kijken waar zij uitkomt is dus
// niet genoeg.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace cli {

enum class Linkuitkomst : std::uint8_t {
    binnen,    ///< elke stap blijft in de boom, ook als die verhuist
    erbuiten,  ///< een stap gaat de boom uit, of begint bij de wortel van het systeem
    nergens    ///< er is niets, of de links lopen in een kring
};

struct Linkweg {
    Linkuitkomst uitkomst = Linkuitkomst::binnen;
    /// Wat er onderweg aangedaan wordt en waar zij uitkomt, ten opzichte van de boom; de link zelf niet.
    std::vector<std::string> langs;
};

/// @param boom  een directory.
/// @param pad   van de link, ten opzichte van de boom; tussen beide zit geen andere link.
Linkweg volgLink(const std::string& boom, const std::string& pad);

/// Waarom een link niet meegaat als haar boom gekopieerd wordt; leeg als zij meegaat.
/// @param gaatMee  of een pad waar zij langs komt, ten opzichte van de boom, ook meegaat.
std::string keurLink(const std::string& boom, const std::string& pad,
                     const std::function<bool(const std::string&)>& gaatMee);

}  // namespace cli
