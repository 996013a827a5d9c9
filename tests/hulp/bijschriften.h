#pragma once

// Bijschriften als leesbare tekst, om hele lijsten te vergelijken.

#include <array>
#include <string>
#include <vector>

#include "Knipselaar/kern/bevindingTekst.h"

namespace hulp {

/// Een bijschrift met hoe erg het is ervoor, zoals "fout | Fout: niet te lezen".
inline std::string toon(const kern::Bijschrift& bijschrift) {
    constexpr std::array<const char*, 3> namen{"opmerking", "waarschuwing", "fout"};
    return std::string(namen.at(static_cast<std::size_t>(bijschrift.ernst))) + " | " +
           bijschrift.tekst.utf8_string();
}

inline std::vector<std::string> toon(const std::vector<kern::Bijschrift>& bijschriften) {
    std::vector<std::string> getoond;
    for (const kern::Bijschrift& bijschrift : bijschriften) {
        getoond.push_back(toon(bijschrift));
    }
    return getoond;
}

}  // namespace hulp
