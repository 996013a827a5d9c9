#include "Knipselaar/kern/buurbestand.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>

#include "tests/hulp/bestanden.h"
#include "tests/hulp/bestandsboom.h"

namespace fs = std::filesystem;

using hulp::Boom;
using kern::Buurbestand;

namespace {

void schrijf(const Buurbestand& bestand, std::string_view tekst) {
    ASSERT_EQ(static_cast<ssize_t>(tekst.size()), write(bestand.geefKanaal(), tekst.data(), tekst.size()));
}

class BuurbestandTest : public testing::Test {
  protected:
    static struct stat geefGegevens(const Buurbestand& bestand) {
        struct stat gegevens {};
        EXPECT_EQ(0, fstat(bestand.geefKanaal(), &gegevens));
        return gegevens;
    }

    static mode_t geefRechten(const Buurbestand& bestand) { return geefGegevens(bestand).st_mode & 07777U; }

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

enum class Weg { hernoemen, ruilen };

/// Langs beide wegen naar de plaats van de bestemming.
class BuurbestandPlaats : public BuurbestandTest, public testing::WithParamInterface<Weg> {
  protected:
    static bool neemPlaatsIn(Buurbestand& nieuw) {
        return GetParam() == Weg::ruilen ? nieuw.ruil() : nieuw.neemPlaatsIn();
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
        nieuw.beginTeBewaren();
        EXPECT_TRUE(neemPlaatsIn(nieuw));
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
        EXPECT_FALSE(neemPlaatsIn(nieuw));
        EXPECT_EQ(EISDIR, errno);
    }
    EXPECT_EQ((Boom{{"a.c", "/"}, {"a.c/b.c", "erin"}}), leesBoom());
}

TEST_P(BuurbestandPlaats, BlijftVanDeBestemmingAlsHetBuurbestandNietHeelIs) {
    hulp::schrijfBestand(doel_, "oud");
    {
        Buurbestand nieuw(doel_.string());
        ASSERT_EQ(0, close(nieuw.geefKanaal())) << "dan mislukt het sluiten straks";
        EXPECT_FALSE(neemPlaatsIn(nieuw));
        EXPECT_EQ(EBADF, errno);
    }
    EXPECT_EQ((Boom{{"a.c", "oud"}}), leesBoom());
}

TEST_F(BuurbestandTest, IsNietOpenWaarGeenDirectoryIs) {
    Buurbestand nieuw((map_ / "weg/a.c").string());
    EXPECT_EQ(ENOENT, errno);
    EXPECT_FALSE(nieuw.isOpen());
}

TEST_F(BuurbestandTest, KomtZonderDirectoryInDeHuidige) {
    const fs::path oud = fs::current_path();
    fs::current_path(map_.pad());
    Buurbestand nieuw("b.c");
    EXPECT_TRUE(nieuw.neemPlaatsIn());
    fs::current_path(oud);
    EXPECT_EQ((Boom{{"b.c", ""}}), leesBoom());
}

TEST_F(BuurbestandTest, NeemtDeRechtenOver) {
    const Buurbestand nieuw(doel_.string());
    struct stat van = geefGegevens(nieuw);
    EXPECT_EQ(0600U, geefRechten(nieuw));
    van.st_mode = 06750;
    EXPECT_TRUE(nieuw.neemRechtenOver(van));
    EXPECT_EQ(06750U, geefRechten(nieuw));
}

TEST_F(BuurbestandTest, NeemtVanEenVreemdeEigenaarGeenBijzondereRechtenOver) {
    const Buurbestand nieuw(doel_.string());
    struct stat van = geefGegevens(nieuw);
    van.st_uid = 0;
    van.st_gid = 0;
    van.st_mode = 06750;
    constexpr uid_t niemand = 65534;
    const bool isRoot = geteuid() == 0;
    ASSERT_TRUE(!isRoot || (fchown(nieuw.geefKanaal(), niemand, niemand) == 0 && seteuid(niemand) == 0));
    EXPECT_TRUE(nieuw.neemRechtenOver(van));
    ASSERT_TRUE(!isRoot || seteuid(0) == 0);
    EXPECT_EQ(0750U, geefRechten(nieuw));
    EXPECT_NE(0U, geefGegevens(nieuw).st_uid);
}

INSTANTIATE_TEST_SUITE_P(Wegen, BuurbestandPlaats, testing::Values(Weg::hernoemen, Weg::ruilen),
                         [](const auto& info) {
                             return std::string(info.param == Weg::ruilen ? "Ruilen" : "Hernoemen");
                         });
