#pragma once

// Wat een run gaat doen, bestand voor bestand, en of dat kan. Hier wordt niets geschreven: wat de run als
// geheel onmogelijk maakt komt uit voordat er iets veranderd is.

#include <cstdint>
#include <string>
#include <vector>

#include "KnipselaarCli/bestanden.h"
#include "KnipselaarCli/opties.h"

namespace cli {

enum class Handeling : std::uint8_t { maakDirectory, knip, neemOver, legLink, ruimOp };

struct Taak {
    Handeling handeling;
    std::string bron;  ///< zoals het in meldingen staat; leeg als er geen is
    std::string doel;  ///< leeg voor de standaarduitvoer, en als er geen bestemming is
    std::string echt;  ///< ter plaatse: het pad van de bron zonder links
};

struct Plan {
    /// Eerst de directories, dan de rest in de volgorde van het verslag, en als laatste wat opgeruimd wordt.
    std::vector<Taak> taken;
    std::vector<std::string> waarschuwingen;
    std::size_t teKnippen = 0;         ///< hoeveel van de taken knippen
    std::size_t opTeRuimen = 0;        ///< hoeveel van de taken opruimen
    std::vector<std::string> nalezen;  ///< waar een bewijs naar moet kijken
    Uitvoersoort soort = Uitvoersoort::bestand;
};

/// Gooit Fout als een bron er niet is, als bronnen en bestemming niet samengaan, of als een bestemming er al
/// is en niet vervangen mag worden.
Plan maakPlan(const Opties& opties);

}  // namespace cli
