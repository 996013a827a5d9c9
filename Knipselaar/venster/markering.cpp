// Wat de editors laten zien van wat een knipbeurt doet; bijgewerkt als het venster niets te doen heeft.

#include <wx/app.h>
#include <wx/radiobox.h>

#include "Knipselaar/kern/keuzes.h"
#include "Knipselaar/venster/markeerder.h"
#include "Knipselaar/venster/parserVenster.h"

void ParserVenster::OnInternalIdle() {
    wxFrame::OnInternalIdle();
    if (werkMerkenBij()) {
        wxWakeUpIdle();
    }
}

bool ParserVenster::werkMerkenBij() {
    if (parserModeKeuze->GetSelection() != kern::enkelBestand) {
        // In de editors staan logboeken; wat daaronder staat is van de batch.
        markeerder_->volgBreedte();
        return false;
    }
    return markeerder_->werkBij({.pad = huidigBestand.GetFullPath(), .teksten = geefKnipTeksten()});
}
