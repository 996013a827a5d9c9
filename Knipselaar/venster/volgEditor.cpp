#include "Knipselaar/venster/volgEditor.h"

namespace {

constexpr int tekstverandering = wxSTC_MOD_INSERTTEXT | wxSTC_MOD_DELETETEXT;

bool isTekstverandering(const wxEvent& event) {
    const auto* verandering = dynamic_cast<const wxStyledTextEvent*>(&event);
    return verandering != nullptr && (verandering->GetModificationType() & tekstverandering) != 0;
}

/// De toets waarmee iemand de editor verlaat, als het die is: Ctrl+Tab of Ctrl+Shift+Tab. Tab zelf is hier
/// een teken, en op Windows gaat de toolkit ook met Ctrl erbij niet verder.
const wxKeyEvent* zoekVertrek(const wxEvent& event) {
    const auto* toets =
        event.GetEventType() == wxEVT_KEY_DOWN ? dynamic_cast<const wxKeyEvent*>(&event) : nullptr;
    return toets != nullptr && toets->GetKeyCode() == WXK_TAB && toets->ControlDown() ? toets : nullptr;
}

}  // namespace

void VolgEditor::koppel(VolgEditor& een, VolgEditor& ander) {
    een.partner_ = &ander;
    ander.partner_ = &een;
    // Alleen veranderde tekst telt; van elk merk op een regel een gebeurtenis maken kost meer dan het merk.
    for (VolgEditor* editor : {&een, &ander}) {
        editor->SetModEventMask(tekstverandering);
    }
    // Zo komt ook de laatste regel van de kortste tekst bovenaan, naast dezelfde regel van de langste.
    een.SetEndAtLastLine(false);
    ander.SetEndAtLastLine(false);
}

void VolgEditor::vervang(std::string_view tekst) {
    const int masker = GetModEventMask();
    SetModEventMask(0);
    ClearAll();
    AppendTextRaw(tekst.data(), static_cast<int>(tekst.size()));
    SetModEventMask(masker);
    ++versie_;
}

bool VolgEditor::TryBefore(wxEvent& event) {
    if (event.GetEventType() == wxEVT_STC_MODIFIED && isTekstverandering(event)) {
        ++versie_;
    }
    if (const wxKeyEvent* vertrek = zoekVertrek(event)) {
        return Navigate(vertrek->ShiftDown() ? wxNavigationKeyEvent::IsBackward
                                             : wxNavigationKeyEvent::IsForward);
    }
    if (event.GetEventType() == wxEVT_STC_PAINTED && partner_ != nullptr) {
        const kern::Schuifstand stand = geefStand();
        gemeldeRegel_ = stand.bovenste;
        if (!kern::magLeiden(stand, partner_->geefStand())) {
            return true;
        }
    }
    return wxStyledTextCtrl::TryBefore(event);
}

kern::Schuifstand VolgEditor::geefStand() {
    const int bovenste = GetFirstVisibleLine();
    // De regel na de laatste begint waar alle regels ophouden, ook als ze afgebroken of gevouwen zijn.
    const int regels = VisibleFromDocLine(GetLineCount());
    return {
        .bovenste = bovenste, .verschoven = bovenste != gemeldeRegel_, .aanEinde = bovenste + 1 >= regels};
}
