#pragma once

// Maakt van de bytes van libFuzzer teksten zoals een gebruiker die had kunnen intikken. Een veld eindigt met
// een NUL: die kan in een tekstveld niet staan.

#include <wx/string.h>

#include <string_view>

namespace fuzz {

/// Haalt het eerste veld, met zijn NUL, van de invoer af. Alles als er geen NUL meer is.
std::string_view neemVeld(std::string_view& invoer);

/// Bytes als tekst. Wat geen UTF-8 is, of waar de toolkit een teken voorbij U+10FFFF in leest, gaat als
/// ISO 8859-1 mee; een NUL valt weg.
wxString alsTekst(std::string_view bytes);

}  // namespace fuzz
