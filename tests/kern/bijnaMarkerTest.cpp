#include "Knipselaar/kern/bijnaMarker.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

using kern::BijnaMarker;
using kern::BijnaZoeker;

namespace {

const wxString standaard = "//**** Student Begin ****//";

using Plekken = std::vector<std::size_t>;

/// Waar de regels beginnen die op een marker lijken, van zoeken naar zoeken.
Plekken zoekAlle(const BijnaZoeker& zoeker, std::string_view regels) {
    Plekken plekken;
    for (auto regel = zoeker.zoekRegel(regels, 0); regel; regel = zoeker.zoekRegel(regels, regel->eind)) {
        if (zoeker.geefMarker(regels.substr(regel->begin, regel->eind - 1 - regel->begin))) {
            plekken.push_back(regel->begin);
        }
    }
    return plekken;
}

/// Dezelfde, regel voor regel.
Plekken zoekPerRegel(const BijnaZoeker& zoeker, std::string_view regels) {
    Plekken plekken;
    std::size_t begin = 0;
    for (std::size_t einde = 0; (einde = regels.find('\n', begin)) != std::string_view::npos;
         begin = einde + 1) {
        if (zoeker.geefMarker(regels.substr(begin, einde - begin))) {
            plekken.push_back(begin);
        }
    }
    return plekken;
}

}  // namespace

TEST(BijnaMarker, LijktOpHoofdlettersBlancoTekensEnVierTekensNa) {
    const BijnaMarker marker(standaard);
    for (const char* regel :
         {"//**** Student Begin ****//", "//**** student begin ****//", "STUDENTBEGIN", "Student Begin",
          "  /**** Student  Begin ****/", "#Student\tBegin", "-- student begin --",
          "s*t/u-d#e n\tt\v\f\rbegin", "\u00A0student\u00A0begin"}) {
        EXPECT_TRUE(marker.lijkt(regel)) << regel;
    }
    for (const char* regel :
         {"", "//**** ****//", "student", "student begi", "student begint", "x student begin",
          "student begin;", "student_begin", "student bégin", "\u00A0", "studentbeginé"}) {
        EXPECT_FALSE(marker.lijkt(regel)) << regel;
    }
}

TEST(BijnaMarker, VergelijktOokHoofdlettersBuitenAscii) {
    const BijnaMarker marker(wxString::FromUTF8("// Één ÉÉN"));
    EXPECT_TRUE(marker.lijkt("één één"));
    EXPECT_TRUE(marker.lijkt("# ÉÉN één"));
    EXPECT_FALSE(marker.lijkt("een een"));
    const BijnaMarker maal(wxString::FromUTF8("3×4"));
    EXPECT_TRUE(maal.lijkt("3 × 4"));
    EXPECT_FALSE(maal.lijkt("3÷4")) << "het maalteken is geen hoofdletter";
}

TEST(BijnaMarker, LijktNietsOpEenMarkerZonderHoofdzaak) {
    for (const char* leeg : {"", "*", "/*-# ", "??", "*?*"}) {
        const BijnaMarker marker(leeg);
        EXPECT_EQ("", marker.geefKern()) << leeg;
        for (const char* regel : {"", " ", "/*", "x", "??", "\u00A0"}) {
            EXPECT_FALSE(marker.lijkt(regel)) << leeg << " " << regel;
        }
    }
}

TEST(BijnaZoeker, VindtDeEersteRegelVanafEenPlaats) {
    const BijnaZoeker zoeker({BijnaMarker("Begin"), BijnaMarker("-- Eind"), BijnaMarker("")});
    const std::string_view regels = "x\n\n  // begin\nbeginne\n\t# EIND\n/**\nbegin";
    const auto eerste = zoeker.zoekRegel(regels, 0);
    ASSERT_TRUE(eerste);
    EXPECT_EQ("  // begin\n", regels.substr(eerste->begin, eerste->eind - eerste->begin));
    const auto tweede = zoeker.zoekRegel(regels, eerste->eind);
    ASSERT_TRUE(tweede);
    EXPECT_EQ("\t# EIND\n", regels.substr(tweede->begin, tweede->eind - tweede->begin));
    EXPECT_FALSE(zoeker.zoekRegel(regels, tweede->eind)) << "de laatste regel heeft geen regeleinde";
    EXPECT_FALSE(zoeker.zoekRegel("", 0));
    EXPECT_FALSE(zoeker.zoekRegel("x\n /*", 0));
    EXPECT_EQ(0U, zoeker.geefMarker("BEGIN"));
    EXPECT_EQ(1U, zoeker.geefMarker("eind"));
    EXPECT_FALSE(zoeker.geefMarker("begin eind"));
}

TEST(BijnaZoeker, VindtElkeSchrijfwijze) {
    const BijnaZoeker zoeker({BijnaMarker(standaard), BijnaMarker("B")});
    for (const std::string regel :
         {"STUDENTBEGIN", "S tudent begin", "  s*t/u-d#e n\tt\v\f\rbegin", "s\u00A0tudent begin",
          "\u00A0student begin", "b", "#B", "b*", "b\u00A0"}) {
        EXPECT_TRUE(zoeker.zoekRegel("x\n" + regel + "\n", 0)) << regel;
    }
    for (const std::string regel : {"", "s", "som", "stop", "bb", "bé", "/*"}) {
        EXPECT_EQ(Plekken(), zoekAlle(zoeker, "x\n" + regel + "\n")) << regel;
    }
}

TEST(BijnaZoeker, SlaatGewoneRegelsOver) {
    const BijnaZoeker zoeker({BijnaMarker(standaard), BijnaMarker("//**** Student Eind ****//")});
    for (const std::string regel : {"static int i", "  student = begin;", "// stop", "s", "-- een eind",
                                    "/****/", "// één begin", "é", "é n"}) {
        EXPECT_FALSE(zoeker.zoekRegel("x\n" + regel + "\n", 0)) << regel;
    }
}

TEST(BijnaZoeker, ZoektAlsRegelVoorRegel) {
    std::mt19937 toeval(13);  // NOLINT(cert-msc51-cpp): elke loop van de test zoekt hetzelfde
    const auto kies = [&toeval](std::size_t aantal) { return toeval() % aantal; };
    const auto reeks = [](const std::vector<const char*>& markers) {
        std::vector<BijnaMarker> bijna;
        for (const char* marker : markers) {
            bijna.emplace_back(wxString::FromUTF8(marker));
        }
        return BijnaZoeker(bijna);
    };
    const std::vector<BijnaZoeker> zoekers{reeks({"// Ab", "// aC"}),
                                           reeks({"b"}),
                                           reeks({"", "??", "C"}),
                                           reeks({"aéb", "ba"}),
                                           reeks({"Éa", "c\nb"}),
                                           reeks({"é", "ß"}),
                                           reeks({"a", "b", "c", "?a"}),
                                           reeks({"\nab", "_B", "0c", "\x10"}),
                                           reeks({"", "*"}),
                                           reeks({")a", "+b", ",", "\x03x"}),
                                           reeks({"kk", "a\u00A0b"})};
    const std::vector<std::string> stukjes{
        "a",      "A",    "b",    "B",    "c",      "C",      "k",    "?",    "_",    "0",
        "x",      " ",    "\t",   "\v",   "\f",     "\r",     ")",    "+",    ",",    "\x03",
        ")a",     "\t\n", "\f\n", ", ",   "/",      "*",      "-",    "#",    "\n",   "\n",
        "\n",     "\n",   "é",    "É",    "\u00A0", "\u212A", "\xE9", "\xA0", "ß",    std::string(1, '\0'),
        "\x7F",   "\x10", "\x01", "\x02", "A ",     "a/b",    "  ",   "//  ", "ab\n", "\n// ab\n",
        "\nAéb\n"};
    std::size_t gevonden = 0;
    for (int keer = 0; keer < 40'000; ++keer) {
        // Met weinig verschillende stukjes staat er eerder iets wat lijkt.
        std::vector<std::string> alfabet{"\n"};
        for (std::size_t aantal = 1 + kies(8); aantal > 0; --aantal) {
            alfabet.push_back(stukjes[kies(stukjes.size())]);
        }
        std::string regels;
        for (std::size_t aantal = kies(120); aantal > 0; --aantal) {
            regels += alfabet[kies(alfabet.size())];
        }
        const BijnaZoeker& zoeker = zoekers[kies(zoekers.size())];
        const Plekken verwacht = zoekPerRegel(zoeker, regels);
        ASSERT_EQ(verwacht, zoekAlle(zoeker, regels)) << keer << ": " << testing::PrintToString(regels);
        gevonden += verwacht.size();
    }
    EXPECT_GT(gevonden, 10'000U) << "er moet iets te vinden zijn";
}

TEST(BijnaZoeker, KijktNietVoorbijHetEinde) {
    const BijnaZoeker zoeker({BijnaMarker("ab"), BijnaMarker("c")});
    const std::string geheel = std::string(40, ' ') + "ab\nc\nab\n";
    for (std::size_t begin = 0; begin <= geheel.size(); ++begin) {
        for (std::size_t eind = begin; eind <= geheel.size(); ++eind) {
            // Een eigen kopie: erachter is dan ook niets te lezen.
            const std::vector<char> deel(geheel.begin() + static_cast<std::ptrdiff_t>(begin),
                                         geheel.begin() + static_cast<std::ptrdiff_t>(eind));
            const std::string_view regels(deel.data(), deel.size());
            ASSERT_EQ(zoekPerRegel(zoeker, regels), zoekAlle(zoeker, regels)) << begin << " " << eind;
        }
    }
}

TEST(BijnaZoeker, KijktNietVoorbijHetBeginVanEenRegelMetAlleenBijzaken) {
    // Met het bit dat een kleine letter maakt is een tab een haakje, een formfeed een komma, 0x03 een hekje.
    for (const auto& [marker, bijzaak] :
         {std::pair{")x", "\t"}, {",x", "\f"}, {"+x", "\v"}, {"\x03x", "#"}}) {
        const BijnaZoeker zoeker({BijnaMarker(marker)});
        for (const char* regel : {"", " "}) {
            const std::string geheel = std::string("x") + bijzaak + regel + "\n";
            EXPECT_FALSE(zoeker.zoekRegel(std::string_view(geheel).substr(1), 0)) << marker;
        }
    }
}

TEST(BijnaZoeker, BlijftEvenredigMetDeTekst) {
    const BijnaZoeker zoeker({BijnaMarker("ab"), BijnaMarker(wxString::FromUTF8("é"))});
    constexpr std::size_t keren = 500'000;
    for (const std::string stukje :
         {" ", "/", "a", "a ", " a", "é", " é", " \u00A0", "\xE9 ", "ab ", "x", "a\n", "é\n"}) {
        std::string regels;
        for (std::size_t keer = 0; keer < keren; ++keer) {
            regels += stukje;
        }
        const std::size_t verwacht = stukje == "é\n" ? keren : 0;
        EXPECT_EQ(verwacht, zoekAlle(zoeker, regels).size()) << stukje;
        EXPECT_EQ(verwacht, zoekAlle(zoeker, regels + "\n").size()) << stukje;
    }
}
