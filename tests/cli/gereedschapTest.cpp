// Het consoleprogramma in wat zijn gebruikers al hebben: pre-commit en CMake, elk met het echte gereedschap.

#include <set>

#include "tests/cli/shell.h"

namespace fs = std::filesystem;

using hulp::Boom;
using proef::bron;
using proef::foutBron;
using proef::knipsel;
using proef::knipselX;
using proef::vervang;

namespace {

using Namen = std::set<std::string>;

class CliPrecommit : public proef::Shell {
  protected:
    /// Een repository met alleen de beschrijving van de hook, en een waarin iemand hem gebruikt.
    CliPrecommit() {
        const std::string hooks = (alles_ / "hooks").string();
        const std::string voorbeeld =
            vervang(leesVoorbeeld(".pre-commit-config.yaml"), "https://example.org/knipselaar.git", hooks);
        EXPECT_NE(std::string::npos, voorbeeld.find(hooks)) << voorbeeld;
        schrijf(".pre-commit-config.yaml", voorbeeld);
        const std::string verslag = voerScriptUit(
            "git init --quiet ../hooks; cp '" BOOM
            "/.pre-commit-hooks.yaml' ../hooks; git -C ../hooks add -A; git -C ../hooks commit --quiet -m "
            "een; git -C ../hooks tag v1.0; git init --quiet; pre-commit install");
        EXPECT_TRUE(verslag.ends_with("afloop 0\n")) << verslag;
    }

    /// Legt alles vast wat er ligt.
    std::string legVast() const { return voerScriptUit("git add -A; git commit --quiet -m nieuw"); }
};

/// Een project in een directory met een spatie, en een installatie om het pakket in te vinden.
class CliCMake : public proef::Shell, public testing::WithParamInterface<const char*> {
  protected:
    CliCMake() {
        const std::string verslag = hulp::voerUit({"cmake", "--install", BOUWMAP, "--prefix", stal_});
        EXPECT_TRUE(fs::exists(stal_ + "/lib/cmake/Knipselaar/KnipselaarConfig.cmake")) << verslag;
    }

    /// @param inhoud  achter de eerste regels, die elk project heeft.
    void schrijfProject(const std::string& inhoud) const {
        schrijf("mijn les/CMakeLists.txt",
                "cmake_minimum_required(VERSION 3.10)\nproject(les LANGUAGES NONE)\n" + inhoud);
    }

    std::string configureer(const std::string& meer = {}) const {
        return voerScriptUit("cmake -G '" + std::string(GetParam()) +
                             "' -S 'mijn les' -B 'bouw map' '-DCMAKE_PREFIX_PATH=" + stal_ + "' " + meer);
    }

    std::string bouw() const { return voerScriptUit("cmake --build 'bouw map' --target student"); }

    /// Wat er volgens de bouw gemaakt is. Hij hoort te slagen.
    Namen bouwGoed() const {
        const std::string verslag = bouw();
        EXPECT_TRUE(verslag.ends_with("afloop 0\n")) << verslag;
        const std::string wat = "Studentversie van ";
        Namen namen;
        for (const std::string& regel : leesRegels(verslag)) {
            const std::size_t plek = regel.find(wat);
            if (plek != std::string::npos) {
                namen.insert(regel.substr(plek + wat.size()));
            }
        }
        return namen;
    }

    /// Geeft een bestand een tijd na alles wat al gebouwd is. Wie het alleen schrijft, krijgt van de kern
    /// soms de tijd van enkele milliseconden eerder.
    void raakAan(const std::string& naam) const {
        fs::last_write_time(map_ / naam, fs::file_time_type::clock::now());
    }

    std::string stal_ = (alles_ / "in stal").string();
};

}  // namespace

TEST_F(CliPrecommit, HoudtEenFouteCommitTegenEnLaatEenGoedeDoor) {
    schrijf("met spatie.c", bron);
    schrijf("LEESMIJ", foutBron);
    EXPECT_NE(std::string::npos, legVast().find("Passed"));
    schrijf("fout.c", foutBron);
    const std::string verslag = legVast();
    EXPECT_NE(std::string::npos, verslag.find("\nfout.c:1: fout: beginmarker zonder eindmarker\n"))
        << verslag;
    EXPECT_TRUE(verslag.ends_with("afloop 1\n")) << verslag;
    schrijf("fout.c", "//**** STUDENT BEGIN ****//\n");
    EXPECT_NE(std::string::npos, legVast().find("fout.c:1: fout: bijna een beginmarker"));
    EXPECT_EQ("1\nafloop 0\n", voerScriptUit("git rev-list --count HEAD"));
    schrijf("fout.c", bron);
    EXPECT_NE(std::string::npos, legVast().find("Passed"));
    EXPECT_EQ("2\nafloop 0\n", voerScriptUit("git rev-list --count HEAD"));
}

TEST_F(CliPrecommit, LaatEenCommitZonderBlokkenDoor) {
    schrijf("hulp.h", "int hulp(void);\n");
    const std::string verslag = legVast();
    EXPECT_NE(std::string::npos, verslag.find("Passed")) << verslag;
    EXPECT_TRUE(verslag.ends_with("afloop 0\n")) << verslag;
}

TEST_F(CliPrecommit, KijktNaarElkeTaalEnNaarNamenDieEenOptieLijken) {
    for (const char* naam : {"a.c", "a.cpp", "a.h", "a.vhd", "a.vhdl", "-stil.c"}) {
        schrijf(naam, foutBron);
        const std::string verslag = legVast();
        EXPECT_NE(std::string::npos, verslag.find(std::string(naam) + ":1: fout: ")) << verslag;
        fs::remove(map_ / naam);
    }
}

TEST_F(CliPrecommit, NeemtEigenMarkers) {
    schrijf(".pre-commit-config.yaml",
            lees(".pre-commit-config.yaml") + "        args: [--begin, '# weg', --eind, '# terug', --]\n");
    schrijf("a.c", "# weg\nx\n");
    const std::string verslag = legVast();
    EXPECT_NE(std::string::npos, verslag.find("a.c:1: fout: beginmarker zonder eindmarker\n")) << verslag;
    schrijf("a.c", "# weg\nx\n# terug\n");
    EXPECT_NE(std::string::npos, legVast().find("Passed"));
}

TEST_P(CliCMake, MaaktAlleenWatVeranderdIs) {
    schrijfProject(leesVoorbeeld("CMakeLists.txt"));
    schrijf("mijn les/main.c", bron);
    schrijf("mijn les/lab/ringbuffer.c", bron);
    schrijf("mijn les/lab/ringbuffer.h", "voor\n");
    schrijf("mijn les/tekst.txt", "X\n");
    const Namen alles{"main.c", "lab/ringbuffer.c", "lab/ringbuffer.h"};
    const std::string verslag = configureer();
    ASSERT_TRUE(verslag.ends_with("afloop 0\n")) << verslag;
    EXPECT_EQ(alles, bouwGoed());
    EXPECT_EQ((Boom{{"main.c", knipselX},
                    {"lab", "/"},
                    {"lab/ringbuffer.c", knipselX},
                    {"lab/ringbuffer.h", "voor\n"}}),
              leesBoom("bouw map/student"));
    EXPECT_EQ(Namen{}, bouwGoed());
    raakAan("mijn les/lab/ringbuffer.c");
    EXPECT_EQ(Namen{"lab/ringbuffer.c"}, bouwGoed());
    EXPECT_EQ(Namen{}, bouwGoed());
    schrijf("mijn les/tekst.txt", "Y\n");
    raakAan("mijn les/tekst.txt");
    EXPECT_EQ(alles, bouwGoed());
    EXPECT_EQ("voor\nY\nna\n", lees("bouw map/student/main.c"));
    EXPECT_EQ(Namen{}, bouwGoed());
    if (std::string(GetParam()) == "Ninja") {
        EXPECT_NE(std::string::npos, bouw().find("ninja: no work to do.\n"));
    }
}

TEST_P(CliCMake, EenFoutHoudtDeBouwTegen) {
    schrijfProject(
        "find_package(Knipselaar 1.0 REQUIRED)\nknipselaar_student(DOEL student BRONNEN a.c NAAR student "
        "OPTIES --vervang-uit=tekst.txt)\n");
    schrijf("mijn les/a.c", bron);
    schrijf("mijn les/tekst.txt", "X\n");
    configureer();
    EXPECT_EQ(Namen{"a.c"}, bouwGoed());
    schrijf("mijn les/a.c", foutBron);
    raakAan("mijn les/a.c");
    const std::string verslag = bouw();
    EXPECT_NE(std::string::npos, verslag.find("/mijn les/a.c:1: fout: beginmarker zonder eindmarker\n"))
        << verslag;
    EXPECT_FALSE(verslag.ends_with("afloop 0\n")) << verslag;
    EXPECT_EQ(knipselX, lees("bouw map/student/a.c"));
    schrijf("mijn les/a.c", bron);
    fs::remove(map_ / "mijn les/tekst.txt");
    const std::string zonder = bouw();
    EXPECT_NE(std::string::npos, zonder.find("fout: tekst.txt: kan niet gelezen worden: ")) << zonder;
    schrijf("mijn les/tekst.txt", "Y\n");
    EXPECT_EQ(Namen{"a.c"}, bouwGoed());
    EXPECT_EQ("voor\nY\nna\n", lees("bouw map/student/a.c"));
}

TEST_P(CliCMake, NeemtNamenEnTekstenZoalsZeZijn) {
    schrijfProject(
        "find_package(Knipselaar REQUIRED)\nknipselaar_student(DOEL student BRONNEN \"met spatie (1).c\" "
        "./../los.c NAAR \"voor studenten\" OPTIES --vervang \"int x; /* \\\"\\$y\\\" */\" "
        "--markers-uit \"mijn markers (2).txt\")\n");
    schrijf("mijn les/met spatie (1).c", "# weg\ngeheim\n# terug\n");
    schrijf("los.c", "# weg\ngeheim\n# terug\n");
    schrijf("mijn les/mijn markers (2).txt", "# weg\n# terug\n");
    configureer();
    const Namen alles{"met spatie (1).c", "los.c"};
    EXPECT_EQ(alles, bouwGoed());
    const std::string tekst = "int x; /* \"$y\" */\n";
    EXPECT_EQ((Boom{{"met spatie (1).c", tekst}, {"los.c", tekst}}), leesBoom("bouw map/voor studenten"));
    EXPECT_EQ(Namen{}, bouwGoed());
    raakAan("mijn les/mijn markers (2).txt");
    EXPECT_EQ(alles, bouwGoed());
    EXPECT_EQ(Namen{}, bouwGoed());
}

TEST_P(CliCMake, ZegtWatErAanEenAanroepNietKlopt) {
    const std::vector<std::pair<std::string, std::string>> gevallen{
        {"BRONNEN a.c NAAR student", "DOEL ontbreekt"},
        {"DOEL student NAAR student", "BRONNEN ontbreekt"},
        {"DOEL student BRONNEN a.c", "NAAR ontbreekt"},
        {"anders DOEL student BRONNEN a.c NAAR student", "onbekend: anders"},
        {"DOEL student BRONNEN a.c /elders/a.c NAAR student", "twee bronnen zouden"},
        {"DOEL student BRONNEN a.c NAAR student OPTIES --vervang \"\" --streng",
         "OPTIES heeft een leeg woord"},
    };
    for (const auto& [aanroep, melding] : gevallen) {
        schrijfProject("find_package(Knipselaar REQUIRED)\nknipselaar_student(" + aanroep + ")\n");
        const std::string verslag = configureer();
        EXPECT_NE(std::string::npos, verslag.find("knipselaar_student: " + melding)) << verslag;
        EXPECT_TRUE(verslag.ends_with("afloop 1\n")) << verslag;
    }
}

TEST_P(CliCMake, ZegtWatErOntbreekt) {
    schrijfProject("find_package(Knipselaar 2.0 REQUIRED)\n");
    EXPECT_NE(std::string::npos, configureer().find("KnipselaarConfig.cmake, version: 1.0\n"));
    schrijfProject("find_package(Knipselaar REQUIRED)\n");
    fs::remove(stal_ + "/bin/knipselaar-cli");
    const std::string verslag =
        configureer("-DCMAKE_FIND_USE_SYSTEM_ENVIRONMENT_PATH=OFF -DCMAKE_FIND_USE_CMAKE_SYSTEM_PATH=OFF");
    EXPECT_NE(std::string::npos, verslag.find("knipselaar-cli is niet te vinden")) << verslag;
}

INSTANTIATE_TEST_SUITE_P(Bouwers, CliCMake, testing::Values("Ninja", "Unix Makefiles"),
                         [](const auto& bouwer) { return std::string(bouwer.param).substr(0, 4); });
