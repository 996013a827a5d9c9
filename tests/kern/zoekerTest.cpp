#include "Knipselaar/kern/zoeker.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

using kern::Zoeker;

namespace {

constexpr std::size_t nergens = std::string_view::npos;

}  // namespace

TEST(Zoeker, VindtDeEerstePlaats) {
    EXPECT_EQ(0U, Zoeker("aan").zoek("aan het aanrecht"));
    EXPECT_EQ(4U, Zoeker("het").zoek("aan het aanrecht"));
    EXPECT_EQ(13U, Zoeker("cht").zoek("aan het aanrecht"));
    EXPECT_EQ(nergens, Zoeker("niet").zoek("aan het aanrecht"));
}

TEST(Zoeker, VindtNietsInTeWeinig) {
    EXPECT_EQ(nergens, Zoeker("aan").zoek(""));
    EXPECT_EQ(nergens, Zoeker("aan").zoek("aa"));
}

TEST(Zoeker, ZonderNaaldPastElkePlaats) {
    EXPECT_EQ(0U, Zoeker().zoek("aan"));
    EXPECT_EQ(0U, Zoeker().zoek(""));
    EXPECT_EQ(0U, Zoeker("").zoek("aan"));
}

TEST(Zoeker, KijktNietVoorbijHetEinde) {
    const std::string geheel = "**** Eind ****";
    const std::string_view deel = std::string_view(geheel).substr(0, 8);
    EXPECT_EQ(nergens, Zoeker("Eind").zoek(deel));
    EXPECT_EQ(5U, Zoeker("Ein").zoek(deel));
}

TEST(Zoeker, KentNulEnHogeBytes) {
    const std::string hooi("a\0b\xE9 c\0d", 8);
    EXPECT_EQ(1U, Zoeker(std::string("\0b", 2)).zoek(hooi));
    EXPECT_EQ(6U, Zoeker(std::string("\0d", 2)).zoek(hooi));
    EXPECT_EQ(3U, Zoeker("\xE9").zoek(hooi));
}

// Ook als de byte waar hij naar springt overal staat, en hij de gok moet opgeven.
TEST(Zoeker, VindtWatEenEenvoudigeZoekerVindt) {
    std::mt19937 toeval(11);  // NOLINT(cert-msc51-cpp): elke loop van de test zoekt hetzelfde
    const auto maak = [&toeval](std::size_t lengte, const std::string& letters) {
        std::string tekst;
        for (std::size_t i = 0; i < lengte; ++i) {
            tekst += letters[toeval() % letters.size()];
        }
        return tekst;
    };
    int gevonden = 0;
    for (int ronde = 0; ronde < 20'000; ++ronde) {
        const std::string letters = ronde % 2 == 0 ? "aB" : "a B\n*";
        const std::string hooi = maak(toeval() % 200, letters);
        const std::string naald = maak(1 + toeval() % 9, letters);
        const std::size_t verwacht = hooi.find(naald);
        ASSERT_EQ(verwacht, Zoeker(naald).zoek(hooi)) << "'" << naald << "' in '" << hooi << "'";
        gevonden += verwacht == nergens ? 0 : 1;
    }
    EXPECT_LT(5'000, gevonden);
    EXPECT_GT(15'000, gevonden);
}
