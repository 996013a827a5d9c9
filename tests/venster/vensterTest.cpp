#include "tests/venster/vensterTest.h"

#include <wx/app.h>

#include <utility>

namespace {
const hulp::Omgeving* deOmgeving = nullptr;
}

void zetOmgeving(const hulp::Omgeving& omgeving) {
    deOmgeving = &omgeving;
}

const hulp::Omgeving& geefOmgeving() {
    return *deOmgeving;
}

bool laatLopenTot(const std::function<bool()>& voorwaarde, int hoogstensMs) {
    const long einde = hulp::klokMs() + hoogstensMs;
    for (;;) {
        wxYield();
        if (voorwaarde()) {
            return true;
        }
        if (hulp::klokMs() > einde) {
            return false;
        }
        constexpr int nietsGekomen = -1;
        if (wxEventLoopBase::GetActive()->DispatchTimeout(5) == nietsGekomen) {
            // Onder GTK hoort dat bij de lus, onder Windows bij wie haar laat lopen.
            wxTheApp->ProcessIdle();
        }
    }
}

void laatLopen() {
    wxYield();
    wxTheApp->ProcessIdle();
    wxYield();
}

wxString naarWx(std::filesystem::path pad) {
    return {pad.make_preferred().c_str(), wxConvFile};
}

std::string naarTekst(const std::filesystem::path& pad) {
    return naarWx(pad).utf8_string();
}

VensterTest::VensterTest() : venster_(dynamic_cast<ParserVenster*>(wxTheApp->GetTopWindow())) {
    EXPECT_TRUE(laatLopenTot([this] { return venster_->IsShownOnScreen(); }));
}

void VensterTest::geefOpdracht(int id) const {
    wxCommandEvent event(wxEVT_MENU, id);
    event.SetEventObject(venster_);
    venster_->ProcessWindowEvent(event);
}

void VensterTest::kiesModus(int keuze) const {
    modus()->SetSelection(keuze);
    wxCommandEvent event(wxEVT_RADIOBOX, ID_PARSERMODE);
    event.SetEventObject(modus());
    event.SetInt(keuze);
    modus()->ProcessWindowEvent(event);
}

void VensterTest::metOnmogelijkeKeuze(const std::function<void()>& handeling) {
    OnmogelijkeKeuze onmogelijk(*lid(&Inzage::paneel));
    wxRadioBox* echt = std::exchange(lid(&Inzage::parserModeKeuze), &onmogelijk);
    handeling();
    lid(&Inzage::parserModeKeuze) = echt;
}

std::string VensterTest::tekstVan(wxStyledTextCtrl* editor) {
    return editor->GetText().utf8_string();
}

std::filesystem::path VensterTest::maakBestand(const std::string& naam, std::string_view inhoud) {
    const auto pad = geefOmgeving().werk() / naam;
    hulp::schrijfBestand(pad, inhoud);
    return pad;
}

ParserVenster* VensterTest::maakVenster() {
    return new ParserVenster(nullptr, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                             wxDEFAULT_FRAME_STYLE);
}

void VensterTest::sluitVenster(ParserVenster* venster) {
    venster->Destroy();
    laatLopen();
}
