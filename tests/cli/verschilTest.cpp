// --verschil: wat eruit komt is precies wat "patch" nodig heeft om van het bestand het knipsel te maken.

#include <random>

#include "KnipselaarCli/verschil.h"
#include "tests/cli/proef.h"
#include "tests/hulp/opdracht.h"

namespace fs = std::filesystem;

using namespace std::string_literals;

using proef::bron;
using proef::goed;
using proef::knipselX;
using proef::Uitkomst;
using proef::Woorden;

namespace {

class CliVerschil : public proef::Cli {
  protected:
    /// Voert "patch" uit met dit verschil; geeft of dat zonder morren ging.
    bool plak(const std::string& verschil) const {
        hulp::schrijfBestand(alles_ / "verschil", verschil);
        const std::string verslag =
            hulp::voerUit({"sh", "-c", "cd '" + map_.string() + "' && patch --binary -p0 < ../verschil"});
        return !verslag.empty() && verslag.find("fuzz") == std::string::npos &&
               verslag.find("offset") == std::string::npos;
    }

    /// Of het verschil van een bestand in deze manier bij hetzelfde uitkomt als knippen.
    void keur(const std::string& naam, const std::string& inhoud, const Woorden& opties) const {
        schrijf(naam, inhoud);
        Woorden woorden = opties;
        woorden.push_back(naam);
        const Uitkomst geknipt = draai(woorden);
        ASSERT_EQ(0, geknipt.status) << geknipt.fout;
        woorden.insert(woorden.begin(), "--verschil");
        const Uitkomst verschil = draai(woorden);
        ASSERT_EQ(0, verschil.status) << verschil.fout;
        EXPECT_EQ(inhoud, lees(naam)) << "er wordt niets geschreven";
        if (geknipt.uit == inhoud) {
            EXPECT_EQ("", verschil.uit);
            return;
        }
        ASSERT_TRUE(plak(verschil.uit)) << verschil.uit;
        EXPECT_EQ(geknipt.uit, lees(naam)) << verschil.uit;
    }
};

std::string naarUtf16(const std::string& ascii) {
    std::string bytes = "\xFF\xFE";
    for (const char teken : ascii) {
        bytes += {teken, '\0'};
    }
    return bytes;
}

}  // namespace

TEST_F(CliVerschil, IsEenGewoonVerschil) {
    schrijf("a.c", "1\n2\n3\n4\n" + bron + "5\n6\n7\n8\n9\n");
    EXPECT_EQ(
        goed("--- a.c\t\n+++ a.c\t\n@@ -3,9 +3,7 @@\n 3\n 4\n voor\n-//**** Student Begin ****//\n-geheime "
             "oplossing\n-//**** Student Eind ****//\n+X\n na\n 5\n 6\n"),
        draai({"--verschil", "-vX", "a.c"}));
}

TEST_F(CliVerschil, NeemtElkGevalInElkeManier) {
    std::string ver = bron;
    for (int i = 0; i < 30; ++i) {
        ver += "regel " + std::to_string(i) + "\n";
    }
    const std::vector<std::string> inhouden{
        bron,
        bron + bron + ver + bron,
        "//**** Student Begin ****//\nx\n//**** Student Eind ****//",
        "//**** Student Begin ****//\nx\n//**** Student Eind ****//\n",
        "a\n//**** Student Begin ****//\n//**** Student Eind ****//\nb",
        "zonder blok en zonder einde",
        "a\r\n//**** Student Begin ****//\r\nx\r\n//**** Student Eind ****//\r\nb\r\n",
        "a\r//**** Student Begin ****//\rx\r//**** Student Eind ****//\rb\nc\nd\n",
        "a\n//**** Student Begin ****//\rx\n//**** Student Eind ****//\nb\n\nc\n",
        "\xE9\n" + bron + "\xE8",
        "\xEF\xBB\xBF" + bron,
        "\xEF\xBB\xBF//**** Student Begin ****//\nx\n//**** Student Eind ****//\nna\n",
        "",
    };
    for (const std::string& inhoud : inhouden) {
        for (const Woorden& opties : {Woorden{"-v", "X"}, Woorden{"-v", ""}, Woorden{"-a", "-v", "X\nY\n"}}) {
            keur("a.c", inhoud, opties);
        }
    }
}

TEST_F(CliVerschil, VoegtSamenWatDichtBijElkaarLigt) {
    const auto telStukken = [this](const std::string& ertussen) {
        const std::string verschil = draai({"-D", "-vX", "-"}, {.invoer = bron + ertussen + bron}).uit;
        std::size_t aantal = 0;
        for (std::size_t plek = 0; (plek = verschil.find("\n@@ -", plek)) != std::string::npos; ++plek) {
            ++aantal;
        }
        return aantal;
    };
    EXPECT_EQ(1U, telStukken("1\n2\n3\n4\n")) << "zes regels ertussen";
    EXPECT_EQ(2U, telStukken("1\n2\n3\n4\n5\n"));
}

TEST_F(CliVerschil, NeemtUtf16) {
    keur("a.c", naarUtf16("a\n//**** Student Begin ****//\nx\n//**** Student Eind ****//\nb\n"), {"-v", "X"});
    keur("a.c", naarUtf16("a\n//**** Student Begin ****//\nx\n//**** Student Eind ****//\nb"),
         {"-a", "-v", "X"});
}

TEST_F(CliVerschil, NeemtNamenMetSpatiesEnVreemdeTekens) {
    for (const std::string naam :
         {"met spatie.c", "één.c", "sub/a b.c", "tab\ten\"aanhaling.c", "schuin\\.c"}) {
        keur(naam, bron, {"-v", "X"});
    }
}

TEST_F(CliVerschil, GaatEenBoomAfOpVolgorde) {
    schrijf("boom/b.c", bron);
    schrijf("boom/a.c", bron);
    schrijf("boom/sub/c.vhd", bron);
    schrijf("boom/d.c", "zonder blok");
    const Uitkomst verschil = draai({"-D", "-r", "-vX", "boom"});
    EXPECT_EQ(0, verschil.status);
    EXPECT_LT(verschil.uit.find("--- boom/a.c"), verschil.uit.find("--- boom/b.c"));
    EXPECT_LT(verschil.uit.find("--- boom/b.c"), verschil.uit.find("--- boom/sub/c.vhd"));
    ASSERT_TRUE(plak(verschil.uit));
    EXPECT_EQ((hulp::Boom{{"a.c", knipselX},
                          {"b.c", knipselX},
                          {"d.c", "zonder blok"},
                          {"sub", "/"},
                          {"sub/c.vhd", knipselX}}),
              leesBoom("boom"));
    EXPECT_EQ(proef::zonderBlok(), draai({"-D", "-r", "-vX", "boom"}));
}

TEST_F(CliVerschil, MeldtOokHierDeFouten) {
    schrijf("a.c", "//**** Student Begin ****//\nx\n");
    EXPECT_EQ((Uitkomst{.status = 1, .uit = {}, .fout = "a.c:1: fout: beginmarker zonder eindmarker\n"}),
              draai({"--verschil", "a.c"}));
    EXPECT_EQ(0U, draai({"--verschil", "-vX", "-"}, {.invoer = bron}).uit.find("--- standaardinvoer\t\n"));
}

TEST_F(CliVerschil, NeemtToevalligeWijzigingen) {
    std::mt19937 toeval(3);  // NOLINT(cert-msc51-cpp): elke loop van de test maakt dezelfde wijzigingen
    for (int ronde = 0; ronde < 150; ++ronde) {
        std::string oud;
        for (auto i = toeval() % 120; i > 0; --i) {
            oud += toeval() % 5 == 0 ? '\n' : static_cast<char>('a' + toeval() % 3);
        }
        std::vector<cli::Wijziging> wijzigingen;
        std::string nieuw;
        std::size_t plek = 0;
        for (std::size_t begin = toeval() % 20; begin <= oud.size(); begin += 1 + toeval() % 30) {
            if (begin < plek) {
                continue;
            }
            const std::size_t eind = std::min<std::size_t>(oud.size(), begin + toeval() % 12);
            static const std::vector<std::string> teksten{"", "X\n", "Y", "\n", "P\nQ\n"};
            wijzigingen.push_back(
                {.begin = begin, .eind = eind, .nieuw = teksten[toeval() % teksten.size()]});
            nieuw += oud.substr(plek, begin - plek);
            nieuw += wijzigingen.back().nieuw;
            plek = eind;
        }
        nieuw += oud.substr(plek);
        if (nieuw == oud || nieuw.empty() || oud.empty()) {
            continue;
        }
        schrijf("a.c", oud);
        ASSERT_TRUE(plak(cli::maakVerschil("a.c", oud, wijzigingen))) << hulp::toonBytes(oud);
        ASSERT_EQ(nieuw, lees("a.c")) << hulp::toonBytes(oud);
    }
}
