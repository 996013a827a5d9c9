#pragma once

// Het Over-venster van GTK laat zonder pictogram een plaatje van een ontbrekend beeld zien. De toolkit kan
// dat niet weglaten.

/// Verbergt het plaatje van het Over-venster dat open is. Zonder zulk venster, of waar het geen plaatje
/// heeft, gebeurt er niets.
void verbergPlaatje();
