#include "Knipselaar/kern/parserInstellingen.h"

#include <wx/confbase.h>
#include <wx/intl.h>
#include <wx/utils.h>

namespace kern {

namespace {
constexpr const char* groep = "/Configuratie";
}

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
        .origineelPad = opslag.Read("OrigineelPad", wxGetHomeDir()),
        .aangepastPad = opslag.Read("AangepastPad", wxGetHomeDir()),
        .verwerkingkeuze = opslag.ReadLong("Verwerkingkeuze", 0),
        .beginMarker = opslag.Read("BeginMarker", standaardBeginMarker()),
        .eindMarker = opslag.Read("EindMarker", standaardEindMarker()),
        .vervangtekst = opslag.Read("Vervangtekst", standaardVervangtekst()),
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
