#pragma once

// Maakt van de ruwe bytes van een tekst zonder merkteken (BOM), of met een UTF-8-merkteken dat er al af is,
// regels in UTF-8 die elk met "\n" eindigen. Neemt de tekst in blokken van elke grootte aan en onthoudt
// ertussen niet meer dan een half teken.
//
// LF, CR, CR LF en NUL eindigen een regel; een NUL direct na een CR hoort bij die CR. Bij de eerste byte die
// geen UTF-8 is gaat de rest van de tekst als ISO 8859-1 verder; wat er al was blijft staan. Zo leest ook de
// tekststroom van de toolkit met wxConvAuto, op drie plaatsen na waar zij bytes laat verdwijnen: een half
// teken aan het einde, een ongeldige byte na een UTF-8-merkteken en een teken voorbij U+10FFFF. Die gaan hier
// ook als ISO 8859-1 verder.

#include <string>
#include <string_view>

#include "Knipselaar/kern/bytes.h"

namespace kern {

class RegelOmzetter {
  public:
    /// Of dit blok na alles wat er al was ongewijzigd doorgegeven mag worden. De omzetter hoeft het dan niet
    /// te zien.
    bool isAlGoed(std::string_view blok) const;

    /// Zet het volgende blok om en hangt de uitkomst achter uit.
    void zetOm(std::string_view blok, Bytes& uit);

    /// Sluit de tekst af: een half teken komt alsnog, en de laatste regel krijgt haar regeleinde. Dat is een
    /// extra lege regel als de tekst op een regeleinde eindigde, behalve na een kale CR.
    void sluitAf(Bytes& uit);

  private:
    enum class Codering { utf8, latijn1 };

    void neemGewoneTekens(std::string_view& blok, Bytes& uit) const;
    void zetUtf8Om(std::string_view blok, Bytes& uit);
    void zetLatijn1Om(std::string_view blok, Bytes& uit);
    bool eindigRegel(char teken, Bytes& uit);

    Codering codering_ = Codering::utf8;
    bool naCR_ = false;      ///< de CR is al een regeleinde; een LF of NUL direct erna hoort erbij
    std::string halfTeken_;  ///< begin van een UTF-8-reeks die het vorige blok niet afmaakte
};

}  // namespace kern
