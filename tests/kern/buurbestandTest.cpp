#include "Knipselaar/kern/systeem/buurbestand.h"

#include <gtest/gtest.h>
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
    ASSERT_FALSE(kern::schrijf(bestand.geefKanaal(), tekst));
}

class BuurbestandTest : public testing::Test {
  protected:
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
    for (const Boom& vooraf : {Boom{{"a.c", "oud"}}, Boom{}}) {
        // Wie vervangt, doet dat met wat er staat.
        if (vooraf.empty() && GetParam() == Weg::hernoemen) {
            continue;
        }
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

INSTANTIATE_TEST_SUITE_P(Wegen, BuurbestandPlaats, testing::Values(Weg::hernoemen, Weg::ruilen),
                         [](const auto& info) {
                             return std::string(info.param == Weg::ruilen ? "Ruilen" : "Hernoemen");
                         });
