#include "Knipselaar/kern/parserInstellingen.h"

#include <wx/confbase.h>
#include <wx/intl.h>
#include <wx/utils.h>

#include <algorithm>

namespace kern {

namespace {
constexpr const char* groep = "/Configuratie";

/// Een waarde die niet te schrijven is (een teken voorbij U+10FFFF, dat de toolkit wel leest) geldt als
/// ontbrekend: geen tekstveld kan haar tonen en geen masker kan haar gebruiken.
wxString leesTekst(const wxConfigBase& opslag, const wxString& sleutel, const wxString& standaard) {
    const wxString waarde = opslag.Read(sleutel, standaard);
    const bool leesbaar = std::all_of(waarde.begin(), waarde.end(),
                                      [](wxUniChar teken) { return teken.GetValue() <= 0x10FFFF; });
    return leesbaar ? waarde : standaard;
}

}  // namespace

wxString standaardBeginMarker() {
    return wxGetTranslation("//**** Student Begin ****//");
}

wxString standaardEindMarker() {
    return wxGetTranslation("//**** Student Eind ****//");
}

wxString standaardVervangtekst() {
    return wxGetTranslation(
        "#error \"Dit stuk software ontbreekt.\"\n"
        "/* Beste student,\n"
        "    Dit stuk ontbreekt. Werk dit uit om de opdracht uit te voeren.  */\n");
}

ParserInstellingen ParserInstellingen::lees(wxConfigBase& opslag) {
    opslag.SetPath(groep);
    return {
        .origineelPad = leesTekst(opslag, "OrigineelPad", wxGetHomeDir()),
        .aangepastPad = leesTekst(opslag, "AangepastPad", wxGetHomeDir()),
        .verwerkingkeuze = opslag.ReadLong("Verwerkingkeuze", 0),
        .beginMarker = leesTekst(opslag, "BeginMarker", standaardBeginMarker()),
        .eindMarker = leesTekst(opslag, "EindMarker", standaardEindMarker()),
        .vervangtekst = leesTekst(opslag, "Vervangtekst", standaardVervangtekst()),
    };
}

void ParserInstellingen::schrijf(wxConfigBase& opslag) const {
    opslag.SetPath(groep);
    opslag.Write("OrigineelPad", origineelPad);
    opslag.Write("AangepastPad", aangepastPad);
    opslag.Write("Verwerkingkeuze", verwerkingkeuze);
    opslag.Write("BeginMarker", beginMarker);
    opslag.Write("EindMarker", eindMarker);
    opslag.Write("Vervangtekst", vervangtekst);
}

}  // namespace kern
