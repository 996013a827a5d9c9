#include "Knipselaar/venster/volgEditor.h"

void VolgEditor::koppel(VolgEditor& een, VolgEditor& ander) {
    een.partner_ = &ander;
    ander.partner_ = &een;
}

bool VolgEditor::TryBefore(wxEvent& event) {
    if (event.GetEventType() == wxEVT_STC_PAINTED && partner_ != nullptr) {
        if (!isVerschoven() && partner_->isVerschoven()) {
            return true;
        }
        getekendeRegel_ = GetFirstVisibleLine();
    }
    return wxStyledTextCtrl::TryBefore(event);
}
