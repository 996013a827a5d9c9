#pragma once

// Eén run: een plan maken en uitvoeren, en er verslag van doen.

#include "KnipselaarCli/fout.h"
#include "KnipselaarCli/melder.h"
#include "KnipselaarCli/opties.h"

namespace cli {

/// Doet wat de opties vragen. Gooit Fout als de run als geheel niet kan; wat aan één bestand misgaat staat in
/// het verslag en in de afloop.
Afloop voerRunUit(const Opties& opties, Melder& melder);

}  // namespace cli
