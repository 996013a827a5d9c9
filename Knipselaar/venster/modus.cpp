// Wisselen van verwerking en wat daarbij aan en uit gaat.

#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/radiobox.h>
#include <wx/stattext.h>
#include <wx/stc/stc.h>

#include "Knipselaar/kern/keuzes.h"
#include "Knipselaar/venster/parserVenster.h"

void ParserVenster::parserModeHandler(wxCommandEvent& /*event*/) {
    wisEditors();
    origineelGeladen = false;
    bestemmingGekozen = false;
    // Recursief knippen gebeurt ter plaatse en heeft geen bron nodig.
    bronGekozen = parserModeKeuze->GetSelection() == kern::alleBestandenRecursief;
}

void ParserVenster::pasAanUpdateHandler(wxUpdateUIEvent& event) {
    event.Enable(kern::magKnippen({.origineelGeladen = origineelGeladen,
                                   .bronGekozen = bronGekozen,
                                   .bestemmingGekozen = bestemmingGekozen}));
}

void ParserVenster::opslagUpdateHandler(wxUpdateUIEvent& event) {
    event.Enable(aangepastEditor->IsModified());
}

void ParserVenster::voegToeUpdateHandler(wxUpdateUIEvent& event) {
    event.Enable(origineelGeladen);
}

void ParserVenster::parserKeuzeUpdateHandler(wxUpdateUIEvent& event) {
    const int keuze = parserModeKeuze->GetSelection();
    if (keuze < kern::enkelBestand || keuze > kern::alleBestandenRecursief) {
        wxFAIL_MSG("Fout Keuze gemaakt.");
    }
    const kern::Bediening bediening = kern::geefBediening(keuze);
    event.Enable(bediening.openen);
    bronDirKiezer->Enable(bediening.bron);
    bestemmingDirKiezer->Enable(bediening.bestemming);
    bronLabel->Enable(bediening.bron);
    bestemmingLabel->Enable(bediening.bestemming);
    bestandTypeKeuze->Enable(bediening.bestandType);
}
