#pragma once

// Knipt de tekst van de ene stroom naar de andere; waar de stromen vandaan komen maakt niet uit. De uitvoer
// is UTF-8 zonder merkteken met LF als regeleinde; elke regel en elke vervangtekst krijgt een "\n".

#include <string>

#include "Knipselaar/kern/knipper.h"
#include "Knipselaar/kern/ontleding.h"
#include "Knipselaar/kern/systeem/kenmerken.h"

class wxInputStream;
class wxOutputStream;

namespace kern {

/// Wat er van een knipbeurt terechtkwam. Wie zelf niets wil melden, kan het negeren.
struct KnipUitslag {
    bool bronHeelGelezen = false;     ///< de bron ging open en is zonder leesfout tot het einde gelezen
    bool doelHeelGeschreven = false;  ///< het doel ging open en alles staat erin
    bool bronBestaat = true;          ///< de bron is een gewoon bestand, ook als zij niet te lezen was
    std::string bronReden;            ///< waarom de bron niet heel gelezen is, als dat te zeggen is
    std::string doelReden;            ///< waarom het doel niet heel geschreven is, als dat te zeggen is
    Kenmerken bron;                   ///< van de bron toen zij openging, als zij een bestand was
    Bevindingen bevindingen;          ///< wat er aan de markers op te merken is, als daarnaar gekeken is

    bool isGelukt() const { return bronHeelGelezen && doelHeelGeschreven; }
};

/// Of een knipbeurt ook nagaat hoeveel blokken er zijn en wat er aan de markers niet klopt. Zij bewaart dan
/// hoogstens zoveel bevindingen als grootsteAantalBevindingen, zoals een Ontleder dat doet.
enum class Nakijken { nee, ja };
inline constexpr std::size_t grootsteAantalBevindingen = 100;

/// Knipt tot de bron niets meer geeft, ook als dat door een leesfout komt; de uitslag zegt het. Het doel
/// wordt niet gesloten.
/// @param bron  geeft de eerste keer minstens vier bytes, zoveel als een merkteken er heeft, of alles.
KnipUitslag knipStroom(wxInputStream& bron, wxOutputStream& doel, const KnipMal& mal,
                       Nakijken nakijken = Nakijken::nee);

}  // namespace kern
