#pragma once

// Wat een batch over elk bestand en over het geheel te zeggen heeft, voor onder de regels van haar twee
// logboeken: dat van de bron en dat van de bestemming. Over een bestand waarmee alles goed ging staat er
// niets.

#include <vector>

#include "Knipselaar/kern/batch.h"
#include "Knipselaar/kern/bevindingTekst.h"

namespace kern {

/// De bijschriften bij één bestand.
struct BatchBijschriften {
    std::vector<Bijschrift> bron;
    std::vector<Bijschrift> bestemming;

    bool operator==(const BatchBijschriften&) const = default;
};

/// Waarom een bestand dat aan de beurt was niet of niet heel geknipt is, en wat er aan zijn markers niet
/// klopt.
BatchBijschriften beschrijfAfloop(const Afloop& afloop);

/// Waarom een bestand overgeslagen is, als dat niet vanzelf spreekt.
std::vector<Bijschrift> beschrijfOverslag(Overslag reden);

/// Telt een hele batch.
class BatchTelling {
  public:
    void neem(const Afloop& afloop);
    void neemOvergeslagen() { ++overgeslagen_; }

    /// Wat er van de batch kwam, in één zin.
    Bijschrift geefSamenvatting() const;

  private:
    std::size_t geknipt_ = 0;
    std::size_t blokken_ = 0;
    std::size_t zonderBlok_ = 0;
    std::size_t overgeslagen_ = 0;
    std::size_t mislukt_ = 0;
    bool markerFout_ = false;
};

}  // namespace kern
