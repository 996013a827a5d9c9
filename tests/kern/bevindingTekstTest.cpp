#include "Knipselaar/kern/bevindingTekst.h"

#include <gtest/gtest.h>

#include "tests/hulp/bijschriften.h"

using kern::Ernst;
using kern::Soort;

namespace {

struct Geval {
    kern::Bevinding bevinding;
    std::string kaal;
    std::string metRegel;
};

const std::vector<Geval> gevallen{
    {{.regel = 1, .soort = Soort::geenBlok},
     "waarschuwing | Let op: geen enkel blok; er valt niets weg",
     "waarschuwing | Let op: geen enkel blok; er valt niets weg"},
    {{.regel = 1, .soort = Soort::beginOpElkeRegel},
     "fout | Fout: de beginmarker is leeg: elke regel is een begin",
     "fout | Fout: de beginmarker is leeg: elke regel is een begin"},
    {{.regel = 1, .soort = Soort::eindOpElkeRegel},
     "fout | Fout: de eindmarker is leeg: elke regel is een eind",
     "fout | Fout: de eindmarker is leeg: elke regel is een eind"},
    {{.regel = 3, .soort = Soort::leegBlok},
     "waarschuwing | Let op: leeg blok: geen vervangingstekst",
     "waarschuwing | Let op: regel 3: leeg blok: geen vervangingstekst"},
    {{.regel = 4, .soort = Soort::zonderEind},
     "fout | Fout: begin zonder eind: alles hierna valt weg",
     "fout | Fout: regel 4: begin zonder eind: alles hierna valt weg"},
    {{.regel = 5, .soort = Soort::zonderBegin},
     "fout | Fout: eind zonder begin: blijft staan",
     "fout | Fout: regel 5: eind zonder begin: blijft staan"},
    {{.regel = 6, .soort = Soort::beginInBlok, .blokBegin = 2, .blokEind = 12345},
     "fout | Fout: begin in een blok: telt niet; het blok eindigt bij regel 12345",
     "fout | Fout: regel 6: begin in een blok: telt niet; het blok eindigt bij regel 12345"},
    {{.regel = 6, .soort = Soort::beginInBlok, .blokBegin = 2},
     "fout | Fout: begin in een blok: telt niet; het blok eindigt nergens",
     "fout | Fout: regel 6: begin in een blok: telt niet; het blok eindigt nergens"},
    {{.regel = 7, .soort = Soort::anderBeginInBlok, .blokBegin = 2, .blokEind = 9},
     "waarschuwing | Let op: begin in een blok: telt niet; het blok eindigt bij regel 9",
     "waarschuwing | Let op: regel 7: begin in een blok: telt niet; het blok eindigt bij regel 9"},
    {{.regel = 8, .soort = Soort::beginZonderRegeleinde},
     "fout | Fout: begin op een laatste regel zonder regeleinde: telt niet",
     "fout | Fout: regel 8: begin op een laatste regel zonder regeleinde: telt niet"},
    {{.regel = 9, .soort = Soort::eindZonderRegeleinde, .blokBegin = 2},
     "fout | Fout: eind op een laatste regel zonder regeleinde: telt niet",
     "fout | Fout: regel 9: eind op een laatste regel zonder regeleinde: telt niet"},
    {{.regel = 10, .soort = Soort::bijnaBegin},
     "waarschuwing | Let op: bijna een beginmarker: telt niet",
     "waarschuwing | Let op: regel 10: bijna een beginmarker: telt niet"},
    {{.regel = 1000000, .soort = Soort::bijnaEind},
     "waarschuwing | Let op: bijna een eindmarker: telt niet",
     "waarschuwing | Let op: regel 1000000: bijna een eindmarker: telt niet"}};

}  // namespace

TEST(BevindingTekst, ZegtOnderEenRegelWatEraanScheelt) {
    for (const Geval& geval : gevallen) {
        EXPECT_EQ(geval.kaal, hulp::toon(kern::beschrijf(geval.bevinding)));
    }
}

TEST(BevindingTekst, NoemtInEenVerslagHetNummerVanDeRegel) {
    for (const Geval& geval : gevallen) {
        EXPECT_EQ(geval.metRegel, hulp::toon(kern::beschrijfMetRegel(geval.bevinding)));
    }
}

TEST(BevindingTekst, ZegtInWoordenHoeErgHetIs) {
    EXPECT_EQ("fout | Fout: zo", hulp::toon(kern::maakBijschrift(Ernst::fout, "zo")));
    EXPECT_EQ("waarschuwing | Let op: zo", hulp::toon(kern::maakBijschrift(Ernst::waarschuwing, "zo")));
    EXPECT_EQ("opmerking | zo", hulp::toon(kern::maakBijschrift(Ernst::opmerking, "zo")));
}
