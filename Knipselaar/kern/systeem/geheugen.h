#pragma once

// Geheugen voor grote inhoud.

#include <cstddef>

namespace kern {

/// Geheugen voor minstens zoveel bytes, niet eerst nul gemaakt. Een groot blok ligt waar het systeem het in
/// grote pagina's kan geven: dat kost honderden keren minder paginafouten. Gooit std::bad_alloc.
char* neemGeheugen(std::size_t ruimte);

/// Geeft terug wat neemGeheugen gaf; met niets gebeurt er niets.
void geefGeheugenTerug(char* bytes);

}  // namespace kern
