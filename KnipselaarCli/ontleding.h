#pragma once

// Waar de blokken van een tekst liggen, en wat er aan de markers niet klopt. Wat een blok is, is wat het
// KnipFilter van de kern ervan maakt; met meer paren eindigt een blok bij de eindmarker van zijn eigen paar.

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "KnipselaarCli/teksten.h"

namespace cli {

/// Een afgesloten blok; de plaatsen zijn bytes in de tekst.
struct Blok {
    kern::Regel begin;  ///< de regel met de beginmarker
    kern::Regel eind;   ///< de regel met de eindmarker

    /// Of er niets in staat; er komt dan ook geen vervangtekst.
    bool isLeeg() const { return begin.eind == eind.begin; }
};

enum class Ernst { waarschuwing, fout };

/// Iets dat aan een regel te melden is.
struct Melding {
    std::size_t regel;  ///< vanaf 1
    Ernst ernst;
    std::string tekst;

    bool operator==(const Melding&) const = default;
};

struct Ontleding {
    std::vector<Blok> blokken;
    std::vector<Melding> meldingen;  ///< in de volgorde van hun regels

    bool heeftFout() const;
};

/// @param tekst  hele regels in UTF-8, elk gesloten door "\n".
Ontleding ontleed(std::string_view tekst, std::span<const Markerpaar> paren);

}  // namespace cli
