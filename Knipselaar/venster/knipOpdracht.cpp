// De knipopdracht: één opdracht voor de drie verwerkingen.

#include <wx/intl.h>
#include <wx/radiobox.h>
#include <wx/stc/stc.h>
#include <wx/textctrl.h>

#include "Knipselaar/kern/bestandKnipper.h"
#include "Knipselaar/kern/keuzes.h"
#include "Knipselaar/venster/bezigVenster.h"
#include "Knipselaar/venster/markeerder.h"
#include "Knipselaar/venster/parserVenster.h"

void ParserVenster::verwijderHandler(wxCommandEvent& /*event*/) {
    BezigVenster bezig(*this, slot_, wxGetTranslation("Wacht een ogenblik, bezig met verwerken......."));
    switch (parserModeKeuze->GetSelection()) {
        case kern::enkelBestand:
            bewerkBestand();
            break;
        case kern::alleBestanden:
            verwerkDirectory(bezig);
            break;
        case kern::alleBestandenRecursief:
            verwerkDirectoryRecursief(bezig);
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

/// De teksten van nu, klaargemaakt. Zolang de gebruiker niets verandert is dat dezelfde mal.
const kern::KnipMal& ParserVenster::geefMal() {
    const kern::KnipTeksten teksten = geefKnipTeksten();
    if (!mal_ || mal_->geefTeksten() != teksten) {
        mal_.emplace(teksten);
    }
    return *mal_;
}

void ParserVenster::bewerkBestand() {
    const auto lees = [this] {
        return std::string_view(origineelEditor->GetCharacterPointer(),
                                static_cast<std::size_t>(origineelEditor->GetTextLength()));
    };
    // Zonder CR valt er niets om te zetten; de editor zou dat pas na een blik op elke regel weten.
    if (lees().find('\r') != std::string_view::npos) {
        origineelEditor->ConvertEOLs(wxSTC_EOL_LF);
    }
    const std::string_view origineel = lees();
    const kern::Geknipt geknipt = kern::knipTekst(origineel, geefMal());
    markeerder_->zetResultaat(geknipt, {.pad = huidigBestand.GetFullPath(),
                                        .naam = huidigBestand.GetFullName(),
                                        .teksten = geefMal().geefTeksten(),
                                        .origineel = std::string(origineel)});
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
    uitslag_ = kern::knipBestand(bron, bestemming, geefMal(), kern::Nakijken::ja);
}
