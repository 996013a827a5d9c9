#pragma once

// Wat make en ninja willen weten om alleen opnieuw te knippen wat veranderd is: waar elke bestemming van
// afhangt.

#include <string>
#include <string_view>

#include "KnipselaarCli/opties.h"
#include "KnipselaarCli/plan.h"

namespace cli {

/// Een naam zoals make en ninja hem allebei lezen. Gooit Fout als dat met deze naam niet kan.
std::string schrijfNaam(std::string_view naam);

/// De regels voor make: van elke bestemming de bron en de bestanden die voor opties gelezen zijn. Die laatste
/// hebben hun hele pad, zodat ze te vinden zijn waar de regels ook gelezen worden. Gooit Fout als een naam er
/// niet in past, en als het bestand voor deze regels niet geschreven mag worden.
/// @param opties  met --afhankelijk.
std::string maakAfhankelijkheden(const Plan& plan, const Opties& opties);

}  // namespace cli
