// Wat elke tekenopdracht op het veld van 600 bij 400 zet, tot op het beeldpunt.

#include <climits>

#include "tests/venster/grafiekTest.h"

namespace {

class GrafiekTekenTest : public GrafiekTest {
  protected:
    GrafiekTekenTest() { paneel_->zetPen(*wxBLACK_PEN); }

    static PuntLijst maakLijst(std::initializer_list<wxPoint> punten) {
        PuntLijst lijst;
        for (const wxPoint& punt : punten) {
            lijst.Add(punt);
        }
        return lijst;
    }
};

}  // namespace

TEST_F(GrafiekTekenTest, TrektLijnenOverHetHeleVeld) {
    paneel_->zetOorsprong(wxPoint(100, 50));
    paneel_->tekenVerticaleLijn(30);
    EXPECT_EQ(wxRect(130, 0, 1, 400), beeld().gebied());
    paneel_->maakSchoon();
    paneel_->tekenHorizontaleLijn(30);
    EXPECT_EQ(wxRect(0, 320, 600, 1), beeld().gebied());
    paneel_->maakSchoon();
    paneel_->tekenVerticaleLijn(-40);
    paneel_->tekenHorizontaleLijn(-10);
    EXPECT_EQ(400 + 600 - 1, beeld().telNietWit());
    EXPECT_EQ("0-399", beeld().kolom(60));
    EXPECT_EQ("360-360", beeld().kolom(61));
}

TEST_F(GrafiekTekenTest, TrektAssenDoorElkeOorsprong) {
    const auto verwachtAssen = [this](int x, int y) {
        paneel_->maakSchoon();
        paneel_->tekenAssenstelsel(*wxRED_PEN);
        const Beeld assen = beeld();
        EXPECT_EQ(400 + 600 - 1, assen.telNietWit());
        // De afronding van een lijn maakt haar allereerste en allerlaatste punt iets lichter.
        EXPECT_EQ(*wxRED, assen.kleur(x, 1));
        EXPECT_EQ(*wxRED, assen.kleur(x, 398));
        EXPECT_EQ(*wxRED, assen.kleur(1, y));
        EXPECT_EQ(*wxRED, assen.kleur(598, y));
    };
    paneel_->zetOorsprong(wxPoint(100, 50));
    verwachtAssen(100, 350);
    paneel_->zetOorsprong(wxRealPoint(0.1, 0.9));
    verwachtAssen(60, 40);
    paneel_->zetOorsprongMidden();
    verwachtAssen(300, 200);
    paneel_->tekenVerticaleLijn(7);
    EXPECT_EQ(*wxRED, beeld().kleur(307, 1)) << "de pen van de assen blijft staan";
}

TEST_F(GrafiekTekenTest, TekentInAlleHoekenVanafElkeOorsprong) {
    const auto tekenHoeken = [this](const wxPoint& oorsprong) {
        paneel_->maakSchoon();
        for (const int y : {1, 400}) {
            for (const int x : {0, 590}) {
                const wxPoint begin = wxPoint(x, y) - oorsprong;
                paneel_->tekenLijn(begin, begin + wxPoint(9, 0), false);
            }
        }
        return beeld();
    };
    const Beeld linksonder = tekenHoeken(wxPoint(0, 0));
    EXPECT_EQ(40, linksonder.telNietWit());
    EXPECT_EQ(wxRect(0, 399, 10, 1), linksonder.gebied(wxRect(0, 200, 300, 200)));
    EXPECT_EQ(wxRect(590, 399, 10, 1), linksonder.gebied(wxRect(300, 200, 300, 200)));
    EXPECT_EQ(wxRect(0, 0, 10, 1), linksonder.gebied(wxRect(0, 0, 300, 200)));
    EXPECT_EQ(wxRect(590, 0, 10, 1), linksonder.gebied(wxRect(300, 0, 300, 200)));
    paneel_->zetOorsprong(wxPoint(120, 35));
    EXPECT_TRUE(linksonder == tekenHoeken(wxPoint(120, 35)));
    paneel_->zetOorsprong(wxRealPoint(0.25, 0.75));
    EXPECT_TRUE(linksonder == tekenHoeken(wxPoint(150, 300)));
    paneel_->zetOorsprongMidden();
    EXPECT_TRUE(linksonder == tekenHoeken(wxPoint(300, 200)));
}

TEST_F(GrafiekTekenTest, TrektEenLijnTussenTweePunten) {
    paneel_->tekenLijn(wxPoint(100, 100), wxPoint(200, 200), false);
    const Beeld lijn = beeld();
    EXPECT_EQ(wxRect(100, 200, 101, 101), lijn.gebied());
    for (const int stap : {1, 25, 75, 99}) {
        EXPECT_TRUE(lijn.isGetekend(100 + stap, 300 - stap)) << stap;
        EXPECT_TRUE(lijn.isWit(100 + stap, 200 + stap)) << stap << " op de andere diagonaal";
    }
}

TEST_F(GrafiekTekenTest, ZetEenRondjeOmHetEindpunt) {
    paneel_->tekenLijn(wxPoint(100, 100), wxPoint(150, 100), true);
    const Beeld lijn = beeld();
    EXPECT_EQ(wxRect(148, 298, 5, 5), lijn.gebied(wxRect(148, 290, 20, 20)));
    EXPECT_EQ("300-300", lijn.kolom(100)) << "niet om het begin";
    EXPECT_EQ("300-300", lijn.kolom(147));
    EXPECT_EQ("298-302", lijn.kolom(150));
    EXPECT_EQ("", lijn.kolom(153));
}

TEST_F(GrafiekTekenTest, ZetEenStaafOpDeAs) {
    paneel_->zetOorsprong(wxPoint(100, 50));
    paneel_->tekenStaaf(wxPoint(30, 80), false);
    EXPECT_EQ(wxRect(130, 270, 1, 81), beeld().gebied()) << "van de as op 350 tot het punt op 270";
    paneel_->maakSchoon();
    paneel_->tekenStaaf(wxPoint(-20, -30), false);
    EXPECT_EQ(wxRect(80, 350, 1, 31), beeld().gebied()) << "een staaf mag omlaag";
    paneel_->maakSchoon();
    paneel_->tekenStaaf(wxPoint(30, 80), true);
    EXPECT_EQ(wxRect(128, 268, 5, 83), beeld().gebied());
    EXPECT_EQ("268-350", beeld().kolom(130));
    EXPECT_EQ("", beeld().kolom(133));
}

TEST_F(GrafiekTekenTest, TrektLijnenInDeVolgordeVanDeLijst) {
    paneel_->zetOorsprong(wxPoint(10, 20));
    // De hoeken van een vierkant zonder zijn onderkant, vijf naar rechts en drie omhoog geschoven.
    const PuntLijst punten = maakLijst({{100, 100}, {100, 200}, {200, 200}, {200, 100}});
    paneel_->tekenLijnen(punten, wxPoint(5, 3));
    const Beeld lijnen = beeld();
    EXPECT_EQ(wxRect(115, 177, 101, 101), lijnen.gebied());
    EXPECT_EQ("177-277", lijnen.kolom(115));
    EXPECT_EQ("177-277", lijnen.kolom(215));
    for (const int x : {116, 150, 214}) {
        EXPECT_EQ("177-177", lijnen.kolom(x)) << x << ": de onderkant is niet gesloten";
    }
    EXPECT_EQ(4U, punten.GetCount());
    EXPECT_EQ(wxPoint(100, 100), punten.Item(0)) << "de lijst blijft zoals zij was";
}

TEST_F(GrafiekTekenTest, BuigtEenSplineLangsDePunten) {
    paneel_->zetOorsprong(wxPoint(10, 20));
    const PuntLijst punten = maakLijst({{100, 100}, {200, 300}, {300, 100}});
    paneel_->tekenSpline(punten, wxPoint(5, 3));
    const Beeld spline = beeld();
    const wxRect gebied = spline.gebied();
    EXPECT_EQ(115, gebied.GetLeft());
    EXPECT_EQ(315, gebied.GetRight());
    EXPECT_NEAR(277, gebied.GetBottom(), 1);
    EXPECT_GT(gebied.GetTop(), 77 + 20) << "de kromme rondt de bovenste hoek af";
    EXPECT_LT(gebied.GetTop(), 77 + 130);
    EXPECT_TRUE(spline.isGetekend(215, gebied.GetTop())) << "de top ligt midden tussen de uiteinden";
    EXPECT_TRUE(spline.isWit(215, 276)) << "en de uiteinden zijn niet verbonden";
}

TEST_F(GrafiekTekenTest, TekentNietsMetMinderDanTweePunten) {
    for (const PuntLijst& punten : {PuntLijst(), maakLijst({{100, 100}})}) {
        paneel_->tekenLijnen(punten, wxPoint(0, 0));
        paneel_->tekenSpline(punten, wxPoint(0, 0));
        EXPECT_EQ(0, beeld().telNietWit()) << punten.GetCount();
    }
}

TEST_F(GrafiekTekenTest, ZetStavenOpWareGrootte) {
    paneel_->zetOorsprong(wxPoint(50, 40));
    paneel_->tekenStaven(maakLijst({{10, 100}, {60, 20}, {30, -15}}), wxPoint(2, 7), false, false);
    const Beeld staven = beeld();
    // De as ligt op 360 en de verschuiving tilt de voet naar 353.
    EXPECT_EQ("253-353", staven.kolom(62));
    EXPECT_EQ("333-353", staven.kolom(112));
    EXPECT_EQ("353-368", staven.kolom(82));
    EXPECT_EQ(101 + 21 + 16, staven.telGetekend()) << "en verder niets";
}

TEST_F(GrafiekTekenTest, ZetStavenMetRondjes) {
    paneel_->tekenStaven(maakLijst({{100, 100}, {200, 50}}), wxPoint(0, 0), true, false);
    const Beeld staven = beeld();
    EXPECT_EQ(wxRect(98, 298, 5, 102), staven.gebied(wxRect(0, 0, 150, 400)));
    EXPECT_EQ(wxRect(198, 348, 5, 52), staven.gebied(wxRect(150, 0, 150, 400)));
    EXPECT_EQ("298-399", staven.kolom(100));
}

TEST_F(GrafiekTekenTest, SchaaltStavenOpHetVeld) {
    paneel_->zetOorsprong(wxPoint(20, 10));
    paneel_->tekenStaven(maakLijst({{0, 0}, {10, 20}, {5, 10}}), wxPoint(0, 0), false, true);
    const Beeld staven = beeld();
    // Schaal 0,95 * 600 / 10 = 57 bij 0,95 * 400 / 20 = 19, met de as op 390.
    EXPECT_EQ("10-390", staven.kolom(590));
    EXPECT_EQ("200-390", staven.kolom(305));
    EXPECT_EQ(wxRect(), staven.gebied(wxRect(23, 0, 280, 400)));
    EXPECT_EQ(wxRect(), staven.gebied(wxRect(306, 0, 284, 400)));
    EXPECT_EQ(wxRect(), staven.gebied(wxRect(591, 0, 9, 400)));
}

TEST_F(GrafiekTekenTest, SchaaltDeVerschuivingMee) {
    paneel_->zetOorsprong(wxPoint(20, 10));
    paneel_->tekenStaven(maakLijst({{0, 0}, {10, 20}, {5, 10}}), wxPoint(1, 2), false, true);
    const Beeld staven = beeld();
    // Schaal 0,95 * 599 / 10 = 56,905 bij 0,95 * 398 / 20 = 18,905. De middelste staaf staat op
    // 6 * 56,905 = 341,43 met zijn voet op 2 * 18,905 = 37,81 en zijn top op 12 * 18,905 = 226,86.
    EXPECT_EQ("164-353", staven.kolom(361));
    EXPECT_EQ("", staven.kolom(360));
    EXPECT_EQ("", staven.kolom(362));
    EXPECT_EQ(wxRect(), staven.gebied(wxRect(363, 0, 237, 400))) << "de laatste valt buiten het veld";
}

TEST_F(GrafiekTekenTest, VerdraagtEenLegeRijEnEenBereikVanNul) {
    paneel_->tekenStaven(PuntLijst(), wxPoint(0, 0), true, true);
    paneel_->tekenStaven(PuntLijst(), wxPoint(0, 0), true, false);
    EXPECT_EQ(0, beeld().telNietWit());
    // Het kleinste punt telt niet boven het veld uit, dus hier is het bereik in beide richtingen nul.
    paneel_->tekenStaven(maakLijst({{600, 400}}), wxPoint(0, 0), false, true);
    EXPECT_EQ(0, beeld().telGetekend()) << "de staaf staat oneindig ver naar rechts";
    // Nul maal oneindig is geen getal: een bereik van nul in alleen x zet de staven op de y-as.
    paneel_->zetOorsprong(wxPoint(50, 10));
    paneel_->tekenStaven(maakLijst({{600, 0}, {600, 100}}), wxPoint(-600, 0), false, true);
    EXPECT_EQ(wxRect(50, 10, 1, 381), beeld().gebied());
}

TEST_F(GrafiekTekenTest, ZetEenRechthoekBuitenDeOorsprongOm) {
    paneel_->tekenRechthoek(wxRect(100, 20, 50, 30));
    const Beeld zonder = beeld();
    EXPECT_EQ(wxRect(100, 20, 50, 30), zonder.gebied());
    EXPECT_EQ(2 * 50 + 2 * 28, zonder.telGetekend()) << "alleen de rand";
    paneel_->maakSchoon();
    paneel_->zetOorsprong(wxPoint(300, 200));
    paneel_->tekenRechthoek(wxRect(100, 20, 50, 30));
    EXPECT_TRUE(zonder == beeld());
}

TEST_F(GrafiekTekenTest, GebruiktDePenDieErStaat) {
    paneel_->zetPen(wxPen(wxColour(10, 160, 20), 5));
    EXPECT_EQ(0, beeld().telNietWit()) << "een pen tekent zelf niet";
    paneel_->tekenVerticaleLijn(100);
    const Beeld dik = beeld();
    EXPECT_EQ(wxRect(98, 0, 5, 400), dik.gebied());
    EXPECT_EQ(wxColour(10, 160, 20), dik.kleur(100, 200));
}

TEST_F(GrafiekTekenTest, TekentOverHetVorigeHeen) {
    paneel_->tekenVerticaleLijn(100);
    paneel_->tekenHorizontaleLijn(100);
    paneel_->tekenRechthoek(wxRect(300, 350, 10, 10));
    EXPECT_EQ(400 + 600 - 1 + 36, beeld().telGetekend());
    paneel_->maakSchoon();
    EXPECT_EQ(0, beeld().telNietWit());
    EXPECT_EQ(*wxBLACK, lid(&GrafiekInzage::tekeningDC).GetPen().GetColour()) << "de pen blijft";
}

TEST_F(GrafiekTekenTest, LaatVerreLijnenNietTerugkomen) {
    paneel_->tekenLijn(wxPoint(INT_MIN, 100), wxPoint(INT_MAX, 100), true);
    EXPECT_EQ(wxRect(0, 300, 600, 1), beeld().gebied());
    paneel_->maakSchoon();
    paneel_->tekenStaaf(wxPoint(50, INT_MAX), true);
    EXPECT_EQ("0-399", beeld().kolom(50));
    paneel_->maakSchoon();
    paneel_->tekenLijn(wxPoint(INT_MAX, INT_MAX), wxPoint(INT_MAX, INT_MIN), true);
    paneel_->tekenVerticaleLijn(INT_MAX);
    paneel_->tekenHorizontaleLijn(INT_MIN);
    EXPECT_EQ(0, beeld().telNietWit());
}
