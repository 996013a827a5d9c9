// --bewijs: wat er na een run van de oplossing nog in de bestemming staat, wordt gemeld.

#include "tests/cli/proef.h"

namespace fs = std::filesystem;

using proef::bron;
using proef::goed;
using proef::Uitkomst;

namespace {

class CliBewijs : public proef::Cli {};

const std::string opBron =
    "int gewoon = 1;\n//**** Student Begin ****//\n\tint geheim = f(42);\nint gewoon = 1;\nkort;\n"
    "//**** Student Eind ****//\n";

}  // namespace

TEST_F(CliBewijs, VindtNietsInEenSchoneBoom) {
    schrijf("bron/a.c", opBron);
    schrijf("bron/Makefile", "all:\n\tcc a.c\nkort;\n");
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok, 1 overgenomen, bewezen schoon\n"),
              draai({"-r", "-p", "bron", "-n", "uit"}));
}

TEST_F(CliBewijs, MeldtWeggelatenRegelsEnMarkersInElkBestand) {
    schrijf("bron/a.c", opBron);
    schrijf("bron/LEESMIJ", "Het antwoord:\n    int geheim = f(42);  \nniet //**** Student Begin ****//\n");
    schrijf("bron/oud.txt", "int geheim = f(42);\r\nint gewoon = 1;\r\n");
    const Uitkomst verwacht{
        .status = 1,
        .uit = "1 bestand geknipt, 1 blok, 2 overgenomen, 3 regels te veel in de bestemming\n",
        .fout =
            "uit/LEESMIJ:2: fout: hier staat de weggelaten regel van bron/a.c:3\n"
            "uit/LEESMIJ:3: fout: er staat nog een markerregel\n"
            "uit/oud.txt:1: fout: hier staat de weggelaten regel van bron/a.c:3\n"};
    EXPECT_EQ(verwacht, draai({"-r", "--bewijs", "bron", "-n", "uit"}));
}

TEST_F(CliBewijs, LeestOokWatErAlStondEnWatVerborgenIs) {
    schrijf("bron/a.c", opBron);
    schrijf("uit/.verborgen/oud.c", "int geheim = f(42);\n");
    schrijf("uit/.git/objecten", "int geheim = f(42);\n");
    EXPECT_EQ("uit/.verborgen/oud.c:1: fout: hier staat de weggelaten regel van bron/a.c:3\n",
              draai({"-r", "-p", "bron", "-n", "uit"}).fout);
}

TEST_F(CliBewijs, LeestAndereCoderingen) {
    schrijf("bron/a.c", "//**** Student Begin ****//\nint één = 11;\n//**** Student Eind ****//\n");
    schrijf("bron/latijn", "int \xE9\xE9n = 11;\n");
    EXPECT_EQ("uit/latijn:1: fout: hier staat de weggelaten regel van bron/a.c:2\n",
              draai({"-r", "-p", "bron", "-n", "uit"}).fout);
}

TEST_F(CliBewijs, LetAlleenOpRegelsDieLangGenoegZijn) {
    schrijf("bron/a.c", "//**** Student Begin ****//\n  ééntweedri\n//**** Student Eind ****//\n");
    schrijf("bron/LEESMIJ", "ééntweedri\n");
    EXPECT_EQ(0, draai({"-r", "-p", "bron", "-n", "uit"}).status) << "precies tien tekens";
    EXPECT_EQ(0, draai({"-r", "-p", "--bewijs-lengte", "10", "bron", "-n", "tien"}).status);
    EXPECT_EQ(1, draai({"-r", "-p", "-L", "9", "bron", "-n", "negen"}).status);
}

TEST_F(CliBewijs, LaatDeVervangtekstToe) {
    schrijf("a.c", "//**** Student Begin ****//\nhier komt je eigen code\n//**** Student Eind ****//\n");
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok, bewezen schoon\n"),
              draai({"-p", "-v", "  hier komt je eigen code", "-t", "a.c"}));
}

TEST_F(CliBewijs, LeestEenBestandNa) {
    schrijf("a.c", opBron);
    EXPECT_EQ(goed(), draai({"-p", "a.c", "-u", "b.c"}));
    EXPECT_EQ((Uitkomst{.status = 1, .uit = {}, .fout = "c.c:2: fout: er staat nog een markerregel\n"}),
              draai({"-p", "-v", "//**** Student Begin ****//", "a.c", "-u", "c.c"}));
}

TEST_F(CliBewijs, LeestTerPlaatseDeHeleBoomNa) {
    schrijf("boom/a.c", opBron);
    schrijf("boom/NOTITIES", "int geheim = f(42);\n");
    schrijf("los.c",
            "//**** Student Begin ****//\nint nog geheimer;\n//**** Student Eind ****//\n//**** Student\n");
    EXPECT_EQ("boom/NOTITIES:1: fout: hier staat de weggelaten regel van boom/a.c:3\n",
              draai({"-r", "-p", "-t", "boom/", "boom/a.c", "los.c"}).fout);
}

TEST_F(CliBewijs, LeestEenBestandMetEenFoutInDeBestemmingOokNa) {
    schrijf("bron/a.c", opBron);
    ASSERT_EQ(0, draai({"-r", "bron", "-n", "uit"}).status);
    schrijf("uit/b.c", bron);
    EXPECT_EQ((Uitkomst{.status = 1,
                        .uit = "1 bestand in orde, 1 blok, 2 regels te veel in de bestemming\n",
                        .fout = "uit/b.c:2: fout: er staat nog een markerregel\n"
                                "uit/b.c:4: fout: er staat nog een markerregel\n"}),
              draai({"--controle", "-r", "-p", "bron", "-n", "uit"}))
        << "zonder te knippen";
}

TEST_F(CliBewijs, MeldtWatNietNaTeLezenIs) {
    schrijf("bron/a.c", opBron);
    schrijf("uit/dicht", "x");
    fs::permissions(map_ / "uit", fs::perms::all);
    fs::permissions(map_ / "uit/dicht", fs::perms::none);
    const Uitkomst uitkomst = draai({"-r", "-p", "bron", "-n", "uit"}, {.gewoneGebruiker = true});
    EXPECT_EQ(2, uitkomst.status);
    EXPECT_EQ(
        "knipselaar-cli: fout: uit/dicht: kan niet gelezen worden: geen toegang; geef rechten of kies een "
        "andere "
        "plaats\n",
        uitkomst.fout);
}
