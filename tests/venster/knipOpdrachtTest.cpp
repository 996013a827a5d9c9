#include <wx/busyinfo.h>
#include <wx/window.h>

#include "tests/hulp/orakel.h"
#include "tests/venster/dialogen.h"
#include "tests/venster/vensterTest.h"

namespace {

class KnipOpdracht : public VensterTest {
  protected:
    void zetTeksten(const char* begin, const char* eind, const char* vervang) {
        lid(&Inzage::beginMarkerTekst)->SetValue(wxString::FromUTF8(begin));
        lid(&Inzage::eindMarkerTekst)->SetValue(wxString::FromUTF8(eind));
        lid(&Inzage::vervangTekst)->SetValue(wxString::FromUTF8(vervang));
    }

    std::string knip(const char* tekst) {
        origineel()->SetText(wxString::FromUTF8(tekst));
        geefOpdracht(wxID_REPLACE);
        return tekstVan(aangepast());
    }
};

}  // namespace

TEST_F(KnipOpdracht, KniptVanEditorNaarEditor) {
    EXPECT_EQ(
        "int f(void)\n{\n#error \"Dit stuk software ontbreekt.\"\n/* Beste student,\n    Dit stuk ontbreekt. "
        "Werk dit uit om de opdracht uit te voeren.  */\n}\n",
        knip("int f(void)\n{\n//**** Student Begin ****//\n  return 1;\n//**** Student Eind ****//\n}\n"));
}

TEST_F(KnipOpdracht, ZetRegeleindenVanHetOrigineelOmNaarLF) {
    zetTeksten("B", "E", "V");
    EXPECT_EQ("a\nVc\nd", knip("a\r\nB\r\nx\rE\rc\r\nd"));
    EXPECT_EQ("a\nB\nx\nE\nc\nd", tekstVan(origineel()));
}

TEST_F(KnipOpdracht, WistHetVorigeResultaat) {
    zetTeksten("B", "E", "V");
    knip("een\n");
    EXPECT_EQ("twee\n", knip("twee\n"));
    EXPECT_EQ("", knip(""));
}

TEST_F(KnipOpdracht, LeestDeTekstenBijElkeKnipbeurtOpnieuw) {
    zetTeksten("B", "E", "een");
    EXPECT_EQ("een", knip("B\nx\nE\n"));
    zetTeksten("C", "D", "twee");
    EXPECT_EQ("B\nx\nE\n", knip("B\nx\nE\n"));
    EXPECT_EQ("twee", knip("C\nx\nD\n"));
}

TEST_F(KnipOpdracht, MaaktHetResultaatGewijzigd) {
    EXPECT_FALSE(aangepast()->IsModified());
    knip("een\n");
    EXPECT_TRUE(aangepast()->IsModified());
}

TEST_F(KnipOpdracht, IsInEenKeerOngedaanTeMaken) {
    knip("een\ntwee\n");
    aangepast()->Undo();
    EXPECT_EQ("", tekstVan(aangepast()));
}

TEST_F(KnipOpdracht, KniptGelijkMetHetOrakel) {
    zetTeksten("é?g*n", "e", "∑\n");
    const char* tekst = "x\néagon\nbinnen\nhet\nna één\néég\néÉgén\n1\n2\n";
    EXPECT_EQ(orakel::knipTekst(tekst, {wxString::FromUTF8("é?g*n"), "e", wxString::FromUTF8("∑\n")}),
              knip(tekst));
}

TEST_F(KnipOpdracht, KniptElkeRegelDieDeEditorTelt) {
    for (const char* begin : {"X", "B", ""}) {
        for (const char* eind : {"X", "E", ""}) {
            zetTeksten(begin, eind, "V\n");
            for (const char* tekst : {"", "\n", "\t\n", "a", "X", "X\n", "a\nX\nb\nX\nc\nX\n",
                                      "a\nX\nb\nX\nc\nX", "a\r\nX\r\nb\r\n", "B\r", "B\n\n", "B\nE\n", "B\nE",
                                      "B\nx\nE\n", "a\nB\nE\nB\n", "één\nB\n∑\nE\nB\n", "E\nB\nB\n"}) {
                origineel()->SetText(wxString::FromUTF8(tekst));
                origineel()->ConvertEOLs(wxSTC_EOL_LF);
                std::vector<wxString> regels;
                for (int regel = 0; regel < origineel()->GetLineCount(); ++regel) {
                    regels.push_back(origineel()->GetLine(regel));
                }
                EXPECT_EQ(orakel::knipEditorregels(regels, {begin, eind, "V\n"}), knip(tekst))
                    << begin << " en " << eind << ": " << hulp::toonBytes(tekst);
            }
        }
    }
}

TEST_F(KnipOpdracht, ZietDeLegeRegelNaHetLaatsteRegeleindeAlsBinnenregel) {
    zetTeksten("X", "X", "V\n");
    EXPECT_EQ("a\nV\nc\nV\n", knip("a\nX\nb\nX\nc\nX\n"));
    EXPECT_EQ("a\nX", knip("a\nX"));
    zetTeksten("", "E", "V\n");
    EXPECT_EQ("V\n", knip("\t\n"));
    EXPECT_EQ("", knip(""));
}

TEST_F(KnipOpdracht, ToontEenBezigVensterZolangHetDuurt) {
    // Het bezigvenster bestaat alleen binnen de opdracht; de bewering bij een onmogelijke keuze valt daar
    // binnen en is de plaats om te kijken.
    static int vensters = 0;
    const auto vooraf = wxTopLevelWindows.size();
    const auto oud =
        wxSetAssertHandler([](const wxString&, int, const wxString&, const wxString&, const wxString&) {
            vensters = static_cast<int>(wxTopLevelWindows.size());
        });
    metOnmogelijkeKeuze([this] { geefOpdracht(wxID_REPLACE); });
    wxSetAssertHandler(oud);
    EXPECT_EQ(static_cast<int>(vooraf) + 1, vensters);
    EXPECT_TRUE(laatLopenTot([vooraf] { return wxTopLevelWindows.size() == vooraf; }));
}

TEST_F(KnipOpdracht, BeweertBijEenOnmogelijkeKeuzeEnDoetNiets) {
    origineel()->SetText("een\n");
    aangepast()->SetText("blijft");
    metOnmogelijkeKeuze([this] { geefOpdracht(wxID_REPLACE); });
    const auto beweringen = hulp::neemBeweringen();
    ASSERT_EQ(1U, beweringen.size());
    EXPECT_EQ("Fout Keuze gemaakt.", beweringen[0].melding);
    EXPECT_EQ("een\n", tekstVan(origineel()));
    EXPECT_EQ("blijft", tekstVan(aangepast()));
}

TEST_F(KnipOpdracht, KniptHetEneBestandNaarHetAndere) {
    zetTeksten("B", "E", "V");
    const auto bron = maakBestand("in.c", "a\nB\nx\nE\nc\n");
    const auto doel = geefOmgeving().werk() / "uit.c";
    venster_->bewerkBestand(wxFileName(naarWx(bron)), wxFileName(naarWx(doel)));
    EXPECT_EQ(hulp::zetInBestand("a\nV\nc\n\n"), hulp::leesBestand(doel));
}

TEST_F(KnipOpdracht, KentNamenDieGeenUtf8Zijn) {
    zetTeksten("B", "E", "V");
    const auto bron = maakBestand("geen utf8 \xE9\xFF.c", "B\nx\nE\n");
    const auto doel = geefOmgeving().werk() / "uit \xE9\xFF.c";
    venster_->bewerkBestand(wxFileName(naarWx(bron)), wxFileName(naarWx(doel)));
    EXPECT_EQ(hulp::zetInBestand("V\n\n"), hulp::leesBestand(doel));
}

TEST_F(KnipOpdracht, HoudtDeBovensteRegelOokAlsRegelsAfgebrokenWorden) {
    std::string tekst;
    for (int regel = 0; regel < 200; ++regel) {
        tekst +=
            "regel " + std::to_string(regel) + std::string(150, ' ') + "met een lange staart van woorden\n";
    }
    zetTeksten("regel 190", "regel 195", "WERK");
    origineel()->SetWrapMode(wxSTC_WRAP_WORD);
    aangepast()->SetWrapMode(wxSTC_WRAP_WORD);
    for (auto* editor : {origineel(), aangepast()}) {
        editor->SetText(tekst);
        ASSERT_TRUE(laatLopenTot([editor] { return editor->WrapCount(50) > 1; }));
    }
    origineel()->ScrollToLine(120);
    ASSERT_TRUE(laatLopenTot([this] { return aangepast()->GetFirstVisibleLine() == 120; }));
    geefOpdracht(wxID_REPLACE);
    ASSERT_TRUE(laatLopenTot([this] { return aangepast()->WrapCount(50) > 1; }));
    laatLopen();
    EXPECT_EQ(120, origineel()->GetFirstVisibleLine());
    EXPECT_EQ(120, aangepast()->GetFirstVisibleLine());
}

TEST_F(KnipOpdracht, SlaatEerstOpBijAfsluiten) {
    knip("een\n");
    const auto doel = geefOmgeving().werk() / "opgeslagen.c";
    bool gesloten = false;
    venster_->Bind(wxEVT_CLOSE_WINDOW, [&gesloten, &doel](wxCloseEvent& event) {
        gesloten = true;
        EXPECT_TRUE(event.CanVeto());
        EXPECT_TRUE(std::filesystem::exists(doel)) << "opslaan komt voor het sluiten";
        event.Veto();
    });
    beantwoordBestandsdialoog(naarWx(doel), [this] { geefOpdracht(wxID_EXIT); });
    EXPECT_TRUE(gesloten);
    EXPECT_EQ("een\n", hulp::leesBestand(doel));
}

TEST_F(KnipOpdracht, MeldtVoorHetSluitenDatOpslaanNietLukt) {
    knip("een\n");
    bool gesloten = false;
    venster_->Bind(wxEVT_CLOSE_WINDOW, [&gesloten](wxCloseEvent& event) {
        gesloten = true;
        event.Veto();
    });
    // Met zo'n naam kan ook root geen bestand maken.
    const std::string doel = naarTekst(geefOmgeving().werk() / (std::string(300, 'x') + ".c"));
    const auto melding = beantwoordDialoogEnMelding(
        wxString::FromUTF8(doel), [&gesloten] { EXPECT_FALSE(gesloten) << "het venster staat er nog"; },
        [this] { geefOpdracht(wxID_EXIT); });
    EXPECT_NE(std::string::npos, melding.tekst.find(doel)) << melding.tekst;
    EXPECT_EQ(wxICON_ERROR, melding.stijl & wxICON_MASK);
    EXPECT_TRUE(gesloten);
    EXPECT_EQ("een\n", tekstVan(aangepast()));
}

TEST_F(KnipOpdracht, SlaatNietsOpInEenBatchmodus) {
    kiesModus(1);
    aangepast()->SetText("log");
    ASSERT_TRUE(aangepast()->IsModified());
    int gesloten = 0;
    venster_->Bind(wxEVT_CLOSE_WINDOW, [&gesloten](wxCloseEvent& event) {
        ++gesloten;
        event.Veto();
    });
    zonderDialoog([this] { geefOpdracht(wxID_EXIT); });
    kiesModus(2);
    aangepast()->SetText("log");
    zonderDialoog([this] { geefOpdracht(wxID_EXIT); });
    EXPECT_EQ(2, gesloten);
}
