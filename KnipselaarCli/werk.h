#pragma once

// Eén taak van het plan uitvoeren: knippen, overnemen, of wat er verder in een boom staat. Elke taak staat op
// zichzelf en mag naast andere lopen.

#include "KnipselaarCli/plan.h"
#include "KnipselaarCli/teksten.h"
#include "KnipselaarCli/uitslag.h"

namespace cli {

/// Gooit niets; wat er misgaat staat in de uitslag.
Uitslag voerUit(const Taak& taak, const Opties& opties, const Teksten& teksten, Uitvoersoort soort);

}  // namespace cli
