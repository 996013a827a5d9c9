// De ontleding tegen het knippen zelf: wat zij een blok noemt valt weg, en niets anders.

#include "Knipselaar/kern/ontleding.h"

#include <gtest/gtest.h>

#include <random>

#include "Knipselaar/kern/knipper.h"
#include "tests/hulp/ontleedOrakel.h"

using kern::Bevinding;
using kern::Bevindingen;
using kern::Blok;
using kern::KnipMal;
using kern::MarkerReeks;
using kern::Ontleder;
using kern::Soort;
using orakel::Ontleding;
using orakel::toon;

namespace {

/// Ontleedt een tekst uit een editor, in stukken van hoogstens zoveel regels.
Ontleding ontleed(const MarkerReeks& reeks, std::string_view tekst, std::size_t regelsPerStuk = 1000,
                  std::size_t hoogstens = Ontleder::onbeperkt) {
    Ontleding uitslag;
    Ontleder ontleder(
        reeks, [&uitslag](const Blok& blok) { uitslag.blokken.push_back(blok); }, hoogstens);
    while (tekst.find('\n') != std::string_view::npos) {
        std::size_t einde = 0;
        for (std::size_t regel = 0;
             regel < regelsPerStuk && tekst.find('\n', einde) != std::string_view::npos; ++regel) {
            einde = tekst.find('\n', einde) + 1;
        }
        ontleder.neem(tekst.substr(0, einde));
        tekst.remove_prefix(einde);
    }
    ontleder.neemStaart(tekst);
    uitslag.bevindingen = ontleder.maakAf();
    return uitslag;
}

void verwacht(const std::vector<Bevinding>& verwacht, const char* begin, const char* eind,
              std::string_view tekst) {
    const KnipMal mal({begin, eind, "V"});
    EXPECT_EQ(toon(verwacht), toon(ontleed(mal.geefMarkers(), tekst).bevindingen.lijst)) << tekst;
}

}  // namespace

TEST(Ontleding, IsBijEenGoedeTekstZonderBevindingen) {
    const KnipMal mal({"B", "E", "V"});
    const auto uitslag = ontleed(mal.geefMarkers(), "a\nB\nx\nE\nc\nB\ny\nz\nE\n");
    EXPECT_EQ("", toon(uitslag.bevindingen.lijst));
    EXPECT_EQ(2U, uitslag.bevindingen.blokken);
    EXPECT_EQ(0U, uitslag.bevindingen.open);
    ASSERT_EQ(2U, uitslag.blokken.size());
    EXPECT_EQ(2U, uitslag.blokken[0].beginNummer);
    EXPECT_EQ(4U, uitslag.blokken[0].eindNummer);
    EXPECT_EQ(2U, uitslag.blokken[0].begin.begin);
    EXPECT_EQ(4U, uitslag.blokken[0].begin.eind);
    EXPECT_EQ(6U, uitslag.blokken[0].eind.begin);
    EXPECT_EQ(8U, uitslag.blokken[0].eind.eind);
    EXPECT_EQ(6U, uitslag.blokken[1].beginNummer);
    EXPECT_EQ(9U, uitslag.blokken[1].eindNummer);
}

TEST(Ontleding, ZegtNietsVanEenLegeTekst) {
    const KnipMal mal({"", "", "V"});
    const auto uitslag = ontleed(mal.geefMarkers(), "");
    EXPECT_EQ("", toon(uitslag.bevindingen.lijst));
    EXPECT_EQ(0U, uitslag.bevindingen.blokken);
}

TEST(Ontleding, ZietWatErNietKlopt) {
    verwacht({{1, Soort::geenBlok}}, "B", "E", "a\nc\n");
    verwacht({{1, Soort::geenBlok}}, "B", "E", "a");
    verwacht({{2, Soort::leegBlok}}, "B", "E", "a\nB\nE\n");
    verwacht({{2, Soort::zonderEind}}, "B", "E", "a\nB\nx\n");
    verwacht({{1, Soort::zonderBegin}, {5, Soort::zonderBegin}}, "B", "E", "E\nB\nx\nE\nE\n");
    verwacht({{3, Soort::beginInBlok, 1, 5}, {4, Soort::beginInBlok, 1, 5}}, "B", "E", "B\nx\nB\nB\nE\n");
    verwacht({{1, Soort::zonderEind}, {2, Soort::beginInBlok, 1, 0}}, "B", "E", "B\nB\nx\n");
    verwacht({{1, Soort::geenBlok}, {2, Soort::beginZonderRegeleinde}}, "B", "E", "a\nB");
    verwacht({{1, Soort::geenBlok}, {2, Soort::eindZonderRegeleinde}}, "B", "E", "a\nE");
    verwacht({{1, Soort::zonderEind}, {3, Soort::eindZonderRegeleinde, 1, 0}}, "B", "E", "B\nx\nE");
    verwacht({{1, Soort::geenBlok}, {2, Soort::bijnaBegin}, {3, Soort::bijnaEind}, {4, Soort::bijnaBegin}},
             "// Begin", "// Eind", "x\n//begin\n# EIND\nbegin");
    verwacht({{2, Soort::bijnaEind, 1, 3}}, "// Begin", "// Eind", "// Begin\n//eind\n// Eind\n");
    // Met twee gelijke markers wisselt elke regel die past tussen begin en eind.
    verwacht({}, "X", "X", "a\nX\nb\nX\n");
    verwacht({{2, Soort::zonderEind}, {4, Soort::eindZonderRegeleinde, 2, 0}}, "X", "X", "a\nX\nb\nX");
}

TEST(Ontleding, ZegtEenmaalDatEenMarkerLeegIs) {
    verwacht({{1, Soort::beginOpElkeRegel}}, "", "E", "a\nb\nE\n");
    verwacht({{1, Soort::beginOpElkeRegel}, {4, Soort::zonderEind}}, "*", "E", "a\nb\nE\nc\nd\n");
    verwacht({{1, Soort::eindOpElkeRegel}, {2, Soort::leegBlok}}, "B", "", "a\nB\nb\nc\n");
    verwacht({{1, Soort::geenBlok}, {1, Soort::eindOpElkeRegel}}, "B", "", "a\nc\n");
    verwacht({{1, Soort::beginOpElkeRegel}, {1, Soort::eindOpElkeRegel}, {1, Soort::leegBlok}}, "", "",
             "a\nb\n");
    verwacht({{1, Soort::beginOpElkeRegel}}, "?", "E", "a\nb\nE\n");
}

TEST(Ontleding, NoemtWatEenMarkerDraagtNietBijnaEenMarker) {
    verwacht({{1, Soort::eindOpElkeRegel}, {1, Soort::zonderEind}}, "B", "", "B\nB");
    verwacht({{1, Soort::eindOpElkeRegel}, {1, Soort::zonderEind}, {2, Soort::bijnaBegin, 1, 0}}, "B", "",
             "B\nb");
    const MarkerReeks reeks({{.begin = kern::MarkerMasker(""), .eind = kern::MarkerMasker("E")},
                             {.begin = kern::MarkerMasker("B"), .eind = kern::MarkerMasker("F")}});
    EXPECT_EQ(toon({{1, Soort::beginOpElkeRegel}, {1, Soort::zonderEind}}),
              toon(ontleed(reeks, "x\nB").bevindingen.lijst));
}

TEST(Ontleding, KentMarkersDieMiddenInEenTekenVanElkaarVerschillen) {
    const auto mal = KnipMal({wxString::FromUTF8("€₫"), wxString::FromUTF8("€₭"), "V"});
    const auto uitslag = ontleed(mal.geefMarkers(), "a\n€₫\nx\n€₭\n€₭\n");
    EXPECT_EQ(1U, uitslag.blokken.size());
    EXPECT_EQ(toon({{5, Soort::zonderBegin}}), toon(uitslag.bevindingen.lijst));
}

TEST(Ontleding, HeeftDeMarkerVanHetEnePaarNietVoorBijnaDieVanHetAndere) {
    const kern::MarkerReeks reeks(
        {{.begin = kern::MarkerMasker("//Begin"), .eind = kern::MarkerMasker("//Eind")},
         {.begin = kern::MarkerMasker("--begin"), .eind = kern::MarkerMasker("--eind")}});
    Ontleder ontleder(reeks);
    ontleder.neem("//Begin\nx\n//Eind\n--begin\ny\n--eind\n##BEGIN\n");
    EXPECT_EQ(toon({{7, Soort::bijnaBegin}}), toon(ontleder.maakAf().lijst));
}

TEST(Ontleding, VindtZonderParenNiets) {
    const kern::MarkerReeks leeg;
    EXPECT_FALSE(leeg.draagtMarker("B"));
    EXPECT_FALSE(leeg.lijktOpMarker("B").has_value());
    EXPECT_FALSE(kern::Markerloper(leeg, "B\n").volgende().has_value());
}

TEST(Ontleding, RekentEenMarkerDieOpElkeRegelPastNietAlsGedragen) {
    const kern::MarkerReeks reeks({{.begin = kern::MarkerMasker("*"), .eind = kern::MarkerMasker("E")}});
    EXPECT_FALSE(reeks.draagtMarker("x"));
    EXPECT_TRUE(reeks.draagtMarker("x E"));
}

TEST(Ontleding, BewaartHoogstensZoveelEnTeltDeRest) {
    const KnipMal mal({"B", "E", "V"});
    Ontleder ontleder(
        mal.geefMarkers(), [](const Blok&) {}, 2);
    ontleder.neem("E\nE\nE\nE\nB\n");
    const Bevindingen bevindingen = ontleder.maakAf();
    EXPECT_EQ(toon({{1, Soort::zonderBegin}, {2, Soort::zonderBegin}, {5, Soort::zonderEind}}),
              toon(bevindingen.lijst))
        << "een blok dat niet eindigt staat er altijd bij";
    EXPECT_EQ(2U, bevindingen.verzwegen);
    EXPECT_EQ(1U, bevindingen.blokken);
}

TEST(Ontleding, ZegtPreciesWatHetKnippenDoet) {
    std::mt19937 toeval(7);
    const std::vector<std::string> stukken{"B", "E", "b", "x", "", " B y", "E B", "e", "\t"};
    const std::vector<std::pair<std::string, std::string>> markers{
        {"B", "E"}, {"E", "B"}, {"B", "B"}, {"", "E"}, {"B", ""}, {"", ""}, {"B*y", "?E"}, {"*", "B"}};
    const auto kies = [&toeval](std::size_t aantal) {
        return std::uniform_int_distribution<std::size_t>(0, aantal - 1)(toeval);
    };
    int metBlok = 0;
    for (int ronde = 0; ronde < 20'000; ++ronde) {
        std::string tekst;
        for (std::size_t regels = kies(9); regels > 0; --regels) {
            tekst += stukken[kies(stukken.size())] + "\n";
        }
        tekst += kies(2) == 0 ? "" : stukken[kies(stukken.size())];
        const auto& [begin, eind] = markers[kies(markers.size())];
        const KnipMal mal({begin, eind, "V\n"});
        const auto uitslag = ontleed(mal.geefMarkers(), tekst, 1 + kies(4));
        metBlok += uitslag.blokken.empty() ? 0 : 1;
        ASSERT_EQ(kern::knipTekst(tekst, mal).tekst, orakel::knipBlokken(tekst, uitslag, "V\n"))
            << tekst << "\n"
            << begin << " " << eind;
        ASSERT_EQ(uitslag.blokken.size() + (uitslag.bevindingen.open > 0 ? 1 : 0),
                  uitslag.bevindingen.blokken);
        ASSERT_TRUE(std::is_sorted(
            uitslag.bevindingen.lijst.begin(), uitslag.bevindingen.lijst.end(),
            [](const Bevinding& een, const Bevinding& ander) { return een.regel < ander.regel; }))
            << toon(uitslag.bevindingen.lijst);
        ASSERT_EQ(toon(ontleed(mal.geefMarkers(), tekst)), toon(uitslag))
            << "in hoeveel stukken maakt niet uit";
    }
    EXPECT_LT(2000, metBlok);
}

TEST(Ontleding, GaatMetMeerParenRegelVoorRegel) {
    std::mt19937 toeval(11);
    const std::vector<std::string> markers{"B",  "E",          "C",          "F",         "",    "*",  "?",
                                           "BC", "<stuk>*<in", "<stuk>*uit", "stuk>*<in", "B?E", "b#", "é"};
    const std::vector<std::string> stukken{
        "B",          "E",         "b",           "x",          "C", "F", "",   "B E", "BC",       "BxE",
        "<stuk><in>", "<stuk>uit", "<stuk> <in ", "#STUK> uit", "e", "f", "/b", "É",   "x <stuk>", "\t"};
    const auto kies = [&toeval](std::size_t aantal) {
        return std::uniform_int_distribution<std::size_t>(0, aantal - 1)(toeval);
    };
    int metMeer = 0;
    for (int ronde = 0; ronde < 20'000; ++ronde) {
        std::vector<kern::Markerpaar> paren;
        const std::size_t soorten = kies(4) == 0 ? markers.size() : 4;
        for (std::size_t aantal = 1 + kies(4); paren.size() < aantal;) {
            const auto kiesMarker = [&] { return wxString::FromUTF8(markers[kies(soorten)]); };
            paren.push_back(
                {.begin = kern::MarkerMasker(kiesMarker()), .eind = kern::MarkerMasker(kiesMarker())});
        }
        std::string tekst;
        for (std::size_t regels = kies(12); regels > 0; --regels) {
            tekst += stukken[kies(stukken.size())] + "\n";
        }
        tekst += stukken[kies(stukken.size())];
        const std::size_t hoogstens = kies(2) == 0 ? Ontleder::onbeperkt : kies(5);
        const MarkerReeks reeks(paren);
        const auto uitslag = ontleed(reeks, tekst, 1 + kies(4), hoogstens);
        metMeer += paren.size() > 1 && !uitslag.blokken.empty() ? 1 : 0;
        ASSERT_EQ(toon(orakel::ontleed(tekst, orakel::Staart::regel, paren, hoogstens)), toon(uitslag))
            << tekst;
    }
    EXPECT_LT(2000, metMeer);
}
