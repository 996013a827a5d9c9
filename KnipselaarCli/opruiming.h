#pragma once

// Wat een eerdere run in een directory maakte en geen bron meer maakt.

#include <functional>
#include <string>
#include <vector>

#include "KnipselaarCli/bestanden.h"

namespace cli {

struct Opruiming {
    std::vector<std::string> weg;        ///< in een volgorde waarin het weg kan
    std::vector<std::string> veranderd;  ///< was uitvoer, maar er is daarna in geschreven; dat blijft
};

/// Waar wat er na de run staat vandaan komt: de bron van een bestemming, of nullptr als niets haar maakt.
using Makers = std::function<const std::string*(const std::string& bestemming)>;

/// Zoekt bestanden die een run van deze soort schreef en die niets meer maakt, de links daarheen, en de
/// directories die er leeg van worden. De geschiedenis van een versiebeheer telt niet mee. Gooit Fout als een
/// directory niet te lezen is, en als er om stoppen gevraagd wordt.
/// @param naar     een directory; met de soort boom helemaal, anders alleen wat er zelf in staat.
/// @param bronnen  wat de gebruiker noemde; dat gaat nooit weg, ook niet als het in de bestemming staat.
Opruiming zoekOpruiming(const std::string& naar, Uitvoersoort soort, const Makers& makers,
                        const std::vector<std::string>& bronnen);

/// Haalt iets weg dat zo gevonden is. Gooit Fout als dat niet lukt, of als het intussen veranderd is: een
/// bestand waar iemand in schreef, een link die nog ergens heen wijst, een directory die niet leeg is.
void ruimOp(const std::string& pad, Uitvoersoort soort);

/// Gooit Fout als er in de directory van dit pad niets weg te halen is.
void keurOpruimen(const std::string& pad);

}  // namespace cli
