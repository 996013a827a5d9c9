#pragma once

// Wat er in een directory gekozen wordt, met maskers of met een soort bestanden, en wat er nooit meegaat.

#include <set>
#include <string>

#include "KnipselaarCli/boom.h"
#include "KnipselaarCli/opties.h"

namespace cli {

/// Onthoudt welk masker iets vond. Leent de opties.
class Kiezer {
  public:
    explicit Kiezer(const Opties& opties) : opties_(opties) {}

    /// Of een bestand geknipt wordt.
    /// @param pad  ten opzichte van de directory die de gebruiker noemde.
    bool isGekozen(const std::string& pad);

    /// Of iets in een directory nooit meegaat. Wat in een directory zit die niet meegaat, is aan zijn eigen
    /// pad niet te zien.
    bool isWeggelaten(const Boomdeel& deel) const;

    /// Gooit Fout als er op een masker van isGekozen niets paste.
    void keurMaskers() const;

  private:
    const Opties& opties_;
    std::set<std::string> gebruikt_;
};

}  // namespace cli
