// Welke bestanden uit een directory aan de beurt komen.

#include "tests/cli/proef.h"

namespace fs = std::filesystem;

using hulp::Boom;
using proef::bron;
using proef::goed;
using proef::knipselX;
using proef::storing;
using proef::Uitkomst;
using proef::Woorden;

namespace {

class CliKeuze : public proef::Cli {
  protected:
    CliKeuze() {
        for (const char* naam :
             {"a.c", "b.cpp", "c.h", "d.vhd", "e.vhdl", "f.txt", "G.C", "Makefile", ".geheim.c", "sub/h.c",
              ".verborgen/i.c", ".git/j.c", "CVS/k.c", "sub/.svn/l.c"}) {
            schrijf("bron/" + std::string(naam), bron);
        }
    }

    /// De namen die een run met deze opties zou knippen, op volgorde.
    std::vector<std::string> kies(Woorden woorden) const {
        woorden.insert(woorden.end(), {"--droog", "bron"});
        const Uitkomst uitkomst = draai(woorden);
        EXPECT_EQ(0, uitkomst.status) << uitkomst.fout;
        std::vector<std::string> namen;
        std::istringstream regels(uitkomst.uit);
        for (std::string regel; std::getline(regels, regel);) {
            if (regel.starts_with("bron/") && regel.find(": 1 blok") != std::string::npos) {
                namen.push_back(regel.substr(5, regel.find(": ") - 5));
            }
        }
        return namen;
    }
};

}  // namespace

TEST_F(CliKeuze, KentDeKeuzesVanHetVenster) {
    const Woorden talen{"a.c", "b.cpp", "c.h", "d.vhd", "e.vhdl"};
    EXPECT_EQ(talen, kies({}));
    EXPECT_EQ(talen, kies({"--keuze", "talen"}));
    EXPECT_EQ((Woorden{"d.vhd", "e.vhdl"}), kies({"-k", "vhdl"}));
    EXPECT_EQ((Woorden{"G.C", "Makefile", "a.c", "b.cpp", "c.h", "d.vhd", "e.vhdl", "f.txt"}),
              kies({"--keuze=alles"}));
}

TEST_F(CliKeuze, KentMaskers) {
    EXPECT_EQ((Woorden{"a.c"}), kies({"--masker", "*.c"}));
    EXPECT_EQ((Woorden{"Makefile", "a.c"}), kies({"-m", "*.c", "-m", "Make*"}));
    EXPECT_EQ((Woorden{"a.c", "sub/h.c"}), kies({"-r", "-m", "*.c"}));
    EXPECT_EQ((Woorden{"sub/h.c"}), kies({"-r", "-m", "sub/*.c"}));
    EXPECT_EQ((Woorden{"a.c", "c.h"}), kies({"-m", "?.[ch]"}));
    schrijf("bron/sub/diep/m.c", bron);
    EXPECT_EQ((Woorden{"sub/h.c"}), kies({"-r", "-m", "sub/*.c"}))
        << "een joker past niet op een schuine streep";
}

TEST_F(CliKeuze, LaatVerborgenEnVersiebeheerWeg) {
    const Woorden talen{"a.c", "b.cpp", "c.h", "d.vhd", "e.vhdl", "sub/h.c"};
    EXPECT_EQ(talen, kies({"-r"}));
    EXPECT_EQ((Woorden{".geheim.c", ".verborgen/i.c", "a.c", "b.cpp", "c.h", "d.vhd", "e.vhdl", "sub/h.c"}),
              kies({"-r", "--verborgen"}));
    EXPECT_EQ(
        (Woorden{".git/j.c", "CVS/k.c", "a.c", "b.cpp", "c.h", "d.vhd", "e.vhdl", "sub/.svn/l.c", "sub/h.c"}),
        kies({"-r", "--versiebeheer"}));
    EXPECT_EQ((Woorden{".geheim.c", ".git/j.c", ".verborgen/i.c", "CVS/k.c", "a.c", "b.cpp", "c.h", "d.vhd",
                       "e.vhdl", "sub/.svn/l.c", "sub/h.c"}),
              kies({"-r", "-x", "--versiebeheer"}));
}

TEST_F(CliKeuze, NeemtEenGenoemdBestandAltijd) {
    EXPECT_EQ(0, draai({"-t", "bron/Makefile"}).status);
    EXPECT_EQ(0, draai({"-t", "bron/.geheim.c"}).status);
    EXPECT_NE(bron, lees("bron/Makefile"));
    EXPECT_NE(bron, lees("bron/.geheim.c"));
}

TEST_F(CliKeuze, MeldtEenMaskerWaarNietsOpPast) {
    EXPECT_EQ(storing("--masker: op '*.py' past geen enkel bestand; kijk het masker na, of geef --recursief"),
              draai({"-t", "-m", "*.c", "-m", "*.py", "bron"}));
    EXPECT_EQ(storing("--masker: op 'h.d' past geen enkel bestand; kijk het masker na"),
              draai({"-r", "-n", "uit", "-m", "h.d", "bron"}));
    EXPECT_FALSE(bestaat("uit"));
    EXPECT_EQ(bron, lees("bron/a.c"));
}

TEST_F(CliKeuze, WaarschuwtAlsErNietsTeKnippenIs) {
    schrijf("leeg/LEESMIJ", "tekst");
    const std::string melding =
        "knipselaar-cli: waarschuwing: er is geen bestand gekozen om te knippen; kijk --keuze en --masker "
        "na\n";
    EXPECT_EQ((Uitkomst{.status = 0, .uit = "0 bestanden geknipt, 0 blokken\n", .fout = melding}),
              draai({"-t", "leeg"}));
    const Uitkomst streng = draai({"-t", "--streng", "--json", "leeg"});
    EXPECT_EQ(1, streng.status);
    EXPECT_EQ("knipselaar-cli: fout: er is geen bestand gekozen om te knippen; kijk --keuze en --masker na\n",
              streng.fout);
    EXPECT_NE(
        std::string::npos,
        streng.uit.find("\"opmerkingen\": [\n    \"er is geen bestand gekozen om te knippen; kijk --keuze en "
                        "--masker na\"\n  ],\n"))
        << streng.uit;
}

TEST_F(CliKeuze, MeldtWatGeenGewoonBestandIs) {
    ASSERT_EQ(0, mkfifo((map_ / "bron/pijp.c").c_str(), 0600));
    EXPECT_EQ("knipselaar-cli: waarschuwing: bron/pijp.c: is geen gewoon bestand; overgeslagen\n",
              draai({"-t", "bron"}).fout);
}

TEST_F(CliKeuze, LaatWegWatOpEenMaskerPast) {
    EXPECT_EQ((Woorden{"a.c", "c.h", "d.vhd", "sub/h.c"}),
              kies({"-r", "-w", "*.cpp", "--weglaten", "*.vhdl"}));
    EXPECT_EQ((Woorden{"a.c", "b.cpp", "c.h", "d.vhd", "e.vhdl"}), kies({"-r", "-w", "sub"}))
        << "een directory met alles erin";
    EXPECT_EQ((Woorden{"a.c", "b.cpp", "c.h", "d.vhd", "e.vhdl"}), kies({"-r", "-w", "sub/*.c"}));
    EXPECT_EQ((Woorden{"a.c", "b.cpp", "c.h", "d.vhd", "e.vhdl", "sub/h.c"}), kies({"-r", "-w", "b/h.c"}))
        << "met een schuine streep erin geldt het masker voor het hele pad";
    EXPECT_EQ((Woorden{"a.c", "c.h", "e.vhdl"}), kies({"-w", "b*", "-w", "d.*", "-w", "C.H"}))
        << "ook zonder -r";
    EXPECT_EQ((Woorden{"a.c"}), kies({"-m", "[ab].c*", "-w", "b*"})) << "weglaten gaat voor kiezen";
    EXPECT_EQ((Woorden{"a.c", "b.cpp", "c.h", "d.vhd", "e.vhdl"}), kies({"-w", "*.py"}))
        << "een masker waar niets op past is geen fout";
}

TEST_F(CliKeuze, LaatUitEenHeleBoomAllesWegWatOpEenMaskerPast) {
    hulp::maakBoom(map_ / "boom", {{"a.c", bron},
                                   {"a.o", "object"},
                                   {"bouw/x.c", bron},
                                   {"bouw/diep/y", "y"},
                                   {"sub/bouw", "een bestand"},
                                   {"sub/b.c", bron},
                                   {"sub/b.o", "object"},
                                   {"sub/doc/z", "z"},
                                   {"doc/z", "z"}});
    schrijf("weg.txt", "# gebouwd\n*.o\n\n  bouw/\nsub/doc/\n");
    EXPECT_EQ(goed("2 bestanden geknipt, 2 blokken, 2 overgenomen\n"),
              draai({"-vX", "-r", "--weglaten-uit", "weg.txt", "boom", "-n", "uit"}));
    EXPECT_EQ((Boom{{"a.c", knipselX},
                    {"doc", "/"},
                    {"doc/z", "z"},
                    {"sub", "/"},
                    {"sub/b.c", knipselX},
                    {"sub/bouw", "een bestand"}}),
              leesBoom("uit"));
}

TEST_F(CliKeuze, LaatOokTerPlaatseEnZonderSchrijvenWeg) {
    hulp::maakBoom(map_ / "boom",
                   {{"a.c", bron}, {"b.c", "//**** Student Eind ****//\n"}, {"sub/c.c", bron}});
    EXPECT_EQ(goed("1 bestand in orde, 1 blok\n"), draai({"-c", "-r", "-w", "b.c", "-w", "sub/", "boom"}));
    EXPECT_EQ(
        goed("--- boom/a.c\t\n+++ boom/a.c\t\n@@ -1,5 +1,3 @@\n voor\n-//**** Student Begin ****//\n-geheime "
             "oplossing\n-//**** Student Eind ****//\n+X\n na\n"),
        draai({"-vX", "-D", "-r", "-w", "b.c", "-w", "sub/", "boom"}));
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok\n"),
              draai({"-vX", "-t", "-r", "-w", "b.c", "-w", "sub/", "boom"}));
    EXPECT_EQ(
        (Boom{{"a.c", knipselX}, {"b.c", "//**** Student Eind ****//\n"}, {"sub", "/"}, {"sub/c.c", bron}}),
        leesBoom("boom"));
}

TEST_F(CliKeuze, KniptWatGenoemdIsOokAlsHetOpEenMaskerOmWegTeLatenPast) {
    EXPECT_EQ(goed("2 bestanden geknipt, 2 blokken\n"),
              draai({"-vX", "-w", "*.c", "-w", "bron/", "-n", "uit", "bron/a.c", "bron/sub/h.c"}));
    EXPECT_EQ((Boom{{"a.c", knipselX}, {"h.c", knipselX}}), leesBoom("uit"));
    EXPECT_EQ((Woorden{"a.c", "b.cpp", "c.h", "d.vhd", "e.vhdl"}), kies({"-w", "bron"}))
        << "ook een genoemde directory";
}

TEST_F(CliKeuze, KomtNietInEenDirectoryDieWegblijft) {
    hulp::maakBoom(map_ / "boom", {{"a.c", bron}, {"b.c", bron}, {"dicht/c.c", bron}});
    ASSERT_EQ(0, chmod((map_ / "boom/b.c").c_str(), 0));
    ASSERT_EQ(0, chmod((map_ / "boom/dicht").c_str(), 0));
    EXPECT_EQ(
        goed("1 bestand geknipt, 1 blok\n"),
        draai({"-vX", "-r", "-w", "dicht/", "-w", "b.c", "boom", "-n", "uit"}, {.gewoneGebruiker = true}));
    ASSERT_EQ(0, chmod((map_ / "boom/dicht").c_str(), 0700));
    EXPECT_EQ((Boom{{"a.c", knipselX}}), leesBoom("uit"));
}

TEST_F(CliKeuze, LaatLinksNaarWatWegblijftOok) {
    hulp::maakBoom(map_ / "boom", {{"a.c", bron},
                                   {"geheim.c", bron},
                                   {"bouw/b.c", bron},
                                   {"goed.c", "-> a.c"},
                                   {"een.c", "-> geheim.c"},
                                   {"twee.c", "-> bouw/b.c"},
                                   {"weg.c", "-> geheim.c"}});
    const Woorden weg{"-vX", "-w", "geheim.c", "-w", "bouw/", "-w", "weg.?", "boom"};
    const auto met = [&weg](Woorden woorden) {
        woorden.insert(woorden.end(), weg.begin(), weg.end());
        return woorden;
    };
    const std::string fout =
        "knipselaar-cli: waarschuwing: boom/een.c: is een link naar boom/geheim.c, en dat gaat niet mee; "
        "overgeslagen\n"
        "knipselaar-cli: waarschuwing: boom/twee.c: is een link naar boom/bouw, en dat gaat niet mee; "
        "overgeslagen\n";
    EXPECT_EQ((Uitkomst{.status = 0, .uit = "1 bestand geknipt, 1 blok, 1 overgenomen\n", .fout = fout}),
              draai(met({"-r", "-n", "uit"})));
    EXPECT_EQ((Boom{{"a.c", knipselX}, {"goed.c", "-> a.c"}}), leesBoom("uit"));
    EXPECT_EQ((Uitkomst{.status = 0, .uit = "2 bestanden geknipt, 2 blokken\n", .fout = fout}),
              draai(met({"-n", "plat"})));
    EXPECT_EQ((Boom{{"a.c", knipselX}, {"goed.c", knipselX}}), leesBoom("plat"));
    EXPECT_EQ((Uitkomst{.status = 0, .uit = "1 bestand geknipt, 1 blok\n", .fout = fout}),
              draai(met({"-t", "-r"})));
    EXPECT_EQ((Boom{{"a.c", knipselX},
                    {"bouw", "/"},
                    {"bouw/b.c", bron},
                    {"een.c", "-> geheim.c"},
                    {"geheim.c", bron},
                    {"goed.c", "-> a.c"},
                    {"twee.c", "-> bouw/b.c"},
                    {"weg.c", "-> geheim.c"}}),
              leesBoom("boom"));
}
