// De hulp, de handleiding en de man-pagina's noemen dezelfde opties: elke, en geen andere. Wat de shells
// aanvullen staat in aanvullingTest.

#include <regex>
#include <set>

#include "KnipselaarCli/optielijst.h"
#include "tests/cli/shell.h"

using proef::Woorden;

namespace {

using Namen = std::set<std::string>;

/// Elke optie als "-u --uit WAARDE", in de volgorde van de lijst.
Woorden geefOpties() {
    Woorden uit;
    for (const cli::Optie& optie : cli::geefAlleOpties()) {
        uit.push_back((*optie.kort == '\0' ? std::string() : std::string("-") + optie.kort + " ") + "--" +
                      optie.lang + (optie.heeftWaarde() ? " WAARDE" : ""));
    }
    return uit;
}

Namen geefLangeNamen() {
    Namen uit;
    for (const cli::Optie& optie : cli::geefAlleOpties()) {
        uit.insert(std::string("--") + optie.lang);
    }
    return uit;
}

class CliOptielijsten : public proef::Shell {
  protected:
    /// Wat er in een tekst als optie omschreven wordt.
    /// @param patroon  met de korte naam, de lange naam en de waarde als groepen.
    static Woorden zoekOmschreven(const std::string& tekst, const char* patroon) {
        Woorden uit;
        const std::regex regel(patroon);
        for (std::sregex_iterator vondst(tekst.begin(), tekst.end(), regel), einde; vondst != einde;
             ++vondst) {
            uit.push_back(((*vondst)[1].matched ? "-" + (*vondst)[1].str() + " " : std::string()) + "--" +
                          (*vondst)[2].str() + ((*vondst)[3].matched ? " WAARDE" : ""));
        }
        return uit;
    }

    /// Elke lange optie die een tekst van dit programma noemt.
    static Namen zoekGenoemd(const std::string& tekst) {
        Namen uit;
        const std::regex naam("--[a-z][a-z-]*");
        for (std::sregex_iterator vondst(tekst.begin(), tekst.end(), naam), einde; vondst != einde;
             ++vondst) {
            uit.insert(vondst->str());
        }
        return uit;
    }

    static Namen zonder(Namen namen, const Namen& weg) {
        for (const std::string& naam : weg) {
            namen.erase(naam);
        }
        return namen;
    }
};

}  // namespace

TEST_F(CliOptielijsten, DeHulp) {
    const std::string hulp = draai({"--help"}).uit;
    EXPECT_EQ(geefOpties(), zoekOmschreven(hulp, R"re(\n  (?:-(\w), |    )--([a-z-]+)( [A-Z]+)?(?= ))re"));
    EXPECT_EQ(Namen{}, zonder(zoekGenoemd(hulp), geefLangeNamen()));
}

TEST_F(CliOptielijsten, DeHandleiding) {
    const std::string handleiding = hulp::leesBestand(BOOM "/docs/handleiding-cli.md");
    // In een tabel mogen op één regel meer opties staan, met een komma ertussen.
    std::string tabellen;
    for (const std::string& regel : leesRegels(handleiding)) {
        tabellen += regel.starts_with("| `-") ? regel.substr(0, regel.find(" |", 2)) + "\n" : "";
    }
    EXPECT_EQ(geefOpties(), zoekOmschreven(tabellen, R"re((?:`-(\w)`, )?`--([a-z-]+)( [A-Z]+)?`)re"));
    // Wat andere programma's in de voorbeelden krijgen.
    const Namen vanAnderen{"--binary", "--build", "--cached", "--diff-filter", "--quiet",
                           "--prefix", "--short", "--stdin",  "--target",      "--all"};
    EXPECT_EQ(Namen{}, zonder(zonder(zoekGenoemd(handleiding), geefLangeNamen()), vanAnderen));
}

TEST_F(CliOptielijsten, DeManPaginas) {
    for (const char* pad : {BOOM "/docs/man/knipselaar-cli.1", BOOM "/docs/man/nl/knipselaar-cli.1"}) {
        const std::string pagina = hulp::leesBestand(pad);
        const std::string kaal = std::regex_replace(pagina, std::regex(R"(\\f[BIR]|\\(?=-))"), "");
        EXPECT_EQ(geefOpties(),
                  zoekOmschreven(kaal, R"re(\n\.TP\n(?:-(\w), )?--([a-z-]+)( [A-Z]+)?(?=\n))re"))
            << pad;
        // Wat de pagina van "patch" zegt.
        EXPECT_EQ(Namen{}, zonder(zonder(zoekGenoemd(kaal), geefLangeNamen()), {"--binary"})) << pad;
    }
}

TEST_F(CliOptielijsten, DeAanvullingen) {
    EXPECT_EQ(geefOpties(),
              zoekOmschreven(hulp::leesBestand(BOOM "/gegevens/knipselaar-cli.fish"),
                             R"re(\ncomplete -c knipselaar-cli(?: -s (\w))? -l ([a-z-]+)( -[rx])?)re"));
    // Een optie met een korte naam is "{-u+,--uit=}", een zonder "--houd=[".
    EXPECT_EQ(geefOpties(), zoekOmschreven(hulp::leesBestand(BOOM "/gegevens/_knipselaar-cli"),
                                           R"re(\n  '\*?(?:[^'{]*'\{-(\w)\+?,)?--([a-z-]+)(=)?[\[}])re"));
}
