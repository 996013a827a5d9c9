#pragma once

// Wat er aan de bytes van een smalle tekst (UTF-8 of ISO 8859-1) te zien is: of ze zelf als tekst kunnen
// dienen, of omgezet moeten worden.

#include <string_view>

namespace cli {

struct Keuring {
    bool utf8 = true;          ///< alles is UTF-8
    bool kort = true;          ///< elk teken staat in zijn kortste vorm
    bool regelsGewoon = true;  ///< geen NUL, geen CR zonder LF en niets dat alleen te lang geschreven LF is
    bool heeftCR = false;
};

/// Bekijkt een smalle tekst. Houdt op bij het eerste waardoor zij in geen geval zelf als tekst kan dienen;
/// wat daarachter staat telt dan niet meer mee.
/// @param bytes  zonder merkteken.
Keuring keur(std::string_view bytes);

}  // namespace cli
