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

}  // namespace kern
