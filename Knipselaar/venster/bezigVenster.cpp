#include "Knipselaar/venster/bezigVenster.h"

#include <wx/event.h>
#include <wx/evtloop.h>
#include <wx/utils.h>
#include <wx/window.h>

#include <utility>

namespace {

/// Het venster van de toolkit zelf: het nieuwste van zijn ouder.
wxWindow& vindKader(wxWindow& ouder) {
    auto kind = ouder.GetChildren().rbegin();
    while (!(*kind)->IsTopLevel()) {
        ++kind;
    }
    return **kind;
}

/// Bij de bovenrand van de ouder. In het midden, waar de toolkit het zet, bedekt het de vraag die een batch
/// kan stellen.
void legBoven(wxWindow& kader, const wxWindow& ouder) {
    constexpr int onderMenu = 60;
    const wxRect plek = ouder.GetScreenRect();
    kader.Move(plek.x + (plek.width - kader.GetSize().x) / 2, plek.y + onderMenu);
}

/// Handelt af wat er ligt: wat getekend moet worden, en invoer, die door het slot nergens heen gaat. De
/// bediening wordt intussen niet bijgewerkt, en een melding laat de toolkit wachten.
void handelAf() {
    const long bijwerken = wxUpdateUIEvent::GetUpdateInterval();
    wxUpdateUIEvent::SetUpdateInterval(-1);
    wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_ALL);
    wxUpdateUIEvent::SetUpdateInterval(bijwerken);
}

}  // namespace

BezigVenster::BezigVenster(wxWindow& ouder, Invoerslot& slot, const wxString& tekst,
                           std::function<kern::Voortgangstekst::Tijd()> klok)
    : info_(tekst, &ouder), kader_(vindKader(ouder)), slot_(slot), tekst_(tekst, std::move(klok)) {
    slot_.sluit();
    kader_.Bind(wxEVT_CLOSE_WINDOW, laatSluitenZitten);
    legBoven(kader_, ouder);
    toon();
}

BezigVenster::~BezigVenster() {
    kader_.Unbind(wxEVT_CLOSE_WINDOW, laatSluitenZitten);
    slot_.openBijRust();
}

/// Het venster is van wxBusyInfo, en die ruimt het zelf op.
void BezigVenster::laatSluitenZitten(wxCloseEvent& event) {
    event.Veto();
}

/// Wacht tot de vensterbeheerder het venster neergezet heeft en het getekend is. Hoogstens even: op een
/// beeldscherm dat niemand ziet gebeurt dat soms niet.
void BezigVenster::toon() {
    constexpr int hoogstensMs = 200;
    bool getekend = false;
    const auto onthoud = [&getekend](wxPaintEvent& event) {
        getekend = true;
        event.Skip();
    };
    kader_.Bind(wxEVT_PAINT, onthoud);
    handelAf();
    for (int ms = 0; ms < hoogstensMs && !getekend; ++ms) {
        wxMilliSleep(1);
        handelAf();
    }
    kader_.Unbind(wxEVT_PAINT, onthoud);
}

void BezigVenster::meld(std::size_t gedaan, std::size_t totaal, const std::function<void()>& vooraf) {
    if (const auto tekst = tekst_.vernieuw(gedaan, totaal)) {
        vooraf();
        info_.UpdateText(*tekst);
        handelAf();
    }
}
