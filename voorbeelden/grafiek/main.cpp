// Een klein programma op DesktopApp dat laat zien wat GrafiekVenster kan. Het venster toont vier panelen, en
// elk paneel wordt gevuld door een eigen functie hieronder: een bemonsterd signaal, een gebroken lijn met een
// spline, geschaalde staven, en één figuur vanuit drie oorsprongen.
//
// Twee dingen gelden overal. Het tekenveld is tweemaal zo groot als het paneel bij zijn geboorte, dus lijnen
// van 4 pixels komen op het scherm ongeveer 2 pixels dik uit. En wat getekend is, blijft staan: tekenen hoeft
// maar eenmaal, het paneel toont het beeld daarna zelf, op elke grootte.

#include <wx/app.h>
#include <wx/colour.h>
#include <wx/frame.h>
#include <wx/pen.h>
#include <wx/sizer.h>

#include <array>
#include <cmath>
#include <numbers>

#include "gemeenschappelijk/desktopApp.h"
#include "gemeenschappelijk/grafiekVenster.h"

namespace {

const wxSize paneelGrootte(480, 300);

const wxColour asKleur(90, 100, 110);
const wxColour rasterKleur(222, 228, 234);
const wxColour lijnKleur(61, 122, 181);
const wxColour accentKleur(210, 52, 45);
const wxColour staafKleur(232, 165, 40);

/// Een uitgedoofde sinus, in pixels van het tekenveld.
int geefSignaal(int x) {
    const double hoek = 2.0 * std::numbers::pi * x / 260.0;
    return static_cast<int>(std::lround(250.0 * std::exp(-x / 420.0) * std::sin(hoek)));
}

PuntLijst bemonster(int einde, int stap) {
    PuntLijst punten;
    for (int x = 0; x <= einde; x += stap) {
        punten.Add(wxPoint(x, geefSignaal(x)));
    }
    return punten;
}

/// Het vloeiende signaal als lijn met veel punten, de monsters ervan als staven met een rondje op de top.
void tekenSignaal(GrafiekVenster& paneel) {
    const int einde = paneel.geefTekenVeldGrootte().GetWidth() * 9 / 10;
    const wxPoint nietVerschoven(0, 0);

    paneel.zetOorsprong(wxRealPoint(0.06, 0.5));
    paneel.zetPen(wxPen(rasterKleur, 2));
    for (int hoogte = -200; hoogte <= 200; hoogte += 100) {
        paneel.tekenHorizontaleLijn(hoogte);
    }
    paneel.tekenAssenstelsel(wxPen(asKleur, 4));

    paneel.zetPen(wxPen(lijnKleur, 4));
    paneel.tekenLijnen(bemonster(einde, 4), nietVerschoven);
    paneel.zetPen(wxPen(accentKleur, 4));
    paneel.tekenStaven(bemonster(einde, 24), nietVerschoven, true, false);

    paneel.zetNormaleText("bemonsterd signaal", wxPoint(360, 280));
    paneel.zetNormaleText("t", wxPoint(einde, -8));
}

/// Dezelfde punten tweemaal: als gebroken lijn, en als spline die de hoeken afrondt. De verschuiving zet de
/// spline nog eens lager neer zonder dat de lijst verandert.
void tekenKrommen(GrafiekVenster& paneel) {
    constexpr std::array<std::array<int, 2>, 7> hoekpunten{
        {{0, 0}, {120, 230}, {260, 40}, {400, 300}, {540, 120}, {680, 260}, {820, 60}}};
    PuntLijst punten;
    for (const auto& [x, y] : hoekpunten) {
        punten.Add(wxPoint(x, y));
    }
    const wxPoint nietVerschoven(0, 0);

    paneel.zetOorsprong(wxPoint(70, 180));
    paneel.tekenAssenstelsel(wxPen(asKleur, 4));
    paneel.zetPen(wxPen(asKleur, 2, wxPENSTYLE_SHORT_DASH));
    paneel.tekenLijnen(punten, nietVerschoven);
    paneel.zetPen(wxPen(lijnKleur, 6));
    paneel.tekenSpline(punten, nietVerschoven);
    paneel.zetPen(wxPen(staafKleur, 6));
    paneel.tekenSpline(punten, wxPoint(0, -120));

    // Een lijn van een punt naar zichzelf is alleen het rondje dat het punt markeert.
    paneel.zetPen(wxPen(accentKleur, 6));
    for (std::size_t i = 0; i < punten.GetCount(); ++i) {
        paneel.tekenLijn(punten.Item(i), punten.Item(i), true);
    }
    paneel.zetNormaleText("lijn en spline", wxPoint(20, 410));
}

/// Op hoeveel manieren twee dobbelstenen elk aantal ogen geven. De waarden zijn veel te klein om te zien; met
/// schalen vullen ze het veld. De schaal komt uit het verschil tussen grootste en kleinste punt: het punt op
/// (0, 0) laat de staven dus op ware verhouding bij de as beginnen, en zorgt dat dat verschil nooit nul is.
void tekenWorpen(GrafiekVenster& paneel) {
    PuntLijst punten;
    punten.Add(wxPoint(0, 0));
    for (int ogen = 2; ogen <= 12; ++ogen) {
        punten.Add(wxPoint(ogen, 6 - std::abs(ogen - 7)));
    }

    paneel.zetOorsprong(wxRealPoint(0.02, 0.03));
    wxPen staafPen(staafKleur, 40);
    staafPen.SetCap(wxCAP_BUTT);
    paneel.zetPen(staafPen);
    paneel.tekenStaven(punten, wxPoint(0, 0), false, true);
    paneel.tekenAssenstelsel(wxPen(asKleur, 4));
    paneel.zetNormaleText("worpen met twee stenen", wxPoint(20, 560));
}

/// Een vlaggetje, altijd met dezelfde coördinaten; waar het terechtkomt, hangt alleen van de oorsprong af.
void tekenVlag(GrafiekVenster& paneel, const wxColour& kleur, const wxString& bijschrift) {
    paneel.tekenAssenstelsel(wxPen(rasterKleur, 2));
    paneel.zetPen(wxPen(kleur, 6));
    paneel.tekenStaaf(wxPoint(0, 120), true);
    paneel.tekenLijn(wxPoint(0, 115), wxPoint(90, 90), false);
    paneel.tekenLijn(wxPoint(90, 90), wxPoint(0, 65), false);
    paneel.zetNormaleText(bijschrift, wxPoint(14, 50));
}

/// De drie manieren om de oorsprong te zetten. De rechthoek rekent in pixels vanaf linksboven en trekt zich
/// van geen oorsprong iets aan.
void tekenOorsprongen(GrafiekVenster& paneel) {
    const wxSize veld = paneel.geefTekenVeldGrootte();
    constexpr int marge = 12;
    paneel.zetPen(wxPen(asKleur, 4));
    paneel.tekenRechthoek(wxRect(marge, marge, veld.GetWidth() - 2 * marge, veld.GetHeight() - 2 * marge));

    paneel.zetOorsprong(wxPoint(60, 60));
    tekenVlag(paneel, lijnKleur, "pixels");
    paneel.zetOorsprong(wxRealPoint(0.75, 0.7));
    tekenVlag(paneel, accentKleur, "deel");
    paneel.zetOorsprongMidden();
    tekenVlag(paneel, staafKleur, "midden");
    paneel.zetGroteText("x, y", wxPoint(90, -50));
    // Rechthoek en teksten verversen het paneel niet; wie met zo'n opdracht eindigt, doet het zelf.
    paneel.Refresh();
}

class VoorbeeldVenster : public wxFrame {
  public:
    VoorbeeldVenster() : wxFrame(nullptr, wxID_ANY, "Grafiekvoorbeeld") {
        constexpr int tussenruimte = 6;
        auto* rooster = new wxGridSizer(2, tussenruimte, tussenruimte);
        for (auto* vul : {tekenSignaal, tekenKrommen, tekenWorpen, tekenOorsprongen}) {
            // Elk paneel is van dit venster en wordt er vanzelf mee opgeruimd.
            auto* paneel = new GrafiekVenster(this, wxID_ANY, wxDefaultPosition, paneelGrootte,
                                              wxFULL_REPAINT_ON_RESIZE);
            vul(*paneel);
            rooster->Add(paneel, wxSizerFlags(1).Expand());
        }
        SetSizerAndFit(rooster);
    }
};

}  // namespace

class VoorbeeldApp : public DesktopApp {
  public:
    /// De naam bepaalt ook in welk instellingenbestand DesktopApp taal en statistiek bewaart.
    VoorbeeldApp() : DesktopApp("Grafiekvoorbeeld") {}

    bool OnInit() override {
        auto* venster = new VoorbeeldVenster;
        zetHoofdVenster(venster);
        venster->Show();
        return true;
    }
};

wxIMPLEMENT_APP(VoorbeeldApp);
