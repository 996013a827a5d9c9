#pragma once

// Wat er in een directory staat, in een vaste volgorde en in de bytes van het bestandssysteem. Links worden
// nooit gevolgd.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

enum class Soort : std::uint8_t { bestand, directory, link, anders };

struct Boomdeel {
    std::string pad;  ///< ten opzichte van de directory waar het lopen begon
    Soort soort;
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

/// De laatste naam van een pad.
std::string_view geefNaam(std::string_view pad);

/// Twee paden achter elkaar.
std::string plak(std::string_view directory, std::string_view pad);

/// Het pad zonder links, "." en ".."; wat er nog niet is, telt mee zoals het geschreven staat.
std::string maakEcht(const std::string& pad);

/// Of een echt pad in een echte directory ligt, of die directory is.
bool ligtIn(std::string_view pad, std::string_view directory);

}  // namespace cli
