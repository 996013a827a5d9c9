#pragma once

// Wat er in een directory staat, in een vaste volgorde en in de bytes van het bestandssysteem. Links worden
// nooit gevolgd.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Knipselaar/kern/systeem/kenmerken.h"
#include "KnipselaarCli/fout.h"

namespace cli {

struct Boomdeel {
    std::string pad;  ///< ten opzichte van de directory waar het lopen begon
    kern::Bestandssoort soort;
};

struct LoopWens {
    bool recursief = false;
    bool verborgen = false;     ///< ook namen met een punt vooraan
    bool versiebeheer = false;  ///< ook waar een versiebeheer zijn geschiedenis bewaart
    /// Wat er niet bij hoort; een directory dan met alles erin. Leeg voor niets.
    std::function<bool(const Boomdeel&)> weglaten = {};
};

/// Alles in een directory, op naam; een directory staat voor wat erin zit. Gooit Fout als een directory niet
/// te lezen is, en als er om stoppen gevraagd wordt.
std::vector<Boomdeel> loopAf(const std::string& directory, const LoopWens& wens);

/// Hetzelfde, maar meldt wat niet te lezen is en gaat verder met de rest.
std::vector<Boomdeel> loopAf(const std::string& directory, const LoopWens& wens,
                             const std::function<void(const Fout&)>& opStoring);

/// Het pad zonder links, "." en ".."; wat er nog niet is, telt mee zoals het geschreven staat.
std::string maakEcht(const std::string& pad);

}  // namespace cli
