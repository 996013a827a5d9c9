// Waar het knipsel heen gaat: de standaarduitvoer, een bestand, een directory, een hele boom of ter plaatse.

#include <sys/stat.h>
#include <unistd.h>

#include "tests/cli/proef.h"

namespace fs = std::filesystem;

using hulp::Boom;
using proef::bron;
using proef::goed;
using proef::knipsel;
using proef::knipselX;
using proef::storing;
using proef::Uitkomst;

namespace {

class CliUitvoer : public proef::Cli {
  protected:
    mode_t geefRechten(const std::string& naam) const {
        return static_cast<mode_t>(fs::status(map_ / naam).permissions());
    }
};

}  // namespace

TEST_F(CliUitvoer, KniptEenBestandNaarDeStandaarduitvoer) {
    schrijf("a.c", bron);
    EXPECT_EQ(goed(knipsel), draai({"a.c"}));
    EXPECT_EQ((Boom{{"a.c", bron}}), leesBoom(""));
}

TEST_F(CliUitvoer, KniptDeStandaardinvoer) {
    EXPECT_EQ(goed(knipselX), draai({"-v", "X", "-"}, {.invoer = bron}));
    EXPECT_EQ(proef::zonderBlok(), draai({"-"}));
    EXPECT_EQ(proef::zonderBlok("geen nieuwe regel"), draai({"-"}, {.invoer = "geen nieuwe regel"}));
}

TEST_F(CliUitvoer, KniptEenGroteStandaardinvoer) {
    const std::string groot(3'000'000, 'x');
    EXPECT_TRUE(goed(groot + "\n" + knipselX) == draai({"-vX", "-"}, {.invoer = groot + "\n" + bron}));
}

namespace {

/// Een groot bestand met veel blokken, met hier en daar lange stukken en grote blokken, en wat ervan wordt.
struct Groot {
    std::string bron;
    std::string getrouw;
    std::string venster;
};

Groot maakGroot(const std::string& regeleinde, const std::string& teken) {
    Groot groot;
    for (int i = 0; i < 6'000; ++i) {
        const int aantal = i % 2'000 == 1'000 ? 3'000 : 1;
        for (int j = 0; j < aantal; ++j) {
            const std::string voor = "regel " + std::to_string(i) + "." + std::to_string(j) + " ";
            groot.bron += voor + teken + regeleinde;
            groot.getrouw += voor + teken + regeleinde;
            groot.venster += voor + "é\n";
        }
        if (i % 7 == 3) {
            groot.bron += "BEGIN" + regeleinde;
            for (int j = 0; j < aantal; ++j) {
                groot.bron += "geheim" + regeleinde;
            }
            groot.bron += "EIND" + regeleinde;
            groot.getrouw += "X" + regeleinde;
            groot.venster += "X\n";
        }
    }
    // Na een losse CR komt er geen lege laatste regel.
    groot.venster += regeleinde == "\r" ? "" : "\n";
    groot.venster = proef::alsVenster(groot.venster);
    return groot;
}

}  // namespace

TEST_F(CliUitvoer, KniptGroteBestandenMetVeelBlokken) {
    for (const char* regeleinde : {"\n", "\r\n", "\r"}) {
        for (const char* teken : {"é", "\xE9"}) {
            const Groot groot = maakGroot(regeleinde, teken);
            schrijf("a.c", groot.bron);
            const proef::Woorden woorden{"-bBEGIN", "-eEIND", "-vX", "a.c"};
            const auto met = [&woorden](proef::Woorden extra) {
                extra.insert(extra.end(), woorden.begin(), woorden.end());
                return extra;
            };
            EXPECT_TRUE(goed(groot.getrouw) == draai(woorden));
            EXPECT_TRUE(goed(groot.venster) == draai(met({"--als-venster"})));
            EXPECT_EQ(goed(), draai(met({"-f", "-u", "uit.c"})));
            EXPECT_TRUE(groot.getrouw == lees("uit.c"));
            EXPECT_EQ(goed(), draai(met({"--als-venster", "-f", "-u", "uit.c"})));
            EXPECT_TRUE(groot.venster == lees("uit.c"));
            EXPECT_EQ(0, draai(met({"-t"})).status);
            EXPECT_TRUE(groot.getrouw == lees("a.c"));
        }
    }
}

TEST_F(CliUitvoer, SchrijftNaarEenBestandMetDeRechtenVanDeBron) {
    schrijf("a.c", bron);
    for (const mode_t rechten : {0644U, 0755U, 0444U, 0600U}) {
        chmod((map_ / "a.c").c_str(), rechten);
        const std::string doel = "uit" + std::to_string(rechten);
        EXPECT_EQ(goed(), draai({"a.c", "--uit", doel}));
        EXPECT_EQ(knipsel, lees(doel));
        EXPECT_EQ(rechten, geefRechten(doel));
    }
    EXPECT_EQ(goed(), draai({"-", "-u", "invoer.c"}, {.invoer = bron}));
    EXPECT_EQ(0644U, geefRechten("invoer.c"));
}

TEST_F(CliUitvoer, OverschrijftAlleenEerdereUitvoerOfWatMag) {
    schrijf("a.c", bron);
    EXPECT_EQ(goed(), draai({"a.c", "-u", "b.c"}));
    EXPECT_EQ(goed(), draai({"a.c", "-vX", "-u", "b.c"})) << "eigen uitvoer";
    EXPECT_EQ(knipselX, lees("b.c"));
    schrijf("b.c", "met de hand veranderd");
    const std::string melding =
        "b.c: bestaat al en is geen eerdere uitvoer van zo'n run; geef --overschrijf om het te vervangen";
    EXPECT_EQ(storing(melding), draai({"a.c", "-u", "b.c"}));
    EXPECT_EQ("met de hand veranderd", lees("b.c"));
    EXPECT_EQ(goed(), draai({"a.c", "-u", "b.c", "--overschrijf"}));
    EXPECT_EQ(knipsel, lees("b.c"));
}

TEST_F(CliUitvoer, EerdereUitvoerVanEenAndereSoortIsNietVanDezeRun) {
    schrijf("bron/a.c", bron);
    EXPECT_EQ(0, draai({"bron", "--naar", "uit"}).status);
    EXPECT_EQ(2, draai({"-r", "bron", "--naar", "uit"}).status);
    EXPECT_EQ(2, draai({"bron/a.c", "--uit", "uit/a.c"}).status);
    EXPECT_EQ(0, draai({"bron", "--naar", "uit"}).status);
}

TEST_F(CliUitvoer, OverschrijftEenLinkAlleenWaarZijHeenWijst) {
    schrijf("a.c", bron);
    schrijf("elders/oud.c", "oud");
    fs::create_symlink("elders/oud.c", map_ / "link.c");
    EXPECT_EQ(goed(), draai({"-f", "a.c", "-u", "link.c"}));
    EXPECT_EQ(
        (Boom{{"a.c", bron}, {"elders", "/"}, {"elders/oud.c", knipsel}, {"link.c", "-> elders/oud.c"}}),
        leesBoom(""));
}

TEST_F(CliUitvoer, KniptBestandenNaarEenDirectory) {
    schrijf("a.c", bron);
    schrijf("sub/b.h", bron);
    schrijf("c.txt", bron);
    EXPECT_EQ(goed("3 bestanden geknipt, 3 blokken\n"),
              draai({"-vX", "a.c", "sub/b.h", "c.txt", "-n", "uit/diep"}));
    EXPECT_EQ((Boom{{"diep", "/"}, {"diep/a.c", knipselX}, {"diep/b.h", knipselX}, {"diep/c.txt", knipselX}}),
              leesBoom("uit"));
}

TEST_F(CliUitvoer, KniptEenDirectoryPlat) {
    schrijf("bron/a.c", bron);
    schrijf("bron/Makefile", "all:\n");
    schrijf("bron/sub/b.c", bron);
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok\n"), draai({"bron", "--naar", "uit", "-vX"}));
    EXPECT_EQ((Boom{{"a.c", knipselX}}), leesBoom("uit"));
}

TEST_F(CliUitvoer, KopieertEenHeleBoom) {
    schrijf("bron/a.c", bron);
    schrijf("bron/Makefile", "all:\n\tcc a.c\n");
    schrijf("bron/LEESMIJ", "tekst zonder extensie");
    schrijf("bron/sub/b.vhd", bron);
    schrijf("bron/sub/plaatje.png", std::string("\x89PNG\0\xFF", 6));
    fs::create_directory(map_ / "bron/leeg");
    fs::create_symlink("sub/b.vhd", map_ / "bron/link.vhd");
    fs::create_symlink("sub", map_ / "bron/linkdir");
    EXPECT_EQ(goed("2 bestanden geknipt, 2 blokken, 5 overgenomen\n"),
              draai({"-vX", "-r", "bron", "-n", "uit"}));
    EXPECT_EQ((Boom{{"LEESMIJ", "tekst zonder extensie"},
                    {"Makefile", "all:\n\tcc a.c\n"},
                    {"a.c", knipselX},
                    {"leeg", "/"},
                    {"link.vhd", "-> sub/b.vhd"},
                    {"linkdir", "-> sub"},
                    {"sub", "/"},
                    {"sub/b.vhd", knipselX},
                    {"sub/plaatje.png", std::string("\x89PNG\0\xFF", 6)}}),
              leesBoom("uit"));
    EXPECT_EQ(0, draai({"-vX", "-r", "bron", "-n", "uit"}).status) << "nog eens over eigen uitvoer";
}

TEST_F(CliUitvoer, HoudtDeRechtenInEenBoom) {
    schrijf("bron/a.c", bron);
    schrijf("bron/doe.sh", "#!/bin/sh\n");
    chmod((map_ / "bron/a.c").c_str(), 0444);
    chmod((map_ / "bron/doe.sh").c_str(), 0755);
    EXPECT_EQ(0, draai({"-r", "bron", "-n", "uit"}).status);
    EXPECT_EQ(0444U, geefRechten("uit/a.c"));
    EXPECT_EQ(0755U, geefRechten("uit/doe.sh"));
}

TEST_F(CliUitvoer, VolgtGeenLinkDeBoomUit) {
    schrijf("buiten/geheim.c", bron);
    schrijf("bron/a.c", bron);
    fs::create_symlink("../buiten", map_ / "bron/weg");
    fs::create_symlink("../buiten/geheim.c", map_ / "bron/geheim.c");
    fs::create_symlink((map_ / "bron/a.c").string(), map_ / "bron/absoluut.c");
    fs::create_symlink("nergens", map_ / "bron/dood.c");
    const auto melding = [](const std::string& naam, const std::string& wat) {
        return "knipselaar-cli: waarschuwing: bron/" + naam + ": is een link " + wat + "; overgeslagen\n";
    };
    const std::string buiten = "die buiten bron uitkomt";
    EXPECT_EQ((Uitkomst{.status = 0,
                        .uit = "1 bestand geknipt, 1 blok\n",
                        .fout = melding("absoluut.c", buiten) + melding("dood.c", "die nergens heen wijst") +
                                melding("geheim.c", buiten) + melding("weg", buiten)}),
              draai({"-vX", "-r", "bron", "-n", "uit"}));
    EXPECT_EQ((Boom{{"a.c", knipselX}}), leesBoom("uit"));
    EXPECT_EQ(0, draai({"-vX", "-r", "-t", "bron"}).status);
    EXPECT_EQ((Boom{{"geheim.c", bron}}), leesBoom("buiten"));
    EXPECT_EQ(knipselX, lees("bron/a.c"));
}

TEST_F(CliUitvoer, VolgtGeenLinkDieDeBoomUitGaatEnErWeerInKomt) {
    schrijf("l/a.c", bron);
    fs::create_symlink("../l/a.c", map_ / "l/b.c");
    fs::create_symlink("sub/../../l/a.c", map_ / "l/c.c");
    fs::create_symlink("b.c", map_ / "l/d.c");
    fs::create_directories(map_ / "l/sub");
    std::string fout;
    for (const std::string naam : {"b.c", "c.c", "d.c"}) {
        fout +=
            "knipselaar-cli: waarschuwing: l/" + naam + ": is een link die buiten l uitkomt; overgeslagen\n";
    }
    EXPECT_EQ((Uitkomst{.status = 0, .uit = "1 bestand geknipt, 1 blok, bewezen schoon\n", .fout = fout}),
              draai({"-vX", "-r", "-p", "l", "-n", "uit"}));
    EXPECT_EQ((Boom{{"a.c", knipselX}, {"sub", "/"}}), leesBoom("uit"));
    EXPECT_EQ((Uitkomst{.status = 0, .uit = "1 bestand geknipt, 1 blok\n", .fout = fout}),
              draai({"-vX", "l", "-n", "plat"}));
    EXPECT_EQ((Boom{{"a.c", knipselX}}), leesBoom("plat"));
}

TEST_F(CliUitvoer, LegtAlleenLinksNaarWatOokMeegaat) {
    schrijf("bron/a.c", bron);
    schrijf("bron/.verborgen/x", "x");
    fs::create_symlink(".verborgen/x", map_ / "bron/een");
    fs::create_symlink("een", map_ / "bron/twee");
    fs::create_symlink("kring", map_ / "bron/kring");
    fs::create_symlink(".", map_ / "bron/zelf");
    fs::create_symlink("zelf/a.c", map_ / "bron/ver.c");
    ASSERT_EQ(0, mkfifo((map_ / "bron/pijp").c_str(), 0600));
    fs::create_symlink("pijp", map_ / "bron/naar-pijp");
    const auto melding = [](const std::string& naam, const std::string& wat) {
        return "knipselaar-cli: waarschuwing: bron/" + naam + ": is " + wat + "; overgeslagen\n";
    };
    const std::string verborgen = "een link naar bron/.verborgen, en dat gaat niet mee";
    EXPECT_EQ(
        (Uitkomst{.status = 0,
                  .uit = "1 bestand geknipt, 1 blok, 2 overgenomen\n",
                  .fout = melding("een", verborgen) + melding("kring", "een link die nergens heen wijst") +
                          melding("naar-pijp", "een link naar bron/pijp, en dat gaat niet mee") +
                          melding("pijp", "geen gewoon bestand") + melding("twee", verborgen)}),
        draai({"-vX", "-r", "bron", "-n", "uit"}));
    EXPECT_EQ((Boom{{"a.c", knipselX}, {"ver.c", "-> zelf/a.c"}, {"zelf", "-> ."}}), leesBoom("uit"));
}

TEST_F(CliUitvoer, SchrijftNietDoorEenLinkInDeBestemming) {
    schrijf("bron/sub/a.c", bron);
    fs::create_directories(map_ / "uit");
    fs::create_directories(map_ / "elders");
    fs::create_symlink("../elders", map_ / "uit/sub");
    EXPECT_EQ(storing("uit/sub: is een link; haal haar weg, anders wordt er buiten uit geschreven"),
              draai({"-r", "bron", "-n", "uit"}));
    EXPECT_EQ((Boom{}), leesBoom("elders"));
}

TEST_F(CliUitvoer, KniptTerPlaatse) {
    schrijf("a.c", bron);
    chmod((map_ / "a.c").c_str(), 0755);
    schrijf("vast.c", bron);
    chmod((map_ / "vast.c").c_str(), 0444);
    schrijf("zonder.c", "niets te knippen");
    schrijf("LEESMIJ", bron);
    EXPECT_EQ(goed("3 bestanden geknipt, 3 blokken, 1 zonder blok\n"),
              draai({"-vX", "--ter-plaatse", "a.c", "vast.c", "zonder.c", "LEESMIJ"}));
    EXPECT_EQ((Boom{{"LEESMIJ", knipselX},
                    {"a.c", knipselX},
                    {"vast.c", knipselX},
                    {"zonder.c", "niets te knippen"}}),
              leesBoom(""));
    EXPECT_EQ(0755U, geefRechten("a.c"));
    EXPECT_EQ(0444U, geefRechten("vast.c"));
    EXPECT_TRUE(fs::is_empty(tijdelijk_));
}

TEST_F(CliUitvoer, KniptEenBoomTerPlaatseEnElkBestandEenmaal) {
    schrijf("boom/a.c", bron);
    schrijf("boom/sub/b.cpp", bron);
    schrijf("boom/sub/c.txt", bron);
    fs::create_symlink("a.c", map_ / "boom/link.c");
    EXPECT_EQ(goed("2 bestanden geknipt, 2 blokken\n"),
              draai({"-vX", "-t", "-r", "boom", "boom/a.c", "boom/link.c"}));
    EXPECT_EQ((Boom{{"a.c", knipselX},
                    {"link.c", "-> a.c"},
                    {"sub", "/"},
                    {"sub/b.cpp", knipselX},
                    {"sub/c.txt", bron}}),
              leesBoom("boom"));
    EXPECT_EQ(proef::zonderBlok("0 bestanden geknipt, 0 blokken, 1 zonder blok\n"), draai({"-t", "boom"}))
        << "zonder -r plat";
}

TEST_F(CliUitvoer, LaatEenGenoemdeLinkTerPlaatseEenLink) {
    schrijf("echt/a.c", bron);
    fs::create_symlink("echt/a.c", map_ / "link.c");
    EXPECT_EQ(0, draai({"-vX", "-t", "link.c"}).status);
    EXPECT_EQ((Boom{{"echt", "/"}, {"echt/a.c", knipselX}, {"link.c", "-> echt/a.c"}}), leesBoom(""));
}

TEST_F(CliUitvoer, WerktOpElkeNaamInElkeLocale) {
    const proef::Woorden namen{"met spatie.c", "één.c", "\xE9\xE9n.c", "-streep.c", "'aanhaling\".c"};
    for (const std::string locale : {"C.UTF-8", "C", "nl_NL.UTF-8"}) {
        const proef::Start start{.omgeving = {{"LC_ALL", locale}}};
        for (const std::string& naam : namen) {
            schrijf(naam, bron);
            EXPECT_EQ(goed(knipselX), draai({"-v", "X", "--", naam}, start)) << locale << " " << naam;
            EXPECT_EQ(goed(), draai({"-v", "X", "-f", "-u", "uit " + naam, "--", naam}, start))
                << locale << " " << naam;
            EXPECT_EQ(knipselX, lees("uit " + naam));
            EXPECT_EQ(0, draai({"-v", "X", "-t", "--", naam}, start).status);
            EXPECT_EQ(knipselX, lees(naam)) << locale << " " << naam;
        }
        for (const std::string& naam : namen) {
            schrijf("b \xE9/" + naam, bron);
        }
        EXPECT_EQ(0, draai({"-v", "X", "-r", "b \xE9", "-f", "-n", "d \xE8 é"}, start).status) << locale;
        for (const std::string& naam : namen) {
            EXPECT_EQ(knipselX, lees("d \xE8 é/" + naam)) << locale;
        }
    }
}

TEST_F(CliUitvoer, WeigertTweeBronnenVoorEenBestemming) {
    schrijf("een/a.c", bron);
    schrijf("twee/a.c", bron);
    EXPECT_EQ(storing("uit/a.c: zowel een/a.c als twee/a.c zou hier komen; geef ze een eigen directory"),
              draai({"een/a.c", "twee/a.c", "-n", "uit"}));
    EXPECT_FALSE(bestaat("uit"));
}

TEST_F(CliUitvoer, WeigertDezelfdeDirectoryOnderEenAndereNaam) {
    schrijf("bron/a.c", bron);
    fs::create_symlink("bron", map_ / "anders");
    for (const std::string naar : {"bron", "anders", "./bron/../bron/"}) {
        EXPECT_EQ(storing(naar + ": is dezelfde directory als bron; kies een andere, of geef --ter-plaatse"),
                  draai({"-f", "bron", "-n", naar}));
    }
    EXPECT_EQ((Boom{{"a.c", bron}}), leesBoom("bron"));
}

TEST_F(CliUitvoer, WeigertDeBronAlsBestemming) {
    schrijf("a.c", bron);
    fs::create_hard_link(map_ / "a.c", map_ / "b.c");
    for (const std::string doel : {"a.c", "./a.c", "b.c"}) {
        EXPECT_EQ(
            storing(doel + ": is hetzelfde bestand als de bron a.c; kies een andere bestemming, of geef "
                           "--ter-plaatse"),
            draai({"-f", "a.c", "-u", doel}));
    }
    EXPECT_EQ(2, draai({"-f", "a.c", "-n", "."}).status);
    EXPECT_EQ(bron, lees("a.c"));
}

TEST_F(CliUitvoer, WeigertEenBestemmingInDeBronEnAndersom) {
    schrijf("bron/sub/a.c", bron);
    EXPECT_EQ(storing("bron/uit: ligt in de bron bron; kies een bestemming erbuiten"),
              draai({"-r", "bron", "-n", "bron/uit"}));
    EXPECT_EQ(storing("bron: daar ligt de bron bron/sub in; kies een andere bestemming"),
              draai({"-r", "bron/sub", "-n", "bron"}));
    EXPECT_EQ((Boom{{"sub", "/"}, {"sub/a.c", bron}}), leesBoom("bron"));
    EXPECT_EQ(0, draai({"-r", "bron", "-n", "bron-student"}).status)
        << "een naam die net zo begint ligt er niet in";
}

TEST_F(CliUitvoer, LaatEenBestandMetEenFoutStaanEnKniptDeAndere) {
    schrijf("boom/a.c", bron);
    schrijf("boom/fout.c", "//**** Student Begin ****//\n");
    schrijf("boom/z.c", bron);
    EXPECT_EQ((Uitkomst{.status = 1,
                        .uit = "2 bestanden geknipt, 2 blokken, 1 met fouten\n",
                        .fout = "boom/fout.c:1: fout: beginmarker zonder eindmarker\n"}),
              draai({"-vX", "boom", "-n", "uit"}));
    EXPECT_EQ((Boom{{"a.c", knipselX}, {"z.c", knipselX}}), leesBoom("uit"));
}

TEST_F(CliUitvoer, GeeftEenNieuweDirectoryDeRechtenVanDieVanDeBron) {
    schrijf("bron/dicht/diep/a.c", bron);
    schrijf("bron/open/b.c", bron);
    chmod((map_ / "bron/dicht").c_str(), 0700);
    chmod((map_ / "bron/dicht/diep").c_str(), 0555);
    chmod((map_ / "bron/open").c_str(), 0777);
    ASSERT_EQ(0, draai({"-r", "bron", "-n", "uit"}).status);
    const mode_t masker = umask(0);
    umask(masker);
    EXPECT_EQ(0700U, geefRechten("uit/dicht"));
    EXPECT_EQ((0555U | 0700U) & ~masker, geefRechten("uit/dicht/diep"))
        << "de eigenaar moet erin kunnen schrijven";
    EXPECT_EQ(0777U & ~masker, geefRechten("uit/open"));
    chmod((map_ / "uit/open").c_str(), 0700);
    ASSERT_EQ(0, draai({"-r", "bron", "-n", "uit"}).status);
    EXPECT_EQ(0700U, geefRechten("uit/open")) << "die was er al";
}

TEST_F(CliUitvoer, HerkentEenBestemmingInDeBronDieErgensAndersAangekoppeldIs) {
    schrijf("bron/a.c", bron);
    fs::create_directories(map_ / "bron/sub");
    fs::create_directories(map_ / "elders/diep");
    const proef::Start eigenAankoppeling{.programma = "/usr/bin/unshare"};
    const auto draaiAangekoppeld = [&](const std::string& bestemming) {
        return draai({"-m", "sh", "-c", "mount --bind elders bron/sub && exec \"$0\" -r bron -n \"$1\"",
                      KNIPSELAAR_CLI, bestemming},
                     eigenAankoppeling);
    };
    if (geteuid() != 0 ||
        draai({"-m", "mount", "--bind", "elders", "bron/sub"}, eigenAankoppeling).status != 0) {
        GTEST_SKIP() << "alleen root kan een directory elders aankoppelen";
    }
    for (const std::string bestemming : {"elders", "elders/diep", "elders/nieuw"}) {
        EXPECT_EQ(storing(bestemming + ": ligt in de bron, via bron/sub; kies een bestemming erbuiten"),
                  draaiAangekoppeld(bestemming));
    }
    EXPECT_EQ((Boom{{"diep", "/"}}), leesBoom("elders"));
}

TEST_F(CliUitvoer, SchrijftNaarDeStandaarduitvoerAlsDatMetUitGevraagdIs) {
    schrijf("a.c", bron);
    EXPECT_EQ(goed(knipsel), draai({"a.c", "--uit", "-"}));
    EXPECT_FALSE(bestaat("-"));
}

TEST_F(CliUitvoer, MeldtWatEenBestandVanEenCollegaTerPlaatseNietHoudt) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "alleen root kan een bestand van een ander maken";
    }
    constexpr uid_t ik = 65534;
    constexpr uid_t collega = 12345;
    for (const auto& [naam, groep] : {std::pair("groep.c", ik), std::pair("vreemd.c", collega)}) {
        schrijf(naam, bron);
        ASSERT_EQ(0, chown((map_ / naam).c_str(), collega, groep));
        ASSERT_EQ(0, chmod((map_ / naam).c_str(), 0664));
    }
    EXPECT_EQ(1, draai({"-s", "--alles-of-niets", "-t", "groep.c"}, {.gewoneGebruiker = true}).status);
    EXPECT_EQ(bron, lees("groep.c")) << "dan is het verlies een fout";
    EXPECT_EQ((Uitkomst{.status = 0,
                        .uit = "2 bestanden geknipt, 2 blokken, 2 waarschuwingen\n",
                        .fout = "groep.c: waarschuwing: kon eigenaar niet houden\n"
                                "vreemd.c: waarschuwing: kon eigenaar en groep niet houden\n"}),
              draai({"-vX", "-t", "groep.c", "vreemd.c"}, {.gewoneGebruiker = true}));
    struct stat kenmerken {};
    ASSERT_EQ(0, stat((map_ / "groep.c").c_str(), &kenmerken));
    EXPECT_EQ(ik, kenmerken.st_uid);
    EXPECT_EQ(ik, kenmerken.st_gid);
    EXPECT_EQ(0664U, geefRechten("groep.c"));
    EXPECT_EQ(0644U, geefRechten("vreemd.c")) << "een andere groep mag niet meer dan iedereen";
    EXPECT_EQ(knipselX, lees("vreemd.c"));
}

TEST_F(CliUitvoer, ZetTerPlaatseOokEenBestandZonderBlokOmZoalsHetVenster) {
    schrijf("a.c", "\xE9\r\n");
    EXPECT_EQ(proef::zonderBlok("1 bestand geknipt, 0 blokken\n"), draai({"-a", "-t", "a.c"}));
    EXPECT_EQ(proef::alsVenster("é\n\n"), lees("a.c"));
    schrijf("a.c", "\xE9\r\n");
    EXPECT_EQ(proef::zonderBlok("0 bestanden geknipt, 0 blokken, 1 zonder blok\n"), draai({"-t", "a.c"}));
    EXPECT_EQ("\xE9\r\n", lees("a.c"));
}
