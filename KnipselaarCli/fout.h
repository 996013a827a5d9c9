#pragma once

// Wat een run tegenhoudt, en hoe het systeem het noemt.

#include <stdexcept>
#include <string>

namespace cli {

/// De waarden waarmee het programma eindigt.
enum Afloop { goed = 0, foutInInvoer = 1, misbruikOfStoring = 2 };

/// Verkeerd gebruik, of een bestand dat niet te lezen of te schrijven is. De tekst is één regel die zegt waar
/// het om gaat en wat eraan te doen is.
class Fout : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// De reden bij een foutnummer van het systeem, in het Nederlands; onbekende in het Engels van het systeem.
std::string noemReden(int foutnummer);

}  // namespace cli
