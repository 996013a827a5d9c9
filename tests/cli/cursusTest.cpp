// De voorbeeldcursus: make maakt er twee versies van, die allebei te vertalen zijn.

#include <sstream>

#include "tests/cli/proef.h"
#include "tests/hulp/opdracht.h"

namespace fs = std::filesystem;

using hulp::Boom;

namespace {

/// Wat er van een bron hoort te komen, regel voor regel.
struct Versies {
    std::string student;
    std::string oplossing;
};

Versies maakVersies(const std::string& bron) {
    const std::string geef = "//GEEF ";
    Versies versies;
    std::istringstream regels(bron);
    bool inBlok = false;
    for (std::string regel; std::getline(regels, regel);) {
        const std::size_t begin = regel.find_first_not_of(' ');
        const bool isGeef = begin != std::string::npos && regel.compare(begin, geef.size(), geef) == 0;
        if (regel.ends_with("//**** Student Begin ****//") || regel.ends_with("//**** Student Eind ****//")) {
            inBlok = regel.ends_with("//**** Student Begin ****//");
        } else if (!inBlok) {
            versies.student += regel + "\n";
            versies.oplossing += regel + "\n";
        } else if (isGeef) {
            versies.student += regel.erase(begin, geef.size()) + "\n";
        } else {
            versies.oplossing += regel + "\n";
        }
    }
    return versies;
}

class CliCursus : public proef::Cli {
  protected:
    CliCursus() {
        fs::copy(fs::path(VOORBEELDEN) / "cursus", map_ / "cursus", fs::copy_options::recursive);
        fs::create_directory(alles_ / "bin");
        fs::create_symlink(proef::geefProgramma(), alles_ / "bin/knipselaar-cli");
    }

    /// Voert een opdracht uit in de cursus; de uitvoer met het foutkanaal, en de afloop als laatste regel.
    std::string voerUit(const std::string& opdracht) const {
        return hulp::voerUit({"sh", "-c",
                              "cd '" + (map_ / "cursus").string() + "' && PATH='" +
                                  (alles_ / "bin").string() + "':$PATH && " + opdracht +
                                  " 2>&1; echo \"afloop $?\""});
    }
};

}  // namespace

TEST_F(CliCursus, MakeMaaktTweeVersies) {
    schrijf("cursus/bron/stapel/stapel.o", "gebouwd");
    schrijf("cursus/bron/bouw/stapel", "gebouwd");
    Boom student;
    Boom oplossing;
    for (const auto& [pad, bron] : leesBoom("cursus/bron")) {
        if (!pad.ends_with(".o") && !pad.starts_with("bouw")) {
            const bool isBestand = fs::is_regular_file(map_ / "cursus/bron" / pad);
            student[pad] = isBestand ? maakVersies(bron).student : bron;
            oplossing[pad] = isBestand ? maakVersies(bron).oplossing : bron;
        }
    }
    const std::string uitvoer = voerUit("make");
    EXPECT_NE(std::string::npos,
              uitvoer.find("3 bestanden geknipt, 5 blokken, alle proeven gelukt, bewezen schoon\n"))
        << uitvoer;
    EXPECT_NE(std::string::npos,
              uitvoer.find("3 bestanden geknipt, 5 blokken, alle proeven gelukt\nafloop 0\n"))
        << uitvoer;
    EXPECT_EQ(student, leesBoom("cursus/student"));
    EXPECT_EQ(oplossing, leesBoom("cursus/oplossing"));
}

TEST_F(CliCursus, DeOpgaveEnDeUitwerkingDoenHet) {
    const auto vertaal = [this](const std::string& versie) {
        return voerUit("make -s " + versie + " >../uitvoer 2>&1 && gcc -I" + versie + "/stapel " + versie +
                       "/stapel/stapel.c " + versie + "/haakjes/haakjes.c -o programma && ./programma");
    };
    EXPECT_EQ("fout bij \"\"\nfout bij \"f(a[1], {2})\"\n2 fout(en)\nafloop 1\n", vertaal("student"))
        << lees("uitvoer");
    EXPECT_EQ("0 fout(en)\nafloop 0\n", vertaal("oplossing")) << lees("uitvoer");
}

TEST_F(CliCursus, MeldtAlsEenOpgaveNietMeerTeVertalenIs) {
    schrijf("cursus/bron/stapel/meer.c",
            "int meer(void)\n{\n    //**** Student Begin ****//\n    //GEEF return\n    return 1;\n    "
            "//**** Student "
            "Eind ****//\n}\n");
    const std::string uitvoer = voerUit("make student");
    EXPECT_NE(std::string::npos, uitvoer.find("student/stapel/meer.c: fout: de proef mislukt (afloop 1): "))
        << uitvoer;
    EXPECT_NE(std::string::npos, uitvoer.find("student/stapel/meer.c:4:")) << uitvoer;
    EXPECT_NE(std::string::npos, uitvoer.find("1 proef mislukt, niet bewezen\n")) << uitvoer;
}
