#pragma once

// Een klein bestand om te knippen, met de teksten erbij en wat er dan uit komt.

#include <string>

#include "Knipselaar/kern/knipMal.h"
#include "tests/hulp/bestanden.h"

namespace proef {

inline const kern::KnipTeksten teksten{"BEGIN", "EIND", "WERK"};
inline const std::string origineel = "a\nBEGIN\nb\nEIND\nc\n";
inline const std::string geknipt = hulp::zetInBestand("a\nWERK\nc\n\n");

}  // namespace proef
