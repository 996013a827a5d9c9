#pragma once

// Wat het venster in een editor laat zien zonder dat het in de tekst komt: achtergronden achter regels, een
// lijn onder markerregels, en bijschriften onder regels. Niets ervan wordt opgeslagen of geknipt.

#include <wx/colour.h>

#include <array>
#include <vector>

#include "Knipselaar/kern/bevindingTekst.h"
#include "Knipselaar/kern/markerMasker.h"

class wxStyledTextCtrl;

namespace merken {

/// De merken van een regel, als bits zoals de editor ze geeft.
enum Regelmerk : int {
    geen = 0,
    blok = 1 << 0,        ///< valt weg bij het knippen
    rand = 1 << 1,        ///< een markerregel: de grens van een blok
    vervanging = 1 << 2,  ///< kwam in de plaats van een blok
    alle = blok | rand | vervanging
};

/// Een tekstkleur met haar achtergrond. De editors zijn in elk thema zwart op wit, en deze kleuren liggen
/// dus vast. Wat op een achtergrond staat heeft er altijd de tekstkleur van: de kleuren van een taal zijn
/// voor wit gekozen.
struct Kleurpaar {
    wxColour tekst;
    wxColour achtergrond;
};

/// De kleuren van de bijschriften, op volgorde van kern::Ernst.
const std::array<Kleurpaar, 3>& geefBijschriftKleuren();
const Kleurpaar& geefBlokKleuren();
const Kleurpaar& geefVervangingKleuren();

/// Maakt een nieuwe editor klaar om merken te dragen.
void bereidVoor(wxStyledTextCtrl& editor);

/// Zet de stijlen van de bijschriften; nodig na elke kleuring, want die wist alle stijlen.
void zetStijlen(wxStyledTextCtrl& editor);

/// Haalt alle merken en bijschriften weg.
void wis(wxStyledTextCtrl& editor);

/// Geeft een regel precies deze merken.
/// @param regel  vanaf 0.
void merkRegel(wxStyledTextCtrl& editor, int regel, int merk);

/// Geeft de tekst tussen het vorige blok en het einde van dit blok de kleur die erbij hoort.
/// @param vorigEinde  waar het vorige blok eindigt, of 0.
/// @param begin       waar dit blok begint.
/// @param einde       en waar het eindigt, in bytes.
void kleurBlok(wxStyledTextCtrl& editor, int vorigEinde, int begin, int einde);

/// Merkt een stuk tekst als vervanging: hele regels krijgen een achtergrond, een deel van een regel alleen
/// dat deel.
/// @param stuk  bytes in de tekst van de editor.
void merkVervanging(wxStyledTextCtrl& editor, const kern::Regel& stuk);

/// Zet bijschriften onder een regel in plaats van wat er stond; zonder bijschriften komt er niets. Lange
/// regels worden afgebroken op de breedte van de editor.
/// @param regel  vanaf 0.
void zetBijschriften(wxStyledTextCtrl& editor, int regel, const std::vector<kern::Bijschrift>& bijschriften);

/// Wat er onder een regel staat, zonder afbrekingen.
std::vector<kern::Bijschrift> leesBijschriften(const wxStyledTextCtrl& editor, int regel);

/// Breekt alle bijschriften opnieuw af, voor als de editor breder of smaller werd.
void breekOpnieuwAf(wxStyledTextCtrl& editor);

}  // namespace merken
