#pragma once

// De woorden van de opdrachtregel, en van de optiebestanden die erop genoemd worden, als een rij opties en
// bronnen. Wat ze betekenen zegt opties.h.

#include <string>
#include <vector>

namespace cli {

/// Een optie met haar waarde, of een bron.
struct Woord {
    std::string optie;   ///< de lange naam; leeg voor een bron
    std::string waarde;  ///< van de optie, of de naam van de bron
    std::string waar;    ///< "BESTAND:REGEL: " als het uit een optiebestand komt; leeg op de opdrachtregel
};

struct Opdrachtregel {
    std::vector<Woord> woorden;               ///< in de volgorde waarin ze gegeven zijn
    std::vector<std::string> optiebestanden;  ///< die ervoor gelezen zijn
};

/// Leest de opdrachtregel, zonder de naam van het programma. Een optiebestand telt alsof zijn regels op zijn
/// plaats op de opdrachtregel staan. Gooit Fout bij een optie die er niet is of die haar waarde mist, en als
/// een optiebestand niet te lezen is.
Opdrachtregel leesOpdrachtregel(const std::vector<std::string>& woorden);

/// Of er om JSON gevraagd wordt, ook op een opdrachtregel die verder niet klopt.
bool vraagtJson(const std::vector<std::string>& woorden);

}  // namespace cli
