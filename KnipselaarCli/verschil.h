#pragma once

// Een verschil in de vorm die "patch" neemt (unified diff), uit wijzigingen die al bekend zijn.

#include <span>
#include <string>
#include <string_view>

#include "KnipselaarCli/knipsel.h"

namespace cli {

/// Het verschil tussen een bestand en wat de wijzigingen ervan maken; leeg als dat hetzelfde is. Regels zijn
/// hier wat LF ervan maakt, in welke codering het bestand ook staat.
/// @param naam         zoals "patch" het bestand moet vinden.
/// @param wijzigingen  op volgorde en zonder overlap.
std::string maakVerschil(std::string_view naam, std::string_view ruw, std::span<const Wijziging> wijzigingen);

}  // namespace cli
