#pragma once

// Een opdracht van de gebruiker op een geknipt bestand proberen.

#include <string>

#include "Knipselaar/kern/systeem/opdracht.h"

namespace cli {

struct Proef {
    std::string pad;
    std::string opdracht;
    kern::Opdrachtuitkomst uitkomst;

    bool isGelukt() const { return !uitkomst.fout && uitkomst.afloop == 0; }
};

/// Gooit niets; wat er misgaat staat in de uitkomst.
/// @param sjabloon  de opdracht, met "{}" waar het bestand komt.
Proef probeer(const std::string& sjabloon, const std::string& pad);

}  // namespace cli
