// De markers en de vervangteksten: uit opties, uit bestanden, uit de instellingen van het venster en
// standaard.

#include "tests/cli/proef.h"
#include "tests/hulp/opdracht.h"

namespace fs = std::filesystem;

using proef::bron;
using proef::goed;
using proef::knipsel;
using proef::knipselX;
using proef::storing;
using proef::Uitkomst;

namespace {

const std::string eigenBron = "voor\n// BEGIN\ngeheim\n// EIND\nna\n";

class CliTeksten : public proef::Cli {
  protected:
    void schrijfInstellingen(const std::string& inhoud) const {
        hulp::schrijfBestand(thuis_ / ".Knipselaar", inhoud);
    }
};

}  // namespace

TEST_F(CliTeksten, NeemtMarkersEnVervangtekstUitOpties) {
    const proef::Start start{.invoer = eigenBron};
    EXPECT_EQ(goed(knipselX), draai({"--begin", "BEGIN", "--eind", "EIND", "--vervang", "X", "-"}, start));
    EXPECT_EQ(goed(knipselX), draai({"-b", "BEGIN", "-e", "EIND", "-v", "X", "-"}, start));
    EXPECT_EQ(goed(knipselX), draai({"--begin=BEGIN", "--eind=EIND", "--vervang=X", "-"}, start));
    EXPECT_EQ(goed("voor\nna\n"), draai({"-b", "BEGIN", "-e", "EIND", "--vervang", "", "-"}, start));
}

TEST_F(CliTeksten, NeemtVervangtekstenUitBestanden) {
    schrijf("tekst", "een\r\ntwee\r\n");
    schrijf("bom", "\xEF\xBB\xBFX");
    EXPECT_EQ(goed("voor\neen\ntwee\nna\n"), draai({"--vervang-uit", "tekst", "-"}, {.invoer = bron}));
    EXPECT_EQ(goed(knipselX), draai({"--vervang-uit", "bom", "-"}, {.invoer = bron}));
}

TEST_F(CliTeksten, NeemtMarkersUitEenBestand) {
    schrijf("markers", "BEGIN\nEIND\n\n[[\r\n]]");
    EXPECT_EQ(goed("voor\nX\nna\nX\n"),
              draai({"--markers-uit", "markers", "-vX", "-"}, {.invoer = eigenBron + "[[\na\n]]\n"}));
    schrijf("oneven", "BEGIN\nEIND\nBEGIN\n");
    EXPECT_EQ(
        storing("oneven: heeft 3 regels met een marker; zet om de regel een beginmarker en een eindmarker"),
        draai({"--markers-uit", "oneven", "-"}));
    EXPECT_EQ(2, draai({"--markers-uit", "is-er-niet", "-"}).status);
}

TEST_F(CliTeksten, HeeftPerTaalEenVervangtekst) {
    const proef::Woorden opties{"--vervang-c", "C", "--vervang-vhdl", "V", "--vervang-overig", "O"};
    for (const auto& [naam, tekst] : std::map<std::string, std::string>{{"a.c", "C"},
                                                                        {"a.cpp", "C"},
                                                                        {"a.h", "C"},
                                                                        {"a.vhd", "V"},
                                                                        {"a.vhdl", "V"},
                                                                        {"a.py", "O"},
                                                                        {"Makefile", "O"}}) {
        schrijf(naam, bron);
        proef::Woorden woorden = opties;
        woorden.push_back(naam);
        EXPECT_EQ(goed("voor\n" + tekst + "\nna\n"), draai(woorden)) << naam;
        schrijf("tekst", tekst);
        EXPECT_EQ(goed("voor\n" + tekst + "\nna\n"), draai({"--vervang-c-uit", "tekst", "--vervang-vhdl-uit",
                                                            "tekst", "--vervang-overig-uit", "tekst", naam}));
        EXPECT_EQ(goed("voor\nA\nna\n"), draai({"--vervang", "A", naam}));
    }
    EXPECT_EQ(goed("voor\nV\nna\n"), draai({"--vervang", "A", "--vervang-vhdl", "V", "a.vhd"}));
    EXPECT_EQ(goed("voor\nV\nna\n"), draai({"--vervang-vhdl", "V", "--taal", "vhdl", "-"}, {.invoer = bron}));
    EXPECT_EQ(goed("voor\nO\nna\n"), draai({"--vervang-overig", "O", "-"}, {.invoer = bron}));
}

TEST_F(CliTeksten, HeeftVoorElkeTaalEenStandaard) {
    EXPECT_EQ(goed(knipsel), draai({"-T", "c", "-"}, {.invoer = bron}));
    EXPECT_EQ(goed("voor\nerror \"Dit stuk software ontbreekt.\";\n-- Beste student,\n--     Dit stuk "
                   "ontbreekt. Werk "
                   "dit uit om de opdracht uit te voeren.\nna\n"),
              draai({"-T", "vhdl", "-"}, {.invoer = bron}));
    EXPECT_EQ(
        goed(
            "voor\nBeste student,\n    Dit stuk ontbreekt. Werk dit uit om de opdracht uit te voeren.\nna\n"),
        draai({"-T", "overig", "-"}, {.invoer = bron}));
}

/// Elke plaats in een VHDL-bestand waar een blok kan liggen.
TEST_F(CliTeksten, GhdlWijstDeStandaardVoorVhdlOveralAf) {
    const std::string blok = "--//**** Student Begin ****//\n--\n--//**** Student Eind ****//\n";
    const std::vector<std::string> plaatsen{
        "@entity e is end;\narchitecture a of e is begin end;\n",
        "entity e is\n@end;\narchitecture a of e is begin end;\n",
        "entity e is port (x : in bit\n@); end;\narchitecture a of e is begin end;\n",
        "entity e is end;\narchitecture a of e is\n@begin end;\n",
        "entity e is end;\narchitecture a of e is begin\n@end;\n",
        "entity e is end;\narchitecture a of e is signal s : bit; begin s <= '0'\n@; end;\n",
        "entity e is end;\narchitecture a of e is begin process begin\n@wait; end process; end;\n",
        "entity e is end;\narchitecture a of e is function f return string is begin return\n@; end; begin "
        "end;\n",
        "entity e is end;\narchitecture a of e is begin end;\n@",
    };
    for (const std::string& plaats : plaatsen) {
        const std::size_t hier = plaats.find('@');
        schrijf("bron.vhd", plaats.substr(0, hier) + "\n" + blok + plaats.substr(hier + 1));
        ASSERT_EQ(0, draai({"-f", "bron.vhd", "-u", "uit.vhd"}).status);
        for (const std::string norm : {"93", "08"}) {
            const std::string verslag = hulp::voerUit({"sh", "-c",
                                                       "cd '" + map_.string() + "' && ghdl -s --std=" + norm +
                                                           " uit.vhd 2>&1; echo \"afloop $?\""});
            EXPECT_NE(std::string::npos, verslag.find("Dit stuk software ontbreekt.")) << plaats << verslag;
            EXPECT_NE(std::string::npos, verslag.find("afloop 1")) << plaats << verslag;
        }
    }
}

TEST_F(CliTeksten, DeVoorbeeldenInVhdlWordenAfgewezenMetDeTekst) {
    ASSERT_EQ(0, draai({VOORBEELDEN "/teller.vhdl", "-u", "teller.vhdl"}).status);
    const std::string verslag =
        hulp::voerUit({"sh", "-c", "cd '" + map_.string() + "' && ghdl -s --std=08 teller.vhdl 2>&1; true"});
    EXPECT_NE(std::string::npos, verslag.find("error \"Dit stuk software ontbreekt.\";")) << verslag;
}

TEST_F(CliTeksten, LeestEenTekstUitEenPijpEnMetElkRegeleinde) {
    const proef::Start shell{.invoer = bron, .programma = "/bin/bash"};
    EXPECT_EQ(goed("voor\nX\nY\nna\n"),
              draai({"-c", "exec \"$0\" --vervang-uit <(printf 'X\\r\\nY') -", KNIPSELAAR_CLI}, shell));
    schrijf("mac", "X\rY\r");
    EXPECT_EQ(goed("voor\nX\nY\nna\n"), draai({"--vervang-uit", "mac", "-"}, {.invoer = bron}));
    EXPECT_EQ(goed("voor\nX\nY\nna\n"), draai({"--vervang", "X\r\nY\r", "-"}, {.invoer = bron}));
}

TEST_F(CliTeksten, LeestDeInstellingenVanHetVenster) {
    schrijfInstellingen(
        "[Configuratie]\nBeginMarker=BEGIN\nEindMarker=EIND\nVervangtekst=$HOME \\\"é\\\"\\nX\n");
    for (const std::string naam : {"a.c", "a.vhd", "a.txt"}) {
        schrijf(naam, eigenBron);
        EXPECT_EQ(goed("voor\n$HOME \"é\"\nX\nna\n"), draai({naam}))
            << "een eigen tekst geldt voor elke taal";
    }
    EXPECT_EQ(goed(knipselX), draai({"-vX", "a.c"}));
    EXPECT_EQ(goed("voor\n$HOME \"é\"\nX\nna\n"), draai({"-b", "BEGIN", "-e", "EIND", "a.c"}));
    EXPECT_EQ(proef::zonderBlok(eigenBron), draai({"--zonder-instellingen", "a.c"}));
}

TEST_F(CliTeksten, DeStandaardtekstUitDeInstellingenGeldtNietVoorVhdl) {
    schrijfInstellingen(
        "[Configuratie]\nVervangtekst=#error \\\"Dit stuk software ontbreekt.\\\"\\n/* Beste student,\\n    "
        "Dit stuk "
        "ontbreekt. Werk dit uit om de opdracht uit te voeren.  */\\n\n");
    EXPECT_EQ(goed(knipsel), draai({"-T", "c", "-"}, {.invoer = bron}));
    EXPECT_EQ(0U, draai({"-T", "vhdl", "-"}, {.invoer = bron}).uit.find("voor\nerror \""));
}

TEST_F(CliTeksten, SchrijftEnMaaktGeenInstellingen) {
    EXPECT_EQ(0, draai({"-"}, {.invoer = bron}).status);
    EXPECT_EQ((hulp::Boom{}), hulp::leesBoom(thuis_));
    const std::string inhoud = "[Configuratie]\nBeginMarker=BEGIN\n";
    schrijfInstellingen(inhoud);
    fs::permissions(thuis_, fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_EQ(0, draai({"-"}).status);
    fs::permissions(thuis_, fs::perms::all);
    EXPECT_EQ((hulp::Boom{{".Knipselaar", inhoud}}), hulp::leesBoom(thuis_));
}

TEST_F(CliTeksten, WerktZonderThuisdirectory) {
    EXPECT_EQ(goed(knipselX), draai({"-vX", "-"}, {.invoer = bron, .omgeving = {{"HOME", "/bestaat/niet"}}}));
}

TEST_F(CliTeksten, NeemtMeerMarkerparenTegelijk) {
    const std::string tekst = "A{\neen\nA}\nx\nB{\ntwee\nB}\nA{\nB}\ndrie\nA}\n";
    const proef::Woorden woorden{"-b", "A{", "-e", "A}", "-b", "B{", "-e", "B}", "-v", "X", "-"};
    EXPECT_EQ(
        (Uitkomst{
            .status = 1, .uit = {}, .fout = "standaardinvoer:9: fout: eindmarker zonder beginmarker\n"}),
        draai(woorden, {.invoer = tekst}));
    EXPECT_EQ(goed("X\nx\nX\n"), draai(woorden, {.invoer = tekst.substr(0, tekst.find("A{\nB}"))}));
}

TEST_F(CliTeksten, NeemtJokersLetterlijkAlsDatMoet) {
    const std::string tekst = "/* begin? */\na\n/* eind? */\n/ begin! /\n";
    EXPECT_EQ(goed("X\n/ begin! /\n"),
              draai({"-l", "-b", "/* begin? */", "-e", "/* eind? */", "-v", "X", "-"}, {.invoer = tekst}));
    EXPECT_EQ(1,
              draai({"-b", "/* begin? */", "-e", "/* eind? */", "-v", "X", "-"}, {.invoer = tekst}).status);
    EXPECT_EQ(goed("a\nX\n"),
              draai({"-l", "-b", "*", "-e", "?", "-v", "X", "-"}, {.invoer = "a\n*\nb\n?\n"}));
}

TEST_F(CliTeksten, WeigertEenMarkerDieOveralPast) {
    for (const std::string marker : {"", "*", "*?"}) {
        EXPECT_EQ(
            storing("de beginmarker '" + marker + "' past op elke regel; geef een marker met gewone tekens"),
            draai({"-b", marker, "-e", "E", "-"}));
    }
    EXPECT_EQ(storing("de eindmarker '' past op elke regel; geef een marker met gewone tekens"),
              draai({"-l", "-b", "*", "-e", "", "-"}));
    schrijfInstellingen("[Configuratie]\nBeginMarker=\n");
    EXPECT_EQ(2, draai({"-"}).status);
}

TEST_F(CliTeksten, WeigertMarkersEnTekstenDieNietKunnen) {
    EXPECT_EQ(storing("er zijn 2 beginmarkers en 1 eindmarkers; geef bij elke --begin een --eind"),
              draai({"-b", "A", "-b", "B", "-e", "C", "-"}));
    EXPECT_EQ(storing("er zijn 1 beginmarkers en 0 eindmarkers; geef bij elke --begin een --eind"),
              draai({"-b", "A", "-"}));
    EXPECT_EQ(storing("de beginmarker heeft een regeleinde; een marker staat op één regel"),
              draai({"-b", "A\nB", "-e", "C", "-"}));
    EXPECT_EQ(storing("de eindmarker is geen UTF-8; zet hem om"), draai({"-b", "A", "-e", "\xE9", "-"}));
    EXPECT_EQ(storing("--vervang: de vervangtekst is geen UTF-8; zet hem om"), draai({"-v", "\xE9", "-"}));
    schrijf("latijn", "\xE9");
    EXPECT_EQ(storing("latijn: de vervangtekst is geen UTF-8; zet hem om"),
              draai({"--vervang-c-uit", "latijn", "-"}));
}
