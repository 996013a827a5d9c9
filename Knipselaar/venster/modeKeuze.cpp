#include "Knipselaar/venster/modeKeuze.h"

#include "Knipselaar/venster/systeem/klik.h"

void ModeKeuze::SetSelection(int selectie) {
    wxRadioBox::SetSelection(selectie);
    laatste_ = GetSelection();
}

bool ModeKeuze::TryBefore(wxEvent& event) {
    if (event.GetEventType() == wxEVT_RADIOBOX) {
        if (GetSelection() == laatste_ && isKlik(*this)) {
            return true;
        }
        laatste_ = GetSelection();
    }
    return wxRadioBox::TryBefore(event);
}
