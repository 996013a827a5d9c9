// De batches zoals de gebruiker ze uit het venster start: wat er gevraagd wordt, wat er in de editors komt te
// staan en wat er op schijf gebeurt.

#include <wx/log.h>
#include <wx/panel.h>

#include <utility>
#include <vector>

#include "Knipselaar/venster/merken.h"
#include "tests/venster/batchVenster.h"
#include "tests/venster/dialogen.h"

namespace fs = std::filesystem;

namespace {

using VlakkeBatch = BatchTest;
using RecursieveBatch = BatchTest;
using Kiezen = BatchTest;

/// Een lijst waar een batch bij elk bestand naar kijkt. Bij het tweede bestand duurt dat zo lang dat de batch
/// daarna laat zien hoe ver hij is.
class TrageLijst : public wxChoice {
  public:
    TrageLijst(wxWindow& ouder, std::function<void()> bijElkBestand)
        : wxChoice(&ouder, wxID_ANY), bijElkBestand_(std::move(bijElkBestand)) {}

    int GetSelection() const override {
        bijElkBestand_();
        constexpr long langMs = 1100;
        if (++gevraagd_ == 2) {
            hulp::wachtTot([einde = hulp::klokMs() + langMs] { return hulp::klokMs() > einde; });
        }
        return 0;
    }

  private:
    std::function<void()> bijElkBestand_;
    mutable int gevraagd_ = 0;
};

}  // namespace

TEST_F(VlakkeBatch, SchrijftHetHeleLogboek) {
    hulp::maakBoom(bron_, {{"x.txt", metBlok},
                           {"a.c", metBlok},
                           {"b.vhd", metBlok},
                           {"y.C", metBlok},
                           {".verborgen.c", metBlok},
                           {"sub/z.c", metBlok}});
    std::string bronLog = "Originele dir : " + bronPad() + "\n";
    std::string doelLog = "Student dir : " + doelPad() + "\n";
    long nummer = 1;
    for (const std::string& naam : hulp::somOp(bron_)) {
        const std::string extensie = fs::path(naam).extension().string();
        if (naam == "sub" || naam.starts_with('.')) {
            continue;
        }
        if (extensie == ".c" || extensie == ".vhd") {
            bronLog += "Orig bestand " + std::to_string(nummer) + ":" + naam + "\n";
            doelLog += "Student bestand " + std::to_string(nummer) + ":" + naam + "\n";
            ++nummer;
        } else {
            bronLog += "Overgeslagen " + std::to_string(nummer) + ":" + naarTekst(bron_ / naam) + "\n";
        }
    }
    origineel()->SetText("weg hiermee");
    zonderDialoog([this] { knipDirectory(); });
    EXPECT_EQ(bronLog, tekstVan(origineel()));
    EXPECT_EQ(doelLog, tekstVan(aangepast()));
    EXPECT_EQ((hulp::Boom{{"a.c", zonderBlok}, {"b.vhd", zonderBlok}}), hulp::leesBoom(doel_));
    laatLopen();
    EXPECT_TRUE(lid(&Inzage::opslaanKnop)->IsEnabled()) << "het logboek is op te slaan";
    EXPECT_TRUE(lid(&Inzage::pasAanKnop)->IsEnabled()) << "de vlaggen blijven";
}

TEST_F(VlakkeBatch, WerktDeLogboekenBijTerwijlDeRunNogLoopt) {
    hulp::maakBoom(bron_, {{"a.c", metBlok}, {"b.c", metBlok}, {"c.c", metBlok}});
    const std::vector<std::string> namen = hulp::somOp(bron_);
    std::string bijHetDerde;
    TrageLijst lijst(*lid(&Inzage::paneel),
                     [&] { bijHetDerde = tekstVan(origineel()) + tekstVan(aangepast()); });
    kiesModus(1);
    kiesBron(bron_);
    kiesDoel(doel_);
    wxChoice* echt = std::exchange(lid(&Inzage::bestandTypeKeuze), &lijst);
    geefOpdracht(wxID_REPLACE);
    lid(&Inzage::bestandTypeKeuze) = echt;
    EXPECT_EQ("Originele dir : " + bronPad() + "\nOrig bestand 1:" + namen[0] +
                  "\nOrig bestand 2:" + namen[1] + "\nStudent dir : " + doelPad() +
                  "\nStudent bestand 1:" + namen[0] + "\nStudent bestand 2:" + namen[1] + "\n",
              bijHetDerde);
}

TEST_F(VlakkeBatch, SlaatBijVhdlAllesOver) {
    hulp::maakBoom(bron_, {{"b.vhd", metBlok}});
    knipDirectory(1);
    EXPECT_EQ("Originele dir : " + bronPad() + "\nOvergeslagen 1:" + naarTekst(bron_ / "b.vhd") + "\n",
              tekstVan(origineel()));
    EXPECT_EQ("Student dir : " + doelPad() + "\n", tekstVan(aangepast()));
    EXPECT_TRUE(fs::is_empty(doel_));
}

TEST_F(VlakkeBatch, NeemtBijAlleBestandenAlles) {
    hulp::maakBoom(bron_, {{"zonder", metBlok}, {"x.txt", metBlok}, {"a.CPP", metBlok}});
    knipDirectory(2);
    EXPECT_EQ((hulp::Boom{{"zonder", zonderBlok}, {"x.txt", zonderBlok}, {"a.CPP", zonderBlok}}),
              hulp::leesBoom(doel_));
}

TEST_F(VlakkeBatch, LaatEenLangLogboekSchuiven) {
    constexpr int aantal = 200;
    for (int i = 0; i < aantal; ++i) {
        hulp::schrijfBestand(bron_ / (std::to_string(i) + ".c"), metBlok);
    }
    knipDirectory();
    for (wxStyledTextCtrl* editor : {origineel(), aangepast()}) {
        EXPECT_TRUE(laatLopenTot([editor] { return editor->GetScrollRange(wxVERTICAL) > aantal; }));
        EXPECT_LT(editor->GetScrollThumb(wxVERTICAL), aantal);
        editor->ScrollToEnd();
        EXPECT_TRUE(laatLopenTot([editor] {
            return editor->GetScrollPos(wxVERTICAL) == editor->GetFirstVisibleLine() &&
                   editor->GetFirstVisibleLine() > 0;
        }));
    }
}

TEST_F(VlakkeBatch, MeldtEenLegeBron) {
    hulp::maakBoom(bron_, {{"sub/a.c", metBlok}, {".verborgen.c", metBlok}});
    const auto melding = beantwoordMelding(wxID_OK, [this] {
        knipDirectory();
        wxLog::FlushActive();
    });
    EXPECT_EQ("De aangegeven bron directory is leeg!", melding.tekst);
    EXPECT_EQ(wxICON_ERROR, melding.stijl & wxICON_MASK);
    EXPECT_EQ("Originele dir : " + bronPad() + "\n", tekstVan(origineel()));
    EXPECT_EQ("Student dir : " + doelPad() + "\n", tekstVan(aangepast()));
}

TEST_F(VlakkeBatch, MeldtEenBronDieVerdwenenIsAlsLeeg) {
    kiesModus(1);
    kiesBron(bron_);
    kiesDoel(doel_);
    fs::remove(bron_);
    const auto melding = beantwoordMelding(wxID_OK, [this] {
        geefOpdracht(wxID_REPLACE);
        wxLog::FlushActive();
    });
    EXPECT_EQ("De aangegeven bron directory is leeg!", melding.tekst);
    EXPECT_EQ((std::vector<hulp::Bewering>{{"origDir.IsOpened()", ""}}), hulp::neemBeweringen());
}

TEST_F(VlakkeBatch, MeldtNietDatDeBestemmingOntbreekt) {
    hulp::maakBoom(bron_, {{"a.c", metBlok}});
    kiesModus(1);
    kiesBron(bron_);
    kiesDoel(doel_);
    fs::remove(doel_);
    zonderDialoog([this] {
        geefOpdracht(wxID_REPLACE);
        wxLog::FlushActive();
    });
    EXPECT_EQ("Originele dir : " + bronPad() + "\nOrig bestand 1:a.c\n", tekstVan(origineel()));
    EXPECT_EQ("Student dir : " + doelPad() + "\nStudent bestand 1:a.c\n", tekstVan(aangepast()));
    EXPECT_FALSE(fs::exists(doel_));
    hulp::neemBeweringen();
}

TEST_F(VlakkeBatch, DoetBijGelijkeDirectoriesNietsAlsDeVraagWeggedaanWordt) {
    hulp::maakBoom(bron_, {{"a.c", metBlok}});
    kiesModus(1);
    kiesBron(bron_);
    kiesDoel(bron_);
    for (const int antwoord : {wxID_CANCEL, wxID_NO}) {
        origineel()->SetText("blijft");
        aangepast()->SetText("blijft ook");
        beantwoordMelding(antwoord, [this] { geefOpdracht(wxID_REPLACE); });
        EXPECT_EQ("blijft", tekstVan(origineel())) << antwoord;
        EXPECT_EQ("blijft ook", tekstVan(aangepast())) << antwoord;
        EXPECT_EQ((hulp::Boom{{"a.c", metBlok}}), hulp::leesBoom(bron_)) << antwoord;
    }
}

TEST_F(VlakkeBatch, VraagtBijGelijkeDirectoriesEnDoetBijNeeNiets) {
    hulp::maakBoom(bron_, {{"a.c", metBlok}});
    doel_ = bron_;
    kiesModus(1);
    kiesBron(bron_);
    kiesDoel(bron_);
    origineel()->SetText("blijft");
    const auto melding = beantwoordMelding(wxID_NO, [this] { geefOpdracht(wxID_REPLACE); });
    EXPECT_EQ("Bron en bestemming directories zijn gelijk.\nToch doorgaan?", melding.tekst);
    EXPECT_EQ("Bevestig", melding.titel);
    EXPECT_EQ(wxYES_NO, melding.stijl & (wxYES_NO | wxOK | wxCANCEL));
    EXPECT_EQ(venster_, melding.ouder);
    EXPECT_FALSE(melding.bezigVenster.IsEmpty()) << "het bezigvenster staat er ook tijdens de vraag";
    const wxRect midden = venster_->GetScreenRect().Deflate(0, venster_->GetSize().y / 3);
    EXPECT_FALSE(midden.Intersects(melding.bezigVenster)) << "en bedekt haar niet";
    EXPECT_EQ("blijft", tekstVan(origineel()));
    EXPECT_EQ(metBlok, hulp::leesBestand(bron_ / "a.c"));
}

TEST_F(VlakkeBatch, LegtBijJaElkBestandLeeg) {
    hulp::maakBoom(bron_, {{"a.c", metBlok}, {"x.txt", metBlok}});
    doel_ = bron_;
    beantwoordMelding(wxID_YES, [this] { knipDirectory(); });
    EXPECT_EQ((hulp::Boom{{"a.c", hulp::zetInBestand("\n")}, {"x.txt", metBlok}}), hulp::leesBoom(bron_));
    const auto onder = [](wxStyledTextCtrl* log, const char* begin) {
        int regel = 0;
        while (!log->GetLine(regel).StartsWith(begin)) {
            ++regel;
        }
        return merken::leesBijschriften(*log, regel);
    };
    const std::vector<kern::Bijschrift> geleegd{
        {kern::Ernst::fout, "Fout: naar zichzelf geknipt: het bestand is nu leeg"}};
    EXPECT_EQ(geleegd, onder(origineel(), "Orig bestand 1:"));
    EXPECT_EQ(geleegd, onder(aangepast(), "Student bestand 1:"));
}

TEST_F(VlakkeBatch, VraagtOokBijEenAndereSchrijfwijze) {
    hulp::maakBoom(bron_, {{"a.c", metBlok}});
    for (const fs::path& ander :
         {bron_ / ".", geefOmgeving().werk() / "" / "" / "bron", bron_ / ".." / "bron"}) {
        verwachtVraag(ander);
    }
}

TEST_F(RecursieveBatch, SchrijftHetHeleLogboek) {
    hulp::maakBoom(doel_,
                   {{"sub/a.c", metBlok}, {"sub/x.txt", metBlok}, {"b.vhd", metBlok}, {".git/c.c", metBlok}});
    const auto namen = hulp::somOp(doel_ / "sub");
    std::string bronLog = "In totaal 3 bestanden en directories gevonden in " + doelPad() + "\n";
    std::string doelLog;
    long nummer = 1;
    for (const std::string& naam : {"sub/" + namen[0], "sub/" + namen[1], std::string("b.vhd")}) {
        const std::string pad = naarTekst(doel_ / naam) + "\n";
        if (naam == "sub/x.txt") {
            bronLog += "Overgeslagen " + std::to_string(nummer) + ":" + pad;
        } else {
            bronLog += "Orig bestand " + std::to_string(nummer) + ":" + pad;
            doelLog += "Student bestand " + std::to_string(nummer) + ":" + pad;
        }
        ++nummer;
    }
    origineel()->SetText("weg");
    aangepast()->SetText("weg");
    zonderDialoog([this] { knipBoom(); });
    EXPECT_EQ(bronLog, tekstVan(origineel()));
    EXPECT_EQ(doelLog, tekstVan(aangepast()));
    EXPECT_EQ((hulp::Boom{{"sub", "/"},
                          {"sub/a.c", zonderBlok},
                          {"sub/x.txt", metBlok},
                          {"b.vhd", zonderBlok},
                          {".git", "/"},
                          {".git/c.c", metBlok}}),
              hulp::leesBoom(doel_));
}

TEST_F(RecursieveBatch, KleurtHetLogboekNaarWatErVoorkwam) {
    const wxColour achtergrond = origineel()->GetBackgroundColour();
    const wxColour voorgrond = origineel()->GetForegroundColour();
    hulp::maakBoom(doel_, {{"x.txt", metBlok}});
    knipBoom();
    EXPECT_EQ(wxColour("RED"), origineel()->GetBackgroundColour());
    EXPECT_EQ(voorgrond, origineel()->GetForegroundColour());
    hulp::maakBoom(doel_, {{"a.c", metBlok}});
    geefOpdracht(wxID_REPLACE);
    EXPECT_EQ(wxColour("RED"), origineel()->GetBackgroundColour()) << "de kleur blijft staan";
    EXPECT_EQ(wxColour("BLUE"), origineel()->GetForegroundColour());
    EXPECT_EQ(achtergrond, aangepast()->GetBackgroundColour());
}

TEST_F(RecursieveBatch, KleurtNietRoodZonderOvergeslagenBestand) {
    const wxColour achtergrond = origineel()->GetBackgroundColour();
    hulp::maakBoom(doel_, {{"a.c", metBlok}});
    knipBoom();
    EXPECT_EQ(achtergrond, origineel()->GetBackgroundColour());
    EXPECT_EQ(wxColour("BLUE"), origineel()->GetForegroundColour());
}

TEST_F(RecursieveBatch, SchrijftBijEenLegeBoomAlleenHetTotaal) {
    zonderDialoog([this] {
        knipBoom();
        wxLog::FlushActive();
    });
    EXPECT_EQ("In totaal 0 bestanden en directories gevonden in " + doelPad() + "\n", tekstVan(origineel()));
    EXPECT_EQ("", tekstVan(aangepast()));
}

TEST_F(RecursieveBatch, SchrijftZonderBoomAlleenHetTotaal) {
    kiesModus(2);
    kiesDoel(doel_);
    fs::remove(doel_);
    zonderDialoog([this] {
        geefOpdracht(wxID_REPLACE);
        wxLog::FlushActive();
    });
    EXPECT_EQ("In totaal 0 bestanden en directories gevonden in " + doelPad() + "\n", tekstVan(origineel()));
    EXPECT_EQ((std::vector<hulp::Bewering>{{"recurDir.IsOpened()", ""}}), hulp::neemBeweringen());
}

TEST_F(RecursieveBatch, LaatGeenTijdelijkBestandAchter) {
    hulp::maakBoom(doel_, {{"a.c", metBlok}, {"sub/b.c", metBlok}});
    knipBoom();
    EXPECT_TRUE(fs::is_empty(geefOmgeving().tijdelijk()));
    EXPECT_EQ(3U, hulp::leesBoom(doel_).size());
}

TEST_F(Kiezen, ZetVlagPadEnHuidigBestand) {
    kiesModus(1);
    kiesBron(bron_ / "");
    EXPECT_TRUE(lid(&Inzage::bronGekozen));
    EXPECT_FALSE(lid(&Inzage::bestemmingGekozen));
    EXPECT_EQ(naarWx(bron_), lid(&Inzage::origineelPad)) << "zonder scheidingsteken achteraan";
    EXPECT_EQ(naarWx(bron_ / ""), lid(&Inzage::huidigBestand).GetFullPath());
    laatLopen();
    EXPECT_FALSE(lid(&Inzage::pasAanKnop)->IsEnabled());
    kiesDoel(doel_);
    EXPECT_TRUE(lid(&Inzage::bestemmingGekozen));
    EXPECT_EQ(naarWx(doel_), lid(&Inzage::aangepastPad));
    EXPECT_EQ(naarWx(bron_), lid(&Inzage::origineelPad));
    EXPECT_EQ(naarWx(doel_ / ""), lid(&Inzage::huidigBestand).GetFullPath());
    laatLopen();
    EXPECT_TRUE(lid(&Inzage::pasAanKnop)->IsEnabled());
}

TEST_F(Kiezen, IsInDeRecursieveModusMetDeBestemmingKlaar) {
    kiesModus(2);
    laatLopen();
    EXPECT_FALSE(lid(&Inzage::pasAanKnop)->IsEnabled());
    kiesDoel(doel_);
    laatLopen();
    EXPECT_TRUE(lid(&Inzage::pasAanKnop)->IsEnabled());
}

TEST_F(Kiezen, TeltAlleenEenDirectoryDieErIs) {
    hulp::schrijfBestand(geefOmgeving().werk() / "bestand", "x");
    kiesModus(1);
    kiesDoel(doel_);
    const wxString stap = naarWx(doel_);
    for (const wxString& tekst :
         {stap + "2", stap + "/bestaat-niet", naarWx(geefOmgeving().werk() / "bestand"), wxString("")}) {
        typ(lid(&Inzage::bestemmingDirKiezer), tekst);
        EXPECT_FALSE(lid(&Inzage::bestemmingGekozen)) << tekst;
        EXPECT_EQ(stap, lid(&Inzage::aangepastPad)) << tekst;
        EXPECT_EQ(naarWx(doel_ / ""), lid(&Inzage::huidigBestand).GetFullPath()) << tekst;
        kiesDoel(doel_);
        EXPECT_TRUE(lid(&Inzage::bestemmingGekozen)) << "terug na " << tekst;
    }
}

TEST_F(Kiezen, ToontHetHelePadInDeTooltip) {
    const auto tooltip = [](wxDirPickerCtrl* kiezer) { return kiezer->GetTextCtrl()->GetToolTipText(); };
    wxDirPickerCtrl* bron = lid(&Inzage::bronDirKiezer);
    wxDirPickerCtrl* bestemming = lid(&Inzage::bestemmingDirKiezer);
    kiesModus(1);
    const wxString vooraf = tooltip(bestemming);
    kiesBron(bron_);
    EXPECT_EQ(naarWx(bron_), tooltip(bron));
    EXPECT_EQ(vooraf, tooltip(bestemming));
    typ(bestemming, "/bestaat/niet");
    EXPECT_EQ("/bestaat/niet", tooltip(bestemming)) << "ook wat nergens heen wijst";
    kiesDoel(doel_);
    EXPECT_EQ(naarWx(doel_), tooltip(bestemming));
    typ(bestemming, "");
    EXPECT_EQ("", tooltip(bestemming));
}

TEST_F(Kiezen, VerandertNietsAanDeAndereKiezer) {
    kiesModus(1);
    kiesBron(bron_);
    kiesDoel(doel_);
    typ(lid(&Inzage::bronDirKiezer), "/bestaat/niet");
    EXPECT_FALSE(lid(&Inzage::bronGekozen));
    EXPECT_TRUE(lid(&Inzage::bestemmingGekozen));
    EXPECT_EQ(naarWx(bron_), lid(&Inzage::origineelPad));
}
