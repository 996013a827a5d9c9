#pragma once

// De instellingen die het parservenster tussen twee runs bewaart: zes sleutels in de groep "/Configuratie"
// van de opslag. Het record bezit zijn eigen kopieën; de opslag blijft van de aanroeper.

#include <wx/string.h>

class wxConfigBase;

namespace kern {

/// De teksten die gelden zolang de gebruiker niets anders invult, vertaald als er een catalogus voor is.
wxString standaardBeginMarker();
wxString standaardEindMarker();
wxString standaardVervangtekst();

struct ParserInstellingen {
    wxString origineelPad;  ///< directory van de originelen
    wxString aangepastPad;  ///< directory van de resultaten
    long verwerkingkeuze;   ///< 0 enkel bestand, 1 directory, 2 recursief; de opslag kan elk getal geven
    wxString beginMarker;
    wxString eindMarker;
    wxString vervangtekst;

    /// Leest het record; een sleutel die ontbreekt of geen leesbare tekst heeft, geeft haar
    /// standaardwaarde. Laat de opslag in "/Configuratie" staan.
    static ParserInstellingen lees(wxConfigBase& opslag);

    /// Schrijft het record. Of de opslag het aanneemt wordt niet bekeken, en het bestand schrijft zij pas
    /// als zij zelf wordt opgeruimd. Laat de opslag in "/Configuratie" staan.
    void schrijf(wxConfigBase& opslag) const;
};

}  // namespace kern
