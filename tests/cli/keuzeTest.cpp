// Welke bestanden uit een directory aan de beurt komen.

#include "tests/cli/proef.h"

namespace fs = std::filesystem;

using proef::bron;
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

using Namen = std::vector<std::string>;

}  // namespace

TEST_F(CliKeuze, KentDeKeuzesVanHetVenster) {
    const Namen talen{"a.c", "b.cpp", "c.h", "d.vhd", "e.vhdl"};
    EXPECT_EQ(talen, kies({}));
    EXPECT_EQ(talen, kies({"--keuze", "talen"}));
    EXPECT_EQ((Namen{"d.vhd", "e.vhdl"}), kies({"-k", "vhdl"}));
    EXPECT_EQ((Namen{"G.C", "Makefile", "a.c", "b.cpp", "c.h", "d.vhd", "e.vhdl", "f.txt"}),
              kies({"--keuze=alles"}));
}

TEST_F(CliKeuze, KentMaskers) {
    EXPECT_EQ((Namen{"a.c"}), kies({"--masker", "*.c"}));
    EXPECT_EQ((Namen{"Makefile", "a.c"}), kies({"-m", "*.c", "-m", "Make*"}));
    EXPECT_EQ((Namen{"a.c", "sub/h.c"}), kies({"-r", "-m", "*.c"}));
    EXPECT_EQ((Namen{"sub/h.c"}), kies({"-r", "-m", "sub/*.c"}));
    EXPECT_EQ((Namen{"a.c", "c.h"}), kies({"-m", "?.[ch]"}));
    schrijf("bron/sub/diep/m.c", bron);
    EXPECT_EQ((Namen{"sub/h.c"}), kies({"-r", "-m", "sub/*.c"}))
        << "een joker past niet op een schuine streep";
}

TEST_F(CliKeuze, LaatVerborgenEnVersiebeheerWeg) {
    const Namen talen{"a.c", "b.cpp", "c.h", "d.vhd", "e.vhdl", "sub/h.c"};
    EXPECT_EQ(talen, kies({"-r"}));
    EXPECT_EQ((Namen{".geheim.c", ".verborgen/i.c", "a.c", "b.cpp", "c.h", "d.vhd", "e.vhdl", "sub/h.c"}),
              kies({"-r", "--verborgen"}));
    EXPECT_EQ(
        (Namen{".git/j.c", "CVS/k.c", "a.c", "b.cpp", "c.h", "d.vhd", "e.vhdl", "sub/.svn/l.c", "sub/h.c"}),
        kies({"-r", "--versiebeheer"}));
    EXPECT_EQ((Namen{".geheim.c", ".git/j.c", ".verborgen/i.c", "CVS/k.c", "a.c", "b.cpp", "c.h", "d.vhd",
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
