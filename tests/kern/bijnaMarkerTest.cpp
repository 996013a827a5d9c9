#include "Knipselaar/kern/bijnaMarker.h"

#include <gtest/gtest.h>

using kern::BijnaMarker;
using kern::BijnaZoeker;

namespace {

const wxString standaard = "//**** Student Begin ****//";

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
    const std::string_view regels = "x\n\n  // begin\nbeginnen\n\t# EIND\n/**\nbegin";
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
        EXPECT_FALSE(zoeker.zoekRegel("x\n" + regel + "\n", 0)) << regel;
    }
}
