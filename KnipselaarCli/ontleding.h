#pragma once

// De ontleding van de kern in de woorden van het consoleprogramma, met hoe erg elke bevinding is.

#include <cstddef>
#include <span>
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
    std::vector<kern::Blok> blokken;  ///< die weggaan, op volgorde; alleen die afgesloten zijn
    std::vector<kern::Regel> weg;     ///< losse regels die weggaan, op volgorde: de markers van een blok dat
                                      ///< blijft, en wat daarin alleen voor de student is
    std::size_t gevonden = 0;         ///< hoeveel blokken er zijn, ook die blijven
    std::vector<Melding> meldingen;   ///< in de volgorde van hun regels

    bool heeftFout() const;

    /// Zet een melding op haar plaats.
    void voegToe(Melding melding);
};

/// Over een regel die op een marker lijkt.
Melding maakBijnaMelding(std::size_t regel, kern::Gelijkenis lijktOp, Ernst ernst);

struct OntleedWens {
    Ernst bijna = Ernst::waarschuwing;             ///< hoe erg een regel is die bijna een marker is
    std::span<const std::string> toegestaan = {};  ///< regels waar dat niet voor geldt, op volgorde
    std::vector<bool> houd = {};                   ///< per markerpaar: of zijn blokken blijven; leeg: geen
    std::span<const std::string> geef = {};  ///< waarmee een regel begint die in een blok voor de student is
};

/// In een blok dat blijft tellen de andere paren gewoon.
/// @param tekst  hele regels in UTF-8, elk gesloten door "\n".
Ontleding ontleed(std::string_view tekst, const kern::MarkerReeks& markers, const OntleedWens& wens = {});

}  // namespace cli
