// De opbouw van het venster tegen tabellen: bediening, sizers, menu en gebeurtenistabel.

#include <wx/menu.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>

#include <array>
#include <memory>
#include <sstream>

#include "tests/venster/vensterTest.h"

namespace {

using Opbouw = VensterTest;

/// De sizers als ingesprongen tekst: soort, verhouding, vlaggen, rand.
class SizerTekst {
  public:
    explicit SizerTekst(std::function<std::string(wxWindow*)> noem) : noem_(std::move(noem)) {}

    std::string beschrijf(wxSizer* sizer) {
        uit_.str("");
        schrijf(sizer, 0);
        return uit_.str();
    }

  private:
    std::string soort(wxSizer* sizer) {
        if (auto* kader = dynamic_cast<wxStaticBoxSizer*>(sizer)) {
            return (kader->GetOrientation() == wxVERTICAL ? "kader V " : "kader H ") +
                   noem_(kader->GetStaticBox());
        }
        if (auto* raster = dynamic_cast<wxFlexGridSizer*>(sizer)) {
            std::ostringstream tekst;
            tekst << "raster " << raster->GetRows() << "x" << raster->GetCols() << " " << raster->GetVGap()
                  << "," << raster->GetHGap();
            for (int i = 0; i < 2; ++i) {
                tekst << (raster->IsRowGrowable(static_cast<size_t>(i)) ? " rij groeit" : "")
                      << (raster->IsColGrowable(static_cast<size_t>(i)) ? " kolom groeit" : "");
            }
            return tekst.str();
        }
        return dynamic_cast<wxBoxSizer*>(sizer)->GetOrientation() == wxVERTICAL ? "V" : "H";
    }

    static std::string vlaggen(int vlaggen) {
        std::string tekst;
        const std::pair<int, const char*> namen[] = {{wxALL, "ALL"},
                                                     {wxEXPAND, "EXPAND"},
                                                     {wxFIXED_MINSIZE, "FIXED_MINSIZE"},
                                                     {wxALIGN_CENTER_VERTICAL, "CENTER_VERTICAL"}};
        for (const auto& [vlag, naam] : namen) {
            if ((vlaggen & vlag) == vlag) {
                tekst += std::string(tekst.empty() ? "" : "|") + naam;
                vlaggen &= ~vlag;
            }
        }
        return tekst + (vlaggen == 0 ? "" : "|?");
    }

    void schrijf(wxSizer* sizer, int diepte) {
        uit_ << soort(sizer) << "\n";
        for (wxSizerItem* item : sizer->GetChildren()) {
            uit_ << std::string(static_cast<std::size_t>(2 * diepte + 2), ' ') << item->GetProportion() << " "
                 << vlaggen(item->GetFlag()) << " " << item->GetBorder() << ": ";
            if (item->IsSizer()) {
                schrijf(item->GetSizer(), diepte + 1);
            } else {
                uit_ << noem_(item->GetWindow()) << "\n";
            }
        }
    }

    std::function<std::string(wxWindow*)> noem_;
    std::ostringstream uit_;
};

struct Gebeurtenis {
    template <typename Soort>
    Gebeurtenis(const Soort& hetSoort, int hetId, wxObjectEventFunction handler)
        : soort(hetSoort), id(hetId), functor(wxNewEventTableFunctor(hetSoort, handler)) {}

    wxEventType soort;
    int id;
    std::unique_ptr<wxEventFunctor> functor;
};

}  // namespace

TEST_F(Opbouw, HeeftDeBedieningOpVolgorde) {
    struct Verwacht {
        wxWindow* venster;
        const char* klasse;
        int id;
        const char* label;
    };
    const Verwacht tabel[] = {
        {lid(&Inzage::eindMarkerBox), "wxStaticBox", 0, "Parse einde"},
        {lid(&Inzage::origineelBox), "wxStaticBox", 0, "Origineel"},
        {lid(&Inzage::vervangBox), "wxStaticBox", 0, "Vervangingstekst"},
        {lid(&Inzage::aangepastBox), "wxStaticBox", 0, "Aangepast"},
        {lid(&Inzage::enkelBestandBox), "wxStaticBox", 0, "Enkel bestand"},
        {lid(&Inzage::batchBox), "wxStaticBox", 0, "Batch operatie"},
        {lid(&Inzage::beginMarkerBox), "wxStaticBox", 0, "Parse begin"},
        {lid(&Inzage::origineelEditor), "wxStyledTextCtrl", ID_ORIGINEEL, nullptr},
        {lid(&Inzage::beginMarkerTekst), "wxTextCtrl", ID_BEGINMARKER, nullptr},
        {lid(&Inzage::eindMarkerTekst), "wxTextCtrl", ID_EINDMARKER, nullptr},
        {lid(&Inzage::aangepastEditor), "wxStyledTextCtrl", ID_AANGEPAST, nullptr},
        {lid(&Inzage::vervangTekst), "wxTextCtrl", ID_VERVANGTEKST, nullptr},
        {lid(&Inzage::parserModeKeuze), "wxRadioBox", ID_PARSERMODE, "Parser Mode"},
        {lid(&Inzage::openKnop), "wxButton", wxID_OPEN, nullptr},
        {lid(&Inzage::voegToeKnop), "wxButton", wxID_ADD, nullptr},
        {lid(&Inzage::opslaanKnop), "wxButton", wxID_SAVE, nullptr},
        {lid(&Inzage::bronLabel), "wxStaticText", 0, "Bron directory"},
        {lid(&Inzage::bronDirKiezer), "wxDirPickerCtrl", ID_BRONDIR, nullptr},
        {lid(&Inzage::bestemmingLabel), "wxStaticText", 0, "Bestemming directory"},
        {lid(&Inzage::bestemmingDirKiezer), "wxDirPickerCtrl", ID_BESTEMMINGDIR, nullptr},
        {lid(&Inzage::bestandTypeKeuze), "wxChoice", ID_BESTANDTYPE, nullptr},
        {lid(&Inzage::pasAanKnop), "wxButton", wxID_REPLACE, nullptr},
        {lid(&Inzage::eindeKnop), "wxButton", wxID_EXIT, nullptr},
    };
    const wxWindowList& kinderen = lid(&Inzage::paneel)->GetChildren();
    ASSERT_EQ(std::size(tabel), kinderen.size());
    std::size_t i = 0;
    for (wxWindow* kind : kinderen) {
        const Verwacht& verwacht = tabel[i];
        EXPECT_EQ(verwacht.venster, kind) << i;
        EXPECT_EQ(verwacht.klasse, wxString(kind->GetClassInfo()->GetClassName())) << i;
        if (verwacht.label != nullptr) {
            EXPECT_EQ(verwacht.label, kind->GetLabel()) << i;
            EXPECT_EQ(verwacht.id == 0, kind->GetId() < 0) << "zonder eigen identificatie; " << i;
        }
        if (verwacht.label == nullptr || verwacht.id != 0) {
            EXPECT_EQ(verwacht.id, kind->GetId()) << i;
        }
        ++i;
    }
    EXPECT_EQ(venster_, lid(&Inzage::paneel)->GetParent());
    EXPECT_EQ(wxTAB_TRAVERSAL | wxNO_BORDER, lid(&Inzage::paneel)->GetWindowStyle());
}

TEST_F(Opbouw, GebruiktDeVasteIdentificaties) {
    EXPECT_EQ((std::array{0, 1, 2, 3, 4, 5, 6, 7, 8}),
              (std::array<int, 9>{ID_ORIGINEEL, ID_BEGINMARKER, ID_EINDMARKER, ID_AANGEPAST, ID_VERVANGTEKST,
                                  ID_BRONDIR, ID_BESTEMMINGDIR, ID_PARSERMODE, ID_BESTANDTYPE}));
}

TEST_F(Opbouw, HeeftDeKeuzesEnStijlen) {
    ASSERT_EQ(3U, modus()->GetCount());
    EXPECT_EQ("Enkel bestand", modus()->GetString(0));
    EXPECT_EQ("Alle bestanden in een directory", modus()->GetString(1));
    EXPECT_EQ("Alle bestanden recursief in een directory", modus()->GetString(2));
    EXPECT_TRUE(modus()->HasFlag(wxRA_SPECIFY_ROWS));
    EXPECT_EQ(3U, modus()->GetRowCount());
    const auto* typen = lid(&Inzage::bestandTypeKeuze);
    ASSERT_EQ(3U, typen->GetCount());
    EXPECT_EQ("C,C++ en H bestanden", typen->GetString(0));
    EXPECT_EQ("VHDL bestanden", typen->GetString(1));
    EXPECT_EQ("Alle bestanden", typen->GetString(2));
    constexpr long meerregelig = wxTE_MULTILINE | wxTE_RICH2 | wxHSCROLL;
    EXPECT_EQ(meerregelig, lid(&Inzage::vervangTekst)->GetWindowStyle() & meerregelig);
    EXPECT_FALSE(lid(&Inzage::beginMarkerTekst)->IsMultiLine());
    EXPECT_FALSE(lid(&Inzage::eindMarkerTekst)->IsMultiLine());
    for (const auto* kiezer : {lid(&Inzage::bronDirKiezer), lid(&Inzage::bestemmingDirKiezer)}) {
        EXPECT_TRUE(kiezer->HasFlag(wxDIRP_USE_TEXTCTRL));
        EXPECT_TRUE(kiezer->HasFlag(wxDIRP_DIR_MUST_EXIST));
    }
    EXPECT_EQ(wxDEFAULT_FRAME_STYLE, venster_->GetWindowStyle() & wxDEFAULT_FRAME_STYLE);
    EXPECT_EQ(nullptr, venster_->GetStatusBar());
    EXPECT_EQ(nullptr, venster_->GetToolBar());
}

TEST_F(Opbouw, NegeertDeMeegegevenStijl) {
    auto* ander = new ParserVenster(nullptr, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                                    wxFRAME_TOOL_WINDOW | wxSTAY_ON_TOP);
    EXPECT_EQ(venster_->GetWindowStyle(), ander->GetWindowStyle());
    sluitVenster(ander);
}

TEST_F(Opbouw, HeeftHetMenu) {
    struct Verwacht {
        int id;
        const char* label;
    };
    const Verwacht tabel[] = {{wxID_ABOUT, "&About\tCtrl+K"}, {wxID_OPEN, "&Open File\tCtrl+O"},
                              {wxID_ADD, "A&dd File"},        {wxID_SAVE, "&Save\tCtrl+S"},
                              {wxID_SEPARATOR, ""},           {wxID_REPLACE, "&Find and Replace\tCtrl+F"},
                              {wxID_EXIT, "&Exit\tCtrl+Q"}};
    ASSERT_EQ(lid(&Inzage::menuBalk), venster_->GetMenuBar());
    ASSERT_EQ(1U, venster_->GetMenuBar()->GetMenuCount());
    EXPECT_EQ("Bestand", venster_->GetMenuBar()->GetMenuLabelText(0)) << "vertaald uit File";
    const auto& items = venster_->GetMenuBar()->GetMenu(0)->GetMenuItems();
    ASSERT_EQ(std::size(tabel), items.size());
    std::size_t i = 0;
    for (const wxMenuItem* item : items) {
        EXPECT_EQ(tabel[i].id, item->GetId());
        EXPECT_EQ(tabel[i].id == wxID_SEPARATOR ? wxITEM_SEPARATOR : wxITEM_NORMAL, item->GetKind());
        if (!item->IsSeparator()) {
            EXPECT_EQ(tabel[i].label, item->GetItemLabel());
        }
        ++i;
    }
}

TEST_F(Opbouw, HeeftDeGebeurtenistabel) {
    const Gebeurtenis tabel[] = {
        {wxEVT_COMMAND_MENU_SELECTED, wxID_ABOUT, wxCommandEventHandler(ParserVenster::overHandler)},
        {wxEVT_COMMAND_MENU_SELECTED, wxID_OPEN, wxCommandEventHandler(ParserVenster::openHandler)},
        {wxEVT_COMMAND_MENU_SELECTED, wxID_ADD, wxCommandEventHandler(ParserVenster::openAddHandler)},
        {wxEVT_COMMAND_MENU_SELECTED, wxID_SAVE, wxCommandEventHandler(ParserVenster::opslagHandler)},
        {wxEVT_COMMAND_MENU_SELECTED, wxID_REPLACE, wxCommandEventHandler(ParserVenster::verwijderHandler)},
        {wxEVT_COMMAND_MENU_SELECTED, wxID_EXIT, wxCommandEventHandler(ParserVenster::eindeHandler)},
        {wxEVT_COMMAND_RADIOBOX_SELECTED, ID_PARSERMODE,
         wxCommandEventHandler(ParserVenster::parserModeHandler)},
        {wxEVT_COMMAND_BUTTON_CLICKED, wxID_OPEN, wxCommandEventHandler(ParserVenster::openHandler)},
        {wxEVT_COMMAND_BUTTON_CLICKED, wxID_ADD, wxCommandEventHandler(ParserVenster::openAddHandler)},
        {wxEVT_COMMAND_BUTTON_CLICKED, wxID_SAVE, wxCommandEventHandler(ParserVenster::opslagHandler)},
        {wxEVT_COMMAND_BUTTON_CLICKED, wxID_REPLACE, wxCommandEventHandler(ParserVenster::verwijderHandler)},
        {wxEVT_COMMAND_BUTTON_CLICKED, wxID_EXIT, wxCommandEventHandler(ParserVenster::eindeHandler)},
        {wxEVT_COMMAND_DIRPICKER_CHANGED, ID_BRONDIR,
         wxFileDirPickerEventHandler(ParserVenster::verwerkDirHandler)},
        {wxEVT_COMMAND_DIRPICKER_CHANGED, ID_BESTEMMINGDIR,
         wxFileDirPickerEventHandler(ParserVenster::verwerkDirHandler)},
        {wxEVT_STC_MARGINCLICK, ID_ORIGINEEL, wxStyledTextEventHandler(ParserVenster::onMarginClick)},
        {wxEVT_STC_MARGINCLICK, ID_AANGEPAST, wxStyledTextEventHandler(ParserVenster::onMarginClick)},
        {wxEVT_STC_PAINTED, ID_ORIGINEEL, wxStyledTextEventHandler(ParserVenster::onScrollLeft)},
        {wxEVT_STC_PAINTED, ID_AANGEPAST, wxStyledTextEventHandler(ParserVenster::onScrollRight)},
        {wxEVT_UPDATE_UI, wxID_REPLACE, wxUpdateUIEventHandler(ParserVenster::pasAanUpdateHandler)},
        {wxEVT_UPDATE_UI, wxID_SAVE, wxUpdateUIEventHandler(ParserVenster::opslagUpdateHandler)},
        {wxEVT_UPDATE_UI, wxID_ADD, wxUpdateUIEventHandler(ParserVenster::voegToeUpdateHandler)},
        {wxEVT_UPDATE_UI, wxID_ADD, wxUpdateUIEventHandler(ParserVenster::parserKeuzeUpdateHandler)},
        {wxEVT_UPDATE_UI, wxID_OPEN, wxUpdateUIEventHandler(ParserVenster::parserKeuzeUpdateHandler)},
        {wxEVT_UPDATE_UI, wxID_SAVE, wxUpdateUIEventHandler(ParserVenster::parserKeuzeUpdateHandler)},
    };
    const wxEventTable* tafel = (venster_->*&Inzage::GetEventTable)();
    std::size_t aantal = 0;
    for (; tafel->entries[aantal].m_fn != nullptr; ++aantal) {
        ASSERT_LT(aantal, std::size(tabel));
        const wxEventTableEntry& regel = tafel->entries[aantal];
        EXPECT_EQ(tabel[aantal].soort, regel.m_eventType) << aantal;
        EXPECT_EQ(tabel[aantal].id, regel.m_id) << aantal;
        EXPECT_EQ(wxID_ANY, regel.m_lastId) << aantal;
        EXPECT_TRUE(regel.m_fn->IsMatching(*tabel[aantal].functor)) << aantal;
    }
    EXPECT_EQ(std::size(tabel), aantal);
}

TEST_F(Opbouw, HeeftDeSizers) {
    SizerTekst sizers([this](wxWindow* venster) -> std::string {
        const std::pair<wxWindow*, const char*> namen[] = {
            {lid(&Inzage::origineelBox), "origineelBox"},
            {lid(&Inzage::origineelEditor), "origineelEditor"},
            {lid(&Inzage::beginMarkerBox), "beginMarkerBox"},
            {lid(&Inzage::beginMarkerTekst), "beginMarkerTekst"},
            {lid(&Inzage::eindMarkerBox), "eindMarkerBox"},
            {lid(&Inzage::eindMarkerTekst), "eindMarkerTekst"},
            {lid(&Inzage::aangepastBox), "aangepastBox"},
            {lid(&Inzage::aangepastEditor), "aangepastEditor"},
            {lid(&Inzage::vervangBox), "vervangBox"},
            {lid(&Inzage::vervangTekst), "vervangTekst"},
            {lid(&Inzage::parserModeKeuze), "parserModeKeuze"},
            {lid(&Inzage::enkelBestandBox), "enkelBestandBox"},
            {lid(&Inzage::openKnop), "openKnop"},
            {lid(&Inzage::voegToeKnop), "voegToeKnop"},
            {lid(&Inzage::opslaanKnop), "opslaanKnop"},
            {lid(&Inzage::batchBox), "batchBox"},
            {lid(&Inzage::bronLabel), "bronLabel"},
            {lid(&Inzage::bronDirKiezer), "bronDirKiezer"},
            {lid(&Inzage::bestemmingLabel), "bestemmingLabel"},
            {lid(&Inzage::bestemmingDirKiezer), "bestemmingDirKiezer"},
            {lid(&Inzage::bestandTypeKeuze), "bestandTypeKeuze"},
            {lid(&Inzage::pasAanKnop), "pasAanKnop"},
            {lid(&Inzage::eindeKnop), "eindeKnop"},
            {lid(&Inzage::paneel), "paneel"}};
        for (const auto& [wijzer, naam] : namen) {
            if (wijzer == venster) {
                return naam;
            }
        }
        return "onbekend";
    });
    EXPECT_EQ("V\n  1 EXPAND 0: paneel\n", sizers.beschrijf(venster_->GetSizer()));
    EXPECT_EQ(R"(V
  1 EXPAND 0: H
    1 EXPAND 0: kader V origineelBox
      1 EXPAND 0: V
        3 EXPAND|FIXED_MINSIZE 0: origineelEditor
        1 EXPAND 0: kader H beginMarkerBox
          1 EXPAND 0: beginMarkerTekst
        1 EXPAND 0: kader H eindMarkerBox
          1 EXPAND 0: eindMarkerTekst
    1 EXPAND 0: kader V aangepastBox
      3 EXPAND|FIXED_MINSIZE 0: aangepastEditor
      1 EXPAND 0: kader H vervangBox
        1 EXPAND 0: vervangTekst
  0 EXPAND 0: H
    0 EXPAND 0: parserModeKeuze
    0 EXPAND 0: kader V enkelBestandBox
      1 EXPAND 0: H
        0 ALL 10: openKnop
        0 ALL 10: voegToeKnop
      0 ALL|EXPAND 10: opslaanKnop
    1 EXPAND 0: kader V batchBox
      1 EXPAND 0: raster 2x2 5,5
        0 CENTER_VERTICAL 0: bronLabel
        1 EXPAND 10: bronDirKiezer
        0 CENTER_VERTICAL 0: bestemmingLabel
        1 EXPAND 10: bestemmingDirKiezer
      0 ALL|EXPAND 5: bestandTypeKeuze
  0 EXPAND 0: H
    2 ALL 10: pasAanKnop
    1 ALL 10: eindeKnop
)",
              sizers.beschrijf(lid(&Inzage::paneel)->GetSizer()));
}

TEST_F(Opbouw, ToontEenGewoonPadHeelOpEenKleinScherm) {
    const wxSize kleinScherm(1024, 768);
    const wxSize rand = venster_->GetSize() - venster_->GetClientSize();
    const wxSize beste = venster_->GetBestSize() + rand;
    EXPECT_LE(beste.x, kleinScherm.x);
    EXPECT_LE(beste.y, kleinScherm.y);
    for (wxDirPickerCtrl* kiezer : {lid(&Inzage::bronDirKiezer), lid(&Inzage::bestemmingDirKiezer)}) {
        wxTextCtrl* veld = kiezer->GetTextCtrl();
        EXPECT_GE(veld->GetSize().x,
                  veld->GetSizeFromTextSize(veld->GetTextExtent("/home/docent/lessen/week 1")).x);
    }
}

TEST_F(Opbouw, PastPreciesOmZijnInhoud) {
    EXPECT_EQ(venster_->GetSizer()->ComputeFittingClientSize(venster_), venster_->GetClientSize());
}

TEST_F(Opbouw, VerlaatEenEditorMetCtrlTab) {
    const auto ga = [this](bool terug) {
        origineel()->SetFocus();
        laatLopen();
        wxKeyEvent toets(wxEVT_KEY_DOWN);
        toets.m_keyCode = WXK_TAB;
        toets.SetControlDown(true);
        toets.SetShiftDown(terug);
        toets.SetEventObject(origineel());
        EXPECT_TRUE(origineel()->ProcessWindowEvent(toets));
        laatLopen();
        return wxWindow::FindFocus();
    };
    const wxWindow* verder = ga(false);
    const wxWindow* terug = ga(true);
    EXPECT_NE(origineel(), verder);
    EXPECT_NE(origineel(), terug);
    EXPECT_NE(verder, terug);
    EXPECT_EQ("", tekstVan(origineel()));
}
