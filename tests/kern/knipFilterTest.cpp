#include "Knipselaar/kern/knipFilter.h"

#include <gtest/gtest.h>

#include <string>

using kern::KnipFilter;
using kern::Lot;

namespace {

/// Voert regels aan het filter: 'b' draagt de beginmarker, 'e' de eindmarker, 'x' allebei, '.' geen van
/// beide. Geeft per regel H, V of W voor houden, vervangen en weglaten.
std::string beoordeel(std::string_view regels) {
    KnipFilter filter;
    std::string loten;
    for (const char regel : regels) {
        const char telt = filter.isInBlok() ? 'e' : 'b';
        switch (filter.beoordeel(regel == telt || regel == 'x')) {
            case Lot::houden:
                loten += 'H';
                break;
            case Lot::vervangen:
                loten += 'V';
                break;
            case Lot::weglaten:
                loten += 'W';
                break;
        }
    }
    return loten;
}

}  // namespace

TEST(KnipFilter, HoudtGewoneRegels) {
    EXPECT_EQ("HHH", beoordeel("..."));
}

TEST(KnipFilter, VervangtEenBlokEenmaal) {
    EXPECT_EQ("HWVWWWH", beoordeel(".b...e."));
}

TEST(KnipFilter, VervangtElkBlok) {
    EXPECT_EQ("WVWHWVWW", beoordeel("b.e.b..e"));
}

TEST(KnipFilter, GeeftEenLeegBlokGeenVervanging) {
    EXPECT_EQ("HWWH", beoordeel(".be."));
}

TEST(KnipFilter, VervangtOokNaEenLeegBlok) {
    EXPECT_EQ("WWWVW", beoordeel("beb.e"));
}

TEST(KnipFilter, HoudtEenEindmarkerBuitenEenBlok) {
    EXPECT_EQ("HHWVW", beoordeel("e.b.e"));
}

TEST(KnipFilter, ZietEenTweedeBeginmarkerAlsBinnenregel) {
    EXPECT_EQ("WVWWH", beoordeel("bb.e."));
}

TEST(KnipFilter, OpentEnSluitMetDezelfdeMarker) {
    EXPECT_EQ("HWVWHWVW", beoordeel(".x.x.x.x"));
}

TEST(KnipFilter, LaatEenOpenBlokTotHetEindeLopen) {
    EXPECT_EQ("HWVWW", beoordeel(".b..."));
}
