#include <gtest/gtest.h>

#include <sstream>

#include "gemeenschappelijk/grafiekVenster.h"
#include "tests/hulp/beweringen.h"

namespace {

std::string toon(const PuntLijst& lijst) {
    std::ostringstream uit;
    for (std::size_t i = 0; i < lijst.GetCount(); ++i) {
        uit << "(" << lijst.Item(i).x << "," << lijst.Item(i).y << ")";
    }
    return uit.str();
}

PuntLijst maakLijst(int aantal) {
    PuntLijst lijst;
    for (int i = 0; i < aantal; ++i) {
        lijst.Add(wxPoint(i, 10 * i));
    }
    return lijst;
}

}  // namespace

TEST(PuntLijst, BegintLeeg) {
    const PuntLijst lijst;
    EXPECT_TRUE(lijst.IsEmpty());
    EXPECT_EQ(0U, lijst.GetCount());
}

TEST(PuntLijst, NeemtKopieen) {
    wxPoint punt(3, -4);
    PuntLijst lijst;
    lijst.Add(punt);
    punt.x = 99;
    EXPECT_EQ("(3,-4)", toon(lijst));
    EXPECT_NE(&punt, &lijst.Item(0));
}

TEST(PuntLijst, VoegtElkAantalToe) {
    PuntLijst lijst;
    lijst.Add(wxPoint(1, 2), 3);
    lijst.Add(wxPoint(7, 8), 0);
    EXPECT_EQ("(1,2)(1,2)(1,2)", toon(lijst));
    lijst.Item(1).x = 50;
    EXPECT_EQ("(1,2)(50,2)(1,2)", toon(lijst)) << "elk exemplaar staat op zichzelf";
    EXPECT_EQ(&lijst.Item(2), &lijst.Last());
    EXPECT_EQ(&lijst[1], &lijst.Item(1));
}

TEST(PuntLijst, VoegtErgensTussen) {
    PuntLijst lijst = maakLijst(2);
    lijst.Insert(wxPoint(5, 5), 1, 2);
    lijst.Insert(wxPoint(6, 6), 0);
    lijst.Insert(wxPoint(9, 9), 1, 0);
    lijst.Insert(wxPoint(7, 7), lijst.GetCount());
    EXPECT_EQ("(6,6)(0,0)(5,5)(5,5)(1,10)(7,7)", toon(lijst));
    lijst.Item(2).y = -1;
    EXPECT_EQ("(6,6)(0,0)(5,-1)(5,5)(1,10)(7,7)", toon(lijst)) << "elk exemplaar staat op zichzelf";
}

TEST(PuntLijst, HaaltWeg) {
    PuntLijst lijst = maakLijst(6);
    lijst.RemoveAt(1);
    EXPECT_EQ("(0,0)(2,20)(3,30)(4,40)(5,50)", toon(lijst));
    lijst.RemoveAt(2, 3);
    EXPECT_EQ("(0,0)(2,20)", toon(lijst));
    lijst.RemoveAt(0, 0);
    EXPECT_EQ("(0,0)(2,20)", toon(lijst));
}

TEST(PuntLijst, MeldtWeghalenVoorbijHetEinde) {
    PuntLijst lijst = maakLijst(2);
    lijst.RemoveAt(2);
    // De aanhalingstekens zet de toolkit er zelf bij, want hij geeft de voorwaarde als tekst door.
    EXPECT_EQ((std::vector<hulp::Bewering>{{"\"uiIndex < size()\"", "bad index in RemoveAt()"}}),
              hulp::neemBeweringen());
    EXPECT_EQ("(0,0)(1,10)", toon(lijst)) << "er verdwijnt niets";
    PuntLijst leeg;
    leeg.RemoveAt(0, 0);
    EXPECT_EQ(1U, hulp::neemBeweringen().size());
}

TEST(PuntLijst, ZoektHetObjectZelf) {
    const PuntLijst lijst = maakLijst(4);
    for (const std::size_t plaats : {0U, 1U, 2U, 3U}) {
        EXPECT_EQ(static_cast<int>(plaats), lijst.Index(lijst.Item(plaats)));
    }
    EXPECT_EQ(wxNOT_FOUND, lijst.Index(wxPoint(lijst.Item(2)))) << "een gelijk punt is een ander punt";
    EXPECT_EQ(wxNOT_FOUND, PuntLijst().Index(wxPoint(0, 0)));
}

TEST(PuntLijst, ZoektVanAchteren) {
    const PuntLijst lijst = maakLijst(4);
    EXPECT_EQ(3, lijst.Index(lijst.Item(3), true));
    EXPECT_EQ(1, lijst.Index(lijst.Item(1), true));
    EXPECT_EQ(wxNOT_FOUND, lijst.Index(wxPoint(lijst.Item(2)), true));
    // De toolkit houdt van achteren op voor zij het eerste element bekeken heeft.
    EXPECT_EQ(wxNOT_FOUND, lijst.Index(lijst.Item(0), true));
}

TEST(PuntLijst, KopieertOnafhankelijk) {
    PuntLijst lijst = maakLijst(3);
    {
        PuntLijst kopie(lijst);
        EXPECT_EQ(toon(lijst), toon(kopie));
        kopie.Item(0).x = 77;
        kopie.RemoveAt(2);
        EXPECT_EQ("(77,0)(1,10)", toon(kopie));
    }
    EXPECT_EQ("(0,0)(1,10)(2,20)", toon(lijst));
    EXPECT_EQ(wxNOT_FOUND, PuntLijst(lijst).Index(lijst.Item(1)));
}

TEST(PuntLijst, VervangtBijToewijzen) {
    PuntLijst lijst = maakLijst(3);
    PuntLijst andere;
    andere.Add(wxPoint(-1, -2), 2);
    lijst = andere;
    EXPECT_EQ("(-1,-2)(-1,-2)", toon(lijst));
    andere.Item(0).x = 40;
    EXPECT_EQ("(-1,-2)(-1,-2)", toon(lijst));
    lijst = PuntLijst();
    EXPECT_TRUE(lijst.IsEmpty());
}

TEST(PuntLijst, RaaktAllesKwijtBijToewijzenAanZichzelf) {
    PuntLijst lijst = maakLijst(3);
    const PuntLijst& zelf = lijst;
    lijst = zelf;
    EXPECT_TRUE(lijst.IsEmpty()) << "daarom mag een aanroeper dit niet doen";
}

TEST(PuntLijst, WordtLeegEnWeerBruikbaar) {
    PuntLijst lijst = maakLijst(3);
    lijst.Empty();
    EXPECT_TRUE(lijst.IsEmpty());
    lijst.Add(wxPoint(8, 9));
    EXPECT_EQ("(8,9)", toon(lijst));
    lijst.Clear();
    EXPECT_EQ(0U, lijst.GetCount());
}
