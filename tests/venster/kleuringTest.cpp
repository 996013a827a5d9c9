// De kleuring, aan de editors zelf teruggevraagd.

#include <wx/colour.h>
#include <wx/font.h>

#include <array>

#include "tests/venster/dialogen.h"
#include "tests/venster/vensterTest.h"

namespace {

class Kleuring : public VensterTest {
  protected:
    struct Stijl {
        int nummer;
        wxColour kleur;
        bool vet;
    };

    static wxColour grijs(unsigned char n) { return {n, n, n}; }

    void open(const std::string& naam, std::string_view inhoud) {
        const auto pad = maakBestand(naam, inhoud);
        beantwoordBestandsdialoog(naarWx(pad), [this] { geefOpdracht(wxID_OPEN); });
    }

    /// Houdt alle stijlen van een editor tegen een tabel; wat er niet in staat hoort zwart en niet vet te
    /// zijn.
    static void verwachtStijlen(wxStyledTextCtrl* editor, const std::vector<Stijl>& tabel) {
        EXPECT_NE(grijs(220), editor->StyleGetBackground(wxSTC_STYLE_LINENUMBER));
        for (int nummer = 0; nummer < wxSTC_STYLE_CALLTIP; ++nummer) {
            Stijl verwacht{nummer, editor->StyleGetForeground(wxSTC_STYLE_DEFAULT), false};
            for (const Stijl& stijl : tabel) {
                if (stijl.nummer == nummer) {
                    verwacht = stijl;
                }
            }
            EXPECT_EQ(verwacht.kleur, editor->StyleGetForeground(nummer)) << nummer;
            EXPECT_EQ(verwacht.vet, editor->StyleGetBold(nummer)) << nummer;
            // De regelnummers krijgen na StyleClearAll de achtergrond van de editor zelf.
            if (nummer != wxSTC_STYLE_LINENUMBER) {
                EXPECT_EQ(editor->StyleGetBackground(wxSTC_STYLE_DEFAULT), editor->StyleGetBackground(nummer))
                    << nummer;
            }
        }
    }

    static void verwachtAlgemeen(wxStyledTextCtrl* editor) {
        EXPECT_EQ(50, editor->GetMarginWidth(0));
        EXPECT_EQ(wxSTC_MARGIN_NUMBER, editor->GetMarginType(0));
        EXPECT_FALSE(editor->GetMarginSensitive(0));
        EXPECT_EQ(15, editor->GetMarginWidth(1));
        EXPECT_EQ(wxSTC_MARGIN_SYMBOL, editor->GetMarginType(1));
        EXPECT_EQ(static_cast<int>(wxSTC_MASK_FOLDERS), editor->GetMarginMask(1));
        EXPECT_TRUE(editor->GetMarginSensitive(1));
        EXPECT_EQ(wxSTC_WRAP_WORD, editor->GetWrapMode());
        for (const char* eigenschap : {"fold", "fold.comment", "fold.compact"}) {
            EXPECT_EQ("1", editor->GetProperty(eigenschap)) << eigenschap;
        }
        const std::array<std::pair<int, int>, 7> tekens{{{30, wxSTC_MARK_ARROW},
                                                         {31, wxSTC_MARK_ARROWDOWN},
                                                         {29, wxSTC_MARK_EMPTY},
                                                         {25, wxSTC_MARK_ARROW},
                                                         {26, wxSTC_MARK_ARROWDOWN},
                                                         {27, wxSTC_MARK_EMPTY},
                                                         {28, wxSTC_MARK_EMPTY}}};
        for (const auto& [nummer, vorm] : tekens) {
            EXPECT_EQ(vorm, editor->GetMarkerSymbolDefined(nummer)) << nummer;
        }
    }

    /// De stijl van het teken waarmee een woord begint.
    static int stijlVan(wxStyledTextCtrl* editor, const wxString& woord) {
        editor->Colourise(0, -1);
        const int plek = editor->FindText(0, editor->GetTextLength(), woord, wxSTC_FIND_WHOLEWORD);
        EXPECT_GE(plek, 0) << woord;
        return editor->GetStyleAt(plek);
    }

    const std::vector<Stijl> cStijlen{
        {6, {150, 0, 0}, false}, {9, {165, 105, 0}, false}, {11, {40, 0, 60}, false},
        {4, {0, 150, 0}, false}, {7, {150, 0, 0}, false},   {5, {0, 0, 150}, true},
        {16, {0, 150, 0}, true}, {1, grijs(150), false},    {2, grijs(150), false},
        {3, grijs(150), false},  {17, {0, 0, 200}, true},   {18, {0, 0, 200}, false}};
    const std::vector<Stijl> vhdlStijlen{
        {0, grijs(150), false},   {4, {150, 0, 0}, false},   {8, {165, 105, 0}, false},
        {7, {40, 0, 60}, false},  {3, {0, 150, 0}, false},   {6, {150, 0, 0}, false},
        {5, {0, 0, 150}, false},  {1, {0, 150, 150}, false}, {2, grijs(150), false},
        {9, grijs(150), false},   {10, {0, 0, 200}, false},  {11, {0, 0, 200}, false},
        {12, {0, 0, 200}, false}, {13, {0, 0, 200}, false},  {14, {0, 0, 200}, false}};
    const std::array<wxStyledTextCtrl*, 2> editors_{origineel(), aangepast()};
};

}  // namespace

TEST_F(Kleuring, IsErNietVoorHetEersteBestand) {
    for (auto* editor : editors_) {
        EXPECT_EQ(wxSTC_LEX_CONTAINER, editor->GetLexer());
        EXPECT_EQ(0, editor->GetMarginWidth(0));
    }
}

TEST_F(Kleuring, ZetDeAlgemeneStijl) {
    venster_->zetAlgStijl(origineel());
    verwachtAlgemeen(origineel());
    verwachtStijlen(origineel(), {});
    EXPECT_EQ(0, aangepast()->GetMarginWidth(0)) << "alleen de gevraagde editor";
}

TEST_F(Kleuring, ZetDeCStijl) {
    venster_->zetCStijl(origineel());
    EXPECT_EQ(wxSTC_LEX_CPP, origineel()->GetLexer());
    verwachtAlgemeen(origineel());
    verwachtStijlen(origineel(), cStijlen);
}

TEST_F(Kleuring, ZetDeVhdlStijl) {
    venster_->zetVHDLStijl(aangepast());
    EXPECT_EQ(wxSTC_LEX_VHDL, aangepast()->GetLexer());
    verwachtAlgemeen(aangepast());
    verwachtStijlen(aangepast(), vhdlStijlen);
}

TEST_F(Kleuring, LaatNietsOverVanDeVorigeTaal) {
    venster_->zetVHDLStijl(origineel());
    venster_->zetCPPStijl(origineel());
    EXPECT_EQ(wxSTC_LEX_CPP, origineel()->GetLexer());
    verwachtStijlen(origineel(), cStijlen);
    venster_->zetVHDLStijl(origineel());
    verwachtStijlen(origineel(), vhdlStijlen);
}

TEST_F(Kleuring, KleurtCppWoordenAlleenInCpp) {
    open("een.cpp", "class namespace wchar_t int then #x\n");
    for (const char* woord : {"class", "namespace", "wchar_t"}) {
        EXPECT_EQ(wxSTC_C_WORD2, stijlVan(origineel(), woord)) << woord;
    }
    EXPECT_EQ(wxSTC_C_WORD, stijlVan(origineel(), "int"));
    EXPECT_EQ(wxSTC_C_IDENTIFIER, stijlVan(origineel(), "then"));
}

TEST_F(Kleuring, KleurtCppWoordenInEenCBestandAlsNamen) {
    open("een.c", "class namespace wchar_t int\n");
    for (const char* woord : {"class", "namespace", "wchar_t"}) {
        EXPECT_EQ(wxSTC_C_IDENTIFIER, stijlVan(origineel(), woord)) << woord;
    }
    EXPECT_EQ(wxSTC_C_WORD, stijlVan(origineel(), "int"));
}

TEST_F(Kleuring, VergeetDeCppWoordenInEenVolgendCBestand) {
    open("een.cpp", "class x;\n");
    open("een.c", "class x;\n");
    EXPECT_EQ(wxSTC_C_IDENTIFIER, stijlVan(origineel(), "class"));
}

TEST_F(Kleuring, KentElkSleutelwoord) {
    const std::string c =
        "auto break case char const continue default do double else enum extern float for goto if int long "
        "register return short signed sizeof static struct switch typedef union unsigned void volatile while";
    const std::string cpp =
        "asm dynamic_cast namespace reinterpret_cast try bool explicit new static_cast typeid catch false "
        "operator template typename class friend private this using const_cast inline public throw virtual "
        "delete mutable protected true wchar_t";
    const std::string vhdl =
        "abs access after alias all and architecture array assert attribute begin block body buffer bus case "
        "component configuration constant disconnect downto else elsif end entity exit file for function "
        "generate generic group guarded if impure in inertial inout is label library linkage literal loop "
        "map "
        "mod nand new next nor not null of on open or others out package port postponed procedure process "
        "pure "
        "range record register reject return rol ror select severity signal shared sla sli sra srl subtype "
        "thent to transport type unaffected units until use variable wait when while with xnor xor";
    const auto controleer = [this](const std::string& naam, const std::string& woorden, int stijl,
                                   const std::string& scheiding) {
        std::string inhoud;
        std::vector<wxString> lijst;
        for (const wxString& woord : wxSplit(woorden, ' ')) {
            lijst.push_back(woord);
            inhoud += woord.utf8_string() + scheiding;
        }
        open(naam, inhoud);
        origineel()->Colourise(0, -1);
        int plek = 0;
        for (const wxString& woord : lijst) {
            EXPECT_EQ(stijl, origineel()->GetStyleAt(plek)) << woord;
            plek += static_cast<int>(woord.length() + scheiding.size());
        }
    };
    controleer("woorden.c", c, wxSTC_C_WORD, ";\n");
    controleer("woorden.cpp", cpp, wxSTC_C_WORD2, ";\n");
    controleer("woorden.vhd", vhdl, wxSTC_VHDL_KEYWORD, ";\n");
}

TEST_F(Kleuring, LaatThenEnSllInVhdlOngekleurd) {
    open("een.vhdl", "then sll thent sli entity\n");
    EXPECT_EQ(wxSTC_VHDL_IDENTIFIER, stijlVan(origineel(), "then"));
    EXPECT_EQ(wxSTC_VHDL_IDENTIFIER, stijlVan(origineel(), "sll"));
    EXPECT_EQ(wxSTC_VHDL_KEYWORD, stijlVan(origineel(), "thent"));
    EXPECT_EQ(wxSTC_VHDL_KEYWORD, stijlVan(origineel(), "sli"));
    EXPECT_EQ(wxSTC_VHDL_KEYWORD, stijlVan(origineel(), "entity"));
}

TEST_F(Kleuring, VouwtNaHetEersteBestand) {
    open("een.c", "int f(void)\n{\n    return 1;\n}\n");
    for (auto* editor : editors_) {
        editor->SetText("int f(void)\n{\n    return 1;\n}\n");
        editor->Colourise(0, -1);
        EXPECT_NE(0, editor->GetFoldLevel(1) & wxSTC_FOLDLEVELHEADERFLAG);
    }
}

TEST_F(Kleuring, GeeftBeideEditorsEenLettertypeMetVasteBreedte) {
    open("een.c", "int x;\n");
    const wxFont verwacht(wxFontInfo().Family(wxFONTFAMILY_TELETYPE));
    for (auto* editor : editors_) {
        for (const int stijl : {wxSTC_STYLE_DEFAULT, wxSTC_C_DEFAULT, wxSTC_C_WORD, wxSTC_C_IDENTIFIER}) {
            EXPECT_EQ(verwacht.GetFaceName(), editor->StyleGetFaceName(stijl)) << stijl;
            EXPECT_EQ(verwacht.GetPointSize(), editor->StyleGetSize(stijl)) << stijl;
        }
        EXPECT_EQ(editor->TextWidth(wxSTC_C_DEFAULT, "iiiiiiii"),
                  editor->TextWidth(wxSTC_C_DEFAULT, "MMMMMMMM"));
    }
}

class Herkleuring : public Kleuring {
  protected:
    static constexpr const char* tekst_ = "int class(void)\n{\n    return 1; // een\n}\n";

    void voegToe(const std::string& naam, std::string_view inhoud) {
        const auto pad = maakBestand(naam, inhoud);
        beantwoordBestandsdialoog(naarWx(pad), [this] { geefOpdracht(wxID_ADD); });
    }

    /// De stijl van elk teken van tekst_ en het vouwniveau van elke regel, zoals ze nu in de editor staan.
    static std::vector<int> leesKleuren(wxStyledTextCtrl* editor) {
        std::vector<int> kleuren;
        for (int plek = 0; plek < static_cast<int>(std::string_view(tekst_).size()); ++plek) {
            kleuren.push_back(editor->GetStyleAt(plek));
        }
        for (int regel = 0; regel < 4; ++regel) {
            kleuren.push_back(editor->GetFoldLevel(regel));
        }
        return kleuren;
    }

    /// Wat een editor van tekst_ maakt als hij haar in een keer in deze taal krijgt.
    std::vector<int> kleurNieuw(void (ParserVenster::*zetStijl)(wxStyledTextCtrl*)) {
        wxStyledTextCtrl nieuw(venster_, wxID_ANY);
        (venster_->*zetStijl)(&nieuw);
        nieuw.SetProperty("fold", "1");
        nieuw.SetProperty("fold.comment", "1");
        nieuw.SetProperty("fold.compact", "1");
        nieuw.SetText(tekst_);
        nieuw.Colourise(0, -1);
        return leesKleuren(&nieuw);
    }
};

TEST_F(Herkleuring, KleurtNaToevoegenOokDeTekstDieErAlStond) {
    const auto alsC = kleurNieuw(&ParserVenster::zetCStijl);
    const auto alsCpp = kleurNieuw(&ParserVenster::zetCPPStijl);
    const auto alsVhdl = kleurNieuw(&ParserVenster::zetVHDLStijl);
    ASSERT_NE(alsC, alsCpp);
    ASSERT_NE(alsC, alsVhdl);
    open("een.c", tekst_);
    aangepast()->SetText(tekst_);
    voegToe("twee.c", "int y;\n");
    for (auto* editor : editors_) {
        EXPECT_EQ(alsC, leesKleuren(editor)) << editor->GetId();
    }
    voegToe("drie.cpp", "int z;\n");
    for (auto* editor : editors_) {
        EXPECT_EQ(alsCpp, leesKleuren(editor)) << editor->GetId();
    }
    voegToe("vier.vhd", "x\n");
    for (auto* editor : editors_) {
        EXPECT_EQ(alsVhdl, leesKleuren(editor)) << editor->GetId();
    }
}

TEST_F(Herkleuring, KleurtNaOpenenOokHetResultaatDatErAlStond) {
    const auto alsC = kleurNieuw(&ParserVenster::zetCStijl);
    open("een.c", tekst_);
    geefOpdracht(wxID_REPLACE);
    ASSERT_EQ(tekst_, tekstVan(aangepast()));
    open("twee.c", "int y;\n");
    EXPECT_EQ(alsC, leesKleuren(aangepast()));
}

TEST_F(Herkleuring, RaaktBijEenOnbekendeExtensieNietsAan) {
    const auto toestand = [this] {
        std::vector<wxString> alles;
        for (auto* editor : editors_) {
            for (int stijl = 0; stijl <= wxSTC_STYLE_LASTPREDEFINED; ++stijl) {
                alles.push_back(editor->StyleGetFaceName(stijl));
                alles.push_back(editor->StyleGetForeground(stijl).GetAsString() +
                                editor->StyleGetBackground(stijl).GetAsString());
                alles.push_back(wxString::Format("%d %d", editor->StyleGetSize(stijl), editor->GetLexer()));
            }
            for (const char* eigenschap : {"fold", "fold.comment", "fold.compact"}) {
                alles.push_back(editor->GetProperty(eigenschap));
            }
            alles.push_back(wxString::Format("%d %d", editor->GetMarginWidth(0), editor->GetWrapMode()));
        }
        return alles;
    };
    auto vooraf = toestand();
    open("een.txt", "class x;\n");
    EXPECT_EQ(vooraf, toestand()) << "ook voor het eerste bestand";

    open("een.cpp", tekst_);
    aangepast()->SetText(tekst_);
    for (auto* editor : editors_) {
        editor->SetProperty("fold.compact", "0");
        editor->StyleSetForeground(wxSTC_STYLE_LINENUMBER, *wxBLACK);
        editor->StyleSetBackground(wxSTC_STYLE_LINENUMBER, *wxBLACK);
        editor->StyleSetFaceName(wxSTC_STYLE_DEFAULT, "Sans");
    }
    vooraf = toestand();
    open("een.hpp", "class x;\n");
    EXPECT_EQ(vooraf, toestand());
    EXPECT_EQ(wxSTC_C_WORD2, stijlVan(origineel(), "class")) << "de woorden van C++ blijven";
    EXPECT_EQ(wxSTC_C_WORD2, stijlVan(aangepast(), "class"));
}

TEST_F(Herkleuring, KleurtEerstHetOrigineelEnDanHetResultaat) {
    open("een.c", tekst_);
    aangepast()->SetText(tekst_);
    for (const char* naam : {"een.cpp", "een.c", "een.vhd"}) {
        std::vector<int> volgorde;
        const auto noteer = [&volgorde](wxStyledTextEvent& event) {
            if ((event.GetModificationType() & wxSTC_MOD_CHANGESTYLE) != 0 &&
                (volgorde.empty() || volgorde.back() != event.GetId())) {
                volgorde.push_back(event.GetId());
            }
            event.Skip();
        };
        const auto pad = maakBestand(naam, "x\n");
        for (auto* editor : editors_) {
            editor->SetModEventMask(wxSTC_MODEVENTMASKALL);
            editor->Colourise(0, -1);  // zodat tekenen nu niets meer te kleuren heeft
            editor->Bind(wxEVT_STC_MODIFIED, noteer);
        }
        beantwoordBestandsdialoog(naarWx(pad), [this] { geefOpdracht(wxID_ADD); });
        EXPECT_EQ((std::vector<int>{ID_ORIGINEEL, ID_AANGEPAST}), volgorde) << naam;
        for (auto* editor : editors_) {
            editor->Unbind(wxEVT_STC_MODIFIED, noteer);
        }
    }
}

class Vouwen : public Kleuring {
  protected:
    void SetUp() override {
        open("vouwen.c", "int f(void)\n{\n    return 1;\n}\nint x;\n");
        origineel()->Colourise(0, -1);
    }

    void klikMarge(int id, int marge, int regel) {
        wxStyledTextEvent event(wxEVT_STC_MARGINCLICK, id);
        event.SetEventObject(origineel());
        event.SetMargin(marge);
        event.SetPosition(origineel()->PositionFromLine(regel));
        venster_->ProcessWindowEvent(event);
    }
};

TEST_F(Vouwen, VouwtEnOntvouwtBijEenKlikNaastEenKop) {
    klikMarge(ID_ORIGINEEL, 1, 1);
    EXPECT_FALSE(origineel()->GetFoldExpanded(1));
    EXPECT_FALSE(origineel()->GetLineVisible(2));
    klikMarge(ID_ORIGINEEL, 1, 1);
    EXPECT_TRUE(origineel()->GetFoldExpanded(1));
    EXPECT_TRUE(origineel()->GetLineVisible(2));
}

TEST_F(Vouwen, DoetNietsInDeMargeMetRegelnummers) {
    klikMarge(ID_ORIGINEEL, 0, 1);
    EXPECT_TRUE(origineel()->GetFoldExpanded(1));
}

TEST_F(Vouwen, DoetNietsNaastEenGewoneRegel) {
    for (const int regel : {0, 2, 4}) {
        klikMarge(ID_ORIGINEEL, 1, regel);
    }
    EXPECT_TRUE(origineel()->GetFoldExpanded(1));
    EXPECT_TRUE(origineel()->GetLineVisible(2));
}

TEST_F(Vouwen, KiestDeEditorVanDeGebeurtenis) {
    aangepast()->SetText(origineel()->GetText());
    aangepast()->Colourise(0, -1);
    klikMarge(ID_AANGEPAST, 1, 1);
    EXPECT_FALSE(aangepast()->GetFoldExpanded(1));
    EXPECT_TRUE(origineel()->GetFoldExpanded(1));
}

class Verschuiven : public VensterTest {
  protected:
    void SetUp() override {
        std::string regels;
        for (int i = 0; i < 300; ++i) {
            regels += "regel " + std::to_string(i) + "\n";
        }
        origineel()->SetText(regels);
        aangepast()->SetText(regels);
        laatLopen();
    }

    void meldTekenen(int id, wxStyledTextCtrl* editor) {
        wxStyledTextEvent event(wxEVT_STC_PAINTED, id);
        event.SetEventObject(editor);
        venster_->ProcessWindowEvent(event);
    }
};

TEST_F(Verschuiven, HoudtDeEditorsGelijk) {
    origineel()->ScrollToLine(100);
    EXPECT_TRUE(laatLopenTot([this] { return aangepast()->GetFirstVisibleLine() == 100; }));
    laatLopen();
    aangepast()->ScrollToLine(30);
    EXPECT_TRUE(laatLopenTot([this] { return origineel()->GetFirstVisibleLine() == 30; }));
}

// Zo tekent GTK zolang een schuifbalk fadet: allebei, de linker eerst.
TEST_F(Verschuiven, LaatDeLinkerDeRechterNietTerugduwen) {
    venster_->Hide();
    const auto tekenAllebei = [this] {
        for (auto* editor : {origineel(), aangepast()}) {
            wxStyledTextEvent event(wxEVT_STC_PAINTED, editor->GetId());
            event.SetEventObject(editor);
            editor->ProcessWindowEvent(event);
        }
    };
    aangepast()->ScrollToLine(30);
    tekenAllebei();
    EXPECT_EQ(30, origineel()->GetFirstVisibleLine());
    EXPECT_EQ(30, aangepast()->GetFirstVisibleLine());
    tekenAllebei();
    origineel()->ScrollToLine(70);
    tekenAllebei();
    EXPECT_EQ(70, origineel()->GetFirstVisibleLine());
    EXPECT_EQ(70, aangepast()->GetFirstVisibleLine());
}

TEST_F(Verschuiven, BlijftOpDePlekVanHetOrigineelBijEenKnipbeurt) {
    origineel()->ScrollToLine(100);
    laatLopenTot([this] { return aangepast()->GetFirstVisibleLine() == 100; });
    geefOpdracht(wxID_REPLACE);
    EXPECT_TRUE(laatLopenTot([this] { return aangepast()->GetFirstVisibleLine() == 100; }));
    laatLopen();
    EXPECT_EQ(100, origineel()->GetFirstVisibleLine());
}

TEST_F(Verschuiven, VolgtDeEditorDieGetekendWerd) {
    venster_->Hide();  // zodat de toolkit zelf niets tekent
    origineel()->ScrollToLine(50);
    meldTekenen(ID_ORIGINEEL, origineel());
    EXPECT_EQ(50, aangepast()->GetFirstVisibleLine());
    aangepast()->ScrollToLine(20);
    meldTekenen(ID_AANGEPAST, aangepast());
    EXPECT_EQ(20, origineel()->GetFirstVisibleLine());
    EXPECT_FALSE(lid(&Inzage::bezigMetScrollen));
}

TEST_F(Verschuiven, DoetNietsZolangErVerschovenWordt) {
    venster_->Hide();
    origineel()->ScrollToLine(50);
    lid(&Inzage::bezigMetScrollen) = true;
    meldTekenen(ID_ORIGINEEL, origineel());
    EXPECT_EQ(0, aangepast()->GetFirstVisibleLine());
    EXPECT_TRUE(lid(&Inzage::bezigMetScrollen)) << "de vlag blijft van wie hem zette";
    lid(&Inzage::bezigMetScrollen) = false;
}
