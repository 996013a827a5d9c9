#include "Knipselaar/venster/volgEditor.h"

namespace {

constexpr int tekstverandering = wxSTC_MOD_INSERTTEXT | wxSTC_MOD_DELETETEXT;

bool isTekstverandering(const wxEvent& event) {
    const auto* verandering = dynamic_cast<const wxStyledTextEvent*>(&event);
    return verandering != nullptr && (verandering->GetModificationType() & tekstverandering) != 0;
}

}  // namespace

void VolgEditor::koppel(VolgEditor& een, VolgEditor& ander) {
    een.partner_ = &ander;
    ander.partner_ = &een;
    // Alleen veranderde tekst telt; van elk merk op een regel een gebeurtenis maken kost meer dan het merk.
    for (VolgEditor* editor : {&een, &ander}) {
        editor->SetModEventMask(tekstverandering);
    }
}

bool VolgEditor::TryBefore(wxEvent& event) {
    if (event.GetEventType() == wxEVT_STC_MODIFIED && isTekstverandering(event)) {
        ++versie_;
    }
    if (event.GetEventType() == wxEVT_STC_PAINTED && partner_ != nullptr) {
        if (!isVerschoven() && partner_->isVerschoven()) {
            return true;
        }
        getekendeRegel_ = GetFirstVisibleLine();
    }
    return wxStyledTextCtrl::TryBefore(event);
}
