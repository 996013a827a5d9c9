// Het bezigvenster van een knipopdracht: dat het er getekend staat voor er geknipt wordt, wat het zegt, en
// wat er van de invoer van de gebruiker wordt.

#include "Knipselaar/venster/bezigVenster.h"

#include <wx/eventfilter.h>
#include <wx/log.h>
#include <wx/uiaction.h>

#include <optional>

#include "tests/venster/batchVenster.h"
#include "tests/venster/dialogen.h"

namespace {

/// Onthoudt wat er in een editor stond toen er voor het eerst een ander venster getekend werd.
class TekstBijTekenen : public wxEventFilter {
  public:
    TekstBijTekenen(const wxWindow& hoofdvenster, const wxStyledTextCtrl& editor)
        : hoofdvenster_(hoofdvenster), editor_(editor) {
        wxEvtHandler::AddFilter(this);
    }
    ~TekstBijTekenen() override { wxEvtHandler::RemoveFilter(this); }

    int FilterEvent(wxEvent& event) override {
        const auto* venster = dynamic_cast<wxWindow*>(event.GetEventObject());
        if (!tekst && venster != nullptr && event.GetEventType() == wxEVT_PAINT && venster->IsTopLevel() &&
            venster != &hoofdvenster_) {
            tekst = editor_.GetText().utf8_string();
        }
        return Event_Skip;
    }

    std::optional<std::string> tekst;

  private:
    const wxWindow& hoofdvenster_;
    const wxStyledTextCtrl& editor_;
};

class Bezig : public BatchTest {
  protected:
    /// Het kader van het bezigvenster, of niets als het er niet is.
    wxWindow* kader() const {
        for (wxWindow* kind : venster_->GetChildren()) {
            if (kind->IsTopLevel() && !kind->IsBeingDeleted()) {
                return kind;
            }
        }
        return nullptr;
    }

    /// Alle tekst die in een venster te lezen is. Een paneel heeft onder Windows zijn naam als opschrift; dat
    /// is nergens te zien.
    static wxString geefTekst(const wxWindow& venster) {
        wxString tekst;
        for (const wxWindow* kind : venster.GetChildren()) {
            tekst +=
                (dynamic_cast<const wxControl*>(kind) == nullptr ? "" : kind->GetLabel()) + geefTekst(*kind);
        }
        return tekst;
    }

    void klik(const wxWindow* doel) {
        const wxRect plek = doel->GetScreenRect();
        muis_.MouseMove(plek.GetPosition() + plek.GetSize() / 2);
        muis_.MouseClick();
    }

    wxUIActionSimulator muis_;
    Invoerslot slot_;
    kern::Voortgangstekst::Tijd nu_;
    std::function<kern::Voortgangstekst::Tijd()> klok_ = [this] { return nu_; };
};

}  // namespace

TEST_F(Bezig, StaatErGetekendVoorErGekniptWordt) {
    hulp::maakBoom(bron_, {{"a.c", metBlok}});
    hulp::maakBoom(doel_, {{"a.c", metBlok}});
    for (const int keuze : {0, 1, 2}) {
        kiesModus(keuze);
        origineel()->SetText("tekst\n");
        aangepast()->SetText("vorig resultaat\n");
        lid(&Inzage::origineelPad) = naarWx(bron_);
        lid(&Inzage::aangepastPad) = naarWx(doel_);
        const TekstBijTekenen bij(*venster_, *aangepast());
        geefOpdracht(wxID_REPLACE);
        EXPECT_EQ("vorig resultaat\n", bij.tekst) << keuze;
        EXPECT_NE("vorig resultaat\n", tekstVan(aangepast())) << keuze;
    }
}

TEST_F(Bezig, ZegtNaEenSecondeHoeVerDeRunIs) {
    const wxString begin = "Wacht een ogenblik, bezig met verwerken.......";
    BezigVenster bezig(*venster_, slot_, begin, klok_);
    EXPECT_EQ(begin, geefTekst(*kader()));
    int vooraf = 0;
    const auto tel = [&vooraf] { ++vooraf; };
    bezig.meld(10, 21930, tel);
    EXPECT_EQ(begin, geefTekst(*kader()));
    EXPECT_EQ(0, vooraf);
    nu_ += std::chrono::seconds(1);
    bezig.meld(120, 21930, tel);
    EXPECT_EQ(begin + "\n120 van 21930 bestanden", geefTekst(*kader()));
    EXPECT_EQ(1, vooraf) << "wat er verder te zien moet zijn komt mee";
}

TEST_F(Bezig, LaatToetsenEnKlikkenVervallen) {
    int opdrachten = 0;
    const auto tel = [&opdrachten](wxCommandEvent&) { ++opdrachten; };
    venster_->Bind(wxEVT_MENU, tel, wxID_REPLACE);
    venster_->Bind(wxEVT_BUTTON, tel, wxID_REPLACE);
    lid(&Inzage::origineelGeladen) = true;
    origineel()->SetFocus();
    laatLopen();
    {
        const BezigVenster bezig(*venster_, slot_, "Bezig");
        muis_.Char('a');
        muis_.Char('F', wxMOD_CONTROL);
        klik(lid(&Inzage::pasAanKnop));
        klik(modus());
        klik(lid(&Inzage::vervangTekst));
        muis_.Char('b');
    }
    laatLopen();
    EXPECT_EQ("", tekstVan(origineel()));
    EXPECT_EQ("WERK", lid(&Inzage::vervangTekst)->GetValue());
    EXPECT_EQ(0, modus()->GetSelection());
    EXPECT_EQ(0, opdrachten);
    // Daarna werkt alles weer, en op dezelfde plaats.
    muis_.Char('c');
    EXPECT_TRUE(laatLopenTot([this] { return tekstVan(origineel()) == "c"; })) << tekstVan(origineel());
    muis_.Char('F', wxMOD_CONTROL);
    EXPECT_TRUE(laatLopenTot([&opdrachten] { return opdrachten == 1; }));
    klik(lid(&Inzage::pasAanKnop));
    EXPECT_TRUE(laatLopenTot([&opdrachten] { return opdrachten == 2; }));
}

TEST_F(Bezig, GaatNietDichtVoorHetEinde) {
    {
        const BezigVenster bezig(*venster_, slot_, "Bezig");
        kader()->Close();
        laatLopen();
        EXPECT_NE(nullptr, kader());
    }
    EXPECT_TRUE(laatLopenTot([this] { return kader() == nullptr; }));
}

TEST_F(Bezig, LaatMeldingenWachtenTotHetWegIs) {
    zonderDialoog([this] {
        const BezigVenster bezig(*venster_, slot_, "Bezig");
        wxLogError("Er ging iets mis.");
    });
    const auto melding = beantwoordMelding(wxID_OK, [] { wxLog::FlushActive(); });
    EXPECT_EQ("Er ging iets mis.", melding.tekst);
}
