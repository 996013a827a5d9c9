#pragma once

// Regels van een tekst in UTF-8.

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace cli {

/// Zonder de blanco tekens eromheen.
std::string_view snoei(std::string_view regel);

/// De blanco tekens waarmee een regel begint.
std::string_view geefInspringing(std::string_view regel);

/// Het aantal tekens van een tekst in UTF-8.
std::size_t telTekens(std::string_view tekst);

/// Roept iets aan met het nummer (vanaf 1) en de inhoud van elke regel, zonder haar regeleinde "\n".
template <typename Doe>
void loopRegelsAf(std::string_view tekst, const Doe& doe) {
    for (std::size_t nummer = 1; !tekst.empty(); ++nummer) {
        const std::size_t einde = std::min(tekst.find('\n'), tekst.size());
        doe(nummer, tekst.substr(0, einde));
        tekst.remove_prefix(std::min(einde + 1, tekst.size()));
    }
}

}  // namespace cli
