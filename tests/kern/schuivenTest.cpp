#include "Knipselaar/kern/schuiven.h"

#include <gtest/gtest.h>

#include <vector>

TEST(Schuiven, LaatLeidenWieDeGebruikerVerschoof) {
    struct Geval {
        kern::Schuifstand zelf;
        kern::Schuifstand partner;
        bool leidt;
        const char* waarom;
    };
    constexpr bool stil = false;
    constexpr bool verschoven = true;
    constexpr bool midden = false;
    constexpr bool einde = true;
    const std::vector<Geval> gevallen{
        {{7, stil, midden}, {7, stil, midden}, true, "ze staan gelijk"},
        {{7, stil, einde}, {7, stil, einde}, true, "ze staan gelijk aan het einde"},
        {{9, verschoven, midden}, {7, stil, midden}, true, "naar beneden"},
        {{5, verschoven, midden}, {7, stil, midden}, true, "naar boven"},
        {{9, verschoven, einde}, {7, stil, midden}, true, "naar het eigen einde"},
        {{7, stil, midden}, {9, verschoven, midden}, false, "de partner ging naar beneden"},
        {{7, stil, midden}, {5, verschoven, midden}, false, "de partner ging naar boven"},
        {{7, stil, einde}, {9, verschoven, midden}, false, "de partner gaat verder dan het einde"},
        {{7, verschoven, einde}, {9, stil, midden}, false, "volgde tot het einde"},
        {{7, verschoven, einde}, {9, verschoven, midden}, false, "volgt nog, tot het einde"},
        {{7, stil, einde}, {9, stil, midden}, false, "staat stil aan het einde"},
        {{7, stil, midden}, {9, stil, midden}, false, "kreeg er aan het einde regels bij"},
        {{6, verschoven, midden}, {9, stil, midden}, true, "van het einde gehaald"},
        {{9, stil, midden}, {7, stil, einde}, true, "de partner kan niet verder"},
        {{8, verschoven, midden}, {7, stil, einde}, true, "verder dan de partner kan"},
        {{8, verschoven, midden}, {8, verschoven, midden}, true, "samen verschoven"}};
    for (const Geval& geval : gevallen) {
        EXPECT_EQ(geval.leidt, kern::magLeiden(geval.zelf, geval.partner)) << geval.waarom;
    }
}
