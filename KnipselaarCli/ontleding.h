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
    std::size_t regel;  ///< vanaf 1; 0 als er geen regel bij te noemen is
    Ernst ernst;
    std::string tekst;

    bool operator==(const Melding&) const = default;
};

struct Ontleding {
    std::vector<kern::Blok> blokken;  ///< alleen die afgesloten zijn
    std::vector<Melding> meldingen;   ///< in de volgorde van hun regels

    bool heeftFout() const;
};

/// Over een regel die op een marker lijkt.
Melding maakBijnaMelding(std::size_t regel, kern::Gelijkenis lijktOp, Ernst ernst);

/// @param tekst  hele regels in UTF-8, elk gesloten door "\n".
/// @param bijna  hoe erg een regel is die bijna een marker is.
Ontleding ontleed(std::string_view tekst, const kern::MarkerReeks& markers, Ernst bijna);

}  // namespace cli
