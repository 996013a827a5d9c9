// --bewijs: wat er na een run van de oplossing nog in de bestemming staat, wordt gemeld.

#include "tests/cli/proef.h"

namespace fs = std::filesystem;

using hulp::Boom;
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
    schrijf("uit/lek", "int geheim = f(42);\n");
    schrijf("uit/afgesloten/x", "x");
    fs::permissions(map_ / "uit", fs::perms::all);
    fs::permissions(map_ / "uit/afgesloten", fs::perms::none);
    fs::permissions(map_ / "uit/dicht", fs::perms::none);
    const Uitkomst uitkomst = draai({"-r", "-p", "bron", "-n", "uit"}, {.gewoneGebruiker = true});
    const std::string toegang = "geen toegang; geef rechten of kies een andere plaats\n";
    EXPECT_EQ(
        (Uitkomst{.status = 2,
                  .uit = "1 bestand geknipt, 1 blok, 2 mislukt, 1 regel te veel in de bestemming\n",
                  .fout = "uit/lek:1: fout: hier staat de weggelaten regel van bron/a.c:3\n"
                          "knipselaar-cli: fout: uit/afgesloten: kan niet gelezen worden: " +
                          toegang + "knipselaar-cli: fout: uit/dicht: kan niet gelezen worden: " + toegang}),
        uitkomst);
    const std::string json = draai({"-j", "-r", "-p", "bron", "-n", "uit"}, {.gewoneGebruiker = true}).uit;
    EXPECT_NE(
        std::string::npos,
        json.find("\"bewijs\": [\n    {\"bestand\": \"uit/lek\", \"regel\": 1, \"tekst\": \"hier staat de "
                  "weggelaten regel van bron/a.c:3\"},\n    {\"storing\": \"uit/afgesloten: kan niet"))
        << json;
    fs::permissions(map_ / "uit/afgesloten", fs::perms::all);
}

TEST_F(CliBewijs, NoemtNietsBewezenAlsErGeenBlokWas) {
    const std::string begin = "//**** STUDENT BEGIN ****//\n";
    const std::string eind = "//**** STUDENT EIND ****//\n";
    schrijf("bron/a.c", begin + "geheime oplossing\n" + eind);
    schrijf("bron/LEESMIJ", "/**** student begin ****/\n");
    schrijf("gewoon/a.c", "int a;\n");
    const auto bijna = [](const std::string& ernst) {
        return "bron/LEESMIJ:1: " + ernst + ": bijna een beginmarker; zo telt hij niet\n" +
               "bron/a.c:1: " + ernst + ": bijna een beginmarker; zo telt hij niet\nbron/a.c:3: " + ernst +
               ": bijna een eindmarker; zo telt hij niet\n";
    };
    EXPECT_EQ((Uitkomst{.status = 0,
                        .uit = "1 bestand geknipt, 0 blokken, 1 overgenomen, 3 waarschuwingen\n",
                        .fout = bijna("waarschuwing") + proef::geenBlok}),
              draai({"-r", "bron", "-n", "uit"}));
    EXPECT_EQ((Uitkomst{.status = 1,
                        .uit = "0 bestanden geknipt, 0 blokken, 2 met fouten, niet bewezen\n",
                        .fout = bijna("fout")}),
              draai({"-r", "-p", "bron", "-n", "uit2"}));
    EXPECT_EQ((Boom{}), leesBoom("uit2"));
    EXPECT_EQ(
        (Uitkomst{.status = 1,
                  .uit = "1 bestand geknipt, 0 blokken, niet bewezen\n",
                  .fout = "knipselaar-cli: fout: er is nergens een blok gevonden; kijk de markers na\n"}),
        draai({"-r", "-p", "gewoon", "-n", "uit3"}));
    EXPECT_EQ(1, draai({"-s", "-r", "gewoon", "-n", "uit4"}).status);
    EXPECT_EQ(
        (Uitkomst{.status = 1,
                  .uit = "0 bestanden geknipt, 0 blokken, 1 overgenomen, niet bewezen\n",
                  .fout = "knipselaar-cli: fout: er is geen bestand gekozen om te knippen; kijk --keuze en "
                          "--masker na\n"}),
        draai({"-r", "-p", "-k", "vhdl", "gewoon", "-n", "uit5"}));
}

TEST_F(CliBewijs, NoemtNietsBewezenInUtf16ZonderMerkteken) {
    std::string inhoud;
    for (const char teken : bron) {
        inhoud += {teken, '\0'};
    }
    schrijf("bron/a.c", inhoud);
    EXPECT_EQ(1, draai({"-r", "-p", "bron", "-n", "uit"}).status);
}

TEST_F(CliBewijs, MeldtBijnaEenMarkerInWatErAlStond) {
    schrijf("bron/a.c", opBron);
    schrijf("uit/oud.c", "x\n  # student BEGIN\n");
    EXPECT_EQ("uit/oud.c:2: fout: er staat een regel die bijna een marker is\n",
              draai({"-r", "-p", "bron", "-n", "uit"}).fout);
}

TEST_F(CliBewijs, MeldtEenLinkDieDeBestemmingUitGaat) {
    schrijf("bron/a.c", opBron);
    fs::create_directories(map_ / "uit");
    fs::create_symlink("../bron/a.c", map_ / "uit/b.c");
    fs::create_symlink("a.c", map_ / "uit/goed.c");
    fs::create_symlink("weg.c", map_ / "uit/dood.c");
    EXPECT_EQ((Uitkomst{.status = 1,
                        .uit = "1 bestand geknipt, 1 blok, 1 regel te veel in de bestemming\n",
                        .fout = "uit/b.c: fout: is een link die buiten uit uitkomt\n"}),
              draai({"-r", "-p", "bron", "-n", "uit"}));
}

TEST_F(CliBewijs, TeltWatOpEenMarkerregelStaatAlsWeggelaten) {
    schrijf("bron/a.c",
            "int begin = geheim(1); //**** Student Begin ****// int verder = geheim(2);\nx\n"
            "int eind = geheim(3); //**** Student Eind ****// int daarna = geheim(4);\n");
    schrijf(
        "bron/notities",
        "int begin = geheim(1);\nint verder = geheim(2);\nint eind = geheim(3);\nint daarna = geheim(4);\n");
    const auto melding = [](int regel, int van) {
        return "uit/notities:" + std::to_string(regel) +
               ": fout: hier staat de weggelaten regel van bron/a.c:" + std::to_string(van) + "\n";
    };
    EXPECT_EQ(melding(1, 1) + melding(2, 1) + melding(3, 3) + melding(4, 3),
              draai({"-r", "-p", "bron", "-n", "uit"}).fout);
}

TEST_F(CliBewijs, VergelijktElkeCoderingEnElkRegeleinde) {
    schrijf("bron/a.c", "//**** Student Begin ****//\r\nint één = 11;\r\n//**** Student Eind ****//\r\n");
    schrijf("bron/b.c",
            "int \xE9\xE9n = 12;\r\n//**** Student Begin ****//\r\nint \xE9\xE9n = 13;\r\n"
            "//**** Student Eind ****//\r\n");
    schrijf("bron/c", "int één = 11;\nint één = 12;\nint één = 13;\n");
    EXPECT_EQ(
        "uit/c:1: fout: hier staat de weggelaten regel van bron/a.c:2\n"
        "uit/c:3: fout: hier staat de weggelaten regel van bron/b.c:3\n",
        draai({"-r", "-p", "bron", "-n", "uit"}).fout);
}

TEST_F(CliBewijs, RekentHetBestandVanEenWerkkopieBijHetVersiebeheer) {
    schrijf("bron/a.c", opBron);
    schrijf("bron/.git", "gitdir: ../elders\n");
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok, bewezen schoon\n"),
              draai({"-x", "-r", "-p", "bron", "-n", "uit"}));
    EXPECT_FALSE(bestaat("uit/.git"));
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok, 1 overgenomen\n"),
              draai({"--versiebeheer", "-r", "bron", "-n", "uit2"}));
    EXPECT_TRUE(bestaat("uit2/.git"));
}
