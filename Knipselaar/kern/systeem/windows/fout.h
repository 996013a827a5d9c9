#pragma once

// Hoe een aanroep van Windows zegt wat er misging.

#include <windows.h>

#include <system_error>

namespace kern::windows {

/// Waar de C-bibliotheek een naam voor de fout heeft, is het haar foutnummer, zodat de rest van het programma
/// haar met std::errc kan vergelijken. Anders dat van Windows.
std::error_code maakFout(DWORD nummer);

/// Van de laatste aanroep van deze draad.
std::error_code geefFout();

/// Niets als een aanroep lukte, anders de fout.
std::error_code keur(BOOL gelukt);

}  // namespace kern::windows
