#pragma once

// Knipt de tekst van de ene stroom naar de andere; waar de stromen vandaan komen maakt niet uit. De uitvoer
// is UTF-8 zonder merkteken met LF als regeleinde; elke regel en elke vervangtekst krijgt een "\n".

#include "Knipselaar/kern/knipper.h"

class wxInputStream;
class wxOutputStream;

namespace kern {

/// Wat er van een knipbeurt terechtkwam. Wie zelf niets wil melden, kan het negeren.
struct KnipUitslag {
    bool bronHeelGelezen = false;     ///< de bron ging open en is zonder leesfout tot het einde gelezen
    bool doelHeelGeschreven = false;  ///< het doel ging open en alles staat erin

    bool isGelukt() const { return bronHeelGelezen && doelHeelGeschreven; }
};

/// Knipt tot de bron niets meer geeft, ook als dat door een leesfout komt; de uitslag zegt het. Het doel
/// wordt niet gesloten.
/// @param bron  geeft de eerste keer minstens vier bytes, zoveel als een merkteken er heeft, of alles.
KnipUitslag knipStroom(wxInputStream& bron, wxOutputStream& doel, const KnipTeksten& teksten);

}  // namespace kern
