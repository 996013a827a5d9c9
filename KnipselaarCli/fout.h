#pragma once

// Wat een run tegenhoudt.

#include <stdexcept>

#include "Knipselaar/kern/systeem/reden.h"

namespace cli {

/// De waarden waarmee het programma eindigt.
enum Afloop { goed = 0, foutInInvoer = 1, misbruikOfStoring = 2 };

/// Verkeerd gebruik, of een bestand dat niet te lezen of te schrijven is. De tekst is één regel die zegt waar
/// het om gaat en wat eraan te doen is.
class Fout : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

using kern::noemReden;

}  // namespace cli
