// --opties: een cursus die zichzelf één keer beschrijft.

#include "tests/cli/proef.h"

using hulp::Boom;
using proef::bron;
using proef::goed;
using proef::knipselX;
using proef::storing;
using proef::Uitkomst;

namespace {

class CliOptiebestand : public proef::Cli {};

}  // namespace

TEST_F(CliOptiebestand, TeltAlsofHetOpDeOpdrachtregelStaat) {
    schrijf("les 1/a.c", bron);
    schrijf("cursus.opties",
            "\xEF\xBB\xBF# een cursus\r\n"
            "\r\n"
            "  --recursief\t\r\n"
            "-v X\r\n"
            "--naar=de uit\r\n"
            "# een bron met een spatie\r\n"
            "les 1\r\n");
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok\n"), draai({"--opties", "cursus.opties"}));
    EXPECT_EQ((Boom{{"a.c", knipselX}}), leesBoom("de uit"));
}

TEST_F(CliOptiebestand, NeemtEenWaardeTotHetEindeVanDeRegel) {
    schrijf("a.c", "# \"begin\"  hier\ngeheim\n-- eind=1\nna\n");
    schrijf("opties", "--begin   # \"begin\"  hier\n-e -- eind=1\n--vervang=a b = \"c\"\n--letterlijk\n");
    EXPECT_EQ(goed("a b = \"c\"\nna\n"), draai({"-o", "opties", "a.c"}));
}

TEST_F(CliOptiebestand, GeldtOpZijnPlaats) {
    schrijf("a.c", bron);
    schrijf("een", "-v 1\n");
    schrijf("twee", "-v 2\n");
    EXPECT_EQ(goed("voor\n2\nna\n"), draai({"-o", "een", "--opties=twee", "a.c"}));
    EXPECT_EQ(goed("voor\n3\nna\n"), draai({"-o", "een", "-v", "3", "a.c"}));
    EXPECT_EQ(goed("voor\n1\nna\n"), draai({"-v", "3", "-o", "een", "a.c"}));
}

TEST_F(CliOptiebestand, KomtVanDeStandaardinvoerEnNietVanzelf) {
    schrijf("a.c", bron);
    schrijf("knipselaar.opties", "-v X\n");
    schrijf(".knipselaar", "-v X\n");
    EXPECT_EQ(goed(proef::knipsel), draai({"a.c"}));
    EXPECT_EQ(goed(knipselX), draai({"-o", "-", "a.c"}, {.invoer = "-v X\n"}));
    EXPECT_EQ(storing("'-' staat er 2 keer; de standaardinvoer is maar één keer te lezen"),
              draai({"-o", "-", "-"}, {.invoer = "-v X\n"}));
}

TEST_F(CliOptiebestand, VraagtOokOmJsonVanEenRunDieNietKan) {
    schrijf("opties", "--json\n--controle\n");
    const Uitkomst uitkomst = draai({"-o", "opties", "weg.c"});
    EXPECT_EQ(2, uitkomst.status);
    EXPECT_NE(std::string::npos,
              uitkomst.uit.find("\"opmerkingen\": [\n    \"weg.c: kan niet gelezen worden"))
        << uitkomst.uit;
}

TEST_F(CliOptiebestand, ZegtWaarHetMisgaat) {
    schrijf("a.c", bron);
    const auto lees = [this](const std::string& inhoud) {
        schrijf("opties", inhoud);
        return draai({"-o", "opties", "a.c"});
    };
    EXPECT_EQ(storing("opties:2: onbekende optie '--weg'; zie knipselaar-cli --help"), lees("\n--weg\n"));
    EXPECT_EQ(storing("opties:1: optie 'vervang' heeft een waarde nodig; zie knipselaar-cli --help"),
              lees("--vervang\n"));
    EXPECT_EQ(storing("opties:1: '--streng b.c' is meer dan één optie; zet op elke regel één"),
              lees("--streng b.c\n"));
    EXPECT_EQ(storing("opties:3: --taal: 'x' is geen keuze; kies c, vhdl of overig"),
              lees("# taal\n\n--taal x\n"));
    EXPECT_EQ(
        storing("opties:1: --opties staat in een optiebestand; noem het andere bestand op de opdrachtregel"),
        lees("--opties anders\n"));
    EXPECT_EQ(storing("weg: kan niet gelezen worden: bestaat niet"), draai({"-o", "weg", "a.c"}));
    EXPECT_EQ(storing("--controle, --droog en --verschil gaan niet samen; kies er één").status,
              lees("--droog\n--verschil\n").status);
}
