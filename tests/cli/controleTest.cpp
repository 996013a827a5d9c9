// De controle van de markers, op vaste gevallen: elke directory onder controles/ heeft een bestand "in" en de
// meldingen en afloop die erbij horen.

#include <algorithm>

#include "tests/cli/proef.h"

namespace fs = std::filesystem;

using hulp::Boom;
using proef::bron;
using proef::goed;
using proef::Uitkomst;

namespace {

class CliControle : public proef::Cli {};
class CliControles : public proef::Cli, public testing::WithParamInterface<std::string> {};

std::string toon(const Uitkomst& uitkomst) {
    return uitkomst.fout + "afloop " + std::to_string(uitkomst.status) + "\n";
}

}  // namespace

TEST_P(CliControles, MeldtWatErAanDeMarkersSchort) {
    const fs::path geval = fs::path(CONTROLES) / GetParam();
    const std::string inhoud = hulp::leesBestand(geval / "in");
    const std::string verwacht = hulp::leesBestand(geval / "verwacht");
    schrijf("in", inhoud);
    EXPECT_EQ(verwacht, toon(draai({"--controle", "in"})));
    const bool inOrde = verwacht.ends_with("afloop 0\n");
    for (const char* manier : {"--getrouw", "--als-venster"}) {
        EXPECT_EQ(verwacht, toon(draai({manier, "in", "-u", "uit"})));
        EXPECT_EQ(inOrde, bestaat("uit")) << "alleen een bestand zonder fout wordt geschreven";
        EXPECT_EQ(verwacht, toon(draai({manier, "-f", "-t", "in"})));
        EXPECT_TRUE(inOrde || lees("in") == inhoud);
        fs::remove(map_ / "uit");
        schrijf("in", inhoud);
    }
}

INSTANTIATE_TEST_SUITE_P(Controle, CliControles, testing::ValuesIn(hulp::somOp(CONTROLES)),
                         [](const auto& info) {
                             std::string naam = info.param;
                             std::replace(naam.begin(), naam.end(), '-', '_');
                             return naam;
                         });

TEST_F(CliControle, SchrijftNiets) {
    schrijf("boom/a.c", bron);
    schrijf("boom/b.c", "//**** Student Eind ****//\n");
    EXPECT_EQ((Uitkomst{.status = 1,
                        .uit = "1 bestand in orde, 1 blok, 1 met fouten\n",
                        .fout = "boom/b.c:1: fout: eindmarker zonder beginmarker\n"}),
              draai({"--controle", "-r", "boom"}));
    EXPECT_EQ(1, draai({"--controle", "-r", "boom", "-n", "uit"}).status);
    EXPECT_EQ(1, draai({"--controle", "-r", "-t", "boom"}).status);
    EXPECT_EQ((Boom{{"boom", "/"}, {"boom/a.c", bron}, {"boom/b.c", "//**** Student Eind ****//\n"}}),
              leesBoom(""));
}

TEST_F(CliControle, MaaktStrengVanEenWaarschuwingEenFout) {
    const std::string leeg = "//**** Student Begin ****//\n//**** Student Eind ****//\n";
    schrijf("a.c", leeg);
    EXPECT_EQ(
        (Uitkomst{
            .status = 0, .uit = {}, .fout = "a.c:1: waarschuwing: leeg blok; er komt geen vervangtekst\n"}),
        draai({"a.c"}));
    EXPECT_EQ(
        (Uitkomst{.status = 1, .uit = {}, .fout = "a.c:1: fout: leeg blok; er komt geen vervangtekst\n"}),
        draai({"--streng", "a.c"}));
    EXPECT_EQ(1, draai({"-s", "-t", "a.c"}).status);
    EXPECT_EQ(leeg, lees("a.c"));
}

TEST_F(CliControle, MeldtEenBlokVanEenAnderPaar) {
    const proef::Woorden woorden{"-b", "A{", "-e", "A}", "-b", "B{", "-e", "B}", "-v", "X", "-"};
    EXPECT_EQ(
        (Uitkomst{
            .status = 0,
            .uit = "X\n",
            .fout =
                "standaardinvoer:3: waarschuwing: beginmarker van een ander paar in het blok van regel 1; "
                "hij verdwijnt mee\n"}),
        draai(woorden, {.invoer = "A{\na\nB{\nb\nB}\nA}\n"}));
    EXPECT_EQ("standaardinvoer:2: fout: eindmarker zonder beginmarker\n",
              draai(woorden, {.invoer = "A{\nB}\nA}\n"}).fout);
    const auto isEindZonderBegin = [&](const std::string& regel, const std::string& invoer) {
        return draai(woorden, {.invoer = invoer})
            .fout.ends_with("standaardinvoer:" + regel + ": fout: eindmarker zonder beginmarker\n");
    };
    EXPECT_TRUE(isEindZonderBegin("4", "A{\nB{\nB}\nB}\nA}\n"));
    EXPECT_TRUE(isEindZonderBegin("5", "A{\nB{\nA}\nA{\nB}\nA}\n")) << "een begin geldt alleen in zijn blok";
}

TEST_F(CliControle, GelijkeMarkersWisselenElkaarAf) {
    EXPECT_EQ(goed("X\nb\nX\n"),
              draai({"-b", "==", "-e", "==", "-v", "X", "-"}, {.invoer = "==\na\n==\nb\n==\nc\n==\n"}));
    EXPECT_EQ("standaardinvoer:1: fout: beginmarker zonder eindmarker\n",
              draai({"-b", "==", "-e", "==", "-"}, {.invoer = "==\na\n"}).fout);
}
