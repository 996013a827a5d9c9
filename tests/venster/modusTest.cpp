#include <wx/uiaction.h>

#include <vector>

#include "tests/venster/dialogen.h"
#include "tests/venster/vensterTest.h"

namespace {

/// Ziet elke melding van een keuzerondje, ook een die het zelf tegenhoudt.
class Meldingen : public wxEventFilter {
  public:
    Meldingen() { wxEvtHandler::AddFilter(this); }
    Meldingen(const Meldingen&) = delete;
    Meldingen& operator=(const Meldingen&) = delete;
    ~Meldingen() override { wxEvtHandler::RemoveFilter(this); }

    int FilterEvent(wxEvent& event) override {
        gezien_ = gezien_ || event.GetEventType() == wxEVT_RADIOBOX;
        return Event_Skip;
    }
    bool isGezien() const { return gezien_; }

  private:
    bool gezien_ = false;
};

class Modus : public VensterTest {
  protected:
    bool isAan(int id) {
        wxUpdateUIEvent event(id);
        event.SetEventObject(venster_);
        venster_->ProcessWindowEvent(event);
        return event.GetEnabled();
    }

    void zetVlaggen(bool origineelGeladen, bool bron, bool bestemming) {
        lid(&Inzage::origineelGeladen) = origineelGeladen;
        lid(&Inzage::bronGekozen) = bron;
        lid(&Inzage::bestemmingGekozen) = bestemming;
    }

    std::string toonVlaggen() {
        return std::string(lid(&Inzage::origineelGeladen) ? "O" : "-") +
               (lid(&Inzage::bronGekozen) ? "B" : "-") + (lid(&Inzage::bestemmingGekozen) ? "D" : "-");
    }

    /// Meldt de keuze die er staat.
    static void meldKeuze(wxRadioBox* keuzerondje) {
        wxCommandEvent event(wxEVT_RADIOBOX, ID_PARSERMODE);
        event.SetEventObject(keuzerondje);
        event.SetInt(keuzerondje->GetSelection());
        keuzerondje->ProcessWindowEvent(event);
    }

    /// Waar op het scherm de toolkit een keuze van een keuzerondje weet, midden in zijn breedte: van boven
    /// tot onder.
    static std::vector<wxPoint> vindKeuze(const wxRadioBox* keuzerondje, int keuze) {
        const wxRect vak = keuzerondje->GetScreenRect();
        std::vector<wxPoint> plekken;
        for (wxPoint plek(vak.x + vak.width / 2, vak.y); plek.y <= vak.GetBottom(); ++plek.y) {
            if (keuzerondje->GetItemFromPoint(plek) == keuze) {
                plekken.push_back(plek);
            }
        }
        return plekken;
    }

    /// Klikt met de muis midden op een keuze van een keuzerondje en wacht tot GTK dat gemeld heeft.
    static void klikKeuze(wxRadioBox* keuzerondje, int keuze) {
        const std::vector<wxPoint> plekken = vindKeuze(keuzerondje, keuze);
        ASSERT_FALSE(plekken.empty()) << keuze;
        wxUIActionSimulator muis;
        muis.MouseMove(plekken[plekken.size() / 2]);
        laatLopen();
        const Meldingen meldingen;
        muis.MouseClick();
        EXPECT_TRUE(laatLopenTot([&meldingen] { return meldingen.isGezien(); })) << keuze;
    }
    void klikKeuze(int keuze) { klikKeuze(modus(), keuze); }
};

}  // namespace

TEST_F(Modus, WistEditorsEnVlaggenBijEenWissel) {
    for (const int keuze : {1, 2, 0}) {
        origineel()->SetText("a");
        aangepast()->SetText("b");
        zetVlaggen(true, true, true);
        kiesModus(keuze);
        EXPECT_EQ("", tekstVan(origineel()));
        EXPECT_EQ("", tekstVan(aangepast()));
        EXPECT_EQ(keuze == 2 ? "-B-" : "---", toonVlaggen());
    }
}

TEST_F(Modus, VerandertNietsBijEenKlikOpDeKeuzeDieErAlStond) {
    for (const int keuze : {0, 1, 2}) {
        kiesModus(keuze);
        origineel()->SetText("a");
        zetVlaggen(true, true, true);
        klikKeuze(keuze);
        EXPECT_EQ("a", tekstVan(origineel())) << keuze;
        EXPECT_EQ("OBD", toonVlaggen()) << keuze;
    }
}

TEST_F(Modus, WisseltBijEenKeuzeDieHetProgrammaZetteEnMeldt) {
    for (const int keuze : {2, 2, 0, 0, 1}) {
        origineel()->SetText("a");
        aangepast()->SetText("b");
        zetVlaggen(true, true, true);
        modus()->SetSelection(keuze);
        EXPECT_EQ("a", tekstVan(origineel())) << "zetten alleen is geen melding";
        meldKeuze(modus());
        EXPECT_EQ("", tekstVan(origineel())) << keuze;
        EXPECT_EQ("", tekstVan(aangepast())) << keuze;
        EXPECT_EQ(keuze == 2 ? "-B-" : "---", toonVlaggen()) << keuze;
    }
}

TEST_F(Modus, WisseltOokAlsDeMeldingLaterKomt) {
    modus()->SetSelection(2);
    laatLopen();
    origineel()->SetText("a");
    meldKeuze(modus());
    EXPECT_EQ("", tekstVan(origineel()));
    EXPECT_EQ("-B-", toonVlaggen());
}

TEST_F(Modus, VerandertNietsBijEenKlikOpWatHetProgrammaZette) {
    modus()->SetSelection(2);
    origineel()->SetText("a");
    zetVlaggen(true, true, true);
    klikKeuze(2);
    laatLopen();
    EXPECT_EQ("a", tekstVan(origineel()));
    EXPECT_EQ("OBD", toonVlaggen());
    klikKeuze(1);
    ASSERT_TRUE(laatLopenTot([this] { return modus()->GetSelection() == 1; }));
    EXPECT_EQ("", tekstVan(origineel()));
    EXPECT_EQ("---", toonVlaggen());
}

TEST_F(Modus, VerandertNietsBijEenKlikOpDeKeuzeUitDeOpslag) {
    for (const int keuze : {0, 1, 2}) {
        wxGetApp().configuratie->Write("/Configuratie/Verwerkingkeuze", static_cast<long>(keuze));
        ParserVenster* ander = maakVenster();
        ander->Show();
        ander->Raise();
        ASSERT_TRUE(laatLopenTot([ander] { return ander->IsShownOnScreen() && ander->IsActive(); }));
        (ander->*&Inzage::origineelEditor)->SetText("a");
        klikKeuze(ander->*&Inzage::parserModeKeuze, keuze);
        EXPECT_EQ("a", (ander->*&Inzage::origineelEditor)->GetText()) << keuze;
        klikKeuze(ander->*&Inzage::parserModeKeuze, (keuze + 1) % 3);
        EXPECT_TRUE(laatLopenTot([ander] { return (ander->*&Inzage::origineelEditor)->IsEmpty(); })) << keuze;
        sluitVenster(ander);
    }
}

TEST_F(Modus, SchakeltKnippenNaarDeVlaggen) {
    for (int vlaggen = 0; vlaggen < 8; ++vlaggen) {
        zetVlaggen((vlaggen & 1) != 0, (vlaggen & 2) != 0, (vlaggen & 4) != 0);
        EXPECT_EQ((vlaggen & 1) != 0 || vlaggen == 6, isAan(wxID_REPLACE)) << vlaggen;
    }
}

TEST_F(Modus, SchakeltOpslaanAlleenNaarHetResultaat) {
    EXPECT_FALSE(isAan(wxID_SAVE));
    aangepast()->AppendText("x");
    for (const int keuze : {0, 1, 2}) {
        modus()->SetSelection(keuze);
        EXPECT_TRUE(isAan(wxID_SAVE)) << keuze;
    }
    aangepast()->SetSavePoint();
    EXPECT_FALSE(isAan(wxID_SAVE));
}

TEST_F(Modus, SchakeltToevoegenAlleenNaarHetOrigineel) {
    for (const int keuze : {0, 1, 2}) {
        modus()->SetSelection(keuze);
        zetVlaggen(false, true, true);
        EXPECT_FALSE(isAan(wxID_ADD)) << keuze;
        zetVlaggen(true, false, false);
        EXPECT_TRUE(isAan(wxID_ADD)) << keuze;
    }
}

TEST_F(Modus, SchakeltDeBatchbedieningNaarDeKeuze) {
    struct Geval {
        int keuze;
        bool openen, bron, bestemming, type;
    };
    for (const Geval& geval :
         {Geval{0, true, false, false, false}, {1, false, true, true, true}, {2, false, false, true, true}}) {
        modus()->SetSelection(geval.keuze);
        EXPECT_EQ(geval.openen, isAan(wxID_OPEN)) << geval.keuze;
        EXPECT_EQ(geval.bron, lid(&Inzage::bronDirKiezer)->IsEnabled()) << geval.keuze;
        EXPECT_EQ(geval.bestemming, lid(&Inzage::bestemmingDirKiezer)->IsEnabled()) << geval.keuze;
        EXPECT_EQ(geval.bron, lid(&Inzage::bronLabel)->IsEnabled()) << geval.keuze;
        EXPECT_EQ(geval.bestemming, lid(&Inzage::bestemmingLabel)->IsEnabled()) << geval.keuze;
        EXPECT_EQ(geval.type, lid(&Inzage::bestandTypeKeuze)->IsEnabled()) << geval.keuze;
    }
}

TEST_F(Modus, BeweertBijEenOnmogelijkeKeuzeEnGeldtDanAlsEenDirectory) {
    metOnmogelijkeKeuze([this] { EXPECT_FALSE(isAan(wxID_OPEN)); });
    const auto beweringen = hulp::neemBeweringen();
    ASSERT_EQ(1U, beweringen.size());
    EXPECT_EQ("Fout Keuze gemaakt.", beweringen[0].melding);
    EXPECT_TRUE(lid(&Inzage::bronDirKiezer)->IsEnabled());
    EXPECT_TRUE(lid(&Inzage::bestandTypeKeuze)->IsEnabled());
}

TEST_F(Modus, SchakeltKnopEnMenuSamen) {
    const auto pad = maakBestand("een.c", "x\n");
    beantwoordBestandsdialoog(naarWx(pad), [this] { geefOpdracht(wxID_OPEN); });
    laatLopen();
    EXPECT_TRUE(lid(&Inzage::pasAanKnop)->IsEnabled());
    EXPECT_TRUE(lid(&Inzage::voegToeKnop)->IsEnabled());
    EXPECT_FALSE(lid(&Inzage::opslaanKnop)->IsEnabled());
    geefOpdracht(wxID_REPLACE);
    laatLopen();
    EXPECT_TRUE(lid(&Inzage::opslaanKnop)->IsEnabled());
    venster_->UpdateWindowUI(wxUPDATE_UI_RECURSE);
    venster_->GetMenuBar()->GetMenu(0)->UpdateUI();
    for (const int id : {wxID_OPEN, wxID_ADD, wxID_SAVE, wxID_REPLACE}) {
        EXPECT_TRUE(venster_->GetMenuBar()->IsEnabled(id)) << id;
    }
    kiesModus(1);
    laatLopen();
    venster_->GetMenuBar()->GetMenu(0)->UpdateUI();
    EXPECT_FALSE(venster_->GetMenuBar()->IsEnabled(wxID_OPEN));
    EXPECT_FALSE(lid(&Inzage::openKnop)->IsEnabled());
    EXPECT_FALSE(lid(&Inzage::pasAanKnop)->IsEnabled());
    EXPECT_FALSE(lid(&Inzage::voegToeKnop)->IsEnabled());
}

TEST_F(Modus, WisseltMetDeMuisEnLaatEenTweedeKlikVoorWatHijIs) {
    klikKeuze(2);
    ASSERT_TRUE(laatLopenTot([this] { return modus()->GetSelection() == 2; }));
    EXPECT_EQ("-B-", toonVlaggen());
    origineel()->SetText("a");
    lid(&Inzage::bestemmingGekozen) = true;
    klikKeuze(2);
    laatLopen();
    EXPECT_EQ("a", tekstVan(origineel()));
    EXPECT_EQ("-BD", toonVlaggen());
    klikKeuze(1);
    ASSERT_TRUE(laatLopenTot([this] { return modus()->GetSelection() == 1; }));
    EXPECT_EQ("", tekstVan(origineel()));
}
