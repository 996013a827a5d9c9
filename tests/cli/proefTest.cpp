// Wat er over de hele run nagekeken wordt: hoeveel blokken er zijn, wat er in de bestemming mag staan, en of
// wat de student krijgt werkt.

#include <algorithm>

#include "tests/cli/proef.h"

using hulp::Boom;
using proef::bron;
using proef::goed;
using proef::knipselX;
using proef::storing;
using proef::Uitkomst;

namespace {

class CliProef : public proef::Cli {};

}  // namespace

TEST_F(CliProef, TeltOfErGenoegBlokkenZijn) {
    schrijf("a.c", bron);
    schrijf("b.c", bron + bron);
    EXPECT_EQ(goed("2 bestanden geknipt, 3 blokken\n"),
              draai({"--minstens", "3", "a.c", "b.c", "-n", "uit"}));
    EXPECT_EQ((Uitkomst{.status = 1,
                        .uit = "2 bestanden geknipt, 3 blokken\n",
                        .fout = "knipselaar-cli: fout: er zijn minder blokken dan --minstens 4 vraagt: 3\n"}),
              draai({"--minstens", "4", "a.c", "b.c", "-n", "uit2"}));
    EXPECT_EQ((Uitkomst{.status = 1,
                        .uit = "1 bestand in orde, 1 blok\n",
                        .fout = "knipselaar-cli: fout: er zijn minder blokken dan --minstens 2 vraagt: 1\n"}),
              draai({"--minstens", "2", "--controle", "a.c"}));
    EXPECT_EQ(storing("--minstens: 'veel' is geen getal; geef een geheel getal vanaf 0"),
              draai({"--minstens", "veel", "a.c"}));
}

TEST_F(CliProef, MetAllesOfNietsHoudenTeWeinigBlokkenAllesTegen) {
    schrijf("a.c", bron);
    EXPECT_EQ(1, draai({"--minstens", "2", "--alles-of-niets", "-t", "a.c"}).status);
    EXPECT_EQ(bron, lees("a.c"));
    EXPECT_EQ(1, draai({"--minstens", "2", "-t", "a.c"}).status);
    EXPECT_EQ(proef::knipsel, lees("a.c"));
}

TEST_F(CliProef, LaatToeWatInDeBestemmingMagStaan) {
    schrijf("bron/a.c", bron);
    schrijf("bron/LEESMIJ",
            "Zet\n    //**** Student Begin ****//\nen // **** student eind ****\nom de geheime oplossing\n"
            "geheime oplossing\n");
    schrijf("mag", "//**** Student Begin ****//\r\n\ten // **** student eind ****  \n");
    schrijf("mag meer", "// **** student eind ****\ngeheime oplossing\n");
    const proef::Woorden run{"-f", "-p", "-v", "X", "-r", "bron", "-n", "uit"};
    const auto metRun = [&run](proef::Woorden woorden) {
        woorden.insert(woorden.end(), run.begin(), run.end());
        return woorden;
    };
    EXPECT_EQ(
        (Uitkomst{.status = 1,
                  .uit = "1 bestand geknipt, 1 blok, 1 overgenomen, 2 regels te veel in de bestemming\n",
                  .fout = "uit/LEESMIJ:2: fout: er staat nog een markerregel\n"
                          "uit/LEESMIJ:5: fout: hier staat de weggelaten regel van bron/a.c:3\n"}),
        draai(metRun({})));
    EXPECT_EQ((Uitkomst{.status = 1,
                        .uit = "1 bestand geknipt, 1 blok, 1 overgenomen, 1 regel te veel in de bestemming\n",
                        .fout = "uit/LEESMIJ:5: fout: hier staat de weggelaten regel van bron/a.c:3\n"}),
              draai(metRun({"--bewijs-toegestaan", "mag"})));
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok, 1 overgenomen, bewezen schoon\n"),
              draai(metRun({"--bewijs-toegestaan", "mag", "--bewijs-toegestaan", "mag meer"})));
}

TEST_F(CliProef, LaatEenBijnaMarkerToeDieMagStaan) {
    schrijf("bron/a.c", bron + "// **** student begin ****\n");
    schrijf("bron/LEESMIJ", "// **** student eind ****\n");
    schrijf("mag", "// **** student begin ****\n// **** student eind ****\n");
    EXPECT_EQ(1, draai({"-p", "-r", "bron", "-n", "uit"}).status);
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok, 1 overgenomen, bewezen schoon\n"),
              draai({"-f", "-p", "--bewijs-toegestaan", "mag", "-r", "bron", "-n", "uit"}));
}

TEST_F(CliProef, WeigertWatBijEenBewijsHoort) {
    schrijf("a.c", bron);
    schrijf("mag", "x\n");
    const auto verwacht = storing("--bewijs-lengte en --bewijs-toegestaan horen bij --bewijs; geef dat ook");
    EXPECT_EQ(verwacht, draai({"-L", "3", "a.c"}));
    EXPECT_EQ(verwacht, draai({"--bewijs-toegestaan", "mag", "a.c"}));
}

TEST_F(CliProef, ProbeertElkGekniptBestand) {
    schrijf("bron/goed 'zo'.c", bron);
    schrijf("bron/-fout.c", bron + "mis\n");
    schrijf("bron/LEESMIJ", "niet geknipt\n");
    EXPECT_EQ(
        (Uitkomst{.status = 1,
                  .uit = "2 bestanden geknipt, 2 blokken, 1 overgenomen, 1 proef mislukt\n",
                  .fout = "uit/-fout.c: fout: de proef mislukt (afloop 3): cat <'uit/-fout.c'; ! grep mis "
                          "'uit/-fout.c' >&2 || exit 3\n"
                          "voor\nX\nna\nmis\nmis\n"
                          "voor\nX\nna\n"}),
        draai({"-v", "X", "-r", "--probeer", "cat <{}; ! grep mis {} >&2 || exit 3", "bron", "-n", "uit"}));
    EXPECT_EQ(knipselX, lees("uit/goed 'zo'.c")) << "wat geschreven is blijft";
}

TEST_F(CliProef, ZegtDatAlleProevenLukten) {
    schrijf("a.c", bron);
    schrijf("b.c", bron);
    EXPECT_EQ(goed("2 bestanden geknipt, 2 blokken, alle proeven gelukt\n"),
              draai({"-P", "test -f {}", "a.c", "b.c", "-n", "uit"}));
    EXPECT_EQ(goed(), draai({"-q", "-P", "echo {}", "a.c", "b.c", "-n", "uit"})) << "stil over wat goed ging";
    EXPECT_EQ(goed(), draai({"-P", "test $(wc -l <{}) -gt 3", "a.c", "-u", "uit.c"}));
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok, alle proeven gelukt\n"),
              draai({"-P", "test -f {}", "-t", "a.c"}));
}

TEST_F(CliProef, ProbeertAlsAllesGeschrevenIs) {
    for (const char* naam : {"a.c", "b.c", "c.c", "z.h"}) {
        schrijf(std::string("bron/") + naam, bron);
    }
    EXPECT_EQ(goed("4 bestanden geknipt, 4 blokken, alle proeven gelukt\n"),
              draai({"-P", "test -f {} -a -f uit/z.h", "bron", "-n", "uit", "--taken", "4"}));
}

TEST_F(CliProef, EenOpdrachtDieErNietIsEnEenDieDoodgaat) {
    schrijf("a.c", bron);
    const Uitkomst weg = draai({"-P", "bestaatniet {}", "a.c", "-u", "uit.c"});
    EXPECT_EQ(1, weg.status);
    EXPECT_TRUE(weg.fout.starts_with("uit.c: fout: de proef mislukt (afloop 127): bestaatniet 'uit.c'\n"))
        << weg.fout;
    EXPECT_EQ((Uitkomst{.status = 1,
                        .uit = {},
                        .fout = "uit.c: fout: de proef mislukt (afloop 143): kill -TERM $$ # 'uit.c'\n"}),
              draai({"-P", "kill -TERM $$ # {}", "a.c", "-u", "uit.c"}));
}

TEST_F(CliProef, ZietEenNaamNietVoorEenOptieAan) {
    schrijf("-n", bron);
    EXPECT_EQ(
        (Uitkomst{.status = 0, .uit = "1 bestand geknipt, 1 blok, alle proeven gelukt\n", .fout = knipselX}),
        draai({"-v", "X", "-P", "cat {}", "-t", "--", "-n"}));
}

TEST_F(CliProef, DeProefKrijgtGeenInvoer) {
    EXPECT_EQ(goed(), draai({"-P", "test -z \"$(cat)\" # {}", "-", "-u", "uit.c"}, {.invoer = bron}));
}

TEST_F(CliProef, DeProevenStaanInHetVerslag) {
    schrijf("a.c", bron);
    EXPECT_EQ(
        (Uitkomst{.status = 1,
                  .uit =
                      "{\n  \"bestanden\": [\n    {\"bron\": \"a.c\", \"bestemming\": \"uit/a.c\", "
                      "\"status\": \"geknipt\", \"blokken\": 1, \"regels_erin\": 5, \"regels_eruit\": 3, "
                      "\"meldingen\": []}\n  ],\n  \"proeven\": [\n    {\"bestand\": \"uit/a.c\", "
                      "\"opdracht\": \"echo 'uit/a.c'; exit 2\", \"afloop\": 2, \"uitvoer\": "
                      "\"uit/a.c\\u000a\"}\n  ],\n  \"bewijs\": [],\n  \"opmerkingen\": [],\n  \"totaal\": "
                      "{\"geknipt\": 1, \"ongewijzigd\": 0, \"overgenomen\": 0, \"opgeruimd\": 0, "
                      "\"blokken\": 1, \"fouten\": "
                      "0, \"waarschuwingen\": 0, \"mislukt\": 0},\n  \"afloop\": 1\n}\n",
                  .fout = "uit/a.c: fout: de proef mislukt (afloop 2): echo 'uit/a.c'; exit 2\nuit/a.c\n"}),
        draai({"-j", "-v", "X", "-P", "echo {}; exit 2", "a.c", "-n", "uit"}));
}

TEST_F(CliProef, WeigertEenProefDieNietKan) {
    schrijf("a.c", bron);
    EXPECT_EQ(storing("--probeer: in 'gcc' staat geen {}; zet dat waar het bestand komt"),
              draai({"-P", "gcc", "a.c", "-u", "uit.c"}));
    const auto zonder =
        storing("--probeer heeft geknipte bestanden nodig; geef --uit, --naar of --ter-plaatse");
    EXPECT_EQ(zonder, draai({"-P", "gcc {}", "a.c"}));
    EXPECT_EQ(zonder, draai({"-P", "gcc {}", "-c", "a.c"}));
    EXPECT_EQ(zonder, draai({"-P", "gcc {}", "-d", "a.c", "-n", "uit"}));
}
