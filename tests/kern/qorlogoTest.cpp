#include "gemeenschappelijk/qorlogo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <set>
#include <string>

namespace {

constexpr int kleuren = 256;
constexpr int hoogte = 155;
constexpr std::size_t breedte = 223;

std::set<std::string> sleutels() {
    std::set<std::string> gevonden;
    for (int i = 1; i <= kleuren; ++i) {
        gevonden.insert(std::string(qorlogo[i]).substr(0, 2));
    }
    return gevonden;
}

/// Een kleur is een "#" met zes hexadecimale cijfers, of een naam van kleine letters.
bool isKleur(const std::string& tekst) {
    const auto allemaal = [](const std::string& tekens, int (*soort)(int)) {
        return !tekens.empty() &&
               std::all_of(tekens.begin(), tekens.end(), [soort](char teken) { return soort(teken) != 0; });
    };
    return tekst.starts_with('#') ? tekst.size() == 7 && allemaal(tekst.substr(1), std::isxdigit)
                                  : allemaal(tekst, std::islower);
}

}  // namespace

TEST(Qorlogo, BegintMetZijnMaten) {
    EXPECT_EQ(412U, std::size(qorlogo));
    EXPECT_STREQ("223 155 256 2 ", qorlogo[0]);
}

TEST(Qorlogo, HeeftTweehonderdzesenvijftigKleuren) {
    for (int i = 1; i <= kleuren; ++i) {
        const std::string regel = qorlogo[i];
        ASSERT_LE(6U, regel.size()) << i;
        EXPECT_EQ(" c ", regel.substr(2, 3)) << i;
        EXPECT_TRUE(isKleur(regel.substr(5))) << i << ": " << regel;
    }
    EXPECT_EQ(static_cast<std::size_t>(kleuren), sleutels().size()) << "elke kleur haar eigen sleutel";
}

TEST(Qorlogo, HeeftRijenVanBekendeSleutels) {
    const std::set<std::string> bekend = sleutels();
    for (int y = 0; y < hoogte; ++y) {
        const std::string rij = qorlogo[1 + kleuren + y];
        ASSERT_EQ(2 * breedte, rij.size()) << "rij " << y;
        for (std::size_t x = 0; x < breedte; ++x) {
            EXPECT_TRUE(bekend.contains(rij.substr(2 * x, 2))) << x << "," << y;
        }
    }
}
