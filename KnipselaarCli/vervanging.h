#pragma once

// Het laatste, korte deel van een run ter plaatse: alles wat klaargezet is neemt zijn plaats in.

#include <string>
#include <vector>

#include "KnipselaarCli/werk.h"

namespace cli {

/// Zet wat klaar is eerst vast op de schijf en vervangt dan elk bestand. Wat niet lukt komt in zijn uitslag.
/// Met --alles-of-niets verandert er niets als er in een van de uitslagen iets misging of er te weinig
/// blokken zijn; wat klaar was is dan gelaten.
/// @return  wat er over het geheel te zeggen is; leeg als alles kon.
/// Gooit Fout, en verandert niets, als de schijf niets vastlegt.
std::string vervangAlles(std::vector<Uitslag>& uitslagen, const Opties& opties);

}  // namespace cli
