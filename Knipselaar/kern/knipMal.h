#pragma once

// De teksten van een knipbeurt, klaargemaakt om mee te knippen. Dat klaarmaken kost meer dan een klein
// bestand knippen; wie er veel knipt, maakt de mal één keer.

#include <wx/string.h>

#include <string>

#include "Knipselaar/kern/markerReeks.h"

namespace kern {

/// De drie teksten die één knipbeurt bepalen.
struct KnipTeksten {
    wxString beginMarker;
    wxString eindMarker;
    wxString vervangtekst;

    bool operator==(const KnipTeksten&) const = default;
};

class KnipMal {
  public:
    explicit KnipMal(const KnipTeksten& teksten);

    const KnipTeksten& geefTeksten() const { return teksten_; }

    /// De markers, ook om te zien wat er bijna een is.
    const MarkerReeks& geefMarkers() const { return markers_; }

    const Markerpaar& geefPaar() const { return markers_.geefParen().front(); }

    /// De vervangtekst in UTF-8.
    const std::string& geefVervanging() const { return vervanging_; }

  private:
    KnipTeksten teksten_;
    MarkerReeks markers_;
    std::string vervanging_;
};

}  // namespace kern
