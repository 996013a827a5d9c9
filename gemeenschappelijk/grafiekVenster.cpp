#include "gemeenschappelijk/grafiekVenster.h"

#include <wx/colour.h>
#include <wx/dcbuffer.h>
#include <wx/debug.h>
#include <wx/log.h>
// De toolkit levert de inhoud van WX_DEFINE_OBJARRAY als bronbestand.
#include <wx/arrimpl.cpp>  // NOLINT(bugprone-suspicious-include)

#include "gemeenschappelijk/grafiekRekenen.h"

WX_DEFINE_OBJARRAY(PuntLijst);

namespace {

wxFont maakFont(int punten) {
    return {punten, wxFONTFAMILY_DEFAULT, wxFONTSTYLE_ITALIC,   wxFONTWEIGHT_NORMAL,
            false,  wxEmptyString,        wxFONTENCODING_SYSTEM};
}

}  // namespace

// clang-format off
wxBEGIN_EVENT_TABLE(GrafiekVenster, wxPanel)
    EVT_PAINT(GrafiekVenster::teken)
    EVT_ERASE_BACKGROUND(GrafiekVenster::veegDCLeeg)
wxEND_EVENT_TABLE()
// clang-format on

// De leden ontstaan in de volgorde van de klasse: tekeningDC na het beeld waarop het tekent, en dus ook
// ervoor weer afgebroken.
GrafiekVenster::GrafiekVenster(wxWindow* parent, int id, const wxPoint& pos, const wxSize& size, long style)
    : wxPanel(parent, id, pos, size, style),
      grafiekGrootte(2 * size.GetWidth(), 2 * size.GetHeight()),
      clientGrootte(0, 0),
      groteFont(maakFont(120)),
      normaleFont(maakFont(24)),
      oorsprong(0, 0),
      tekening(grafiekGrootte.GetWidth(), grafiekGrootte.GetHeight(), -1),
      tekeningDC(tekening) {
    SetBackgroundStyle(wxBG_STYLE_SYSTEM);
    wxASSERT_MSG((true == tekeningDC.IsOk()),
                 "(GrafiekVenster::GrafiekVenster) Kon geen geheugen voor DC alloceren");
    tekeningDC.Clear();
    tekeningDC.SetUserScale(1.0, 1.0);
    tekeningDC.SetAxisOrientation(true, false);
    // Alleen zo roept de toolkit Layout aan bij elke nieuwe grootte, ook zonder sizer.
    SetAutoLayout(true);
    // Onder Windows krijgt een venster zijn eerste grootte al tijdens het maken, en kwam het zonder sizer
    // nooit aan Layout toe.
    CallAfter([this] {
        if (clientGrootte != GetClientSize()) {
            Layout();
            Refresh();
        }
    });
}

GrafiekVenster::~GrafiekVenster() {
    tekeningDC.SelectObject(wxNullBitmap);
}

bool GrafiekVenster::Layout() {
    clientGrootte = GetClientSize();
    return true;
}

wxSize GrafiekVenster::geefTekenVeldGrootte() const {
    return grafiekGrootte;
}

wxPoint GrafiekVenster::transCoord(const wxPoint& punt) const {
    return grafiek::naarVeld(punt, oorsprong, grafiekGrootte);
}

wxImage GrafiekVenster::exporteerBeeld() const {
    // ConvertToImage bewaart zijn uitkomst in de bitmap, en zolang tekening in tekeningDC zit vervalt die
    // nooit: elk later beeld zou gelijk zijn aan het eerste. Een kopie begint telkens bij wat er nu staat.
    // Zij komt van tekeningDC zelf, want onder Windows kan niemand anders bij een bitmap die in een context
    // zit.
    const wxRect veld(grafiekGrootte);
    return tekeningDC.GetAsBitmap(&veld).ConvertToImage();
}

void GrafiekVenster::zetOorsprong(const wxPoint& inOorsprong) {
    wxASSERT_MSG(
        ((inOorsprong.x < grafiekGrootte.GetWidth()) && (inOorsprong.y < grafiekGrootte.GetHeight())),
        "(GrafiekVenster::zetOorsprong) oorsprong buiten veld.");
    oorsprong = inOorsprong;
}

void GrafiekVenster::zetOorsprong(const wxRealPoint& deel) {
    zetOorsprong(grafiek::geefOorsprong(deel, grafiekGrootte));
}

void GrafiekVenster::zetOorsprongMidden() {
    zetOorsprong(wxPoint(grafiekGrootte.GetWidth() / 2, grafiekGrootte.GetHeight() / 2));
}

void GrafiekVenster::zetPen(const wxPen& pen) {
    tekeningDC.SetPen(pen);
}

void GrafiekVenster::maakSchoon() {
    tekeningDC.Clear();
    Refresh();
}

void GrafiekVenster::tekenAssenstelsel(const wxPen& pen) {
    zetPen(pen);
    tekenVerticaleLijn(0);
    tekenHorizontaleLijn(0);
}

void GrafiekVenster::tekenVerticaleLijn(int x) {
    const int veldX = transCoord(wxPoint(x, 0)).x;
    tekenVeldlijn(wxPoint(veldX, grafiekGrootte.GetHeight()), wxPoint(veldX, 0));
    Refresh();
}

void GrafiekVenster::tekenHorizontaleLijn(int y) {
    const int veldY = transCoord(wxPoint(0, y)).y;
    tekenVeldlijn(wxPoint(0, veldY), wxPoint(grafiekGrootte.GetWidth(), veldY));
    Refresh();
}

void GrafiekVenster::tekenLijn(const wxPoint& p1, const wxPoint& p2, bool punt) {
    const wxPoint einde = transCoord(p2);
    tekenVeldlijn(transCoord(p1), einde);
    if (punt) {
        tekenRondje(einde);
    }
    Refresh();
}

void GrafiekVenster::tekenStaaf(const wxPoint& p, bool punt) {
    const wxPoint voet(p.x, 0);
    tekenLijn(voet, p, punt);
}

void GrafiekVenster::tekenLijnen(const PuntLijst& punten, const wxPoint& verschuiving) {
    const std::vector<wxPoint> veldpunten = naarVeldpunten(punten, verschuiving);
    if (veldpunten.size() > 1) {
        tekeningDC.DrawLines(static_cast<int>(veldpunten.size()), veldpunten.data());
    }
    Refresh();
}

void GrafiekVenster::tekenSpline(const PuntLijst& punten, const wxPoint& verschuiving) {
    const std::vector<wxPoint> veldpunten = naarVeldpunten(punten, verschuiving);
    if (veldpunten.size() > 1) {
        tekeningDC.DrawSpline(static_cast<int>(veldpunten.size()), veldpunten.data());
    }
    Refresh();
}

void GrafiekVenster::tekenStaven(const PuntLijst& punten, const wxPoint& verschuiving, bool punt,
                                 bool schalen) {
    grafiek::Schaal schaal;
    if (schalen) {
        grafiek::Grenzen grenzen = grafiek::geefLegeGrenzen(grafiekGrootte);
        for (std::size_t i = 0; i < punten.GetCount(); ++i) {
            grafiek::verruim(grenzen, punten.Item(i));
        }
        wxLogDebug("maxpunt = %d,%d", grenzen.maxPunt.x, grenzen.maxPunt.y);
        wxLogDebug("minpunt = %d,%d", grenzen.minPunt.x, grenzen.minPunt.y);
        schaal = grafiek::geefSchaal(grenzen, verschuiving, grafiekGrootte);
    }
    for (std::size_t i = 0; i < punten.GetCount(); ++i) {
        const grafiek::Staaf staaf =
            grafiek::geefStaaf(punten.Item(i), verschuiving, schaal, oorsprong, grafiekGrootte);
        const wxPoint top(staaf.x, staaf.top);
        tekenVeldlijn(wxPoint(staaf.x, staaf.voet), top);
        if (punt) {
            tekenRondje(top);
        }
    }
    Refresh();
}

void GrafiekVenster::tekenRechthoek(const wxRect& rechthoek) {
    tekeningDC.DrawRectangle(rechthoek);
}

void GrafiekVenster::zetNormaleText(const wxString& tekst, const wxPoint& p) {
    schrijf(tekst, p, wxColour("BLUE"), normaleFont);
}

void GrafiekVenster::zetGroteText(const wxString& tekst, const wxPoint& p) {
    schrijf(tekst, p, wxColour("CYAN"), groteFont);
}

void GrafiekVenster::teken(wxPaintEvent& /*event*/) {
    wxBufferedPaintDC bufferedDC(this);
    // De melding noemt de constructor; wie op deze tekst zoekt, vindt haar onder die naam.
    wxASSERT_MSG((bufferedDC.IsOk() == true),
                 "(GrafiekVenster::GrafiekVenster) Kon geen geheugen voor Buffered DC alloceren");
    // Een uitrekking tot niets zou de tekencontext van de toolkit onbruikbaar maken.
    if (clientGrootte.GetWidth() <= 0 || clientGrootte.GetHeight() <= 0) {
        bufferedDC.Clear();
        return;
    }
    if (!bufferedDC.StretchBlit(0, 0, clientGrootte.GetWidth(), clientGrootte.GetHeight(), &tekeningDC, 0, 0,
                                grafiekGrootte.GetWidth(), grafiekGrootte.GetHeight(), wxCOPY, false, -1,
                                -1)) {
        wxLogError("(GrafiekVenster::teken) kon niet blit uitvoeren.");
    }
}

/// Het beeld dekt het hele paneel; een gewiste achtergrond zou alleen flikkeren.
void GrafiekVenster::veegDCLeeg(wxEraseEvent& /*event*/) {}

std::vector<wxPoint> GrafiekVenster::naarVeldpunten(const PuntLijst& punten,
                                                    const wxPoint& verschuiving) const {
    std::vector<wxPoint> veldpunten;
    veldpunten.reserve(punten.GetCount());
    for (std::size_t i = 0; i < punten.GetCount(); ++i) {
        veldpunten.push_back(
            grafiek::naarTekenbaar(transCoord(grafiek::verschuif(punten.Item(i), verschuiving))));
    }
    return veldpunten;
}

void GrafiekVenster::tekenVeldlijn(const wxPoint& begin, const wxPoint& einde) {
    tekeningDC.DrawLine(grafiek::naarTekenbaar(begin), grafiek::naarTekenbaar(einde));
}

void GrafiekVenster::tekenRondje(const wxPoint& veldpunt) {
    tekeningDC.DrawEllipse(grafiek::geefRondje(grafiek::naarTekenbaar(veldpunt)));
}

void GrafiekVenster::schrijf(const wxString& tekst, const wxPoint& p, const wxColour& kleur,
                             const wxFont& font) {
    tekeningDC.SetTextForeground(kleur);
    tekeningDC.SetFont(font);
    tekeningDC.DrawText(tekst, grafiek::naarTekenbaar(transCoord(p)));
}
