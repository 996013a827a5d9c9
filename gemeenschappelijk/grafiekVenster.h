#pragma once

// Een algemeen tekenpaneel voor puntreeksen, met de lijst van punten die het tekent. De gebruiker tekent in
// een eigen coördinatenstelsel (oorsprong waar hij wil, y omhoog) op een beeld buiten het scherm; het paneel
// toont dat beeld bij elke verversing uitgerekt over zijn hele clientgebied. Getekend blijft getekend tot
// maakSchoon. Het paneel bezit zijn beeld en is zelf, zoals elk venster, van zijn ouder. Alles hier hoort op
// de draad van de gebruikersinterface.

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/dynarray.h>
#include <wx/font.h>
#include <wx/gdicmn.h>
#include <wx/image.h>
#include <wx/panel.h>
#include <wx/pen.h>

#include <vector>

/// Een geordende lijst die van elk punt een eigen kopie bezit. Wijs een lijst nooit aan zichzelf toe: zij
/// gooit eerst haar eigen punten weg. Index zoekt het object zelf, niet een punt met gelijke coördinaten, en
/// vindt van achteren gezocht het eerste element nooit; zo werkt elke objectlijst van de toolkit.
WX_DECLARE_OBJARRAY(wxPoint, PuntLijst);

/// Het tekenpaneel. Punten zijn, waar niet anders vermeld, grafiekcoördinaten in pixels van het tekenveld,
/// gerekend vanaf de oorsprong, x naar rechts en y omhoog. Wat buiten het veld valt, verdwijnt zonder
/// melding.
class GrafiekVenster : public wxPanel {
  public:
    /// Maakt een leeg paneel met de oorsprong linksonder. Het tekenveld is in beide richtingen tweemaal zo
    /// groot als size en verandert daarna niet meer; size hoort dus een echte grootte te zijn en geen
    /// wxDefaultSize. Geef wxFULL_REPAINT_ON_RESIZE in style mee als het paneel van grootte kan veranderen.
    GrafiekVenster(wxWindow* parent, int id, const wxPoint& pos, const wxSize& size, long style);
    GrafiekVenster(const GrafiekVenster&) = delete;
    GrafiekVenster& operator=(const GrafiekVenster&) = delete;
    ~GrafiekVenster() override;

    /// Neemt de huidige grootte van het clientgebied over voor het tonen; het beeld zelf verandert niet.
    /// Geeft altijd true.
    bool Layout() override;

    /// De grootte van het tekenveld in pixels.
    [[nodiscard]] wxSize geefTekenVeldGrootte() const;

    /// Waar een grafiekpunt in het tekenveld ligt, in pixels vanaf linksboven.
    [[nodiscard]] wxPoint transCoord(const wxPoint& punt) const;

    /// Een kopie van het hele tekenveld, op de resolutie van het veld.
    [[nodiscard]] wxImage exporteerBeeld() const;

    /// Zetten de oorsprong voor wat hierna getekend wordt: in pixels vanaf linksonder, als deel van het veld
    /// (0 tot 1, afgebroken op hele pixels) of in het midden. Een oorsprong rechts van of boven het veld
    /// wordt gemeld als fout in het programma en toch gezet; onder nul wordt niet gekeken.
    void zetOorsprong(const wxPoint& inOorsprong);
    void zetOorsprong(const wxRealPoint& deel);
    void zetOorsprongMidden();

    /// Zet de pen voor alles wat hierna getekend wordt.
    void zetPen(const wxPen& pen);

    /// Wist het hele tekenveld.
    void maakSchoon();

    /// Tekent met deze pen, die daarna blijft staan, de y-as en de x-as door de oorsprong over het hele veld.
    void tekenAssenstelsel(const wxPen& pen);

    /// Een lijn over de volle hoogte of breedte van het veld, op deze afstand van de oorsprong.
    void tekenVerticaleLijn(int x);
    void tekenHorizontaleLijn(int y);

    /// Een lijn van p1 naar p2; met punt staat er een rondje om p2.
    void tekenLijn(const wxPoint& p1, const wxPoint& p2, bool punt);

    /// Een staaf van de x-as tot p; met punt staat er een rondje om p.
    void tekenStaaf(const wxPoint& p, bool punt);

    /// Eén gebroken lijn, of één gladde kromme, langs alle punten in de volgorde van de lijst, elk met
    /// verschuiving verplaatst. Minder dan twee punten tekenen niets.
    void tekenLijnen(const PuntLijst& punten, const wxPoint& verschuiving);
    void tekenSpline(const PuntLijst& punten, const wxPoint& verschuiving);

    /// Een staaf bij elk punt, met verschuiving verplaatst; met punt krijgt elke top een rondje. Met schalen
    /// vullen de staven samen het veld op een marge van 5 % na. Daarvoor moeten de punten in beide richtingen
    /// verschillen, waarbij als grootste waarde ten minste 0 telt en als kleinste ten hoogste de grootte van
    /// het veld. Daarop let de aanroeper: bij een bereik van nul deelt de schaal door nul en komen de staven
    /// buiten beeld of op de assen terecht.
    void tekenStaven(const PuntLijst& punten, const wxPoint& verschuiving, bool punt, bool schalen);

    /// Een rechthoek in veldpixels vanaf linksboven, dus zonder de oorsprong. Ververst het paneel niet.
    void tekenRechthoek(const wxRect& rechthoek);

    /// Een tekst met zijn linkerbovenhoek op p: normaal is blauw en 24 punts, groot cyaan en 120 punts.
    /// Ververst het paneel niet.
    void zetNormaleText(const wxString& tekst, const wxPoint& p);
    void zetGroteText(const wxString& tekst, const wxPoint& p);

  protected:
    void teken(wxPaintEvent& event);
    void veegDCLeeg(wxEraseEvent& event);

    wxSize grafiekGrootte;
    wxSize clientGrootte;
    wxFont groteFont;
    wxFont normaleFont;
    wxPoint oorsprong;
    wxBitmap tekening;
    wxMemoryDC tekeningDC;

  private:
    [[nodiscard]] std::vector<wxPoint> naarVeldpunten(const PuntLijst& punten,
                                                      const wxPoint& verschuiving) const;
    void tekenVeldlijn(const wxPoint& begin, const wxPoint& einde);
    void tekenRondje(const wxPoint& veldpunt);
    void schrijf(const wxString& tekst, const wxPoint& p, const wxColour& kleur, const wxFont& font);

    wxDECLARE_EVENT_TABLE();
};
