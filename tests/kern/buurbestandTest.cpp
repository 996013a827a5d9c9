#include "Knipselaar/kern/systeem/buurbestand.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string_view>

#include "tests/hulp/bestanden.h"
#include "tests/hulp/bestandsboom.h"

namespace fs = std::filesystem;

using hulp::Boom;
using kern::Buurbestand;
using kern::Kenmerken;

namespace {

void schrijf(const Buurbestand& bestand, std::string_view tekst) {
    ASSERT_EQ(static_cast<ssize_t>(tekst.size()), write(bestand.geefKanaal(), tekst.data(), tekst.size()));
}

class BuurbestandTest : public testing::Test {
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

    /// Wat er in de directory staat, met de namen zonder hun toevallige deel.
    Boom leesBoom() const {
        Boom boom;
        for (const auto& [naam, inhoud] : hulp::leesBoom(map_.pad())) {
            boom[naam.substr(
                0, naam.starts_with('.') ? std::string_view(".Knipselaar").size() : naam.size())] = inhoud;
        }
        return boom;
    }

    hulp::TijdelijkeMap map_;
    fs::path doel_ = map_ / "a.c";
};

constexpr auto gewoneRechten = static_cast<fs::perms>(0750);
constexpr auto alleRechten = static_cast<fs::perms>(06750);

enum class Weg { hernoemen, ruilen };

/// Langs beide wegen naar de plaats van de bestemming.
class BuurbestandPlaats : public BuurbestandTest, public testing::WithParamInterface<Weg> {
  protected:
    static std::error_code neemPlaatsIn(Buurbestand& nieuw) {
        Kenmerken oud;
        oud.rechten = gewoneRechten;
        return GetParam() == Weg::ruilen ? nieuw.ruil(gewoneRechten) : nieuw.vervang(oud);
    }
};

}  // namespace

TEST_P(BuurbestandPlaats, IsVanDeBestemmingOfVanHetBuurbestand) {
    for (const Boom& vooraf : {Boom{{"a.c", "oud"}}, Boom{{"a.c", "-> elders"}}, Boom{}}) {
        hulp::maakBoom(map_.pad(), vooraf);
        Buurbestand nieuw(doel_.string());
        ASSERT_TRUE(nieuw.isOpen());
        schrijf(nieuw, "nieuw");
        Boom samen = vooraf;
        samen[".Knipselaar"] = "nieuw";
        EXPECT_EQ(samen, leesBoom());
        EXPECT_FALSE(neemPlaatsIn(nieuw));
        EXPECT_EQ((Boom{{"a.c", "nieuw"}}), leesBoom());
        fs::remove(doel_);
    }
}

TEST_F(BuurbestandTest, VerdwijntAlsHijGeenPlaatsKrijgt) {
    hulp::schrijfBestand(doel_, "oud");
    {
        const Buurbestand nieuw(doel_.string());
        schrijf(nieuw, "half");
    }
    EXPECT_EQ((Boom{{"a.c", "oud"}}), leesBoom());
}

TEST_P(BuurbestandPlaats, BlijftVanEenDirectory) {
    fs::create_directory(doel_);
    hulp::schrijfBestand(doel_ / "b.c", "erin");
    {
        Buurbestand nieuw(doel_.string());
        EXPECT_EQ(std::errc::is_a_directory, neemPlaatsIn(nieuw));
    }
    EXPECT_EQ((Boom{{"a.c", "/"}, {"a.c/b.c", "erin"}}), leesBoom());
}

TEST_P(BuurbestandPlaats, BlijftVanDeBestemmingAlsHetBuurbestandNietHeelIs) {
    hulp::schrijfBestand(doel_, "oud");
    {
        Buurbestand nieuw(doel_.string());
        ASSERT_EQ(0, close(nieuw.geefKanaal())) << "dan mislukt het sluiten straks";
        EXPECT_EQ(std::errc::bad_file_descriptor, neemPlaatsIn(nieuw));
    }
    EXPECT_EQ((Boom{{"a.c", "oud"}}), leesBoom());
}

TEST_F(BuurbestandTest, IsNietOpenWaarGeenDirectoryIs) {
    const Buurbestand nieuw((map_ / "weg/a.c").string());
    EXPECT_FALSE(nieuw.isOpen());
    EXPECT_EQ(std::errc::no_such_file_or_directory, nieuw.geefFout());
}

TEST_F(BuurbestandTest, KomtZonderDirectoryInDeHuidige) {
    const fs::path oud = fs::current_path();
    fs::current_path(map_.pad());
    Buurbestand nieuw("b.c");
    EXPECT_FALSE(nieuw.ruil(gewoneRechten));
    fs::current_path(oud);
    EXPECT_EQ((Boom{{"b.c", ""}}), leesBoom());
}

TEST_F(BuurbestandTest, NeemtDeRechtenOver) {
    Buurbestand nieuw(doel_.string());
    Kenmerken van = geefKenmerken(nieuw);
    EXPECT_EQ(fs::perms::owner_read | fs::perms::owner_write, van.rechten);
    van.rechten = alleRechten;
    EXPECT_FALSE(nieuw.vervang(van));
    EXPECT_EQ(alleRechten, geefKenmerkenVanDoel().rechten);
}

TEST_F(BuurbestandTest, NeemtVanEenVreemdeEigenaarGeenBijzondereRechtenOver) {
    fs::permissions(map_.pad(), fs::perms::all);
    Buurbestand nieuw(doel_.string());
    Kenmerken van = geefKenmerken(nieuw);
    van.eigenaar = 0;
    van.groep = 0;
    van.rechten = alleRechten;
    constexpr uid_t niemand = 65534;
    const bool isRoot = geteuid() == 0;
    ASSERT_TRUE(!isRoot || (fchown(nieuw.geefKanaal(), niemand, niemand) == 0 && seteuid(niemand) == 0));
    EXPECT_FALSE(nieuw.vervang(van));
    ASSERT_TRUE(!isRoot || seteuid(0) == 0);
    EXPECT_EQ(gewoneRechten, geefKenmerkenVanDoel().rechten);
    EXPECT_NE(0U, geefKenmerkenVanDoel().eigenaar);
}

TEST_F(BuurbestandTest, KrijgtBijHetRuilenDeGevraagdeRechtenZonderHetMasker) {
    const mode_t oud = umask(0);
    umask(oud);
    Buurbestand nieuw(doel_.string());
    EXPECT_FALSE(nieuw.ruil(fs::perms::mask));
    EXPECT_EQ(fs::perms::all & ~static_cast<fs::perms>(oud), geefKenmerkenVanDoel().rechten);
}

INSTANTIATE_TEST_SUITE_P(Wegen, BuurbestandPlaats, testing::Values(Weg::hernoemen, Weg::ruilen),
                         [](const auto& info) {
                             return std::string(info.param == Weg::ruilen ? "Ruilen" : "Hernoemen");
                         });
