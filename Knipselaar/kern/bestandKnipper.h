#pragma once

// De bestandsvariant van het knippen: opent de bestanden en laat de stroomKnipper ertussen zijn werk doen.

#include <wx/filename.h>

#include "Knipselaar/kern/stroomKnipper.h"

namespace kern {

/// Knipt het ene bestand naar het andere. Eerst gaat de bron open, dan het doel, en dan pas wordt er gelezen:
/// een bestand dat naar zichzelf geknipt wordt, is dan al leeg.
///
/// Gaat de bron niet open, dan wordt het doel toch gemaakt of leeggemaakt. Wat bestaat en geen gewoon bestand
/// is (een directory, een pijp, een apparaat, een link die nergens heen wijst) gaat niet open en blijft zoals
/// het is. Meldt zelf niets; de uitslag zegt of het lukte, en zo niet waarom.
KnipUitslag knipBestand(const wxFileName& bron, const wxFileName& doel, const KnipMal& mal,
                        Nakijken nakijken = Nakijken::nee);
KnipUitslag knipBestand(const wxFileName& bron, const wxFileName& doel, const KnipTeksten& teksten);

}  // namespace kern
