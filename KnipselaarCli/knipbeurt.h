#pragma once

// Eén bestand lezen, nakijken, knippen en schrijven.

#include "KnipselaarCli/plan.h"
#include "KnipselaarCli/teksten.h"
#include "KnipselaarCli/uitslag.h"

namespace cli {

/// @param taak  knipt.
/// Gooit Fout als het bestand niet te lezen of te schrijven is.
Uitslag knipBestand(const Taak& taak, const Opties& opties, const Teksten& teksten, Uitvoersoort soort);

}  // namespace cli
