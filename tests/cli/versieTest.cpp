// Wat er van een blok komt: de oplossing, regels voor de student, een variant die blijft, en regels die op
// hun nummer blijven.

#include "tests/cli/proef.h"

namespace fs = std::filesystem;

using hulp::Boom;
using proef::goed;
using proef::storing;
using proef::Uitkomst;
using proef::Woorden;

namespace {

/// Standaard met markers van één letter, en "X" als vervangtekst.
class CliVersie : public proef::Cli {
  protected:
    Uitkomst knip(const std::string& tekst, Woorden opties, const Woorden& markers = {"B", "E"}) const {
        for (std::size_t i = 0; i < markers.size(); i += 2) {
            opties.insert(opties.end(), {"-b", markers[i], "-e", markers[i + 1]});
        }
        opties.insert(opties.end(), {"-v", "X", "-"});
        return draai(opties, {.invoer = tekst});
    }

    /// Een tekst in UTF-16 met merkteken.
    static std::string maakBreed(std::string_view ascii) {
        std::string uit = "\xFF\xFE";
        for (const char teken : ascii) {
            uit += teken;
            uit += '\0';
        }
        return uit;
    }
};

const Woorden tweeParen{"B", "E", "b", "e"};

std::string waarschuw(const std::string& regel, const std::string& tekst) {
    return "standaardinvoer:" + regel + ": waarschuwing: " + tekst + "\n";
}

}  // namespace

TEST_F(CliVersie, DeOplossingIsAlleenDeMarkersKwijt) {
    EXPECT_EQ(goed("a\nx\n\ty\nc\n"), knip("a\nB\nx\n\ty\nE\nB\nE\nc\n", {"--maak", "oplossing"}));
    EXPECT_EQ(goed("a\r\nx\r\nc"), knip("a\r\nB\r\nx\r\nE\r\nc", {"-M", "oplossing"}));
    EXPECT_EQ(goed("a\nx\n"), knip("a\nB\nx\nE", {"-M", "oplossing"})) << "het regeleinde van x blijft";
    EXPECT_EQ(goed(maakBreed("a\nx\nc\n")), knip(maakBreed("a\nB\nx\nE\nc\n"), {"-M", "oplossing"}));
    EXPECT_EQ(goed("\xEF\xBB\xBFx\n"), knip("\xEF\xBB\xBF"
                                            "B\nx\nE\n",
                                            {"-M", "oplossing"}));
    EXPECT_EQ(goed("a\nX\nc\n"), knip("a\nB\nx\nE\nc\n", {"--maak", "student"}));
}

TEST_F(CliVersie, DeOplossingHoudtElkPaar) {
    EXPECT_EQ(goed("1\n2\n3\n4\n5\n"), knip("1\nB\n2\nb\n3\ne\n4\nE\n5\n", {"-M", "oplossing"}, tweeParen));
}

TEST_F(CliVersie, DeOplossingKeurtDeMarkersOok) {
    EXPECT_EQ(
        (Uitkomst{
            .status = 1, .uit = {}, .fout = "standaardinvoer:2: fout: beginmarker zonder eindmarker\n"}),
        knip("a\nB\nx\n", {"-M", "oplossing"}));
    EXPECT_EQ((Uitkomst{.status = 1,
                        .uit = {},
                        .fout = "standaardinvoer:3: fout: beginmarker zonder eindmarker\n"
                                "standaardinvoer:6: fout: eindmarker zonder beginmarker\n"}),
              knip("a\nB\nb\n3\nE\ne\n", {"-M", "oplossing"}, tweeParen))
        << "blokken die over elkaar heen liggen";
}

TEST_F(CliVersie, DeOplossingIsTerPlaatseEnInEenDirectoryTeMaken) {
    schrijf("a.c", proef::bron);
    schrijf("leeg.c", "geen blok\n");
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok, 1 zonder blok\n"),
              draai({"-M", "oplossing", "-t", "a.c", "leeg.c"}));
    EXPECT_EQ("voor\ngeheime oplossing\nna\n", lees("a.c"));
}

TEST_F(CliVersie, GeeftDeStudentWatInHetBlokStaat) {
    const std::string tekst = "a\n  B\n    //G return 0;\n    return 42;\n\t//G}\n//G\n  E\nc\n";
    EXPECT_EQ(goed("a\n    return 0;\n\t}\n\nc\n"), knip(tekst, {"--geef", "//G"}));
    EXPECT_EQ(goed("a\n    return 42;\nc\n"), knip(tekst, {"-G", "//G", "-M", "oplossing"}));
}

TEST_F(CliVersie, GeeftMetMeerPrefixen) {
    EXPECT_EQ(goed("een\n twee\n"), knip("B\n//1 een\n#2  twee\n//3 drie\nE\n", {"-G", "//1", "-G", "#2"}));
    EXPECT_EQ(goed("een\n  twee\n"), knip("B\n//1 een\n//1   twee\nE\n", {"-G", "  //1 "}))
        << "een spatie in de prefix is die van de regel";
}

TEST_F(CliVersie, EenBlokMetAlleenGeefregelsIsVoorDeStudent) {
    EXPECT_EQ(goed("a\nhulp\nc\n"), knip("a\nB\n//G hulp\nE\nc\n", {"-G", "//G"}));
    EXPECT_EQ(goed("a\nc\n"), knip("a\nB\n//G hulp\nE\nc\n", {"-G", "//G", "-M", "oplossing"}));
    EXPECT_EQ(goed("hulp\nX\n"), knip("B\n//G hulp\nE\nB\nx\nE\n", {"-G", "//G"}))
        << "elk blok kiest voor zichzelf";
}

TEST_F(CliVersie, GeeftInDeCoderingEnMetDeRegeleindenVanHetBestand) {
    EXPECT_EQ(goed("a\r\n h\xE9\r\nc\r\n"), knip("a\r\nB\r\n //G h\xE9\r\nx\r\nE\r\nc\r\n", {"-G", "//G"}));
    EXPECT_EQ(goed("h\xE9\n"), knip("B\n\xE9G h\xE9\nE\n", {"-G", "\xC3\xA9G"}));
    EXPECT_EQ(goed(maakBreed(" h\nc\n")), knip(maakBreed("B\n //G h\nE\nc\n"), {"-G", "//G"}));
    EXPECT_EQ(goed("a\nh"), knip("a\nB\n//G h\nE", {"-G", "//G"})) << "zonder laatste regeleinde";
    EXPECT_EQ(goed("a\rh\r"), knip("a\rB\r//G h\rx\rE\r", {"-G", "//G"}));
}

TEST_F(CliVersie, MeldtEenGeefregelBuitenEenBlok) {
    EXPECT_EQ((Uitkomst{.status = 0,
                        .uit = "//G a\nh\nX\n //G c\n",
                        .fout = waarschuw("1", "regel van --geef buiten een blok; hij blijft staan") +
                                waarschuw("8", "regel van --geef buiten een blok; hij blijft staan")}),
              knip("//G a\nB\n//G h\nE\nB\nx\nE\n //G c\n", {"-G", "//G"}));
    EXPECT_EQ((Uitkomst{.status = 0,
                        .uit = "//G a\n1\n",
                        .fout = waarschuw("1", "regel van --geef buiten een blok; hij blijft staan")}),
              knip("//G a\nB\n1\n//G h\nE\n", {"-G", "//G", "--houd", "1"}))
        << "ook voor een blok dat blijft";
}

TEST_F(CliVersie, HoudtEenPaar) {
    const std::string tekst = "1\nB\n2\nE\n3\nb\n4\ne\n5\n";
    EXPECT_EQ(goed("1\nX\n3\n4\n5\n"), knip(tekst, {"--houd", "2"}, tweeParen));
    EXPECT_EQ(goed("1\n2\n3\nX\n5\n"), knip(tekst, {"--houd", "1"}, tweeParen));
    EXPECT_EQ(goed("1\n2\n3\n4\n5\n"), knip(tekst, {"--houd", "1", "--houd", "2"}, tweeParen));
}

TEST_F(CliVersie, KniptEenBlokInEenBlokDatBlijft) {
    EXPECT_EQ(goed("1\n2\nX\n4\n5\n"), knip("1\nB\n2\nb\n3\ne\n4\nE\n5\n", {"--houd", "1"}, tweeParen));
    EXPECT_EQ(
        (Uitkomst{.status = 0,
                  .uit = "1\nX\n5\n",
                  .fout = waarschuw("4",
                                    "beginmarker van een ander paar in het blok van regel 2; hij verdwijnt "
                                    "mee")}),
        knip("1\nB\n2\nb\n3\ne\n4\nE\n5\n", {"--houd", "2"}, tweeParen));
    EXPECT_EQ(goed("1\n2\nX\n4\n5\n"), knip("1\nB\n2\n<\nb\n3\ne\n>\n4\nE\n5\n",
                                            {"--houd", "1", "--houd", "3"}, {"B", "E", "b", "e", "<", ">"}))
        << "drie diep";
}

TEST_F(CliVersie, EenGeefregelInEenBlokDatBlijftGaatWeg) {
    EXPECT_EQ(goed("2\nh\n4\n"), knip("B\n2\n//G uit\nb\n//G h\n3\ne\n//G uit\n4\nE\n",
                                      {"--houd", "1", "-G", "//G"}, tweeParen));
}

TEST_F(CliVersie, EenLeegBlokDatBlijftIsGeenMeldingWaard) {
    EXPECT_EQ(goed("1\n"), knip("1\nB\nE\n", {"--houd", "1"}));
    EXPECT_EQ(
        (Uitkomst{.status = 0, .uit = "1\n", .fout = waarschuw("2", "leeg blok; er komt geen vervangtekst")}),
        knip("1\nB\nE\n", {}));
}

TEST_F(CliVersie, MeldtEenBijnaMarkerInEenBlokDatBlijftEenmaal) {
    EXPECT_EQ((Uitkomst{.status = 0,
                        .uit = "/B\nX\n",
                        .fout = waarschuw("2", "bijna een beginmarker; zo telt hij niet")}),
              knip("BB\n/B\nb\n3\ne\nE\n", {"--houd", "1", "-l"}, {"BB", "E", "b", "e"}));
}

TEST_F(CliVersie, HoudtDeNummersVanDeRegelsGelijk) {
    EXPECT_EQ(goed("a\nX\n\n\n\nc\n"), knip("a\nB\nx\ny\nE\nc\n", {"--regels-gelijk"}));
    EXPECT_EQ(goed("a\r\nX\r\n\r\n\r\nc"), knip("a\r\nB\r\nx\r\nE\r\nc", {"--regels-gelijk"}));
    EXPECT_EQ(goed("a\n\nx\n\nc\n"), knip("a\nB\nx\nE\nc\n", {"--regels-gelijk", "-M", "oplossing"}));
    EXPECT_EQ(goed("h\n\n\n\nc\n"), knip("B\n//G h\nx\nE\nc\n", {"--regels-gelijk", "-G", "//G"}));
    EXPECT_EQ(goed("a\nX\n\n"), knip("a\nB\nx\nE", {"--regels-gelijk"}));
    EXPECT_EQ(goed(maakBreed("\nx\n\nc\n")),
              knip(maakBreed("B\nx\nE\nc\n"), {"--regels-gelijk", "-M", "oplossing"}));
}

TEST_F(CliVersie, MeldtWatNietOpZijnNummerKanBlijven) {
    schrijf("a.c", "a\nB\nx\nE\nB\nx\ny\nE\n");
    EXPECT_EQ(
        (Uitkomst{.status = 0,
                  .uit = "a\n1\n2\n3\n4\n1\n2\n3\n4\n",
                  .fout =
                      "a.c:2: waarschuwing: de vervangtekst heeft meer regels dan het blok; de nummers van "
                      "de regels erna verschuiven\n"}),
        draai({"--regels-gelijk", "-b", "B", "-e", "E", "-v", "1\n2\n3\n4", "a.c"}));
}

TEST_F(CliVersie, TeltDeRegels) {
    schrijf("a.c", "a\nB\nx\ny\nz\nE\nc\n");
    schrijf("b.c", "a\nB\n//G x\nE\nc\n");
    const auto droog = [this](Woorden opties) {
        opties.insert(opties.end(),
                      {"-b", "B", "-e", "E", "-v", "X", "-G", "//G", "-d", "a.c", "b.c", "-n", "uit"});
        return draai(opties);
    };
    EXPECT_EQ(goed("a.c -> uit/a.c: 1 blok, 7 regels erin, 3 eruit, 0 waarschuwingen\n"
                   "b.c -> uit/b.c: 1 blok, 5 regels erin, 3 eruit, 0 waarschuwingen\n"
                   "2 bestanden in orde, 2 blokken\n"),
              droog({}));
    EXPECT_EQ(goed("a.c -> uit/a.c: 1 blok, 7 regels erin, 7 eruit, 0 waarschuwingen\n"
                   "b.c -> uit/b.c: 1 blok, 5 regels erin, 5 eruit, 0 waarschuwingen\n"
                   "2 bestanden in orde, 2 blokken\n"),
              droog({"--regels-gelijk"}));
    EXPECT_EQ(goed("a.c -> uit/a.c: 1 blok, 7 regels erin, 5 eruit, 0 waarschuwingen\n"
                   "b.c -> uit/b.c: 1 blok, 5 regels erin, 2 eruit, 0 waarschuwingen\n"
                   "2 bestanden in orde, 2 blokken\n"),
              droog({"-M", "oplossing"}));
}

TEST_F(CliVersie, HetVerschilIsTePassen) {
    schrijf("a.c", "a\nB\n//G h\nx\nE\nc\nb\ny\n//G z\ne\nd");
    const Woorden opties{"-b", "B", "-e", "E", "-b", "b", "-e", "e", "--houd", "2", "-G", "//G"};
    Woorden verschil = opties;
    verschil.insert(verschil.end(), {"-D", "a.c"});
    const Uitkomst uitkomst = draai(verschil);
    EXPECT_EQ(
        goed(
            "--- a.c\t\n+++ a.c\t\n@@ -1,11 +1,5 @@\n a\n-B\n-//G h\n-x\n-E\n+h\n c\n-b\n y\n-//G z\n-e\n d\n"
            "\\ No newline at end of file\n"),
        uitkomst);
    schrijf("verschil", uitkomst.uit);
    EXPECT_EQ(0, std::system(("cd '" + map_.string() + "' && patch --binary -s -p0 < verschil").c_str()));
    EXPECT_EQ("a\nh\nc\ny\nd", lees("a.c"));
}

TEST_F(CliVersie, HetBewijsKentWatDeStudentKrijgt) {
    schrijf("bron/a.c",
            "<<\n//G int gegeven = 1;\nint geheim = f(42);\n>>\nint naastDeMarker; [[\nint vanGroepA;\n]]\n");
    const Woorden opties{"-b", "<<", "-e",  ">>", "-b", "[[",   "-e", "]]",  "--houd",
                         "2",  "-G", "//G", "-p", "-r", "bron", "-n", "uit", "-f"};
    EXPECT_EQ(goed("1 bestand geknipt, 2 blokken, bewezen schoon\n"), draai(opties));
    EXPECT_EQ((Boom{{"a.c", "int gegeven = 1;\nint vanGroepA;\n"}}), leesBoom("uit"));
    schrijf("uit/lek.txt", "int geheim = f(42);\nint gegeven = 1;\nint vanGroepA;\nint naastDeMarker;\n");
    EXPECT_EQ((Uitkomst{.status = 1,
                        .uit = "1 bestand geknipt, 2 blokken, 2 regels te veel in de bestemming\n",
                        .fout = "uit/lek.txt:1: fout: hier staat de weggelaten regel van bron/a.c:3\n"
                                "uit/lek.txt:4: fout: hier staat de weggelaten regel van bron/a.c:5\n"}),
              draai(opties));
}

TEST_F(CliVersie, WeigertWatNietKan) {
    schrijf("a.c", "a\n");
    EXPECT_EQ(storing("--maak: 'beide' is geen keuze; kies student of oplossing"),
              draai({"-M", "beide", "a.c"}));
    EXPECT_EQ(storing("--houd: er is geen markerpaar 2; kies 1 tot en met 1"), draai({"--houd", "2", "a.c"}));
    EXPECT_EQ(storing("--houd: er is geen markerpaar 0; kies 1 tot en met 1"), draai({"--houd", "0", "a.c"}));
    EXPECT_EQ(storing("--houd: 'a' is geen getal; geef een geheel getal vanaf 0"),
              draai({"--houd", "a", "a.c"}));
    EXPECT_EQ(storing("--houd gaat niet samen met --maak oplossing; die houdt van elk paar wat erin staat"),
              draai({"--houd", "1", "-M", "oplossing", "a.c"}));
    EXPECT_EQ(storing("--geef: de tekst is leeg; geef waarmee een regel voor de student begint"),
              draai({"-G", " \t", "a.c"}));
    EXPECT_EQ(storing("--geef: de tekst is geen enkele regel in UTF-8"), draai({"-G", "a\nb", "a.c"}));
    EXPECT_EQ(storing("--geef: de tekst is geen enkele regel in UTF-8"), draai({"-G", "\xE9", "a.c"}));
    const auto nietSamen = storing(
        "--maak, --houd, --geef en --regels-gelijk gaan niet samen met --als-venster; het venster kent ze "
        "niet");
    for (const Woorden& optie :
         {Woorden{"-M", "oplossing"}, {"--houd", "1"}, {"-G", "x"}, {"--regels-gelijk"}}) {
        Woorden woorden = optie;
        woorden.insert(woorden.end(), {"-a", "a.c"});
        EXPECT_EQ(nietSamen, draai(woorden)) << optie.front();
    }
    EXPECT_EQ(storing("--bewijs gaat niet samen met --maak oplossing; daar staat de oplossing juist in"),
              draai({"-p", "-M", "oplossing", "a.c", "-n", "uit"}));
}
