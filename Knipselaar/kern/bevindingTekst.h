#pragma once

// Wat het venster over een tekst of een bestand zegt, in woorden. Hoe erg het is staat er altijd bij, zodat
// niemand het aan de kleur hoeft te zien.

#include <wx/string.h>

#include <cstddef>

#include "Knipselaar/kern/ontleding.h"

namespace kern {

enum class Ernst { opmerking, waarschuwing, fout };

/// Een tekst die onder een regel komt te staan, zonder regeleinde.
struct Bijschrift {
    Ernst ernst;
    wxString tekst;

    bool operator==(const Bijschrift&) const = default;
};

/// Het bijschrift met het woord ervoor dat bij de ernst hoort: "Fout: ", "Let op: " of niets.
Bijschrift maakBijschrift(Ernst ernst, const wxString& tekst);

/// Hoe erg een bevinding is.
Ernst geefErnst(Soort soort);

/// Een bevinding, voor onder de regel waar zij over gaat.
Bijschrift beschrijf(const Bevinding& bevinding);

/// Een bevinding met het nummer van haar regel, voor een verslag over een heel bestand. Wat over het hele
/// bestand gaat heeft geen nummer.
Bijschrift beschrijfMetRegel(const Bevinding& bevinding);

}  // namespace kern
