#include "Knipselaar/venster/parserVenster.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/config.h>
#include <wx/intl.h>
#include <wx/log.h>
#include <wx/menu.h>
#include <wx/panel.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/stc/stc.h>
#include <wx/textctrl.h>

#include <array>

#include "Knipselaar/kern/keuzes.h"
#include "Knipselaar/knipselaar.h"
#include "Knipselaar/venster/identificaties.h"
#include "Knipselaar/venster/markeerder.h"
#include "Knipselaar/venster/modeKeuze.h"
#include "Knipselaar/venster/padKiezer.h"
#include "Knipselaar/venster/volgEditor.h"

// De toolkit neemt de eerste regel die past. De twee laatste regels voor wxID_ADD en wxID_SAVE doen daarom
// niets; de regels erboven gaan voor.
// clang-format off
wxBEGIN_EVENT_TABLE(ParserVenster, wxFrame)
    EVT_MENU(wxID_ABOUT,                   ParserVenster::overHandler)
    EVT_MENU(wxID_OPEN,                    ParserVenster::openHandler)
    EVT_MENU(wxID_ADD,                     ParserVenster::openAddHandler)
    EVT_MENU(wxID_SAVE,                    ParserVenster::opslagHandler)
    EVT_MENU(wxID_REPLACE,                 ParserVenster::verwijderHandler)
    EVT_MENU(wxID_EXIT,                    ParserVenster::eindeHandler)

    EVT_RADIOBOX(ID_PARSERMODE,            ParserVenster::parserModeHandler)
    EVT_BUTTON(wxID_OPEN,                  ParserVenster::openHandler)
    EVT_BUTTON(wxID_ADD,                   ParserVenster::openAddHandler)
    EVT_BUTTON(wxID_SAVE,                  ParserVenster::opslagHandler)
    EVT_BUTTON(wxID_REPLACE,               ParserVenster::verwijderHandler)
    EVT_BUTTON(wxID_EXIT,                  ParserVenster::eindeHandler)

    EVT_DIRPICKER_CHANGED(ID_BRONDIR,      ParserVenster::verwerkDirHandler)
    EVT_DIRPICKER_CHANGED(ID_BESTEMMINGDIR, ParserVenster::verwerkDirHandler)

    EVT_STC_MARGINCLICK(ID_ORIGINEEL,      ParserVenster::onMarginClick)
    EVT_STC_MARGINCLICK(ID_AANGEPAST,      ParserVenster::onMarginClick)
    EVT_STC_PAINTED(ID_ORIGINEEL,          ParserVenster::onScrollLeft)
    EVT_STC_PAINTED(ID_AANGEPAST,          ParserVenster::onScrollRight)

    EVT_UPDATE_UI(wxID_REPLACE,            ParserVenster::pasAanUpdateHandler)
    EVT_UPDATE_UI(wxID_SAVE,               ParserVenster::opslagUpdateHandler)
    EVT_UPDATE_UI(wxID_ADD,                ParserVenster::voegToeUpdateHandler)
    EVT_UPDATE_UI(wxID_ADD,                ParserVenster::parserKeuzeUpdateHandler)
    EVT_UPDATE_UI(wxID_OPEN,               ParserVenster::parserKeuzeUpdateHandler)
    EVT_UPDATE_UI(wxID_SAVE,               ParserVenster::parserKeuzeUpdateHandler)
wxEND_EVENT_TABLE()
// clang-format on

// De volgorde van maken bepaalt ook de volgorde waarin de tabtoets langs de bediening loopt.
ParserVenster::ParserVenster(wxWindow* parent, int id, const wxString& title, const wxPoint& pos,
                             const wxSize& size, long /*style*/)
    : wxFrame(parent, id, title, pos, size, wxDEFAULT_FRAME_STYLE), config(wxGetApp().configuratie) {
    const auto instellingen = kern::ParserInstellingen::lees(*config);
    origineelPad = instellingen.origineelPad;
    aangepastPad = instellingen.aangepastPad;

    paneel = new wxPanel(this, wxID_ANY);
    eindMarkerBox = new VastLabel<wxStaticBox>(paneel, wxID_ANY, wxGetTranslation("Parse einde"));
    origineelBox = new VastLabel<wxStaticBox>(paneel, wxID_ANY, wxGetTranslation("Origineel"));
    vervangBox = new VastLabel<wxStaticBox>(paneel, wxID_ANY, wxGetTranslation("Vervangingstekst"));
    aangepastBox = new VastLabel<wxStaticBox>(paneel, wxID_ANY, wxGetTranslation("Aangepast"));
    enkelBestandBox = new VastLabel<wxStaticBox>(paneel, wxID_ANY, wxGetTranslation("Enkel bestand"));
    batchBox = new VastLabel<wxStaticBox>(paneel, wxID_ANY, wxGetTranslation("Batch operatie"));
    beginMarkerBox = new VastLabel<wxStaticBox>(paneel, wxID_ANY, wxGetTranslation("Parse begin"));
    maakMenu();
    maakTeksten();
    maakKeuzes();
    noemVoorSchermlezer();

    set_properties();
    do_layout();
    zetInstellingen(instellingen);
    origineelEditor->ClearAll();
    aangepastEditor->ClearAll();
}

ParserVenster::~ParserVenster() {
    const kern::ParserInstellingen instellingen{
        .origineelPad = origineelPad,
        .aangepastPad = aangepastPad,
        .verwerkingkeuze = parserModeKeuze->GetSelection(),
        .beginMarker = beginMarkerTekst->GetValue(),
        .eindMarker = eindMarkerTekst->GetValue(),
        .vervangtekst = vervangTekst->GetValue(),
    };
    instellingen.schrijf(*config);
}

void ParserVenster::maakMenu() {
    menuBalk = new wxMenuBar;
    auto* menu = new wxMenu;
    menu->Append(wxID_ABOUT, wxGetTranslation("&About\tCtrl+K"));
    menu->Append(wxID_OPEN, wxGetTranslation("&Open File\tCtrl+O"));
    menu->Append(wxID_ADD, wxGetTranslation("A&dd File"));
    menu->Append(wxID_SAVE, wxGetTranslation("&Save\tCtrl+S"));
    menu->AppendSeparator();
    menu->Append(wxID_REPLACE, wxGetTranslation("&Find and Replace\tCtrl+F"));
    menu->Append(wxID_EXIT, wxGetTranslation("&Exit\tCtrl+Q"));
    menuBalk->Append(menu, wxGetTranslation("File"));
    SetMenuBar(menuBalk);
}

void ParserVenster::maakTeksten() {
    auto* links = new VolgEditor(paneel, ID_ORIGINEEL, wxDefaultPosition, wxDefaultSize, 0);
    origineelEditor = links;
    beginMarkerTekst = new wxTextCtrl(paneel, ID_BEGINMARKER, kern::standaardBeginMarker());
    eindMarkerTekst = new wxTextCtrl(paneel, ID_EINDMARKER, kern::standaardEindMarker());
    auto* rechts = new VolgEditor(paneel, ID_AANGEPAST, wxDefaultPosition, wxDefaultSize, 0);
    aangepastEditor = rechts;
    VolgEditor::koppel(*links, *rechts);
    markeerder_ = std::make_unique<Markeerder>(*links, *rechts);
    vervangTekst = new wxTextCtrl(paneel, ID_VERVANGTEKST, kern::standaardVervangtekst(), wxDefaultPosition,
                                  wxDefaultSize, wxTE_MULTILINE | wxTE_RICH2 | wxHSCROLL);
}

void ParserVenster::maakKeuzes() {
    const std::array verwerkingen{wxGetTranslation("Enkel bestand"),
                                  wxGetTranslation("Alle bestanden in een directory"),
                                  wxGetTranslation("Alle bestanden recursief in een directory")};
    const std::array bestandstypen{wxGetTranslation("C,C++ en H bestanden"),
                                   wxGetTranslation("VHDL bestanden"), wxGetTranslation("Alle bestanden")};

    parserModeKeuze = new ModeKeuze(paneel, ID_PARSERMODE, wxGetTranslation("Parser Mode"), wxDefaultPosition,
                                    wxDefaultSize, static_cast<int>(verwerkingen.size()), verwerkingen.data(),
                                    0, wxRA_SPECIFY_ROWS);
    openKnop = new wxButton(paneel, wxID_OPEN);
    voegToeKnop = new wxButton(paneel, wxID_ADD);
    opslaanKnop = new wxButton(paneel, wxID_SAVE);
    bronLabel = new VastLabel<wxStaticText>(paneel, wxID_ANY, wxGetTranslation("Bron directory"));
    bronDirKiezer = maakPadKiezer(paneel, ID_BRONDIR, origineelPad);
    bestemmingLabel = new VastLabel<wxStaticText>(paneel, wxID_ANY, wxGetTranslation("Bestemming directory"));
    bestemmingDirKiezer = maakPadKiezer(paneel, ID_BESTEMMINGDIR, aangepastPad);
    bestandTypeKeuze = new wxChoice(paneel, ID_BESTANDTYPE, wxDefaultPosition, wxDefaultSize,
                                    static_cast<int>(bestandstypen.size()), bestandstypen.data());
    pasAanKnop = new wxButton(paneel, wxID_REPLACE);
    eindeKnop = new wxButton(paneel, wxID_EXIT);
}

/// Zet wat de opslag bewaarde in de bediening. Een verwerkingkeuze die niet bestaat laat de keuze staan.
void ParserVenster::zetInstellingen(const kern::ParserInstellingen& instellingen) {
    if (instellingen.verwerkingkeuze >= 0 &&
        instellingen.verwerkingkeuze < static_cast<long>(parserModeKeuze->GetCount())) {
        parserModeKeuze->SetSelection(static_cast<int>(instellingen.verwerkingkeuze));
    }
    // Recursief knippen gebeurt ter plaatse en heeft geen bron nodig.
    bronGekozen = parserModeKeuze->GetSelection() == kern::alleBestandenRecursief;
    beginMarkerTekst->SetValue(instellingen.beginMarker);
    eindMarkerTekst->SetValue(instellingen.eindMarker);
    vervangTekst->SetValue(instellingen.vervangtekst);
}

void ParserVenster::overHandler(wxCommandEvent& /*event*/) {
    wxGetApp().geefCopyright("Knipselaar",
                             "Met deze tool kan een docent stukken verwijderen uit software bronbestanden "
                             "voor gebruik in het onderwijs",
                             "1.0");
}

void ParserVenster::eindeHandler(wxCommandEvent& event) {
    if (parserModeKeuze->GetSelection() == kern::enkelBestand && aangepastEditor->IsModified()) {
        opslagHandler(event);
        // Lukt opslaan niet, dan zegt de toolkit dat anders pas als het venster al weg is.
        wxLog::FlushActive();
    }
    Close(false);
}
