// Kleuring, marges en vouwen van de editors, en hun gezamenlijk verschuiven.

#include <wx/colour.h>
#include <wx/font.h>
#include <wx/stc/stc.h>

#include <array>

#include "Knipselaar/kern/keuzes.h"
#include "Knipselaar/venster/markeerder.h"
#include "Knipselaar/venster/parserVenster.h"
#include "Knipselaar/venster/stijlTabellen.h"

namespace {

constexpr int regelnummerMarge = 0;
constexpr int vouwMarge = 1;

wxColour naarKleur(const stijl::Kleur& kleur) {
    return {kleur.rood, kleur.groen, kleur.blauw};
}

void zetVouwen(wxStyledTextCtrl* editor) {
    editor->SetProperty("fold", "1");
    editor->SetProperty("fold.comment", "1");
    editor->SetProperty("fold.compact", "1");
}

/// De regelnummers zijn zwart, maar hun achtergrond neemt de toolkit uit het thema van de gebruiker.
void houdRegelnummersLeesbaar(wxStyledTextCtrl* editor) {
    constexpr double donker = 0.5;
    if (editor->StyleGetBackground(wxSTC_STYLE_LINENUMBER).GetLuminance() < donker) {
        editor->StyleSetForeground(wxSTC_STYLE_LINENUMBER, *wxWHITE);
    }
}

template <std::size_t aantal>
void zetKleuren(wxStyledTextCtrl* editor, const std::array<stijl::Stijlkleur, aantal>& kleuren) {
    for (const auto& kleur : kleuren) {
        editor->StyleSetForeground(kleur.stijl, naarKleur(kleur.voorgrond));
    }
    for (const auto& kleur : kleuren) {
        if (kleur.vet) {
            editor->StyleSetBold(kleur.stijl, true);
        }
    }
}

}  // namespace

// StyleClearAll staat met opzet achteraan: het zet de standaardstijl over alle andere heen, ook over de
// kleuren van de regelnummers hierboven. De taalstijlen zetten daarna alleen nog kleuren en vet.
void ParserVenster::zetAlgStijl(wxStyledTextCtrl* editor) {
    editor->ClearDocumentStyle();
    editor->SetMarginWidth(regelnummerMarge, 50);
    editor->StyleSetForeground(wxSTC_STYLE_LINENUMBER, naarKleur(stijl::grijs(75)));
    editor->StyleSetBackground(wxSTC_STYLE_LINENUMBER, naarKleur(stijl::grijs(220)));
    editor->SetMarginType(regelnummerMarge, wxSTC_MARGIN_NUMBER);
    editor->SetMarginType(vouwMarge, wxSTC_MARGIN_SYMBOL);
    editor->SetMarginWidth(vouwMarge, 15);
    editor->SetMarginMask(vouwMarge, static_cast<int>(wxSTC_MASK_FOLDERS));
    editor->StyleSetBackground(1, naarKleur(stijl::grijs(200)));
    editor->SetMarginSensitive(vouwMarge, true);
    zetVouwen(editor);
    for (const auto& teken : stijl::vouwtekens) {
        editor->MarkerDefine(teken.nummer, teken.vorm, wxNullColour, wxNullColour);
        editor->MarkerSetForeground(teken.nummer, naarKleur(stijl::vouwtekenVoorgrond));
        editor->MarkerSetBackground(teken.nummer, naarKleur(teken.achtergrond));
    }
    editor->SetWrapMode(wxSTC_WRAP_WORD);
    editor->StyleClearAll();
}

void ParserVenster::zetCStijl(wxStyledTextCtrl* editor) {
    zetAlgStijl(editor);
    editor->SetLexer(wxSTC_LEX_CPP);
    zetKleuren(editor, stijl::cKleuren);
    editor->SetKeyWords(0, stijl::cWoorden);
}

void ParserVenster::zetCPPStijl(wxStyledTextCtrl* editor) {
    zetCStijl(editor);
    editor->SetKeyWords(1, stijl::cppWoorden);
}

void ParserVenster::zetVHDLStijl(wxStyledTextCtrl* editor) {
    zetAlgStijl(editor);
    editor->SetLexer(wxSTC_LEX_VHDL);
    zetKleuren(editor, stijl::vhdlKleuren);
    editor->SetKeyWords(0, stijl::vhdlWoorden);
}

/// Kleurt beide editors naar de extensie van huidigBestand; een onbekende extensie laat alles zoals het is.
void ParserVenster::kleurVoorHuidigBestand() {
    const kern::Brontaal taal = kern::kiesBrontaal(huidigBestand.GetExt());
    if (taal == kern::Brontaal::geen) {
        return;
    }
    // Broncode hoort in kolommen te staan; de toolkit neemt anders het proportionele lettertype van GTK, en
    // geeft dat ook als haar vaste systeemlettertypen.
    const wxFont lettertype(wxFontInfo().Family(wxFONTFAMILY_TELETYPE));
    for (auto* editor : {origineelEditor, aangepastEditor}) {
        editor->StyleSetFont(wxSTC_STYLE_DEFAULT, lettertype);
        switch (taal) {
            case kern::Brontaal::cpp:
                zetCPPStijl(editor);
                break;
            case kern::Brontaal::c:
                // C en C++ delen een lexer; die zou in een C-bestand de woorden van C++ nog kennen.
                editor->SetKeyWords(1, wxEmptyString);
                zetCStijl(editor);
                break;
            case kern::Brontaal::vhdl:
                zetVHDLStijl(editor);
                break;
            case kern::Brontaal::geen:
                break;
        }
        houdRegelnummersLeesbaar(editor);
        // Eigenschappen bereiken alleen een lexer die er al is; SetLexer maakt hem pas hierboven.
        zetVouwen(editor);
        // De lexer kleurt uit zichzelf alleen wat nieuw is; van de tekst die er al stond zijn de kleuren weg.
        editor->Colourise(0, -1);
    }
    markeerder_->herstelStijlen();
}

void ParserVenster::onScrollLeft(wxStyledTextEvent& /*event*/) {
    volgEditor(origineelEditor, aangepastEditor);
}

void ParserVenster::onScrollRight(wxStyledTextEvent& /*event*/) {
    volgEditor(aangepastEditor, origineelEditor);
}

/// Zet de volger op dezelfde bovenste regel als de leider. Het verschuiven geeft zelf weer een
/// tekengebeurtenis; die mag de leider niet terugduwen.
void ParserVenster::volgEditor(wxStyledTextCtrl* leider, wxStyledTextCtrl* volger) {
    if (bezigMetScrollen) {
        return;
    }
    bezigMetScrollen = true;
    const int regel = leider->GetFirstVisibleLine();
    if (regel != volger->GetFirstVisibleLine()) {
        volger->ScrollToLine(regel);
    }
    bezigMetScrollen = false;
}

void ParserVenster::onMarginClick(wxStyledTextEvent& event) {
    auto* editor = dynamic_cast<wxStyledTextCtrl*>(FindWindowById(event.GetId(), this));
    if (editor == nullptr || event.GetMargin() != vouwMarge) {
        return;
    }
    const int regel = editor->LineFromPosition(event.GetPosition());
    if ((editor->GetFoldLevel(regel) & wxSTC_FOLDLEVELHEADERFLAG) != 0) {
        editor->ToggleFold(regel);
    }
}
