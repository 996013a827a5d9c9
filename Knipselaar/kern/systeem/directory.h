#pragma once

// Wat er in een directory staat.

#include <string>
#include <system_error>
#include <vector>

#include "Knipselaar/kern/systeem/kenmerken.h"

namespace kern {

struct Deel {
    std::string naam;
    Bestandssoort soort = Bestandssoort::onbekend;  ///< van de naam zelf; links worden niet gevolgd
    bool verborgen = false;  ///< zoals het systeem dat bedoelt: op POSIX begint de naam met een punt
};

/// Voegt achteraan toe wat er in een directory staat, zonder "." en "..", in de volgorde van het systeem.
/// Mislukt het onderweg, dan blijft wat er al was.
std::error_code leesDirectory(const std::string& pad, std::vector<Deel>& uit);

/// Maakt een directory, met de directories erboven die er nog niet zijn. Is zij er al, dan gebeurt er niets.
std::error_code maakDirectories(const std::string& pad);

/// Maakt één directory. Is zij er al, dan gebeurt er niets.
/// @param rechten  van de nieuwe directory; de eigenaar houdt altijd alle rechten, en wat de gebruiker zijn
///                 directories nooit geeft gaat eraf. Op Windows zijn ze die van de directory erboven.
std::error_code maakDirectory(const std::string& pad, std::filesystem::perms rechten);

/// Waarom er in een directory niets te maken is; leeg als dat mag.
std::error_code keurSchrijfbaar(const std::string& directory);

}  // namespace kern
