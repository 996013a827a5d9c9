#include "Knipselaar/kern/bytes.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

using kern::Bytes;

TEST(Bytes, BegintLeeg) {
    EXPECT_EQ("", Bytes().geef());
    EXPECT_EQ(0U, Bytes().geefRuimte());
}

TEST(Bytes, GroeitMetWatErAchterKomt) {
    Bytes bytes("een");
    std::string verwacht = "een";
    for (int i = 0; i < 1000; ++i) {
        bytes.voegToe(" en nog een");
        bytes.voegToe('.');
        verwacht += " en nog een.";
    }
    EXPECT_EQ(verwacht, bytes.geef());
}

TEST(Bytes, HoudtWatErStaatAlsErPlaatsBijkomt) {
    Bytes bytes("inhoud");
    bytes.maakRuimte(5'000'000);
    EXPECT_LE(5'000'000U, bytes.geefRuimte());
    EXPECT_EQ("inhoud", bytes.geef());
    bytes.maakRuimte(10);
    EXPECT_LE(5'000'000U, bytes.geefRuimte());
}

TEST(Bytes, GebruiktEenGeleendePlaatsTotZijVolIs) {
    std::array<char, 8> plaats{};
    Bytes bytes = Bytes::leen(plaats);
    EXPECT_EQ("", bytes.geef());
    bytes.voegToe("12345678");
    EXPECT_EQ(plaats.data(), bytes.geefBegin());
    bytes.voegToe('9');
    EXPECT_NE(plaats.data(), bytes.geefBegin());
    EXPECT_EQ("123456789", bytes.geef());
    EXPECT_EQ("12345678", std::string(plaats.begin(), plaats.end()));
}
