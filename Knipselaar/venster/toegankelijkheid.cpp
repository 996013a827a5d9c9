// Welke naam een schermlezer bij welke bediening hoort.

#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/intl.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/stc/stc.h>
#include <wx/textctrl.h>

#include "Knipselaar/venster/parserVenster.h"
#include "Knipselaar/venster/systeem/toegankelijkheid.h"

void ParserVenster::noemVoorSchermlezer() {
    noemVeld(*origineelBox, *origineelEditor);
    noemVeld(*beginMarkerBox, *beginMarkerTekst);
    noemVeld(*eindMarkerBox, *eindMarkerTekst);
    noemVeld(*aangepastBox, *aangepastEditor);
    noemVeld(*vervangBox, *vervangTekst);
    noemKiezer(*bronLabel, *bronDirKiezer);
    noemKiezer(*bestemmingLabel, *bestemmingDirKiezer);
    noemKeuzelijst(*bestandTypeKeuze, wxGetTranslation("Soort bestanden"));
}
