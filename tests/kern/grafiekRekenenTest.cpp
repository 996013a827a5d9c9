#include "gemeenschappelijk/grafiekRekenen.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using grafiek::Grenzen;
using grafiek::Schaal;
using grafiek::Staaf;

namespace {

constexpr int kleinsteInt = std::numeric_limits<int>::min();
constexpr int grootsteInt = std::numeric_limits<int>::max();
constexpr double oneindig = std::numeric_limits<double>::infinity();

const wxSize veld(600, 400);
const wxPoint linksonder(0, 0);

/// De staaf als tekst, zodat een verschil te lezen is.
std::string toonStaaf(const Staaf& staaf) {
    return "x " + std::to_string(staaf.x) + ", van " + std::to_string(staaf.voet) + " tot " +
           std::to_string(staaf.top);
}

Grenzen begrens(const std::vector<wxPoint>& punten) {
    Grenzen grenzen = grafiek::geefLegeGrenzen(veld);
    for (const wxPoint& punt : punten) {
        grafiek::verruim(grenzen, punt);
    }
    return grenzen;
}

}  // namespace

TEST(GrafiekRekenen, LegtDeHoekenVanHetVeld) {
    EXPECT_EQ(wxPoint(0, 400), grafiek::naarVeld({0, 0}, linksonder, veld));
    EXPECT_EQ(wxPoint(600, 400), grafiek::naarVeld({600, 0}, linksonder, veld));
    EXPECT_EQ(wxPoint(0, 0), grafiek::naarVeld({0, 400}, linksonder, veld));
    EXPECT_EQ(wxPoint(600, 0), grafiek::naarVeld({600, 400}, linksonder, veld));
    EXPECT_EQ(wxPoint(10, 390), grafiek::naarVeld({10, 10}, linksonder, veld));
}

TEST(GrafiekRekenen, LegtDeHoekenVanuitElkeOorsprong) {
    for (const wxPoint& oorsprong : {wxPoint(300, 200), wxPoint(600, 400), wxPoint(-50, -70)}) {
        const auto vanuit = [&oorsprong](int x, int y) {
            return grafiek::naarVeld(wxPoint(x, y) - oorsprong, oorsprong, veld);
        };
        EXPECT_EQ(wxPoint(0, 400), vanuit(0, 0));
        EXPECT_EQ(wxPoint(600, 400), vanuit(600, 0));
        EXPECT_EQ(wxPoint(0, 0), vanuit(0, 400));
        EXPECT_EQ(wxPoint(600, 0), vanuit(600, 400));
        EXPECT_EQ(wxPoint(oorsprong.x, 400 - oorsprong.y), grafiek::naarVeld({0, 0}, oorsprong, veld));
    }
}

TEST(GrafiekRekenen, BlijftAanDeRandVanInt) {
    EXPECT_EQ(wxPoint(grootsteInt, kleinsteInt),
              grafiek::naarVeld({grootsteInt, grootsteInt}, {grootsteInt, grootsteInt}, veld));
    EXPECT_EQ(wxPoint(kleinsteInt, grootsteInt),
              grafiek::naarVeld({kleinsteInt, kleinsteInt}, {kleinsteInt, kleinsteInt}, veld));
    EXPECT_EQ(wxPoint(-1, 401),
              grafiek::naarVeld({grootsteInt, grootsteInt}, {kleinsteInt, kleinsteInt}, veld))
        << "wat er samen wel in past, blijft precies";
}

TEST(GrafiekRekenen, VerschuiftPunten) {
    EXPECT_EQ(wxPoint(7, -3), grafiek::verschuif({10, 20}, {-3, -23}));
    EXPECT_EQ(wxPoint(grootsteInt, kleinsteInt), grafiek::verschuif({grootsteInt, kleinsteInt}, {1, -1}));
}

TEST(GrafiekRekenen, KaptAfNaarNul) {
    struct Geval {
        double waarde;
        int verwacht;
    };
    const Geval gevallen[] = {{0.0, 0},   {0.999, 0}, {-0.999, 0},     {1.0, 1},   {1.9, 1},
                              {-1.0, -1}, {-1.9, -1}, {399.9999, 399}, {-2.5, -2}, {1e9, 1000000000}};
    for (const Geval& geval : gevallen) {
        EXPECT_EQ(geval.verwacht, grafiek::kapAf(geval.waarde)) << geval.waarde;
    }
}

TEST(GrafiekRekenen, KaptAfBinnenHetBereikVanInt) {
    EXPECT_EQ(grootsteInt, grafiek::kapAf(2147483647.0));
    EXPECT_EQ(grootsteInt, grafiek::kapAf(2147483647.9));
    EXPECT_EQ(grootsteInt, grafiek::kapAf(2147483648.0));
    EXPECT_EQ(grootsteInt, grafiek::kapAf(1e300));
    EXPECT_EQ(grootsteInt, grafiek::kapAf(oneindig));
    EXPECT_EQ(kleinsteInt, grafiek::kapAf(-2147483648.9));
    EXPECT_EQ(kleinsteInt, grafiek::kapAf(-1e300));
    EXPECT_EQ(kleinsteInt, grafiek::kapAf(-oneindig));
    EXPECT_EQ(0, grafiek::kapAf(std::nan("")));
}

TEST(GrafiekRekenen, ZetDeOorsprongOpEenDeel) {
    EXPECT_EQ(wxPoint(0, 0), grafiek::geefOorsprong({0.0, 0.0}, veld));
    EXPECT_EQ(wxPoint(300, 200), grafiek::geefOorsprong({0.5, 0.5}, veld));
    EXPECT_EQ(wxPoint(600, 400), grafiek::geefOorsprong({1.0, 1.0}, veld));
    EXPECT_EQ(wxPoint(60, 39), grafiek::geefOorsprong({0.1, 0.1}, {605, 399})) << "60,5 en 39,9 afgebroken";
    EXPECT_EQ(wxPoint(-60, -39), grafiek::geefOorsprong({-0.1, -0.1}, {605, 399})) << "naar nul toe";
}

TEST(GrafiekRekenen, LaatTekenbarePuntenStaan) {
    for (const wxPoint& punt : {wxPoint(0, 0), wxPoint(-100000, 100000), wxPoint(4194304, -4194304)}) {
        EXPECT_EQ(punt, grafiek::naarTekenbaar(punt));
    }
    EXPECT_EQ(wxPoint(4194304, -4194304), grafiek::naarTekenbaar({4194305, -4194305}));
    EXPECT_EQ(wxPoint(-4194304, 4194304), grafiek::naarTekenbaar({kleinsteInt, grootsteInt}));
}

TEST(GrafiekRekenen, LegtHetRondjeOmHetPunt) {
    EXPECT_EQ(wxRect(98, 48, 4, 4), grafiek::geefRondje({100, 50}));
    EXPECT_EQ(wxRect(-2, -2, 4, 4), grafiek::geefRondje({0, 0}));
    EXPECT_EQ(wxRect(kleinsteInt, kleinsteInt, 4, 4), grafiek::geefRondje({kleinsteInt, kleinsteInt}));
}

TEST(GrafiekRekenen, BegintDeGrenzenBijNulEnHetVeld) {
    const Grenzen leeg = begrens({});
    EXPECT_EQ(wxPoint(0, 0), leeg.maxPunt);
    EXPECT_EQ(wxPoint(600, 400), leeg.minPunt);
    const Grenzen linksOnderNul = begrens({{-30, -20}, {-10, -50}});
    EXPECT_EQ(wxPoint(0, 0), linksOnderNul.maxPunt) << "het maximum komt niet onder nul";
    EXPECT_EQ(wxPoint(-30, -50), linksOnderNul.minPunt);
    const Grenzen buitenHetVeld = begrens({{700, 900}, {800, 500}});
    EXPECT_EQ(wxPoint(800, 900), buitenHetVeld.maxPunt);
    EXPECT_EQ(wxPoint(600, 400), buitenHetVeld.minPunt) << "het minimum komt niet boven het veld uit";
}

TEST(GrafiekRekenen, NeemtXEnYElkApart) {
    const Grenzen grenzen = begrens({{10, 90}, {70, 20}, {40, 50}});
    EXPECT_EQ(wxPoint(70, 90), grenzen.maxPunt);
    EXPECT_EQ(wxPoint(10, 20), grenzen.minPunt);
}

TEST(GrafiekRekenen, VultHetVeldOpEenMargeNa) {
    const Schaal schaal = grafiek::geefSchaal({{110, 60}, {10, 20}}, {0, 0}, veld);
    EXPECT_DOUBLE_EQ(0.95 * 600 / 100, schaal.x);
    EXPECT_DOUBLE_EQ(0.95 * 400 / 40, schaal.y);
    const Schaal verschoven = grafiek::geefSchaal({{110, 60}, {10, 20}}, {50, -40}, veld);
    EXPECT_DOUBLE_EQ(0.95 * 550 / 100, verschoven.x);
    EXPECT_DOUBLE_EQ(0.95 * 440 / 40, verschoven.y);
}

TEST(GrafiekRekenen, LooptNietOverInDeSchaal) {
    const Schaal schaal =
        grafiek::geefSchaal({{grootsteInt, 10}, {kleinsteInt, 0}}, {kleinsteInt, grootsteInt}, veld);
    EXPECT_DOUBLE_EQ(0.95 * (600 + 2147483648.0) / 4294967295.0, schaal.x);
    EXPECT_DOUBLE_EQ(0.95 * (400 - 2147483647.0) / 10, schaal.y);
}

TEST(GrafiekRekenen, DeeltDoorEenBereikVanNul) {
    const Schaal schaal = grafiek::geefSchaal({{80, 60}, {80, 60}}, {0, 400}, veld);
    EXPECT_EQ(oneindig, schaal.x);
    EXPECT_TRUE(std::isnan(schaal.y)) << "geen ruimte op een bereik van nul";
    EXPECT_EQ(-oneindig, grafiek::geefSchaal({{80, 60}, {80, 60}}, {700, 0}, veld).x);
}

TEST(GrafiekRekenen, ZetEenStaafOpWareGrootte) {
    const auto staaf = [](const wxPoint& punt, const wxPoint& verschuiving) {
        return toonStaaf(grafiek::geefStaaf(punt, verschuiving, {}, {100, 50}, veld));
    };
    EXPECT_EQ("x 110, van 350 tot 320", staaf({10, 30}, {0, 0}));
    EXPECT_EQ("x 115, van 343 tot 313", staaf({10, 30}, {5, 7})) << "de verschuiving tilt ook de voet";
    EXPECT_EQ("x 90, van 350 tot 380", staaf({-10, -30}, {0, 0}));
    EXPECT_EQ("x 100, van 350 tot 350", staaf({0, 0}, {0, 0}));
}

TEST(GrafiekRekenen, KaptEenGeschaaldeStaafAfNaarNul) {
    const auto staaf = [](const wxPoint& punt, const wxPoint& verschuiving) {
        return toonStaaf(grafiek::geefStaaf(punt, verschuiving, {1.5, 2.3}, {100, 50}, veld));
    };
    // 7 * 1,5 = 10,5 en 3 * 2,3 = 6,9; de staaf kapt elk deel af voor het aan de oorsprong komt.
    EXPECT_EQ("x 110, van 350 tot 344", staaf({7, 3}, {0, 0}));
    EXPECT_EQ("x 90, van 350 tot 356", staaf({-7, -3}, {0, 0}));
    // De voet staat op 1 * 2,3 = 2,3 en de top op 4 * 2,3 = 9,2: elk voor zich afgekapt.
    EXPECT_EQ("x 113, van 348 tot 341", staaf({7, 3}, {2, 1}));
}

TEST(GrafiekRekenen, VultHetVeldMetGeschaaldeStaven) {
    const Schaal schaal = grafiek::geefSchaal(begrens({{0, 0}, {10, 20}}), {0, 0}, veld);
    EXPECT_EQ("x 570, van 400 tot 20",
              toonStaaf(grafiek::geefStaaf({10, 20}, {0, 0}, schaal, linksonder, veld)));
    EXPECT_EQ("x 285, van 400 tot 210",
              toonStaaf(grafiek::geefStaaf({5, 10}, {0, 0}, schaal, linksonder, veld)));
}

TEST(GrafiekRekenen, HoudtEenStaafZonderBereikBinnenInt) {
    const Schaal zonderBereik{oneindig, oneindig};
    EXPECT_EQ("x " + std::to_string(grootsteInt) + ", van 400 tot " + std::to_string(400LL - grootsteInt),
              toonStaaf(grafiek::geefStaaf({5, 5}, {0, 0}, zonderBereik, linksonder, veld)));
    EXPECT_EQ("x 0, van 400 tot 400",
              toonStaaf(grafiek::geefStaaf({0, 0}, {0, 0}, zonderBereik, linksonder, veld)))
        << "nul maal oneindig is geen getal en blijft op de as";
    EXPECT_EQ("x " + std::to_string(kleinsteInt) + ", van " + std::to_string(grootsteInt) + " tot " +
                  std::to_string(grootsteInt),
              toonStaaf(grafiek::geefStaaf({kleinsteInt, kleinsteInt}, {-1, kleinsteInt}, {1.0, 1.0},
                                           {-1, kleinsteInt}, veld)));
}
