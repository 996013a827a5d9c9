#pragma once

// Welke opties samen iets betekenen.

#include "KnipselaarCli/opties.h"

namespace cli {

/// Gooit Fout bij opties die niet samengaan, en als er niets te doen is.
void keurSamengaan(const Opties& opties);

}  // namespace cli
