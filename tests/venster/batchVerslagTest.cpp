// Wat er onder de regels van beide logboeken staat, en dat het nergens anders komt.

#include <sys/stat.h>
#include <wx/log.h>

#include <cstdlib>
#include <map>
#include <utility>

#include "Knipselaar/venster/merken.h"
#include "tests/hulp/bijschriften.h"
#include "tests/hulp/kleineSchijf.h"
#include "tests/venster/batchVenster.h"
#include "tests/venster/dialogen.h"

namespace fs = std::filesystem;

namespace {

using Regels = std::vector<std::string>;

const std::string geenBlok = "waarschuwing | Let op: geen enkel blok; er valt niets weg";
const std::string zonderBegin = "fout | Fout: regel 2: eind zonder begin: blijft staan";
const std::string zonderEind = "fout | Fout: regel 3: begin zonder eind: alles hierna valt weg";
const std::string tweeFouten = "fout | Fout: 2 fouten in de markers; zie links";
const std::string metFouten = "x\nEIND\nBEGIN\ny\n";

/// De regels van een logboek, met onder elke regel haar bijschriften. De regel achter het laatste regeleinde
/// hoort erbij.
Regels lees(wxStyledTextCtrl* log) {
    Regels regels;
    for (int regel = 0; regel < log->GetLineCount(); ++regel) {
        regels.push_back(log->GetLine(regel).utf8_string());
        for (const std::string& bijschrift : hulp::toon(merken::leesBijschriften(*log, regel))) {
            regels.push_back("^ " + bijschrift);
        }
    }
    return regels;
}

/// De tekst van zulke regels, zonder de bijschriften.
std::string geefTekst(const Regels& regels) {
    std::string tekst;
    for (const std::string& regel : regels) {
        tekst += regel.starts_with("^ ") ? "" : regel;
    }
    return tekst;
}

void voegToe(Regels& regels, const Regels& bijschriften) {
    for (const std::string& bijschrift : bijschriften) {
        regels.push_back("^ " + bijschrift);
    }
}

/// Wat er met een bestand gebeurt, en wat er in beide logboeken bij hoort te staan.
struct Geval {
    bool overgeslagen = false;
    Regels bron;
    Regels bestemming;
};

class BatchVerslag : public BatchTest {
  protected:
    /// Beide logboeken, nu en nadat het venster aan zijn merken gewerkt heeft.
    void verwacht(const Regels& bronLog, const Regels& doelLog) {
        for (int keer = 0; keer < 2; ++keer) {
            EXPECT_EQ(bronLog, lees(origineel()));
            EXPECT_EQ(doelLog, lees(aangepast()));
            EXPECT_EQ(geefTekst(bronLog), tekstVan(origineel()));
            EXPECT_EQ(geefTekst(doelLog), tekstVan(aangepast()));
            for (const wxStyledTextCtrl* log : {origineel(), aangepast()}) {
                EXPECT_NE(wxSTC_ANNOTATION_HIDDEN, log->AnnotationGetVisible());
            }
            laatLopen();
        }
    }

    void verwachtZonderBijschriften() {
        for (wxStyledTextCtrl* log : {origineel(), aangepast()}) {
            log->SetText("een\ntwee\ndrie\n");
            EXPECT_EQ((Regels{"een\n", "twee\n", "drie\n", ""}), lees(log));
            EXPECT_EQ(wxSTC_ANNOTATION_HIDDEN, log->AnnotationGetVisible());
        }
    }

    /// De kleuren waarin het eerste bijschrift van een regel staat.
    static std::pair<wxColour, wxColour> geefKleuren(wxStyledTextCtrl* log, int regel) {
        const std::string stijlen = log->AnnotationGetStyles(regel).utf8_string();
        const int stijl = log->AnnotationGetStyleOffset() + stijlen.at(0);
        return {log->StyleGetForeground(stijl), log->StyleGetBackground(stijl)};
    }

    /// Een bron en een bestemming met van alles, en wat elk bestand daarvan hoort te krijgen.
    std::map<std::string, Geval> maakMengsel() {
        hulp::maakBoom(bron_, {{"a.c", metBlok + metBlok},
                               {"b.c", "niets\n"},
                               {"c.c", metBlok},
                               {"d.c", metBlok},
                               {"e.c", metFouten},
                               {"los.c", "-> nergens"},
                               {"x.txt", metBlok}});
        EXPECT_EQ(0, mkfifo((bron_ / "pijp.c").c_str(), 0600));
        hulp::maakBoom(doel_, {{"c.c", "/"}, {"d.c", "-> ../bron/d.c"}});
        return {{"a.c", {}},
                {"b.c", {.bron = {geenBlok}, .bestemming = {}}},
                {"c.c",
                 {.bron = {"fout | Fout: niet geknipt"},
                  .bestemming = {"fout | Fout: niet te schrijven (is een directory)"}}},
                {"d.c",
                 {.overgeslagen = true,
                  .bron = {"waarschuwing | Let op: de bestemming is dit bestand zelf"},
                  .bestemming = {}}},
                {"e.c", {.bron = {zonderBegin, zonderEind}, .bestemming = {tweeFouten}}},
                {"los.c",
                 {.bron = {"fout | Fout: niet te lezen (bestaat niet)"},
                  .bestemming = {"fout | Fout: niet heel: de bron is niet te lezen"}}},
                {"pijp.c",
                 {.bron = {"fout | Fout: niet te lezen (is geen gewoon bestand)"},
                  .bestemming = {"fout | Fout: niet heel: de bron is niet te lezen"}}},
                {"x.txt", {.overgeslagen = true, .bron = {}, .bestemming = {}}}};
    }

    Regels bronLog_;
    Regels doelLog_;
};

}  // namespace

TEST_F(BatchVerslag, StaatOnderElkeRegelVanEenDirectory) {
    const auto mengsel = maakMengsel();
    bronLog_.push_back("Originele dir : " + bronPad() + "\n");
    doelLog_.push_back("Student dir : " + doelPad() + "\n");
    long nummer = 1;
    for (const std::string& naam : hulp::somOp(bron_)) {
        const Geval& geval = mengsel.at(naam);
        const std::string cijfer = std::to_string(nummer);
        if (geval.overgeslagen) {
            bronLog_.push_back("Overgeslagen " + cijfer + ":" + bronPad() + "/" + naam + "\n");
        } else {
            bronLog_.push_back("Orig bestand " + cijfer + ":" + naam + "\n");
            doelLog_.push_back("Student bestand " + cijfer + ":" + naam + "\n");
            voegToe(doelLog_, geval.bestemming);
            ++nummer;
        }
        voegToe(bronLog_, geval.bron);
    }
    for (Regels* log : {&bronLog_, &doelLog_}) {
        log->push_back("");
        voegToe(*log, {"fout | Fout: 2 bestanden geknipt met 3 blokken, 1 zonder enig blok, 2 overgeslagen, "
                       "3 mislukt"});
    }
    zonderDialoog([this] {
        knipDirectory();
        wxLog::FlushActive();
    });
    verwacht(bronLog_, doelLog_);
    EXPECT_TRUE(origineel()->IsModified());
    EXPECT_TRUE(aangepast()->IsModified());
    hulp::neemBeweringen();
}

TEST_F(BatchVerslag, StaatOnderElkeRegelVanEenBoom) {
    hulp::schrijfBestand(geefOmgeving().werk() / "buiten.c", metBlok);
    hulp::maakBoom(doel_, {{"a.c", metBlok},
                           {"link.c", "-> a.c"},
                           {"buiten.c", "-> ../buiten.c"},
                           {"los.c", "-> nergens"},
                           {"sub/b.c", "niets\n"},
                           {"sub/e.c", metFouten},
                           {"x.txt", metBlok}});
    ASSERT_EQ(0, mkfifo((doel_ / "pijp.c").c_str(), 0600));
    const std::map<std::string, Geval> gevallen{
        {"a.c", {}},
        {"link.c", {}},
        {"buiten.c",
         {.overgeslagen = true,
          .bron = {"waarschuwing | Let op: wijst buiten de directory; blijft zoals het is"},
          .bestemming = {}}},
        {"los.c",
         {.bron = {"fout | Fout: niet te lezen (bestaat niet)"},
          .bestemming = {"fout | Fout: niet geknipt: niet te lezen"}}},
        {"pijp.c",
         {.bron = {"fout | Fout: niet te lezen (is geen gewoon bestand)"},
          .bestemming = {"fout | Fout: niet geknipt: niet te lezen"}}},
        {"sub/b.c", {.bron = {geenBlok}, .bestemming = {}}},
        {"sub/e.c", {.bron = {zonderBegin, zonderEind}, .bestemming = {tweeFouten}}},
        {"x.txt", {.overgeslagen = true, .bron = {}, .bestemming = {}}}};
    Regels namen;
    for (const std::string& naam : hulp::somOp(doel_ / "sub")) {
        namen.push_back("sub/" + naam);
    }
    for (const std::string& naam : hulp::somOp(doel_)) {
        if (naam != "sub") {
            namen.push_back(naam);
        }
    }
    bronLog_.push_back("In totaal 8 bestanden en directories gevonden in " + doelPad() + "\n");
    long nummer = 1;
    bool geknipt = false;
    for (const std::string& naam : namen) {
        Geval geval = gevallen.at(naam);
        if (naam == "a.c" || naam == "link.c") {
            // Twee namen van hetzelfde bestand: de tweede komt niet meer aan de beurt.
            if (std::exchange(geknipt, true)) {
                geval = {.overgeslagen = true,
                         .bron = {"opmerking | onder een andere naam al geknipt"},
                         .bestemming = {}};
            }
        }
        const std::string rest = std::to_string(nummer) + ":" + doelPad() + "/" + naam + "\n";
        bronLog_.push_back((geval.overgeslagen ? "Overgeslagen " : "Orig bestand ") + rest);
        voegToe(bronLog_, geval.bron);
        if (!geval.overgeslagen) {
            doelLog_.push_back("Student bestand " + rest);
            voegToe(doelLog_, geval.bestemming);
        }
        ++nummer;
    }
    for (Regels* log : {&bronLog_, &doelLog_}) {
        log->push_back("");
        voegToe(*log, {"fout | Fout: 2 bestanden geknipt met 2 blokken, 1 zonder enig blok, 3 overgeslagen, "
                       "2 mislukt"});
    }
    zonderDialoog([this] {
        knipBoom();
        wxLog::FlushActive();
    });
    verwacht(bronLog_, doelLog_);
    hulp::neemBeweringen();
}

TEST_F(BatchVerslag, ZegtTerPlaatseDatDeOplossingErNogStaat) {
    const hulp::KleineSchijf schijf(std::getenv("TMPDIR"));
    if (!schijf.isEr()) {
        GTEST_SKIP() << "alleen root kan een bestandssysteem aankoppelen";
    }
    hulp::maakBoom(doel_, {{"a.c", std::string(400'000, 'x') + "\n" + metBlok}});
    zonderDialoog([this] {
        knipBoom();
        wxLog::FlushActive();
    });
    const std::string samenvatting =
        "^ fout | Fout: 0 bestanden geknipt met 0 blokken, 0 zonder enig blok, 0 overgeslagen, 1 mislukt";
    verwacht({"In totaal 1 bestanden en directories gevonden in " + doelPad() + "\n",
              "Orig bestand 1:" + doelPad() + "/a.c\n",
              "^ fout | Fout: niet geknipt; de oplossing staat er nog", "", samenvatting},
             {"Student bestand 1:" + doelPad() + "/a.c\n",
              "^ fout | Fout: tijdelijk bestand niet te schrijven (de schijf is vol; maak ruimte en probeer "
              "het opnieuw); de oplossing staat er nog",
              "", samenvatting});
}

TEST_F(BatchVerslag, LaatGoedeBestandenZonderBijschrift) {
    hulp::maakBoom(bron_, {{"a.c", metBlok}});
    knipDirectory();
    const std::string samenvatting =
        "^ opmerking | 1 bestand geknipt met 1 blok, 0 zonder enig blok, 0 overgeslagen, 0 mislukt";
    verwacht({"Originele dir : " + bronPad() + "\n", "Orig bestand 1:a.c\n", "", samenvatting},
             {"Student dir : " + doelPad() + "\n", "Student bestand 1:a.c\n", "", samenvatting});
}

TEST_F(BatchVerslag, KomtNietInEenOpgeslagenLogboek) {
    maakMengsel();
    knipDirectory();
    hulp::neemBeweringen();
    const std::string tekst = tekstVan(aangepast());
    const fs::path log = geefOmgeving().werk() / "log";
    beantwoordBestandsdialoog(naarWx(log), [this] { geefOpdracht(wxID_SAVE); });
    EXPECT_EQ(tekst, hulp::leesBestand(log));
    EXPECT_EQ(std::string::npos, tekst.find("Fout"));
}

TEST_F(BatchVerslag, MaaktEenLeegLogboekNietVeranderd) {
    zonderDialoog([this] { knipBoom(); });
    const std::string samenvatting =
        "^ waarschuwing | Let op: 0 bestanden geknipt met 0 blokken, 0 zonder enig blok, 0 overgeslagen, "
        "0 mislukt";
    verwacht({"In totaal 0 bestanden en directories gevonden in " + doelPad() + "\n", "", samenvatting},
             {"", samenvatting});
    EXPECT_FALSE(aangepast()->IsModified());
    EXPECT_FALSE(lid(&Inzage::opslaanKnop)->IsEnabled());
}

TEST_F(BatchVerslag, HeeftZonderBestandenNietsTeZeggen) {
    beantwoordMelding(wxID_OK, [this] {
        knipDirectory();
        wxLog::FlushActive();
    });
    EXPECT_EQ((Regels{"Originele dir : " + bronPad() + "\n", ""}), lees(origineel()));
    EXPECT_EQ((Regels{"Student dir : " + doelPad() + "\n", ""}), lees(aangepast()));
}

TEST_F(BatchVerslag, VerdwijntBijEenAndereVerwerking) {
    maakMengsel();
    for (const int keuze : {0, 1, 2}) {
        knipDirectory();
        EXPECT_NE(wxSTC_ANNOTATION_HIDDEN, origineel()->AnnotationGetVisible());
        kiesModus(keuze);
        verwachtZonderBijschriften();
    }
    hulp::neemBeweringen();
}

TEST_F(BatchVerslag, VerdwijntBijDeVolgendeBatch) {
    maakMengsel();
    knipDirectory();
    hulp::neemBeweringen();
    fs::remove_all(bron_);
    fs::remove_all(doel_);
    fs::create_directory(doel_);
    hulp::maakBoom(bron_, {{"1.c", metBlok}, {"2.c", metBlok}, {"3.c", metBlok}, {"4.c", metBlok}});
    geefOpdracht(wxID_REPLACE);
    bronLog_ = {"Originele dir : " + bronPad() + "\n"};
    doelLog_ = {"Student dir : " + doelPad() + "\n"};
    long nummer = 1;
    for (const std::string& naam : hulp::somOp(bron_)) {
        bronLog_.push_back("Orig bestand " + std::to_string(nummer) + ":" + naam + "\n");
        doelLog_.push_back("Student bestand " + std::to_string(nummer) + ":" + naam + "\n");
        ++nummer;
    }
    for (Regels* log : {&bronLog_, &doelLog_}) {
        log->push_back("");
        voegToe(*log, {"opmerking | 4 bestanden geknipt met 4 blokken, 0 zonder enig blok, 0 overgeslagen, "
                       "0 mislukt"});
    }
    verwacht(bronLog_, doelLog_);
    fs::remove_all(bron_);
    fs::create_directory(bron_);
    beantwoordMelding(wxID_OK, [this] {
        geefOpdracht(wxID_REPLACE);
        wxLog::FlushActive();
    });
    EXPECT_EQ((Regels{"Originele dir : " + bronPad() + "\n", ""}), lees(origineel()))
        << "ook als er niets te knippen valt";
}

TEST_F(BatchVerslag, VerdwijntOokUitEenLogboekZonderTekst) {
    knipBoom();
    kiesModus(2);
    verwachtZonderBijschriften();
    kiesModus(2);
    knipBoom();
    hulp::maakBoom(doel_, {{"a.c", metBlok}});
    geefOpdracht(wxID_REPLACE);
    const std::string samenvatting =
        "^ opmerking | 1 bestand geknipt met 1 blok, 0 zonder enig blok, 0 overgeslagen, 0 mislukt";
    verwacht({"In totaal 1 bestanden en directories gevonden in " + doelPad() + "\n",
              "Orig bestand 1:" + doelPad() + "/a.c\n", "", samenvatting},
             {"Student bestand 1:" + doelPad() + "/a.c\n", "", samenvatting});
}

TEST_F(BatchVerslag, BlijftHetzelfdeAlsHetVensterSmallerWordt) {
    maakMengsel();
    knipDirectory();
    hulp::neemBeweringen();
    laatLopen();
    const Regels bronLog = lees(origineel());
    const Regels doelLog = lees(aangepast());
    const int onderste = origineel()->GetLineCount() - 1;
    const int hoogte = origineel()->AnnotationGetLines(onderste);
    const int breedte = origineel()->GetSize().x;
    venster_->SetSize(venster_->GetSize().x * 2 / 3, venster_->GetSize().y);
    EXPECT_TRUE(laatLopenTot([&] {
        laatLopen();
        return origineel()->GetSize().x < breedte && origineel()->AnnotationGetLines(onderste) > hoogte;
    }));
    verwacht(bronLog, doelLog);
}

TEST_F(BatchVerslag, IsBijEenFoutNietMetEenOpmerkingTeVerwarren) {
    hulp::maakBoom(bron_, {{"a.c", metBlok}});
    knipDirectory();
    const int onderste = origineel()->GetLineCount() - 1;
    const auto opmerking = geefKleuren(origineel(), onderste);
    EXPECT_EQ(opmerking, geefKleuren(aangepast(), onderste));
    hulp::maakBoom(bron_, {{"a.c", "niets\n"}});
    knipDirectory();
    const auto waarschuwing = geefKleuren(origineel(), onderste);
    hulp::maakBoom(bron_, {{"a.c", metFouten}});
    knipDirectory();
    for (wxStyledTextCtrl* log : {origineel(), aangepast()}) {
        const auto fout = geefKleuren(log, onderste);
        EXPECT_EQ(fout, geefKleuren(log, onderste - 1)) << "bij het bestand en in de samenvatting";
        for (const auto& ander : {opmerking, waarschuwing}) {
            EXPECT_NE(ander.first, fout.first);
            EXPECT_NE(ander.second, fout.second);
        }
    }
}
