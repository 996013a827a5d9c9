// Het paneel zelf: zijn maten, zijn oorsprong en het beeld dat het uitlevert.

#include "tests/venster/grafiekTest.h"
#include "tests/venster/vensterTest.h"

namespace {

using GrafiekVensterTest = GrafiekTest;

/// Controleert een letter op alles wat de maker ervan vastlegt.
void verwachtFont(const wxFont& font, int punten) {
    EXPECT_EQ(punten, font.GetPointSize());
    EXPECT_EQ(wxFONTSTYLE_ITALIC, font.GetStyle());
    EXPECT_EQ(wxFONTWEIGHT_NORMAL, font.GetWeight());
    EXPECT_FALSE(font.GetUnderlined());
    const wxFont standaard(punten, wxFONTFAMILY_DEFAULT, wxFONTSTYLE_ITALIC, wxFONTWEIGHT_NORMAL);
    EXPECT_EQ(standaard.GetFamily(), font.GetFamily());
    EXPECT_EQ(standaard.GetFaceName(), font.GetFaceName());
}

}  // namespace

TEST_F(GrafiekVensterTest, TekentOpEenVeldVanTweemaalZijnGrootte) {
    auto* klein = new GrafiekVenster(ouder_, 4711, wxPoint(330, 5), wxSize(100, 50), wxBORDER_SIMPLE);
    EXPECT_EQ(wxSize(200, 100), klein->geefTekenVeldGrootte());
    EXPECT_EQ(wxSize(200, 100), klein->exporteerBeeld().GetSize());
    EXPECT_EQ(wxSize(200, 100), (klein->*&GrafiekInzage::tekening).GetSize());
    EXPECT_EQ(4711, klein->GetId());
    EXPECT_EQ(ouder_, klein->GetParent());
    EXPECT_EQ(wxPoint(330, 5), klein->GetPosition());
    EXPECT_EQ(wxSize(100, 50), klein->GetSize());
    EXPECT_TRUE(klein->HasFlag(wxBORDER_SIMPLE));
    EXPECT_EQ(wxSize(600, 400), paneel_->geefTekenVeldGrootte());
}

TEST_F(GrafiekVensterTest, BegintLeeg) {
    EXPECT_EQ(wxSize(0, 0), lid(&GrafiekInzage::clientGrootte)) << "tot de eerste Layout";
    EXPECT_EQ(wxPoint(0, 0), lid(&GrafiekInzage::oorsprong));
    EXPECT_EQ(0, beeld().telNietWit());
    EXPECT_EQ(1, static_cast<int>(paneel_->GetBackgroundStyle()));
    double schaalX = 0;
    double schaalY = 0;
    lid(&GrafiekInzage::tekeningDC).GetUserScale(&schaalX, &schaalY);
    EXPECT_EQ(1.0, schaalX);
    EXPECT_EQ(1.0, schaalY);
    EXPECT_EQ(7, lid(&GrafiekInzage::tekeningDC).LogicalToDeviceY(7)) << "y loopt op het veld omlaag";
}

TEST_F(GrafiekVensterTest, HeeftTweeLetters) {
    verwachtFont(lid(&GrafiekInzage::groteFont), 120);
    verwachtFont(lid(&GrafiekInzage::normaleFont), 24);
}

TEST_F(GrafiekVensterTest, RekentDeHoekenVanafElkeOorsprong) {
    const auto verwachtHoeken = [this](const wxPoint& oorsprong) {
        EXPECT_EQ(oorsprong, lid(&GrafiekInzage::oorsprong));
        EXPECT_EQ(wxPoint(0, 400), paneel_->transCoord(wxPoint(0, 0) - oorsprong));
        EXPECT_EQ(wxPoint(600, 400), paneel_->transCoord(wxPoint(600, 0) - oorsprong));
        EXPECT_EQ(wxPoint(0, 0), paneel_->transCoord(wxPoint(0, 400) - oorsprong));
        EXPECT_EQ(wxPoint(600, 0), paneel_->transCoord(wxPoint(600, 400) - oorsprong));
        EXPECT_EQ(wxPoint(oorsprong.x + 10, 390 - oorsprong.y), paneel_->transCoord(wxPoint(10, 10)));
    };
    verwachtHoeken(wxPoint(0, 0));
    paneel_->zetOorsprong(wxPoint(120, 35));
    verwachtHoeken(wxPoint(120, 35));
    paneel_->zetOorsprong(wxRealPoint(0.1, 0.75));
    verwachtHoeken(wxPoint(60, 300));
    paneel_->zetOorsprongMidden();
    verwachtHoeken(wxPoint(300, 200));
}

TEST_F(GrafiekVensterTest, KaptEenDeelVanHetVeldAf) {
    paneel_->zetOorsprong(wxRealPoint(0.0999, 0.9999));
    EXPECT_EQ(wxPoint(59, 399), lid(&GrafiekInzage::oorsprong)) << "59,94 en 399,96";
    paneel_->zetOorsprong(wxRealPoint(-0.0999, -0.9999));
    EXPECT_EQ(wxPoint(-59, -399), lid(&GrafiekInzage::oorsprong));
}

TEST_F(GrafiekVensterTest, MeldtEenOorsprongBuitenHetVeldEnZetHem) {
    for (const wxPoint& buiten : {wxPoint(600, 0), wxPoint(0, 400), wxPoint(5000, 6000)}) {
        paneel_->zetOorsprong(buiten);
        EXPECT_EQ((std::vector<hulp::Bewering>{buitenVeld}), hulp::neemBeweringen());
        EXPECT_EQ(buiten, lid(&GrafiekInzage::oorsprong));
    }
    paneel_->zetOorsprong(wxRealPoint(1.0, 0.5));
    EXPECT_EQ((std::vector<hulp::Bewering>{buitenVeld}), hulp::neemBeweringen());
    EXPECT_EQ(wxPoint(600, 200), lid(&GrafiekInzage::oorsprong));
    paneel_->zetOorsprong(wxRealPoint(0.5, 1.0));
    EXPECT_EQ((std::vector<hulp::Bewering>{buitenVeld}), hulp::neemBeweringen());
    EXPECT_EQ(wxPoint(300, 400), lid(&GrafiekInzage::oorsprong));
}

TEST_F(GrafiekVensterTest, KijktOokInHetMiddenNaarHetVeld) {
    // Alleen een veld zonder punten heeft zijn midden buiten zichzelf.
    lid(&GrafiekInzage::grafiekGrootte) = wxSize(0, 0);
    paneel_->zetOorsprongMidden();
    EXPECT_EQ((std::vector<hulp::Bewering>{buitenVeld}), hulp::neemBeweringen());
    lid(&GrafiekInzage::grafiekGrootte) = wxSize(601, 399);
    paneel_->zetOorsprongMidden();
    EXPECT_EQ(wxPoint(300, 199), lid(&GrafiekInzage::oorsprong));
}

TEST_F(GrafiekVensterTest, MeldtNietsBinnenHetVeldEnOnderNul) {
    for (const wxPoint& oorsprong : {wxPoint(599, 399), wxPoint(0, 0), wxPoint(-1, -1), wxPoint(-900, 7)}) {
        paneel_->zetOorsprong(oorsprong);
        EXPECT_EQ(oorsprong, lid(&GrafiekInzage::oorsprong));
    }
}

TEST_F(GrafiekVensterTest, ZetEenOorsprongOokZonderVanger) {
    const auto vanger = wxSetAssertHandler(nullptr);
    paneel_->zetOorsprong(wxPoint(600, 400));
    wxSetAssertHandler(vanger);
    EXPECT_EQ(wxPoint(600, 400), lid(&GrafiekInzage::oorsprong));
}

TEST_F(GrafiekVensterTest, NeemtBijLayoutDeGrootteOver) {
    paneel_->tekenVerticaleLijn(10);
    const Beeld vooraf = beeld();
    EXPECT_TRUE(paneel_->Layout());
    EXPECT_EQ(paneel_->GetClientSize(), lid(&GrafiekInzage::clientGrootte));
    for (const wxSize& maat : {wxSize(90, 170), wxSize(400, 60)}) {
        paneel_->SetSize(maat);
        EXPECT_TRUE(paneel_->wxPanel::GetAutoLayout()) << "zodat de toolkit Layout zelf aanroept";
        EXPECT_TRUE(paneel_->Layout());
        EXPECT_EQ(maat, lid(&GrafiekInzage::clientGrootte));
        EXPECT_EQ(wxSize(600, 400), paneel_->geefTekenVeldGrootte());
    }
    EXPECT_TRUE(vooraf == beeld()) << "het beeld zelf verandert niet";
}

TEST_F(GrafiekVensterTest, LegtZijnKinderenNiet) {
    auto* kind = new wxPanel(paneel_, wxID_ANY, wxPoint(3, 4), wxSize(20, 10));
    auto* indeling = new wxBoxSizer(wxVERTICAL);
    indeling->Add(kind, wxSizerFlags(1).Expand());
    paneel_->SetSizer(indeling);
    paneel_->Layout();
    EXPECT_EQ(wxRect(3, 4, 20, 10), kind->GetRect());
}

TEST_F(GrafiekVensterTest, LevertTelkensHetBeeldVanNu) {
    const Beeld leeg = beeld();
    paneel_->tekenHorizontaleLijn(100);
    const Beeld metLijn = beeld();
    paneel_->tekenVerticaleLijn(100);
    EXPECT_EQ(0, leeg.telNietWit());
    EXPECT_EQ(600, metLijn.telNietWit());
    EXPECT_EQ(600 + 399, beeld().telNietWit());
}

TEST_F(GrafiekVensterTest, GeeftHetBeeldWeg) {
    wxImage weg = paneel_->exporteerBeeld();
    weg.SetRGB(wxRect(weg.GetSize()), 0, 0, 0);
    EXPECT_EQ(0, beeld().telNietWit()) << "wie erop verder tekent, tekent op een kopie";
}

TEST_F(GrafiekVensterTest, GaatMetZijnVensterWeg) {
    bool weg = false;
    auto* tijdelijk = new GrafiekVenster(ouder_, wxID_ANY, wxDefaultPosition, wxSize(40, 30), 0);
    tijdelijk->Bind(wxEVT_DESTROY, [&weg](wxWindowDestroyEvent& event) {
        weg = true;
        event.Skip();
    });
    tijdelijk->tekenVerticaleLijn(3);
    tijdelijk->Destroy();
    EXPECT_TRUE(weg);
}
