#include "Knipselaar/venster/modeKeuze.h"

void ModeKeuze::SetSelection(int selectie) {
    wxRadioBox::SetSelection(selectie);
    laatste_ = GetSelection();
}

bool ModeKeuze::TryBefore(wxEvent& event) {
    if (event.GetEventType() == wxEVT_RADIOBOX) {
        if (GetSelection() == laatste_) {
            return true;
        }
        laatste_ = GetSelection();
    }
    return wxRadioBox::TryBefore(event);
}
