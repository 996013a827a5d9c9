#pragma once

// Wat het venster in een editor laat zien zonder dat het in de tekst komt: achtergronden achter regels, een
// lijn onder markerregels, en bijschriften onder regels. Niets ervan wordt opgeslagen of geknipt.

#include <wx/colour.h>

#include <array>
#include <map>
#include <string_view>
#include <utility>
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

/// Laat de bijschriften zien of niet. Zolang ze te zien zijn rekent de editor van elke nieuwe regel meteen de
/// hoogte uit; wie veel tekst gaat zetten laat ze dus eerst niet zien.
void toonBijschriften(wxStyledTextCtrl& editor, bool zichtbaar);

/// Merkt een regel van een origineel, en geeft haar tekst de kleur die erbij hoort.
/// @param regel  vanaf 0.
/// @param merk   precies deze merken krijgt zij.
void merkRegel(wxStyledTextCtrl& editor, int regel, int merk);

/// Geeft een vervanging haar tekstkleur, en een deel van een regel ook een achtergrond. De achtergrond van
/// hele regels komt van merkVervangregel.
/// @param tekst  de hele tekst van de editor.
/// @param stuk   waar de vervanging daarin staat.
void kleurVervanging(wxStyledTextCtrl& editor, std::string_view tekst, const kern::Regel& stuk);

/// Geeft een regel de achtergrond van een vervanging als zij er helemaal een is, en anders geen.
/// @param regel  vanaf 0.
void merkVervangregel(wxStyledTextCtrl& editor, int regel);

/// Zet bijschriften onder regels, afgebroken op de breedte die de editor nu heeft. Dezelfde tekst komt vaak
/// terug; hoe breed zij is wordt maar één keer gemeten. Leeft korter dan de editor.
class Bijschrijver {
  public:
    explicit Bijschrijver(wxStyledTextCtrl& editor);

    /// Zet bijschriften onder een regel in plaats van wat er stond; zonder bijschriften komt er niets.
    /// @param regel  vanaf 0.
    void zet(int regel, const std::vector<kern::Bijschrift>& bijschriften);

  private:
    const wxString& breekAf(const wxString& tekst, int inspringing);

    wxStyledTextCtrl& editor_;
    int breedte_;
    int spatie_;
    std::map<std::pair<int, wxString>, wxString> afgebroken_;  ///< naar inspringing en tekst
};

/// Wat er onder een regel staat, zonder afbrekingen.
std::vector<kern::Bijschrift> leesBijschriften(const wxStyledTextCtrl& editor, int regel);

/// Breekt alle bijschriften opnieuw af, voor als de editor breder of smaller werd.
void breekOpnieuwAf(wxStyledTextCtrl& editor);

}  // namespace merken
