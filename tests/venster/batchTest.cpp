// De batches zoals de gebruiker ze uit het venster start: wat er gevraagd wordt, wat er in de editors komt te
// staan en wat er op schijf gebeurt.

#include <sys/stat.h>
#include <wx/log.h>

#include <random>

#include "tests/hulp/bestandsboom.h"
#include "tests/hulp/orakel.h"
#include "tests/venster/dialogen.h"
#include "tests/venster/vensterTest.h"

namespace fs = std::filesystem;

namespace {

const std::string origineelTekst = "a\nBEGIN\nb\nEIND\nc\n";
const std::string geknipt = "a\nWERK\nc\n\n";

class Batch : public VensterTest {
  protected:
    Batch() {
        fs::create_directory(bron_);
        fs::create_directory(doel_);
        lid(&Inzage::beginMarkerTekst)->SetValue("BEGIN");
        lid(&Inzage::eindMarkerTekst)->SetValue("EIND");
        lid(&Inzage::vervangTekst)->SetValue("WERK");
    }

    /// Typt een pad in het tekstveld van een kiezer, zoals een gebruiker; de kiezer meldt het zelf.
    void typ(wxDirPickerCtrl* kiezer, const wxString& pad) {
        kiezer->Enable();
        kiezer->GetTextCtrl()->SetValue(pad);
        laatLopen();
    }
    void kiesBron(const fs::path& pad) { typ(lid(&Inzage::bronDirKiezer), naarWx(pad)); }
    void kiesDoel(const fs::path& pad) { typ(lid(&Inzage::bestemmingDirKiezer), naarWx(pad)); }

    /// Start de flat batch van bron_ naar doel_ met een keuze van het bestandstype.
    void knipDirectory(int bestandType = 0) {
        kiesModus(1);
        kiesBron(bron_);
        kiesDoel(doel_);
        lid(&Inzage::bestandTypeKeuze)->SetSelection(bestandType);
        geefOpdracht(wxID_REPLACE);
    }

    void knipBoom(int bestandType = 0) {
        kiesModus(2);
        kiesDoel(doel_);
        lid(&Inzage::bestandTypeKeuze)->SetSelection(bestandType);
        geefOpdracht(wxID_REPLACE);
    }

    /// De volgorde waarin het bestandssysteem een directory opsomt.
    static std::vector<std::string> somOp(const fs::path& map) {
        std::vector<std::string> namen;
        for (const auto& deel : fs::directory_iterator(map)) {
            namen.push_back(deel.path().filename());
        }
        return namen;
    }

    std::string bronPad() const { return bron_.string(); }
    std::string doelPad() const { return doel_.string(); }

    fs::path bron_ = geefOmgeving().werk() / "bron";
    fs::path doel_ = geefOmgeving().werk() / "doel";
};

using VlakkeBatch = Batch;
using RecursieveBatch = Batch;
using Kiezen = Batch;

}  // namespace

TEST_F(VlakkeBatch, SchrijftHetHeleLogboek) {
    hulp::maakBoom(bron_, {{"x.txt", origineelTekst},
                           {"a.c", origineelTekst},
                           {"b.vhd", origineelTekst},
                           {"y.C", origineelTekst},
                           {".verborgen.c", origineelTekst},
                           {"sub/z.c", origineelTekst}});
    std::string bronLog = "Originele dir : " + bronPad() + "\n";
    std::string doelLog = "Student dir : " + doelPad() + "\n";
    long nummer = 1;
    for (const std::string& naam : somOp(bron_)) {
        const std::string extensie = fs::path(naam).extension();
        if (naam == "sub" || naam.starts_with('.')) {
            continue;
        }
        if (extensie == ".c" || extensie == ".vhd") {
            bronLog += "Orig bestand " + std::to_string(nummer) + ":" + naam + "\n";
            doelLog += "Student bestand " + std::to_string(nummer) + ":" + naam + "\n";
            ++nummer;
        } else {
            bronLog += "Overgeslagen " + std::to_string(nummer) + ":" + bronPad() + "/" + naam + "\n";
        }
    }
    origineel()->SetText("weg hiermee");
    zonderDialoog([this] { knipDirectory(); });
    EXPECT_EQ(bronLog, tekstVan(origineel()));
    EXPECT_EQ(doelLog, tekstVan(aangepast()));
    EXPECT_EQ((hulp::Boom{{"a.c", geknipt}, {"b.vhd", geknipt}}), hulp::leesBoom(doel_));
    laatLopen();
    EXPECT_TRUE(lid(&Inzage::opslaanKnop)->IsEnabled()) << "het logboek is op te slaan";
    EXPECT_TRUE(lid(&Inzage::pasAanKnop)->IsEnabled()) << "de vlaggen blijven";
}

TEST_F(VlakkeBatch, SlaatBijVhdlAllesOver) {
    hulp::maakBoom(bron_, {{"b.vhd", origineelTekst}});
    knipDirectory(1);
    EXPECT_EQ("Originele dir : " + bronPad() + "\nOvergeslagen 1:" + bronPad() + "/b.vhd\n",
              tekstVan(origineel()));
    EXPECT_EQ("Student dir : " + doelPad() + "\n", tekstVan(aangepast()));
    EXPECT_TRUE(fs::is_empty(doel_));
}

TEST_F(VlakkeBatch, NeemtBijAlleBestandenAlles) {
    hulp::maakBoom(bron_, {{"zonder", origineelTekst}, {"x.txt", origineelTekst}, {"a.CPP", origineelTekst}});
    knipDirectory(2);
    EXPECT_EQ((hulp::Boom{{"zonder", geknipt}, {"x.txt", geknipt}, {"a.CPP", geknipt}}),
              hulp::leesBoom(doel_));
}

TEST_F(VlakkeBatch, MeldtEenLegeBron) {
    hulp::maakBoom(bron_, {{"sub/a.c", origineelTekst}, {".verborgen.c", origineelTekst}});
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
    hulp::maakBoom(bron_, {{"a.c", origineelTekst}});
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

TEST_F(VlakkeBatch, VraagtBijGelijkeDirectoriesEnDoetBijNeeNiets) {
    hulp::maakBoom(bron_, {{"a.c", origineelTekst}});
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
    EXPECT_EQ(origineelTekst, hulp::leesBestand(bron_ / "a.c"));
}

TEST_F(VlakkeBatch, LegtBijJaElkBestandLeeg) {
    hulp::maakBoom(bron_, {{"a.c", origineelTekst}, {"x.txt", origineelTekst}});
    doel_ = bron_;
    beantwoordMelding(wxID_YES, [this] { knipDirectory(); });
    EXPECT_EQ((hulp::Boom{{"a.c", "\n"}, {"x.txt", origineelTekst}}), hulp::leesBoom(bron_));
}

TEST_F(VlakkeBatch, VraagtOokBijEenAndereSchrijfwijze) {
    hulp::maakBoom(bron_, {{"a.c", origineelTekst}});
    fs::create_directory_symlink("bron", geefOmgeving().werk() / "via");
    for (const fs::path& ander : {geefOmgeving().werk() / "via", fs::path(bronPad() + "/."),
                                  geefOmgeving().werk() / "" / "" / "bron", bron_ / ".." / "bron"}) {
        lid(&Inzage::aangepastPad) = naarWx(ander);
        lid(&Inzage::origineelPad) = naarWx(bron_);
        modus()->SetSelection(1);
        const auto melding = beantwoordMelding(wxID_NO, [this] { geefOpdracht(wxID_REPLACE); });
        EXPECT_EQ("Bevestig", melding.titel) << ander;
        EXPECT_EQ(origineelTekst, hulp::leesBestand(bron_ / "a.c")) << ander;
    }
}

TEST_F(RecursieveBatch, SchrijftHetHeleLogboek) {
    hulp::maakBoom(doel_, {{"sub/a.c", origineelTekst},
                           {"sub/x.txt", origineelTekst},
                           {"b.vhd", origineelTekst},
                           {".git/c.c", origineelTekst}});
    const auto namen = somOp(doel_ / "sub");
    std::string bronLog = "In totaal 3 bestanden en directories gevonden in " + doelPad() + "\n";
    std::string doelLog;
    long nummer = 1;
    for (const std::string& naam : {"sub/" + namen[0], "sub/" + namen[1], std::string("b.vhd")}) {
        const std::string pad = doelPad() + "/" + naam + "\n";
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
                          {"sub/a.c", geknipt},
                          {"sub/x.txt", origineelTekst},
                          {"b.vhd", geknipt},
                          {".git", "/"},
                          {".git/c.c", origineelTekst}}),
              hulp::leesBoom(doel_));
}

TEST_F(RecursieveBatch, KleurtHetLogboekNaarWatErVoorkwam) {
    const wxColour achtergrond = origineel()->GetBackgroundColour();
    const wxColour voorgrond = origineel()->GetForegroundColour();
    hulp::maakBoom(doel_, {{"x.txt", origineelTekst}});
    knipBoom();
    EXPECT_EQ(wxColour("RED"), origineel()->GetBackgroundColour());
    EXPECT_EQ(voorgrond, origineel()->GetForegroundColour());
    hulp::maakBoom(doel_, {{"a.c", origineelTekst}});
    geefOpdracht(wxID_REPLACE);
    EXPECT_EQ(wxColour("RED"), origineel()->GetBackgroundColour()) << "de kleur blijft staan";
    EXPECT_EQ(wxColour("BLUE"), origineel()->GetForegroundColour());
    EXPECT_EQ(achtergrond, aangepast()->GetBackgroundColour());
}

TEST_F(RecursieveBatch, KleurtNietRoodZonderOvergeslagenBestand) {
    const wxColour achtergrond = origineel()->GetBackgroundColour();
    hulp::maakBoom(doel_, {{"a.c", origineelTekst}});
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

TEST_F(RecursieveBatch, MeldtNietDatEenBestandNietLukt) {
    ASSERT_EQ(0, mkfifo((doel_ / "pijp.c").c_str(), 0600));
    zonderDialoog([this] {
        knipBoom();
        wxLog::FlushActive();
    });
    EXPECT_EQ("In totaal 1 bestanden en directories gevonden in " + doelPad() +
                  "\nOrig bestand 1:" + doelPad() + "/pijp.c\n",
              tekstVan(origineel()));
    hulp::neemBeweringen();
}

TEST_F(RecursieveBatch, LaatGeenTijdelijkBestandAchter) {
    hulp::maakBoom(doel_, {{"a.c", origineelTekst}, {"sub/b.c", origineelTekst}});
    knipBoom();
    EXPECT_TRUE(fs::is_empty(std::getenv("TMPDIR")));
    EXPECT_EQ(3U, hulp::leesBoom(doel_).size());
}

TEST_F(Kiezen, ZetVlagPadEnHuidigBestand) {
    kiesModus(1);
    kiesBron(bronPad() + "/");
    EXPECT_TRUE(lid(&Inzage::bronGekozen));
    EXPECT_FALSE(lid(&Inzage::bestemmingGekozen));
    EXPECT_EQ(naarWx(bron_), lid(&Inzage::origineelPad)) << "zonder scheidingsteken achteraan";
    EXPECT_EQ(naarWx(bron_) + "/", lid(&Inzage::huidigBestand).GetFullPath());
    laatLopen();
    EXPECT_FALSE(lid(&Inzage::pasAanKnop)->IsEnabled());
    kiesDoel(doel_);
    EXPECT_TRUE(lid(&Inzage::bestemmingGekozen));
    EXPECT_EQ(naarWx(doel_), lid(&Inzage::aangepastPad));
    EXPECT_EQ(naarWx(bron_), lid(&Inzage::origineelPad));
    EXPECT_EQ(naarWx(doel_) + "/", lid(&Inzage::huidigBestand).GetFullPath());
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
        EXPECT_EQ(stap + "/", lid(&Inzage::huidigBestand).GetFullPath()) << tekst;
        kiesDoel(doel_);
        EXPECT_TRUE(lid(&Inzage::bestemmingGekozen)) << "terug na " << tekst;
    }
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

/// De headers van de toolkit als lesmateriaal: honderden echte bestanden, met op toevallige plaatsen markers.
class EchtMateriaal : public Batch {
  protected:
    EchtMateriaal() {
        std::mt19937 toeval(2026);  // NOLINT(cert-msc51-cpp): vaste reeks
        std::size_t aantal = 0;
        for (const auto& deel : fs::recursive_directory_iterator(HEADERS)) {
            if (deel.is_regular_file() && deel.path().extension() == ".h") {
                const std::string naam = fs::relative(deel.path(), HEADERS);
                hulp::maakBoom(boom_, {{naam, merk(hulp::leesBestand(deel.path()), toeval)}});
                ++aantal;
            }
        }
        EXPECT_GT(aantal, 600U);
    }

    static std::string merk(const std::string& tekst, std::mt19937& toeval) {
        std::string uit;
        bool open = false;
        for (const char teken : tekst) {
            uit += teken;
            if (teken == '\n' && toeval() % 20 == 0) {
                uit += open ? "    // EIND van het blok\n" : "BEGIN\n";
                open = !open;
            }
        }
        return uit;
    }

    std::string orakelVan(const fs::path& pad) const {
        return orakel::knipBestand(pad, {"BEGIN", "EIND", "WERK"});
    }

    fs::path boom_ = geefOmgeving().werk() / "headers";
};

TEST_F(EchtMateriaal, KniptRecursiefElkBestandGoed) {
    hulp::Boom verwacht = hulp::leesBoom(boom_);
    for (auto& [naam, inhoud] : verwacht) {
        if (inhoud != "/") {
            inhoud = orakelVan(boom_ / naam);
        }
    }
    doel_ = boom_;
    knipBoom();
    EXPECT_TRUE(verwacht == hulp::leesBoom(boom_));
}

TEST_F(EchtMateriaal, KniptDeDirectoryElkBestandGoed) {
    bron_ = boom_ / "wx";
    hulp::Boom verwacht;
    for (const auto& deel : fs::directory_iterator(bron_)) {
        if (deel.is_regular_file()) {
            verwacht[deel.path().filename()] = orakelVan(deel.path());
        }
    }
    knipDirectory();
    EXPECT_GT(verwacht.size(), 200U);
    EXPECT_TRUE(verwacht == hulp::leesBoom(doel_));
}
