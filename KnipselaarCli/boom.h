#pragma once

// Wat er in een directory staat, in een vaste volgorde en in de bytes van het bestandssysteem. Links worden
// nooit gevolgd.

#include <string>
#include <string_view>
#include <vector>

#include "Knipselaar/kern/systeem/kenmerken.h"

namespace cli {

struct Boomdeel {
    std::string pad;  ///< ten opzichte van de directory waar het lopen begon
    kern::Bestandssoort soort;
};

struct LoopWens {
    bool recursief = false;
    bool verborgen = false;     ///< ook namen met een punt vooraan
    bool versiebeheer = false;  ///< ook de directories waarin een versiebeheer zijn geschiedenis bewaart
};

/// Of een directory met deze naam van een versiebeheer is.
bool isVersiebeheer(std::string_view naam);

/// Alles in een directory, op naam; een directory staat voor wat erin zit. Gooit Fout als een directory niet
/// te lezen is.
std::vector<Boomdeel> loopAf(const std::string& directory, const LoopWens& wens);

/// Het pad zonder links, "." en ".."; wat er nog niet is, telt mee zoals het geschreven staat.
std::string maakEcht(const std::string& pad);

}  // namespace cli
