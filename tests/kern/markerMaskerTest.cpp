#include "Knipselaar/kern/markerMasker.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/hulp/bestanden.h"

using kern::MarkerMasker;

namespace {

bool past(const char* marker, std::string_view regel) {
    return MarkerMasker(wxString::FromUTF8(marker)).past(regel);
}

std::string kiesTekens(std::mt19937& toeval, std::string_view alfabet, std::size_t hoogstens) {
    std::string tekst(toeval() % (hoogstens + 1), ' ');
    for (char& teken : tekst) {
        teken = alfabet[toeval() % alfabet.size()];
    }
    return tekst;
}

}  // namespace

TEST(MarkerMasker, ZietDeSterrenVanDeStandaardmarkerAlsJokers) {
    const char* marker = "//**** Student Begin ****//";
    EXPECT_TRUE(past(marker, "//**** Student Begin ****//"));
    EXPECT_TRUE(past(marker, "// Student Begin //"));
    EXPECT_TRUE(past(marker, "//******* Student Begin *//"));
    EXPECT_TRUE(past(marker, "  x = 1; // hier Student Begin en verder // meer tekst"));
    EXPECT_FALSE(past(marker, "/**** Student Begin ****//"));
    EXPECT_FALSE(past(marker, "//**** Student Begin"));
    EXPECT_FALSE(past(marker, "//**** student begin ****//"));
    EXPECT_FALSE(past(marker, "//****Student Begin****//"));
    EXPECT_FALSE(past(marker, " Student Begin //"));
}

TEST(MarkerMasker, VindtDeMarkerOveralInDeRegel) {
    EXPECT_TRUE(past("knip", "voor knip achter"));
    EXPECT_TRUE(past("knip", "knip"));
    EXPECT_FALSE(past("knip", "Knip"));
}

TEST(MarkerMasker, LaatEenLegeMarkerOpElkeRegelPassen) {
    EXPECT_TRUE(past("", ""));
    EXPECT_TRUE(past("", "wat dan ook"));
    EXPECT_TRUE(past("*", ""));
}

TEST(MarkerMasker, VolgtDeToolkitBijEenVraagteken) {
    EXPECT_TRUE(past("a?c", "xabcx"));
    EXPECT_FALSE(past("a?c", "ac"));
    EXPECT_TRUE(past("?x", "x")) << "een ? direct na een * telt niet";
    EXPECT_FALSE(past("a?b", "acc aXb")) << "na een mislukte ? zoekt de toolkit niet verder";
    EXPECT_TRUE(past("a?", "aé"));
    EXPECT_TRUE(past("a?b", "aéb"));
}

TEST(MarkerMasker, VergelijktTekensBuitenAscii) {
    EXPECT_TRUE(past("één", "dit is één regel"));
    EXPECT_FALSE(past("één", "dit is een regel"));
}

TEST(MarkerMasker, LaatEenRegelMetNulNietPassen) {
    EXPECT_FALSE(past("a", std::string_view("a\0b", 3)));
    EXPECT_FALSE(past("b", std::string_view("a\0b", 3)));
}

TEST(MarkerMasker, ZoektDeEersteRegelDiePast) {
    const std::string_view regels = "een\ntwee knip\ndrie knip\n";
    const MarkerMasker masker("knip");
    const auto eerste = masker.zoekRegel(regels, 0);
    ASSERT_TRUE(eerste);
    EXPECT_EQ(4U, eerste->begin);
    EXPECT_EQ(14U, eerste->eind);
    const auto tweede = masker.zoekRegel(regels, eerste->eind);
    ASSERT_TRUE(tweede);
    EXPECT_EQ(14U, tweede->begin);
    EXPECT_EQ(24U, tweede->eind);
    EXPECT_FALSE(masker.zoekRegel(regels, 24));
}

TEST(MarkerMasker, SlaatEenRegelZonderRegeleindeOver) {
    EXPECT_FALSE(MarkerMasker("knip").zoekRegel("een\nknip", 0));
    EXPECT_FALSE(MarkerMasker("").zoekRegel("een", 0));
}

TEST(MarkerMasker, ZoektGeenMarkerOverTweeRegels) {
    EXPECT_FALSE(MarkerMasker("a*b").zoekRegel("a\nb\n", 0));
    EXPECT_FALSE(MarkerMasker("a\nb").zoekRegel("a\nb\n", 0));
}

// Het antwoord is dat van wxString::Matches, wat de marker en de regel ook zijn. Het kleine alfabet maakt dat
// jokers en bijna-treffers vaak voorkomen.
TEST(MarkerMasker, BeslistAlsDeToolkit) {
    std::mt19937 toeval(20261120);  // NOLINT(cert-msc51-cpp): vaste reeks, zodat een fout te herhalen is
    int treffers = 0;
    for (int i = 0; i < 200000; ++i) {
        const std::string marker = kiesTekens(toeval, "ab*?", 6);
        const std::string regel = kiesTekens(toeval, "abc", 10);
        const wxString wxRegel = wxString::FromUTF8(regel);
        const bool verwacht = wxRegel.Matches("*" + wxString::FromUTF8(marker) + "*");
        ASSERT_EQ(verwacht, MarkerMasker(wxString::FromUTF8(marker)).past(regel))
            << "marker \"" << marker << "\", regel \"" << regel << "\"";
        ASSERT_EQ(verwacht, (wxRegel + "\n").Matches("*" + wxString::FromUTF8(marker) + "*\n"))
            << "met regeleinde hoort hetzelfde te gelden; marker \"" << marker << "\"";
        treffers += verwacht ? 1 : 0;
    }
    EXPECT_GT(treffers, 20000);
    EXPECT_LT(treffers, 180000);
}

TEST(MarkerMasker, ZoektAlsRegelVoorRegel) {
    std::mt19937 toeval(7);  // NOLINT(cert-msc51-cpp)
    for (int i = 0; i < 50000; ++i) {
        const MarkerMasker masker(wxString::FromUTF8(kiesTekens(toeval, "ab*?", 5)));
        const std::string regels = kiesTekens(toeval, "abc\n\n", 40);
        std::size_t begin = 0;
        std::size_t einde = 0;
        bool gevonden = false;
        while (!gevonden && (einde = regels.find('\n', begin)) != std::string::npos) {
            gevonden = masker.past(std::string_view(regels).substr(begin, einde - begin));
            if (!gevonden) {
                begin = einde + 1;
            }
        }
        const auto regel = masker.zoekRegel(regels, 0);
        ASSERT_EQ(gevonden, regel.has_value()) << hulp::toonBytes(regels);
        if (gevonden) {
            ASSERT_EQ(begin, regel->begin);
            ASSERT_EQ(einde + 1, regel->eind);
        }
    }
}

TEST(MarkerMasker, NeemtJokersLetterlijkAlsDatMoet) {
    const MarkerMasker sterren("/* Begin? */", kern::Jokers::nee);
    EXPECT_TRUE(sterren.past("x = 1; /* Begin? */ y"));
    EXPECT_FALSE(sterren.past("/ Begin? /"));
    EXPECT_FALSE(sterren.past("/* BeginX */"));
    EXPECT_EQ(3U, sterren.zoekRegel("ab\n/* Begin? */\n", 0)->begin);
    EXPECT_FALSE(sterren.zoekRegel("/** Begin? **/\n", 0));
}

TEST(MarkerMasker, WeetOfElkeRegelPast) {
    for (const char* marker : {"", "*", "***", "?", "??", "*?", "?*"}) {
        EXPECT_TRUE(MarkerMasker(marker).pastOpElkeRegel()) << marker;
        for (const char* regel : {"", "a", "ab"}) {
            EXPECT_TRUE(past(marker, regel)) << marker;
        }
    }
    for (const char* marker : {"a", "*a*", "?a"}) {
        EXPECT_FALSE(MarkerMasker(marker).pastOpElkeRegel()) << marker;
        EXPECT_FALSE(past(marker, "")) << marker;
    }
    EXPECT_FALSE(MarkerMasker("?", kern::Jokers::nee).pastOpElkeRegel());
}

TEST(MarkerMasker, GeeftWatErOmDeMarkerHeenStaat) {
    using Omheen = std::pair<std::string_view, std::string_view>;
    const MarkerMasker marker("//**** Student Begin ****//");
    EXPECT_EQ((Omheen{"int a; ", " int b;"}), marker.geefOmheen("int a; //**** Student Begin ****// int b;"));
    EXPECT_EQ((Omheen{"", ""}), marker.geefOmheen("// Student Begin //"));
    EXPECT_EQ((Omheen{"a ", " b"}), marker.geefOmheen("a // Student Begin // en // b"));
    EXPECT_EQ((Omheen{"", ""}), MarkerMasker("?*").geefOmheen("a b"));
}
