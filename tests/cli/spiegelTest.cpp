// Opruimen wat een eerdere run in de bestemming maakte en geen bron meer maakt.

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "tests/cli/proef.h"

namespace fs = std::filesystem;

using hulp::Boom;
using proef::bron;
using proef::goed;
using proef::knipselX;
using proef::Start;
using proef::Uitkomst;
using proef::Woorden;

namespace {

class CliSpiegel : public proef::Cli {
  protected:
    void maak(const Boom& boom) const { hulp::maakBoom(map_, boom); }

    void haalWeg(const Woorden& namen) const {
        for (const std::string& naam : namen) {
            EXPECT_LT(0U, fs::remove_all(map_ / naam)) << naam;
        }
    }

    /// Schrijft iets in een bestand, zodat zijn aantekening niet meer klopt.
    void verander(const std::string& naam) const { schrijf(naam, "met de hand veranderd"); }

    /// Knipt de directory bron met alles erin naar uit.
    Uitkomst kniptBoom(Woorden extra = {}, const Start& start = {}) const {
        extra.insert(extra.end(), {"-vX", "-r", "bron", "-n", "uit"});
        return draai(extra, start);
    }

    /// Een run die met een waarschuwing over een veranderd bestand goed afloopt.
    static Uitkomst metVeranderd(const std::string& naam, const std::string& uit) {
        return {.status = 0,
                .uit = uit,
                .fout = "knipselaar-cli: waarschuwing: " + naam +
                        ": geen bron maakt dit nog, maar het is veranderd; het blijft staan\n"};
    }
};

const std::string nietsOpgeruimd =
    "knipselaar-cli: waarschuwing: er is niets opgeruimd: eerst moet alles lukken\n";

}  // namespace

TEST_F(CliSpiegel, RuimtOpWatGeenBronMeerMaakt) {
    maak({{"bron/.env", "x"},
          {"bron/a.c", bron},
          {"bron/blijft", "-> a.c"},
          {"bron/leeg", "/"},
          {"bron/naar-oud", "-> oud/diep"},
          {"bron/naar-weg", "-> weg.c"},
          {"bron/oud/diep/y.txt", "y"},
          {"bron/oud/x.c", bron},
          {"bron/sub/b.c", bron},
          {"bron/sub/los.c", bron},
          {"bron/weg.c", bron}});
    ASSERT_EQ(0, kniptBoom({"-x"}).status);
    const Boom eerst = leesBoom("uit");
    haalWeg({"bron/.env", "bron/naar-oud", "bron/naar-weg", "bron/oud", "bron/sub/los.c", "bron/weg.c"});
    EXPECT_EQ(goed("2 bestanden geknipt, 2 blokken, 1 overgenomen\n"), kniptBoom());
    EXPECT_EQ(eerst, leesBoom("uit")) << "zonder --spiegel blijft alles";
    maak({{"uit/.gitignore", "*.o\n"}, {"uit/eigen/z.txt", "z"}, {"uit/eigen/leeg", "/"}});
    EXPECT_EQ(goed("2 bestanden geknipt, 2 blokken, 1 overgenomen, 9 opgeruimd\n"), kniptBoom({"--spiegel"}));
    const Boom blijft{{".gitignore", "*.o\n"}, {"a.c", knipselX},   {"blijft", "-> a.c"},
                      {"eigen", "/"},          {"eigen/leeg", "/"}, {"eigen/z.txt", "z"},
                      {"leeg", "/"},           {"sub", "/"},        {"sub/b.c", knipselX}};
    EXPECT_EQ(blijft, leesBoom("uit"));
    EXPECT_EQ(goed("2 bestanden geknipt, 2 blokken, 1 overgenomen\n"), kniptBoom({"--spiegel"}))
        << "er is niets meer op te ruimen";
    EXPECT_EQ(blijft, leesBoom("uit"));
}

TEST_F(CliSpiegel, MaaktEenBestemmingDieErNogNietIs) {
    maak({{"bron/a.c", bron}});
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok\n"), kniptBoom({"--spiegel"}));
    EXPECT_EQ((Boom{{"a.c", knipselX}}), leesBoom("uit"));
}

TEST_F(CliSpiegel, LaatEenDirectoryDieEenBronMaaktStaan) {
    maak({{"bron/a.c", bron}, {"bron/sub/b.c", bron}});
    ASSERT_EQ(0, kniptBoom().status);
    haalWeg({"bron/sub/b.c"});
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok, 1 opgeruimd\n"), kniptBoom({"--spiegel"}));
    EXPECT_EQ((Boom{{"a.c", knipselX}, {"sub", "/"}}), leesBoom("uit"));
}

TEST_F(CliSpiegel, LaatStaanWatIemandVeranderde) {
    maak({{"bron/a.c", bron}, {"bron/oud/weg.c", bron}, {"bron/oud/x.c", bron}});
    ASSERT_EQ(0, kniptBoom().status);
    haalWeg({"bron/oud"});
    verander("uit/oud/weg.c");
    maak({{"uit/naar-weg", "-> oud/weg.c"}, {"uit/naar-x", "-> oud/x.c"}});
    EXPECT_EQ(metVeranderd("uit/oud/weg.c", "1 bestand geknipt, 1 blok, 2 opgeruimd\n"),
              kniptBoom({"--spiegel"}));
    EXPECT_EQ((Boom{{"a.c", knipselX},
                    {"naar-weg", "-> oud/weg.c"},
                    {"oud", "/"},
                    {"oud/weg.c", "met de hand veranderd"}}),
              leesBoom("uit"));
    const Uitkomst streng = kniptBoom({"--spiegel", "--streng"});
    EXPECT_EQ(1, streng.status);
    EXPECT_EQ(
        "knipselaar-cli: fout: uit/oud/weg.c: geen bron maakt dit nog, maar het is veranderd; het blijft "
        "staan\n",
        streng.fout);
}

TEST_F(CliSpiegel, LaatUitvoerVanEenAndereSoortRunStaan) {
    maak({{"bron/a.c", bron}, {"los/plat.c", bron}, {"los/p2.c", bron}, {"los/een.c", bron}});
    ASSERT_EQ(0, draai({"los/plat.c", "los/p2.c", "-n", "uit"}).status);
    ASSERT_EQ(0, draai({"-vX", "los/een.c", "-u", "uit/een.c"}).status);
    verander("uit/plat.c");
    verander("uit/p2.c");
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok\n"), kniptBoom({"--spiegel"}));
    EXPECT_EQ((Boom{{"a.c", knipselX},
                    {"een.c", knipselX},
                    {"p2.c", "met de hand veranderd"},
                    {"plat.c", "met de hand veranderd"}}),
              leesBoom("uit"));
}

TEST_F(CliSpiegel, KijktPlatAlleenNaarWatErZelfInStaat) {
    maak({{"een.c", bron}, {"twee.c", bron}, {".drie.c", bron}});
    ASSERT_EQ(0, draai({"-vX", "een.c", "twee.c", ".drie.c", "-n", "uit"}).status);
    ASSERT_EQ(0, draai({"-vX", "twee.c", "-n", "uit/sub"}).status);
    maak({{"uit/naar-een", "-> een.c"}, {"uit/naar-twee", "-> twee.c"}, {"uit/naar-sub", "-> sub/twee.c"}});
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok, 3 opgeruimd\n"),
              draai({"-vX", "--spiegel", "een.c", "-n", "uit"}));
    EXPECT_EQ((Boom{{"een.c", knipselX},
                    {"naar-een", "-> een.c"},
                    {"naar-sub", "-> sub/twee.c"},
                    {"sub", "/"},
                    {"sub/twee.c", knipselX}}),
              leesBoom("uit"));
}

TEST_F(CliSpiegel, RuimtNietsOpAlsErEenFoutInEenBronIs) {
    maak({{"bron/a.c", bron}, {"bron/weg.c", bron}});
    ASSERT_EQ(0, kniptBoom().status);
    haalWeg({"bron/weg.c"});
    schrijf("bron/fout.c", "//**** Student Begin ****//\n");
    const Boom eerst = leesBoom("uit");
    EXPECT_EQ((Uitkomst{.status = 1,
                        .uit = "1 bestand geknipt, 1 blok, 1 met fouten\n",
                        .fout = "bron/fout.c:1: fout: beginmarker zonder eindmarker\n" + nietsOpgeruimd}),
              kniptBoom({"--spiegel"}));
    EXPECT_EQ(eerst, leesBoom("uit"));
    EXPECT_EQ(
        "bron/fout.c:1: fout: beginmarker zonder eindmarker\n"
        "knipselaar-cli: fout: er is niets opgeruimd: eerst moet alles lukken\n",
        kniptBoom({"--spiegel", "--streng"}).fout);
    haalWeg({"uit/weg.c"});
    EXPECT_EQ("bron/fout.c:1: fout: beginmarker zonder eindmarker\n", kniptBoom({"--spiegel"}).fout)
        << "er was niets op te ruimen";
}

TEST_F(CliSpiegel, RuimtNietsOpAlsDeBronErNietMeerIs) {
    maak({{"bron/a.c", bron}, {"bron/weg.c", bron}, {"bron/LEESMIJ", "tekst\n"}});
    ASSERT_EQ(0, kniptBoom().status);
    const Boom eerst = leesBoom("uit");
    haalWeg({"bron/weg.c"});
    EXPECT_EQ("knipselaar-cli: fout: er zijn minder blokken dan --minstens 2 vraagt: 1\n" + nietsOpgeruimd,
              kniptBoom({"--spiegel", "--minstens", "2"}).fout);
    haalWeg({"bron/a.c"});
    EXPECT_EQ(
        (Uitkomst{.status = 0,
                  .uit = "0 bestanden geknipt, 0 blokken, 1 overgenomen\n",
                  .fout = "knipselaar-cli: waarschuwing: er is geen bestand gekozen om te knippen; kijk "
                          "--keuze en --masker na\n" +
                          nietsOpgeruimd}),
        kniptBoom({"--spiegel"}));
    EXPECT_EQ(eerst, leesBoom("uit"));
}

TEST_F(CliSpiegel, RuimtNietsOpAlsErIetsNietTeSchrijvenIs) {
    maak({{"bron/a.c", bron}, {"bron/weg.c", bron}});
    ASSERT_EQ(0, kniptBoom().status);
    haalWeg({"bron/weg.c"});
    schrijf("bron/groot.txt", std::string(100'000, 'x'));
    const Boom eerst = leesBoom("uit");
    EXPECT_EQ((Uitkomst{.status = 2,
                        .uit = "1 bestand geknipt, 1 blok, 1 mislukt\n",
                        .fout = "knipselaar-cli: fout: uit/groot.txt: kan niet geschreven worden: het "
                                "bestand wordt groter dan mag\n" +
                                nietsOpgeruimd}),
              kniptBoom({"--spiegel"}, {.grootsteBestand = 10'000}));
    EXPECT_EQ(eerst, leesBoom("uit"));
}

TEST_F(CliSpiegel, RuimtNietsOpAlsHetPlanNietKan) {
    maak({{"bron/a.c", bron}, {"bron/weg.c", bron}, {"bron/dicht/b.c", bron}});
    ASSERT_EQ(0, kniptBoom({}, {.gewoneGebruiker = true}).status);
    haalWeg({"bron/weg.c"});
    const Boom eerst = leesBoom("uit");
    ASSERT_EQ(0, chmod((map_ / "bron/dicht").c_str(), 0));
    EXPECT_EQ(proef::storing("bron/dicht: kan niet gelezen worden: geen toegang; geef rechten of kies een "
                             "andere plaats"),
              kniptBoom({"--spiegel"}, {.gewoneGebruiker = true}));
    ASSERT_EQ(0, chmod((map_ / "bron/dicht").c_str(), 0700));
    EXPECT_EQ(eerst, leesBoom("uit"));
}

TEST_F(CliSpiegel, GaatNietSamenMetWatGeenBestemmingVerandert) {
    maak({{"bron/a.c", bron}, {"bron/weg.c", bron}});
    ASSERT_EQ(0, kniptBoom().status);
    haalWeg({"bron/weg.c"});
    const Boom eerst = leesBoom("uit");
    for (const char* opdracht : {"--controle", "--verschil"}) {
        EXPECT_EQ(2, kniptBoom({"--spiegel", opdracht}).status);
    }
    EXPECT_EQ(eerst, leesBoom("uit"));
}

TEST_F(CliSpiegel, LaatDeGeschiedenisVanEenVersiebeheerStaan) {
    maak({{"bron/a.c", bron},
          {"bron/.git/config", "c"},
          {"bron/sub/b.c", bron},
          {"bron/sub/.svn/entries", "e"}});
    ASSERT_EQ(0, kniptBoom({"-x", "--versiebeheer"}).status);
    haalWeg({"bron/.git", "bron/sub"});
    for (const Woorden& extra : {Woorden{"--spiegel"}, Woorden{"--spiegel", "--versiebeheer"}}) {
        EXPECT_EQ(0, kniptBoom(extra).status);
        EXPECT_EQ((Boom{{".git", "/"},
                        {".git/config", "c"},
                        {"a.c", knipselX},
                        {"sub", "/"},
                        {"sub/.svn", "/"},
                        {"sub/.svn/entries", "e"}}),
                  leesBoom("uit"));
    }
}

TEST_F(CliSpiegel, ZegtWatErWegZouGaan) {
    maak({{"bron/a.c", bron}, {"bron/oud/weg.c", bron}, {"bron/oud/naar-weg", "-> weg.c"}});
    ASSERT_EQ(0, kniptBoom().status);
    haalWeg({"bron/oud"});
    const Boom eerst = leesBoom("uit");
    EXPECT_EQ(goed("bron/a.c -> uit/a.c: 1 blok, 5 regels erin, 3 eruit, 0 waarschuwingen\n"
                   "uit/oud/weg.c: gaat weg\n"
                   "uit/oud/naar-weg: gaat weg\n"
                   "uit/oud: gaat weg\n"
                   "1 bestand in orde, 1 blok, 3 opgeruimd\n"),
              kniptBoom({"--spiegel", "--droog"}));
    EXPECT_EQ(eerst, leesBoom("uit"));
}

TEST_F(CliSpiegel, DoetVerslagInJson) {
    maak({{"bron/a.c", bron}, {"bron/oud/weg.c", bron}});
    ASSERT_EQ(0, kniptBoom().status);
    haalWeg({"bron/oud"});
    EXPECT_EQ(goed(R"({
  "bestanden": [
    {"bron": "bron/a.c", "bestemming": "uit/a.c", "status": "geknipt", "blokken": 1, "regels_erin": 5, "regels_eruit": 3, "meldingen": []},
    {"bestemming": "uit/oud/weg.c", "status": "opgeruimd", "meldingen": []},
    {"bestemming": "uit/oud", "status": "opgeruimd", "meldingen": []}
  ],
  "bewijs": [],
  "opmerkingen": [],
  "totaal": {"geknipt": 1, "ongewijzigd": 0, "overgenomen": 0, "opgeruimd": 2, "blokken": 1, "fouten": 0, "waarschuwingen": 0, "mislukt": 0},
  "afloop": 0
}
)"),
              kniptBoom({"--spiegel", "--json"}));
    EXPECT_EQ((Boom{{"a.c", knipselX}}), leesBoom("uit"));
}

TEST_F(CliSpiegel, LeestPasNaHetOpruimenNa) {
    maak({{"bron/a.c", bron}, {"bron/LEESMIJ", "geheime oplossing\n"}});
    EXPECT_EQ(1, kniptBoom({"--bewijs"}).status);
    haalWeg({"bron/LEESMIJ"});
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok, 1 opgeruimd, bewezen schoon\n"),
              kniptBoom({"--spiegel", "--bewijs"}));
}

TEST_F(CliSpiegel, RuimtLinksOpNaarWatWeggaat) {
    maak({{"bron/a.c", bron}, {"bron/weg.c", bron}, {"bron/m", "-> weg.c"}, {"buiten/x", "x"}});
    ASSERT_EQ(0, kniptBoom().status);
    haalWeg({"bron/weg.c", "bron/m"});
    maak({{"bron/m", "-> a.c"},
          {"uit/een", "-> twee"},
          {"uit/twee", "-> weg.c"},
          {"uit/eigen/drie", "-> ../een"},
          {"uit/vier", "-> eigen"},
          {"uit/al-dood", "-> nergens"},
          {"uit/erbuiten", "-> ../uit/weg.c"},
          {"uit/erlangs", "-> eigen/../../buiten/x"},
          {"uit/goed", "-> a.c"},
          {"uit/naar-m", "-> m"}});
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok, 1 overgenomen, 6 opgeruimd\n"),
              kniptBoom({"--spiegel", "-f"}));
    EXPECT_EQ((Boom{{"a.c", knipselX},
                    {"al-dood", "-> nergens"},
                    {"erbuiten", "-> ../uit/weg.c"},
                    {"erlangs", "-> eigen/../../buiten/x"},
                    {"goed", "-> a.c"},
                    {"m", "-> a.c"},
                    {"naar-m", "-> m"}}),
              leesBoom("uit"))
        << "wat over een link gaat die nu ergens anders heen wijst blijft";
}

TEST_F(CliSpiegel, LaatEenBronInDeBestemmingStaan) {
    maak({{"bron/sub/b.c", bron}, {"bron/weg.c", bron}});
    ASSERT_EQ(0, kniptBoom().status);
    EXPECT_EQ(proef::zonderBlok("1 bestand geknipt, 0 blokken, 1 opgeruimd\n"),
              draai({"--spiegel", "-r", "uit/sub/b.c", "-n", "uit"}));
    EXPECT_EQ((Boom{{"b.c", knipselX}, {"sub", "/"}, {"sub/b.c", knipselX}}), leesBoom("uit"));
}

TEST_F(CliSpiegel, RuimtOpWatNuWeggelatenIs) {
    maak({{"bron/a.c", bron}, {"bron/bouw/x.o", "x"}, {"bron/b.txt", "b"}});
    ASSERT_EQ(0, kniptBoom().status);
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok, 1 overgenomen, 2 opgeruimd\n"),
              kniptBoom({"--spiegel", "-w", "bouw/"}));
    EXPECT_EQ((Boom{{"a.c", knipselX}, {"b.txt", "b"}}), leesBoom("uit"));
}

TEST_F(CliSpiegel, MeldtWatNietWegTeHalenIs) {
    const Start gewoon{.gewoneGebruiker = true};
    maak({{"bron/a.c", bron}, {"bron/oud/x.c", bron}, {"bron/weg.c", bron}});
    ASSERT_EQ(0, kniptBoom({}, gewoon).status);
    haalWeg({"bron/oud", "bron/weg.c"});
    ASSERT_EQ(0, chmod((map_ / "uit/oud").c_str(), 0555));
    const std::string toegang =
        "knipselaar-cli: fout: uit/oud/x.c: kan niet opgeruimd worden: geen toegang; geef rechten of kies "
        "een andere plaats\n";
    EXPECT_EQ((Uitkomst{.status = 2,
                        .uit = "bron/a.c -> uit/a.c: 1 blok, 5 regels erin, 3 eruit, 0 waarschuwingen\n"
                               "uit/oud/x.c: lukt niet\n"
                               "uit/weg.c: gaat weg\n"
                               "uit/oud: gaat weg\n"
                               "1 bestand in orde, 1 blok, 2 opgeruimd, 1 mislukt\n",
                        .fout = toegang}),
              kniptBoom({"--spiegel", "--droog"}, gewoon));
    EXPECT_EQ((Uitkomst{.status = 2,
                        .uit = "1 bestand geknipt, 1 blok, 1 opgeruimd, 2 mislukt\n",
                        .fout = toegang +
                                "knipselaar-cli: fout: uit/oud: kan niet opgeruimd worden: de directory is "
                                "niet leeg\n"}),
              kniptBoom({"--spiegel"}, gewoon));
    EXPECT_EQ((Boom{{"a.c", knipselX}, {"oud", "/"}, {"oud/x.c", knipselX}}), leesBoom("uit"));
}

TEST_F(CliSpiegel, EenOnderbrokenRunRuimtNietsOp) {
    constexpr int aantal = 400;
    Boom nieuw;
    for (int i = 0; i < aantal; ++i) {
        const std::string naam = "f" + std::to_string(i) + ".c";
        schrijf("bron/" + naam, bron);
        nieuw[naam] = knipselX;
    }
    const int niets = open("/dev/null", O_RDWR | O_CLOEXEC);
    int halverwege = 0;
    for (int ronde = 0; ronde < 3; ++ronde) {
        fs::remove_all(map_ / "uit");
        schrijf("bron/weg.c", bron);
        ASSERT_EQ(0, draai({"-vY", "-r", "bron", "-n", "uit"}).status);
        haalWeg({"bron/weg.c"});
        const pid_t kind =
            start({"-vX", "-J1", "--spiegel", "-r", "bron", "-n", "uit"}, {}, niets, niets, niets);
        EXPECT_TRUE(wachtOp([&] { return lees("uit/f0.c") == knipselX; }));
        kill(kind, SIGINT);
        const int status = wacht(kind);
        EXPECT_TRUE(status == 0 || status == 128 + SIGINT) << status;
        EXPECT_TRUE(bestaat("uit/weg.c") || leesBoom("uit") == nieuw);
        halverwege += status != 0 && bestaat("uit/weg.c") ? 1 : 0;
    }
    close(niets);
    EXPECT_LT(0, halverwege) << "geen signaal kwam midden in het werk";
}
