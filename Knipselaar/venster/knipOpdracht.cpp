// De knipopdracht: één opdracht voor de drie verwerkingen.

#include <wx/busyinfo.h>
#include <wx/intl.h>
#include <wx/radiobox.h>
#include <wx/stc/stc.h>
#include <wx/textctrl.h>

#include "Knipselaar/kern/bestandKnipper.h"
#include "Knipselaar/kern/keuzes.h"
#include "Knipselaar/venster/parserVenster.h"

namespace {

/// Legt het bezigvenster, het nieuwste venster van zijn ouder, bij de bovenrand. In het midden, waar de
/// toolkit het zet, bedekt het de vraag die een batch kan stellen.
void legBezigVensterBoven(const wxWindow& ouder) {
    constexpr int onderMenu = 60;
    for (auto kind = ouder.GetChildren().rbegin(); kind != ouder.GetChildren().rend(); ++kind) {
        if ((*kind)->IsTopLevel()) {
            const wxRect plek = ouder.GetScreenRect();
            (*kind)->Move(plek.x + (plek.width - (*kind)->GetSize().x) / 2, plek.y + onderMenu);
            return;
        }
    }
}

}  // namespace

void ParserVenster::verwijderHandler(wxCommandEvent& /*event*/) {
    const wxBusyInfo bezig(wxGetTranslation("Wacht een ogenblik, bezig met verwerken......."), this);
    legBezigVensterBoven(*this);
    switch (parserModeKeuze->GetSelection()) {
        case kern::enkelBestand:
            bewerkBestand();
            break;
        case kern::alleBestanden:
            verwerkDirectory();
            break;
        case kern::alleBestandenRecursief:
            verwerkDirectoryRecursief();
            break;
        default:
            wxFAIL_MSG("Fout Keuze gemaakt.");
    }
}

/// De teksten zoals de gebruiker ze nu heeft staan.
kern::KnipTeksten ParserVenster::geefKnipTeksten() const {
    return {.beginMarker = beginMarkerTekst->GetValue(),
            .eindMarker = eindMarkerTekst->GetValue(),
            .vervangtekst = vervangTekst->GetValue()};
}

void ParserVenster::bewerkBestand() {
    origineelEditor->ConvertEOLs(wxSTC_EOL_LF);
    aangepastEditor->ClearAll();
    const std::string_view origineel(origineelEditor->GetCharacterPointer(),
                                     static_cast<std::size_t>(origineelEditor->GetTextLength()));
    const std::string resultaat = kern::knipTekst(origineel, geefKnipTeksten());
    aangepastEditor->AppendTextRaw(resultaat.data(), static_cast<int>(resultaat.size()));
    volgOrigineel();
}

/// Zet het nieuwe resultaat op de bovenste regel van het origineel: daar keek de gebruiker.
void ParserVenster::volgOrigineel() {
    const int bovenste = origineelEditor->GetFirstVisibleLine();
    if (bovenste > 0) {
        // Nieuwe tekst breekt de toolkit pas later af, en dan verschuift alles nog; hiervoor doet zij het nu.
        aangepastEditor->EnsureVisible(aangepastEditor->GetLineCount() - 1);
        aangepastEditor->ScrollToLine(bovenste);
    }
}

void ParserVenster::bewerkBestand(const wxFileName& bron, const wxFileName& bestemming) {
    laatsteUitslag_ = kern::knipBestand(bron, bestemming, geefKnipTeksten());
}

/// Bewerkt een bestand van een batch, die wil weten of het lukte.
kern::KnipUitslag ParserVenster::knipBestand(const wxFileName& bron, const wxFileName& bestemming) {
    bewerkBestand(bron, bestemming);
    return laatsteUitslag_;
}
