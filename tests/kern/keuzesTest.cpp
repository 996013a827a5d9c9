#include "Knipselaar/kern/keuzes.h"

#include <gtest/gtest.h>

using kern::Brontaal;

TEST(Keuzes, KiestDeKleuringNaarDeExtensie) {
    EXPECT_EQ(Brontaal::cpp, kern::kiesBrontaal("cpp"));
    EXPECT_EQ(Brontaal::cpp, kern::kiesBrontaal("h"));
    EXPECT_EQ(Brontaal::c, kern::kiesBrontaal("c"));
    EXPECT_EQ(Brontaal::vhdl, kern::kiesBrontaal("vhdl"));
    EXPECT_EQ(Brontaal::vhdl, kern::kiesBrontaal("vhd"));
    for (const char* extensie : {"", "C", "CPP", "H", "VHD", "VHDL", "hpp", "cc", "txt"}) {
        EXPECT_EQ(Brontaal::geen, kern::kiesBrontaal(extensie)) << extensie;
    }
}

TEST(Keuzes, NeemtBestandenNaarHetBestandstype) {
    for (const char* extensie : {"c", "cpp", "h", "vhdl", "vhd"}) {
        EXPECT_TRUE(kern::isBestandGekozen(extensie, 0)) << extensie;
        EXPECT_FALSE(kern::isBestandGekozen(extensie, 1)) << extensie;
        EXPECT_TRUE(kern::isBestandGekozen(extensie, 2)) << extensie;
    }
    for (const char* extensie : {"", "C", "CPP", "H", "VHD", "VHDL", "cc", "hpp", "txt", "c "}) {
        EXPECT_FALSE(kern::isBestandGekozen(extensie, 0)) << extensie;
        EXPECT_FALSE(kern::isBestandGekozen(extensie, 1)) << extensie;
        EXPECT_TRUE(kern::isBestandGekozen(extensie, 2)) << extensie;
    }
    EXPECT_FALSE(kern::isBestandGekozen("c", -1));
}

TEST(Keuzes, MagKnippenMetEenOrigineelOfBeideDirectories) {
    for (int vlaggen = 0; vlaggen < 8; ++vlaggen) {
        const kern::Voortgang voortgang{.origineelGeladen = (vlaggen & 1) != 0,
                                        .bronGekozen = (vlaggen & 2) != 0,
                                        .bestemmingGekozen = (vlaggen & 4) != 0};
        EXPECT_EQ((vlaggen & 1) != 0 || vlaggen == 6, kern::magKnippen(voortgang)) << vlaggen;
    }
}

TEST(Keuzes, GeeftDeBedieningPerVerwerking) {
    EXPECT_EQ((kern::Bediening{true, false, false, false}), kern::geefBediening(0));
    EXPECT_EQ((kern::Bediening{false, true, true, true}), kern::geefBediening(1));
    EXPECT_EQ((kern::Bediening{false, false, true, true}), kern::geefBediening(2));
    EXPECT_EQ((kern::Bediening{false, true, true, true}), kern::geefBediening(-1));
    EXPECT_EQ((kern::Bediening{false, true, true, true}), kern::geefBediening(3));
}
