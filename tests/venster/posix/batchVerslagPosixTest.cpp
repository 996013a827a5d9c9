// De logboeken bij wat er op POSIX nog meer in een directory kan staan, en op een volle schijf.

#include <sys/stat.h>

#include "tests/hulp/kleineSchijf.h"
#include "tests/venster/batchVerslag.h"

TEST_F(BatchVerslag, StaatOokOnderDeLinksVanEenDirectory) {
    std::map<std::string, Geval> gevallen = maakMengsel();
    hulp::maakBoom(bron_, {{"d.c", metBlok}, {"los.c", "-> nergens"}});
    hulp::maakBoom(doel_, {{"d.c", "-> ../bron/d.c"}});
    ASSERT_EQ(0, mkfifo((bron_ / "pijp.c").c_str(), 0600));
    gevallen["d.c"] = {.overgeslagen = true,
                       .bron = {"waarschuwing | Let op: de bestemming is dit bestand zelf"},
                       .bestemming = {}};
    gevallen["los.c"] = {.bron = {"fout | Fout: niet te lezen (bestaat niet)"},
                         .bestemming = {"fout | Fout: niet heel: de bron is niet te lezen"}};
    gevallen["pijp.c"] = {.bron = {"fout | Fout: niet te lezen (is geen gewoon bestand)"},
                          .bestemming = {"fout | Fout: niet heel: de bron is niet te lezen"}};
    knipDirectoryMet(
        gevallen,
        "fout | Fout: 2 bestanden geknipt met 3 blokken, 1 zonder enig blok, 2 overgeslagen, 3 mislukt");
}

TEST_F(BatchVerslag, StaatOokOnderDeLinksVanEenBoom) {
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
    const hulp::KleineSchijf schijf(geefOmgeving().tijdelijk());
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
