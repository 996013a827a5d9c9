#pragma once

// De bestandsvariant van het knippen: leest het ene bestand, schrijft het andere. De uitvoer is UTF-8 zonder
// merkteken met LF als regeleinde; elke regel en elke vervangtekst krijgt een "\n".

#include <wx/filename.h>

#include "Knipselaar/kern/knipper.h"

namespace kern {

/// Wat er van een knipbeurt terechtkwam. Wie zelf niets wil melden, kan het negeren.
struct KnipUitslag {
    bool bronHeelGelezen = false;     ///< de bron ging open en is zonder leesfout tot het einde gelezen
    bool doelHeelGeschreven = false;  ///< het doel ging open en alles staat erin

    bool isGelukt() const { return bronHeelGelezen && doelHeelGeschreven; }
};

/// Knipt het ene bestand naar het andere. Eerst gaat de bron open, dan het doel, en dan pas wordt er gelezen:
/// een bestand dat naar zichzelf geknipt wordt, is dan al leeg.
///
/// Gaat de bron niet open, dan wordt het doel toch gemaakt of leeggemaakt. Wat bestaat en geen gewoon bestand
/// is (een directory, een pijp, een apparaat, een link die nergens heen wijst) gaat niet open en blijft zoals
/// het is. Meldt zelf niets; de uitslag zegt of het lukte.
KnipUitslag knipBestand(const wxFileName& bron, const wxFileName& doel, const KnipTeksten& teksten);

}  // namespace kern
