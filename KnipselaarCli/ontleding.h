#pragma once

// De ontleding van de kern in de woorden van het consoleprogramma, met hoe erg elke bevinding is.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "Knipselaar/kern/ontleding.h"

namespace cli {

enum class Ernst { waarschuwing, fout };

/// Iets dat aan een regel te melden is.
struct Melding {
    std::size_t regel;  ///< vanaf 1
    Ernst ernst;
    std::string tekst;

    bool operator==(const Melding&) const = default;
};

struct Ontleding {
    std::vector<kern::Blok> blokken;  ///< alleen die afgesloten zijn
    std::vector<Melding> meldingen;   ///< in de volgorde van hun regels

    bool heeftFout() const;
};

/// @param tekst  hele regels in UTF-8, elk gesloten door "\n".
Ontleding ontleed(std::string_view tekst, const kern::MarkerReeks& markers);

}  // namespace cli
