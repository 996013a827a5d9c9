#include "gemeenschappelijk/qorlogo.h"

#include <gtest/gtest.h>

#include <iterator>
#include <regex>
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

}  // namespace

TEST(Qorlogo, BegintMetZijnMaten) {
    EXPECT_EQ(412U, std::size(qorlogo));
    EXPECT_STREQ("223 155 256 2 ", qorlogo[0]);
}

TEST(Qorlogo, HeeftTweehonderdzesenvijftigKleuren) {
    const std::regex vorm(R"(.. c (#[0-9A-Fa-f]{6}|[a-z]+))");
    for (int i = 1; i <= kleuren; ++i) {
        EXPECT_TRUE(std::regex_match(qorlogo[i], vorm)) << i << ": " << qorlogo[i];
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
