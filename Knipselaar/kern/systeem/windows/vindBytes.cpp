#include "Knipselaar/kern/systeem/vindBytes.h"

#include <vector>

namespace kern {

namespace {

/// Per lengte van een begin van de naald: het langste kortere begin waar het op eindigt. Zoveel past er nog
/// als het volgende teken niet past.
std::vector<std::size_t> maakTerugval(std::string_view naald) {
    std::vector<std::size_t> terugval(naald.size() + 1, 0);
    std::size_t past = 0;
    for (std::size_t plek = 1; plek < naald.size(); ++plek) {
        while (past > 0 && naald[plek] != naald[past]) {
            past = terugval[past];
        }
        past += naald[plek] == naald[past] ? 1 : 0;
        terugval[plek + 1] = past;
    }
    return terugval;
}

}  // namespace

std::size_t vindBytes(std::string_view hooi, std::string_view naald) {
    if (naald.empty()) {
        return 0;
    }
    const std::vector<std::size_t> terugval = maakTerugval(naald);
    std::size_t past = 0;
    for (std::size_t plek = 0; plek < hooi.size(); ++plek) {
        while (past > 0 && hooi[plek] != naald[past]) {
            past = terugval[past];
        }
        past += hooi[plek] == naald[past] ? 1 : 0;
        if (past == naald.size()) {
            return plek + 1 - past;
        }
    }
    return std::string_view::npos;
}

}  // namespace kern
