// Waar een bestemming van afhangt, zoals make en ninja het lezen.

#include <chrono>

#include "KnipselaarCli/afhankelijk.h"
#include "KnipselaarCli/fout.h"
#include "tests/cli/shell.h"

namespace fs = std::filesystem;

using proef::bron;
using proef::foutBron;
using proef::goed;
using proef::knipselX;
using proef::storing;
using proef::vervang;
using proef::Woorden;

namespace {

class CliAfhankelijk : public proef::Shell {
  protected:
    CliAfhankelijk() { schrijf("a.c", bron); }

    /// Het hele pad van een bestand in map_.
    std::string heel(const std::string& naam) const { return (map_ / naam).string(); }

    /// Een naam zoals hij in een bouwbestand van ninja zelf staat.
    static std::string naarNinja(const std::string& naam) {
        std::string uit;
        for (const char teken : naam) {
            uit += teken == ' ' || teken == ':' || teken == '$' ? std::string("$") + teken
                                                                : std::string(1, teken);
        }
        return uit;
    }
};

}  // namespace

TEST_F(CliAfhankelijk, NoemtDeBronEnWatVoorOptiesGelezenIs) {
    schrijf("tekst.txt", "X\n");
    schrijf("markers.txt", "//**** Student Begin ****//\n//**** Student Eind ****//\n");
    schrijf("cursus.opties", "-z\n--markers-uit markers.txt\n");
    EXPECT_EQ(goed(), draai({"--opties", "cursus.opties", "--vervang-uit", "tekst.txt", "--vervang-c-uit",
                             "tekst.txt", "--afhankelijk", "a.d", "--uit", "uit.c", "a.c"}));
    EXPECT_EQ("uit.c: a.c " + heel("cursus.opties") + " " + heel("markers.txt") + " " + heel("tekst.txt") +
                  "\n" + heel("cursus.opties") + ":\n" + heel("markers.txt") + ":\n" + heel("tekst.txt") +
                  ":\n",
              lees("a.d"));
}

TEST_F(CliAfhankelijk, NoemtElkBestandDatEenOptieLeest) {
    schrijf("leeg.txt", "");
    schrijf("markers.txt", "//**** Student Begin ****//\n//**** Student Eind ****//\n");
    for (const char* optie : {"--vervang-uit", "--vervang-c-uit", "--vervang-vhdl-uit",
                              "--vervang-overig-uit", "--weglaten-uit", "--bewijs-toegestaan", "--opties"}) {
        EXPECT_EQ(0, draai({"-z", "--bewijs", "--bewijs-toegestaan", "markers.txt", optie, "leeg.txt",
                            "--afhankelijk", "a.d", "--uit", "uit.c", "a.c"})
                         .status);
        EXPECT_EQ("uit.c: a.c " + heel("leeg.txt") + " " + heel("markers.txt") + "\n" + heel("leeg.txt") +
                      ":\n" + heel("markers.txt") + ":\n",
                  lees("a.d"))
            << optie;
    }
}

TEST_F(CliAfhankelijk, NoemtElkBestandInEenDirectory) {
    schrijf("bron/a.c", bron);
    schrijf("bron/lab/b.h", bron);
    schrijf("bron/LEESMIJ", "tekst\n");
    fs::create_symlink("a.c", map_ / "bron/link.c");
    EXPECT_EQ(goed(), draai({"-z", "-q", "-r", "--naar", "student", "--afhankelijk", "student/.d", "bron"}));
    EXPECT_EQ("student/LEESMIJ: bron/LEESMIJ\nstudent/a.c: bron/a.c\nstudent/lab/b.h: bron/lab/b.h\n",
              lees("student/.d"));
    EXPECT_EQ(goed(),
              draai({"-z", "-q", "--naar", "plat", "--afhankelijk", "plat.d", "a.c", "bron/lab/b.h"}));
    EXPECT_EQ("plat/a.c: a.c\nplat/b.h: bron/lab/b.h\n", lees("plat.d"));
}

TEST_F(CliAfhankelijk, NoemtGeenPijpOfStandaardinvoer) {
    EXPECT_EQ(goed(),
              draai({"-z", "-T", "c", "--afhankelijk", "a.d", "--uit", "uit.c", "-"}, {.invoer = bron}));
    EXPECT_EQ("uit.c:\n", lees("a.d"));
    EXPECT_EQ(goed(), draai({"-z", "--vervang-uit", "-", "--afhankelijk", "a.d", "--uit", "uit.c", "a.c"},
                            {.invoer = "X\n"}));
    EXPECT_EQ("uit.c: a.c\n", lees("a.d"));
    schrijf("script", "knipselaar-cli -z --vervang-uit <(echo X) --afhankelijk a.d --uit uit.c a.c\n");
    EXPECT_EQ("afloop 0\n", voerScriptUit("bash script"));
    EXPECT_EQ("uit.c: a.c\n", lees("a.d"));
}

TEST_F(CliAfhankelijk, NoemtEenLinkZoalsZijHeet) {
    schrijf("echt/uit.c", "");
    fs::create_symlink("echt/uit.c", map_ / "link.c");
    EXPECT_EQ(goed(), draai({"-z", "-f", "--afhankelijk", "a.d", "--uit", "link.c", "a.c"}));
    EXPECT_EQ("link.c: a.c\n", lees("a.d"));
}

TEST_F(CliAfhankelijk, HoortBijEenBestemming) {
    const auto fout =
        storing("--afhankelijk hoort bij --uit of --naar; alleen dan hangt er een knipsel van een bron af");
    EXPECT_EQ(fout, draai({"-z", "--afhankelijk", "a.d", "a.c"}));
    EXPECT_EQ(fout, draai({"-z", "--afhankelijk", "a.d", "--uit", "-", "a.c"}));
    EXPECT_EQ(fout, draai({"-z", "--afhankelijk", "a.d", "--ter-plaatse", "a.c"}));
    for (const char* opdracht : {"--controle", "--droog", "--verschil"}) {
        EXPECT_EQ(fout, draai({"-z", "--afhankelijk", "a.d", "--uit", "uit.c", opdracht, "a.c"}));
    }
    EXPECT_EQ((hulp::Boom{{"a.c", bron}}), leesBoom("."));
}

TEST_F(CliAfhankelijk, SchrijftAlleenNaEenGoedeRun) {
    schrijf("b.c", foutBron);
    EXPECT_EQ(1, draai({"-z", "--afhankelijk", "a.d", "--naar", "student", "a.c", "b.c"}).status);
    EXPECT_FALSE(bestaat("a.d"));
    EXPECT_EQ(goed(), draai({"-z", "-q", "--afhankelijk", "a.d", "--naar", "student", "a.c"}));
    EXPECT_EQ("student/a.c: a.c\n", lees("a.d"));
    EXPECT_EQ(1, draai({"-z", "--afhankelijk", "a.d", "--naar", "student", "a.c", "b.c"}).status);
    EXPECT_EQ("student/a.c: a.c\n", lees("a.d")) << "van de vorige keer";
}

TEST_F(CliAfhankelijk, OverschrijftAlleenWatMag) {
    schrijf("a.d", "van iemand\n");
    EXPECT_EQ(storing("a.d: bestaat al en is geen eerdere uitvoer van zo'n run; geef --overschrijf om het te "
                      "vervangen"),
              draai({"-z", "--afhankelijk", "a.d", "--uit", "uit.c", "a.c"}));
    EXPECT_FALSE(bestaat("uit.c"));
    EXPECT_EQ(goed(), draai({"-z", "-f", "--afhankelijk", "a.d", "--uit", "uit.c", "a.c"}));
    EXPECT_EQ("uit.c: a.c\n", lees("a.d"));
    schrijf("tekst.txt", "X\n");
    EXPECT_EQ(goed(),
              draai({"-z", "--vervang-uit", "tekst.txt", "--afhankelijk", "a.d", "--uit", "uit.c", "a.c"}))
        << "een eerdere uitvoer";
    EXPECT_EQ("uit.c: a.c " + heel("tekst.txt") + "\n" + heel("tekst.txt") + ":\n", lees("a.d"));
    for (const char* naam : {"a.c", "./uit.c", "tekst.txt"}) {
        EXPECT_EQ(storing(std::string(naam) +
                          ": is zelf een bron of bestemming; noem met --afhankelijk een ander bestand"),
                  draai({"-z", "-f", "--vervang-uit", "tekst.txt", "--afhankelijk", naam, "--uit", "uit.c",
                         "a.c"}));
    }
    EXPECT_EQ(bron, lees("a.c"));
}

TEST_F(CliAfhankelijk, ZegtVoorafWatErNietKan) {
    EXPECT_EQ(storing("weg/a.d: de directory weg bestaat niet; maak haar eerst"),
              draai({"-z", "--afhankelijk", "weg/a.d", "--uit", "uit.c", "a.c"}));
    EXPECT_EQ(storing("--afhankelijk: '-' kan hier niet; noem een bestand"),
              draai({"-z", "--afhankelijk", "-", "--uit", "uit.c", "a.c"}));
    EXPECT_EQ(storing("--afhankelijk: de naam is leeg; geef een naam"),
              draai({"-z", "--afhankelijk", "", "--uit", "uit.c", "a.c"}));
    schrijf("a=b.c", bron);
    EXPECT_EQ(
        storing("a=b.c: deze naam lezen make en ninja verkeerd; kies een andere, of laat --afhankelijk weg"),
        draai({"-z", "--afhankelijk", "a.d", "--uit", "uit.c", "a=b.c"}));
    EXPECT_FALSE(bestaat("uit.c"));
}

TEST(CliDeel, SchrijftNamenVoorMakeEnNinja) {
    const std::vector<std::pair<std::string, std::string>> namen{
        {"a.c", "a.c"},       {"map/met spatie.c", "map/met\\ spatie.c"},
        {"a#b", "a\\#b"},     {"kosten$", "kosten$$"},
        {"a\\b", "a\\b"},     {"a\\ b", "a\\\\\\ b"},
        {"a:b", "a\\:b"},     {"a\\\\  b", "a\\\\\\\\\\ \\ b"},
        {"café.c", "café.c"}, {"(a)[1]+{x}~'&\"", "(a)[1]+{x}~'&\""},
    };
    for (const auto& [naam, geschreven] : namen) {
        EXPECT_EQ(geschreven, cli::schrijfNaam(naam));
    }
    for (const char* naam :
         {"a\nb", "a\tb", "a\x7F", "a%b", "a*b", "a;b", "a=b", "a?b", "a|b", "a\\", "a\\#b", "a\\:b"}) {
        EXPECT_THROW(cli::schrijfNaam(naam), cli::Fout) << naam;
    }
}

TEST_F(CliAfhankelijk, MakeEnNinjaLezenElkeNaamHetzelfde) {
    for (const std::string naam :
         {"met spatie", "a#b", "kosten$5", R"(a\b)", R"(a\ b)", "a:b", "(a)[1]+{x}~", "café", R"($ #\x)"}) {
        const std::string uit = "uit " + naam + ".c";
        const std::string in = "in " + naam + ".c";
        const std::string tekst = "tekst " + naam + ".txt";
        const auto zetTijd = [this](const std::string& pad, int uren) {
            fs::last_write_time(map_ / pad, fs::file_time_type::clock::now() + std::chrono::hours(uren));
        };
        schrijf(in, bron);
        schrijf(tekst, "X\n");
        EXPECT_EQ(goed(),
                  draai({"-z", "-f", "--vervang-uit", tekst, "--afhankelijk", "a.d", "--uit", uit, in}));
        schrijf("Makefile", "%.c:\n\t@echo gemaakt\ninclude a.d\n");
        schrijf("build.ninja",
                "rule knip\n  command = sh ./maak\n  depfile = a.d\nbuild " + naarNinja(uit) + ": knip\n");
        schrijf("maak", "echo gemaakt; touch '" + uit + "'\n");
        const auto maakt = [this](const char* bouwer) {
            return voerScriptUit(bouwer).find("gemaakt\n") != std::string::npos;
        };
        maakt("ninja");
        for (const char* bouwer : {"make -r", "ninja"}) {
            zetTijd(in, -1);
            zetTijd(tekst, -1);
            EXPECT_FALSE(maakt(bouwer)) << naam << " " << bouwer;
            zetTijd(in, 1);
            EXPECT_TRUE(maakt(bouwer)) << naam << " " << bouwer;
            zetTijd(in, -1);
            zetTijd(tekst, 1);
            EXPECT_TRUE(maakt(bouwer)) << naam << " " << bouwer;
        }
        fs::remove(map_ / tekst);
        EXPECT_TRUE(maakt("make -r")) << "een tekst die er niet meer is houdt make niet op";
    }
}

TEST_F(CliAfhankelijk, DeMakefileMetEenTekstKniptWatVeranderdIs) {
    schrijf("Makefile", leesVoorbeeld("Makefile-met-tekst"));
    schrijf("b.h", bron);
    schrijf("tekst.txt", "X\n");
    const auto gemaakt = [this] {
        const std::string verslag = voerScriptUit("make student");
        EXPECT_TRUE(verslag.ends_with("afloop 0\n")) << verslag;
        Woorden uit;
        for (const char* naam : {"a.c", "b.h"}) {
            if (verslag.find(std::string("--uit student/") + naam) != std::string::npos) {
                uit.emplace_back(naam);
            }
        }
        return uit;
    };
    const auto maakOud = [this](const std::string& naam, int uren) {
        fs::last_write_time(map_ / naam, fs::file_time_type::clock::now() - std::chrono::hours(uren));
    };
    EXPECT_EQ((Woorden{"a.c", "b.h"}), gemaakt());
    EXPECT_EQ((hulp::Boom{{"a.c", knipselX}, {"b.h", knipselX}}), leesBoom("student"));
    EXPECT_EQ(Woorden{}, gemaakt());
    maakOud("student/b.h", 1);
    maakOud("a.c", 2);
    maakOud("tekst.txt", 2);
    EXPECT_EQ(Woorden{"b.h"}, gemaakt());
    schrijf("tekst.txt", "Y\n");
    maakOud("student/a.c", 1);
    maakOud("student/b.h", 1);
    EXPECT_EQ((Woorden{"a.c", "b.h"}), gemaakt());
    EXPECT_EQ("voor\nY\nna\n", lees("student/b.h"));
    EXPECT_EQ(Woorden{}, gemaakt());
    fs::rename(map_ / "tekst.txt", map_ / "anders.txt");
    schrijf("Makefile", vervang(lees("Makefile"), "tekst.txt", "anders.txt"));
    EXPECT_EQ((Woorden{"a.c", "b.h"}), gemaakt()) << "een tekst die anders heet houdt make niet op";
}
