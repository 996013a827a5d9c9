// Wat er van het veld op het scherm komt, en wanneer.

#include <wx/dcscreen.h>
#include <wx/log.h>

#include "tests/venster/grafiekTest.h"
#include "tests/venster/schermbeeld.h"
#include "tests/venster/vensterTest.h"

namespace {

/// Onthoudt wat er op het laagste niveau gelogd wordt.
class Logvanger : public wxLog {
  public:
    Logvanger() : niveau_(wxLog::GetLogLevel()), vorige_(wxLog::SetActiveTarget(this)) {
        wxLog::SetLogLevel(wxLOG_Debug);
    }
    Logvanger(const Logvanger&) = delete;
    Logvanger& operator=(const Logvanger&) = delete;
    ~Logvanger() override {
        wxLog::SetLogLevel(niveau_);
        wxLog::SetActiveTarget(vorige_);
    }

    [[nodiscard]] const std::vector<std::string>& regels() const { return regels_; }

  protected:
    void DoLogRecord(wxLogLevel niveau, const wxString& tekst, const wxLogRecordInfo& /*bron*/) override {
        if (niveau == wxLOG_Debug) {
            regels_.push_back(tekst.utf8_string());
        }
    }

  private:
    wxLogLevel niveau_;
    wxLog* vorige_;
    std::vector<std::string> regels_;
};

class GrafiekToonTest : public GrafiekTest {
  protected:
    /// Een tweede paneel, dat met het eerste mee getekend wordt als dat nodig is: wie op de wachter gewacht
    /// heeft, weet dat ook het eerste paneel aan de beurt was.
    GrafiekToonTest() : wachter_(new wxPanel(ouder_, wxID_ANY, wxPoint(450, 30), wxSize(20, 20))) {
        telGetekend(*paneel_, paneelGetekend_);
        telGetekend(*wachter_, wachterGetekend_);
        venster_->Show();
        venster_->Raise();
        EXPECT_TRUE(laatLopenTot([this] { return paneelGetekend_ > 0 && wachterGetekend_ > 0; }));
        laatLopen();
    }

    static void telGetekend(wxWindow& venster, int& teller) {
        venster.Bind(wxEVT_PAINT, [&teller](wxPaintEvent& event) {
            ++teller;
            event.Skip();
        });
    }

    /// Of het paneel na een handeling opnieuw op het scherm komt.
    bool komtOpScherm(const std::function<void()>& handeling) {
        const int paneelVooraf = paneelGetekend_;
        const int wachterVooraf = wachterGetekend_;
        handeling();
        wachter_->Refresh();
        EXPECT_TRUE(laatLopenTot([&] { return wachterGetekend_ > wachterVooraf; }));
        return paneelGetekend_ > paneelVooraf;
    }

    /// Wat de gebruiker op de plaats van het paneel ziet.
    [[nodiscard]] Beeld scherm() const { return Beeld(neemSchermbeeld(paneel_->GetScreenRect())); }

    /// Zet een rode staande band op veld-x 150 tot 210 en een rode liggende op veld-y 40 tot 120.
    void tekenBanden() {
        paneel_->zetPen(wxPen(*wxRED, 60));
        paneel_->tekenVerticaleLijn(180);
        paneel_->zetPen(wxPen(*wxRED, 80));
        paneel_->tekenHorizontaleLijn(320);
    }

    /// Telt de punten die anders zijn dan de banden op deze maat horen te laten zien. Langs de randen mag de
    /// uitrekking mengen.
    [[nodiscard]] static int telVerkeerd(const Beeld& gezien) {
        const auto ligging = [](int plaats, int maat, int veld, int van, int tot) {
            const double opVeld = (plaats + 0.5) * veld / maat;
            const double menging = 1.5 * std::max(1.0, static_cast<double>(veld) / maat);
            if (opVeld > van + menging && opVeld < tot - menging) {
                return 1;
            }
            return opVeld < van - menging || opVeld > tot + menging ? -1 : 0;
        };
        const int breedte = gezien.image().GetWidth();
        const int hoogte = gezien.image().GetHeight();
        int verkeerd = 0;
        for (int y = 0; y < hoogte; ++y) {
            for (int x = 0; x < breedte; ++x) {
                const int opX = ligging(x, breedte, 600, 150, 210);
                const int opY = ligging(y, hoogte, 400, 40, 120);
                const bool hoortRood = opX == 1 || opY == 1;
                const bool hoortWit = opX == -1 && opY == -1;
                const wxColour kleur = gezien.kleur(x, y);
                verkeerd += (hoortRood && kleur != *wxRED) || (hoortWit && kleur != *wxWHITE) ? 1 : 0;
            }
        }
        return verkeerd;
    }

    wxPanel* wachter_;
    int paneelGetekend_ = 0;
    int wachterGetekend_ = 0;
};

}  // namespace

TEST_F(GrafiekToonTest, VerverstNaElkeTekening) {
    PuntLijst punten;
    punten.Add(wxPoint(1, 2));
    punten.Add(wxPoint(30, 40));
    const wxPoint nul(0, 0);
    const auto tel = [this](const std::function<void()>& handeling) {
        return paneel_->telVerversen(handeling);
    };
    EXPECT_EQ(1, tel([this] { paneel_->maakSchoon(); }));
    EXPECT_EQ(2, tel([this] { paneel_->tekenAssenstelsel(*wxRED_PEN); })) << "na elke as";
    EXPECT_EQ(1, tel([this] { paneel_->tekenVerticaleLijn(1); }));
    EXPECT_EQ(1, tel([this] { paneel_->tekenHorizontaleLijn(1); }));
    EXPECT_EQ(1, tel([this, nul] { paneel_->tekenLijn(nul, wxPoint(5, 5), true); }));
    EXPECT_EQ(1, tel([this] { paneel_->tekenStaaf(wxPoint(5, 5), true); }));
    EXPECT_EQ(1, tel([&] { paneel_->tekenLijnen(punten, nul); }));
    EXPECT_EQ(1, tel([&] { paneel_->tekenSpline(punten, nul); }));
    EXPECT_EQ(1, tel([&] { paneel_->tekenStaven(punten, nul, true, true); })) << "alleen aan het einde";
    EXPECT_EQ(1, tel([&] { paneel_->tekenStaven(PuntLijst(), nul, true, true); })) << "ook zonder punten";
    EXPECT_EQ(1, tel([&] { paneel_->tekenLijnen(PuntLijst(), nul); }));
}

TEST_F(GrafiekToonTest, VerverstNietBijRechthoekEnTekst) {
    EXPECT_EQ(0, paneel_->telVerversen([this] {
        paneel_->zetPen(*wxRED_PEN);
        paneel_->tekenRechthoek(wxRect(10, 10, 50, 50));
        paneel_->zetNormaleText("x", wxPoint(10, 10));
        paneel_->zetGroteText("y", wxPoint(20, 20));
        paneel_->zetOorsprong(wxPoint(1, 1));
        paneel_->zetOorsprong(wxRealPoint(0.5, 0.5));
        paneel_->zetOorsprongMidden();
        paneel_->Layout();
    }));
}

TEST_F(GrafiekToonTest, ToontPasWatHetVerverst) {
    EXPECT_FALSE(komtOpScherm([] {})) << "zonder aanleiding tekent het paneel niet";
    wxPen pen(*wxRED, 20);
    paneel_->zetPen(pen);
    EXPECT_FALSE(komtOpScherm([this] { paneel_->tekenRechthoek(wxRect(100, 100, 300, 200)); }));
    EXPECT_EQ(0, scherm().telNietWit()) << "de rechthoek staat nog alleen op het veld";
    EXPECT_TRUE(komtOpScherm([this] { paneel_->tekenLijn(wxPoint(0, -50), wxPoint(1, -50), false); }));
    EXPECT_TRUE(laatLopenTot([this] { return scherm().isGetekend(150, 50); }));
    EXPECT_TRUE(komtOpScherm([this] { paneel_->maakSchoon(); }));
    EXPECT_TRUE(laatLopenTot([this] { return scherm().telNietWit() == 0; }));
}

TEST_F(GrafiekToonTest, RektHetVeldUitOverHetHelePaneel) {
    tekenBanden();
    const Beeld veld = beeld();
    EXPECT_EQ(0, telVerkeerd(veld));
    EXPECT_TRUE(laatLopenTot([this] { return telVerkeerd(scherm()) == 0; }));
    for (const wxSize& maat : {wxSize(600, 400), wxSize(390, 80), wxSize(75, 410), wxSize(300, 200)}) {
        const int vooraf = paneelGetekend_;
        paneel_->SetSize(maat);
        EXPECT_TRUE(laatLopenTot([&] { return paneelGetekend_ > vooraf && telVerkeerd(scherm()) == 0; }))
            << maat.GetWidth() << "x" << maat.GetHeight() << ": " << telVerkeerd(scherm());
        EXPECT_EQ(maat, lid(&GrafiekInzage::clientGrootte));
        EXPECT_TRUE(veld == beeld()) << "het veld zelf verandert niet";
    }
}

TEST_F(GrafiekToonTest, ToontDeGrootteVanLayout) {
    tekenBanden();
    ASSERT_TRUE(laatLopenTot([this] { return telVerkeerd(scherm()) == 0; }));
    // Wat Layout het laatst gezien heeft, bepaalt het doel; hier een kleiner stuk van het paneel.
    lid(&GrafiekInzage::clientGrootte) = wxSize(120, 50);
    paneel_->Refresh();
    EXPECT_TRUE(laatLopenTot(
        [this] { return telVerkeerd(Beeld(scherm().image().GetSubImage(wxRect(0, 0, 120, 50)))) == 0; }));
    paneel_->Layout();
    paneel_->Refresh();
    EXPECT_TRUE(laatLopenTot([this] { return telVerkeerd(scherm()) == 0; }));
}

TEST_F(GrafiekToonTest, OverleeftVerversenZonderGrootte) {
    paneel_->zetPen(wxPen(*wxBLACK, 4));  // dik genoeg om op halve grootte over te blijven
    paneel_->tekenVerticaleLijn(300);
    lid(&GrafiekInzage::clientGrootte) = wxSize(0, 0);
    const Logvanger log;
    EXPECT_TRUE(komtOpScherm([this] { paneel_->Refresh(); }));
    EXPECT_TRUE(laatLopenTot([this] { return scherm().telGetekend() == 0; }));
    paneel_->Layout();
    EXPECT_TRUE(komtOpScherm([this] { paneel_->Refresh(); }));
    EXPECT_TRUE(laatLopenTot([this] { return scherm().telNietWit() > 0; })) << "en daarna gewoon verder";
}

TEST_F(GrafiekToonTest, WistDeAchtergrondNiet) {
    wxScreenDC dc;
    wxEraseEvent wissen(paneel_->GetId(), &dc);
    wissen.SetEventObject(paneel_);
    EXPECT_TRUE(paneel_->HandleWindowEvent(wissen)) << "het paneel handelt het wissen zelf af";
    EXPECT_FALSE(wissen.GetSkipped());
}

TEST_F(GrafiekToonTest, LogtDeGrenzenVanGeschaaldeStaven) {
    PuntLijst punten;
    punten.Add(wxPoint(12, 90));
    punten.Add(wxPoint(70, 35));
    const Logvanger log;
    paneel_->tekenStaven(punten, wxPoint(0, 0), false, false);
    EXPECT_TRUE(log.regels().empty()) << "zonder schalen is er niets te zoeken";
    paneel_->tekenStaven(punten, wxPoint(5, 5), false, true);
    paneel_->tekenStaven(PuntLijst(), wxPoint(0, 0), false, true);
    EXPECT_EQ((std::vector<std::string>{"maxpunt = 70,90", "minpunt = 12,35", "maxpunt = 0,0",
                                        "minpunt = 600,400"}),
              log.regels());
}
