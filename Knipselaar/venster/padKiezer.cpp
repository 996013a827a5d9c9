#include "Knipselaar/venster/padKiezer.h"

#include <wx/textctrl.h>

wxDirPickerCtrl* maakPadKiezer(wxWindow* ouder, int id, const wxString& pad) {
    auto* kiezer = new wxDirPickerCtrl(ouder, id, pad, wxDirSelectorPromptStr, wxDefaultPosition,
                                       wxDefaultSize, wxDIRP_USE_TEXTCTRL | wxDIRP_DIR_MUST_EXIST);
    wxTextCtrl* veld = kiezer->GetTextCtrl();
    const int breedte = veld->GetTextExtent("/home/docent/lessen/periode 1").x;
    veld->SetMinSize(veld->GetSizeFromTextSize(breedte));
    // Zelf laat de toolkit in zijn tekstveld eerst 32 en daarna 512 tekens toe; van een langer pad toont het
    // dan niets.
    veld->SetMaxLength(0);
    toonPad(*kiezer, pad);
    return kiezer;
}

void toonPad(wxDirPickerCtrl& kiezer, const wxString& pad) {
    kiezer.SetPath(pad);
    toonHeelPad(kiezer);
}

void toonHeelPad(wxDirPickerCtrl& kiezer) {
    kiezer.GetTextCtrl()->SetToolTip(kiezer.GetTextCtrl()->GetValue());
}
