// Welke eigenaar en rechten een buurbestand krijgt.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Knipselaar/kern/systeem/buurbestand.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/bestandsboom.h"

namespace fs = std::filesystem;

using hulp::Boom;
using kern::Buurbestand;
using kern::Kenmerken;

namespace {

constexpr auto ruimeRechten = static_cast<fs::perms>(0750);
constexpr auto alleRechten = static_cast<fs::perms>(06750);

class BuurbestandRechten : public testing::Test {
  protected:
    static Kenmerken geefKenmerken(const Buurbestand& bestand) {
        Kenmerken kenmerken;
        EXPECT_FALSE(kern::leesKenmerken(bestand.geefKanaal(), kenmerken));
        return kenmerken;
    }

    Kenmerken geefKenmerkenVanDoel() const {
        Kenmerken kenmerken;
        EXPECT_FALSE(kern::leesEigenKenmerken(doel_, kenmerken));
        return kenmerken;
    }

    hulp::TijdelijkeMap map_;
    fs::path doel_ = map_ / "a.c";
};

}  // namespace

TEST_F(BuurbestandRechten, NeemtDeRechtenOver) {
    Buurbestand nieuw(doel_.string());
    Kenmerken van = geefKenmerken(nieuw);
    EXPECT_EQ(fs::perms::owner_read | fs::perms::owner_write, van.rechten);
    van.rechten = alleRechten;
    EXPECT_FALSE(nieuw.vervang(van));
    EXPECT_EQ(alleRechten, geefKenmerkenVanDoel().rechten);
}

TEST_F(BuurbestandRechten, NeemtVanEenVreemdeEigenaarGeenBijzondereRechtenOver) {
    fs::permissions(map_.pad(), fs::perms::all);
    Buurbestand nieuw(doel_.string());
    Kenmerken van = geefKenmerken(nieuw);
    van.eigenaar = 0;
    van.groep = getegid();
    van.rechten = alleRechten;
    constexpr uid_t niemand = 65534;
    const bool isRoot = geteuid() == 0;
    ASSERT_TRUE(!isRoot || (fchown(nieuw.geefKanaal(), niemand, niemand) == 0 && seteuid(niemand) == 0));
    EXPECT_FALSE(nieuw.vervang(van));
    ASSERT_TRUE(!isRoot || seteuid(0) == 0);
    EXPECT_EQ(ruimeRechten, geefKenmerkenVanDoel().rechten);
    EXPECT_NE(0U, geefKenmerkenVanDoel().eigenaar);
}

TEST_F(BuurbestandRechten, KrijgtBijHetRuilenDeGevraagdeRechtenZonderHetMasker) {
    const mode_t oud = umask(0);
    umask(oud);
    Buurbestand nieuw(doel_.string());
    EXPECT_FALSE(nieuw.ruil(fs::perms::mask));
    EXPECT_EQ(fs::perms::all & ~static_cast<fs::perms>(oud), geefKenmerkenVanDoel().rechten);
}

TEST_F(BuurbestandRechten, NeemtDePlaatsVanEenLinkIn) {
    for (const bool ruilt : {false, true}) {
        hulp::maakBoom(map_.pad(), {{"a.c", "-> elders"}});
        Buurbestand nieuw(doel_.string());
        Kenmerken oud;
        oud.rechten = ruimeRechten;
        EXPECT_FALSE(ruilt ? nieuw.ruil(ruimeRechten) : nieuw.vervang(oud));
        EXPECT_EQ((Boom{{"a.c", ""}}), hulp::leesBoom(map_.pad()));
        fs::remove(doel_);
    }
}
