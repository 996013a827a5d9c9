// De twee batches van het venster: vragen, de editors als logboek, en het kiezen van de directories. Het
// lopen, tellen en vervangen doet de kern.

#include <wx/choice.h>
#include <wx/intl.h>
#include <wx/log.h>
#include <wx/msgdlg.h>
#include <wx/stc/stc.h>

#include <string>
#include <utility>
#include <vector>

#include "Knipselaar/kern/batch.h"
#include "Knipselaar/kern/batchVerslag.h"
#include "Knipselaar/kern/keuzes.h"
#include "Knipselaar/kern/logregels.h"
#include "Knipselaar/kern/systeem/paden.h"
#include "Knipselaar/venster/bezigVenster.h"
#include "Knipselaar/venster/identificaties.h"
#include "Knipselaar/venster/markeerder.h"
#include "Knipselaar/venster/merken.h"
#include "Knipselaar/venster/padKiezer.h"
#include "Knipselaar/venster/parserVenster.h"

namespace {

/// Een editor als logboek. Regels komen er bij elkaar in: van elke regel apart werkt de toolkit eerst het
/// scherm bij.
class Logboek {
  public:
    explicit Logboek(wxStyledTextCtrl& editor) : editor_(editor), bijschrijver_(editor) {}

    wxStyledTextCtrl& geefEditor() { return editor_; }

    void voegToe(const wxString& regel) { regels_ += regel.utf8_string(); }

    /// Zet bijschriften onder de laatste regel.
    void schrijfBij(std::vector<kern::Bijschrift> bijschriften) {
        if (!bijschriften.empty()) {
            bijschriften_.push_back({.plaats = regels_.size() - 1, .lijst = std::move(bijschriften)});
        }
    }

    /// Zet in de editor wat er nog niet in staat.
    void werkBij() {
        const int begin = editor_.GetLength();
        editor_.AppendTextRaw(regels_.data(), static_cast<int>(regels_.size()));
        for (const Bij& bij : std::exchange(bijschriften_, {})) {
            bijschrijver_.zet(editor_.LineFromPosition(begin + static_cast<int>(bij.plaats)), bij.lijst);
        }
        regels_.clear();
    }

    /// Zet een bijschrift onder het geheel, en laat alle bijschriften zien.
    void sluitAf(const kern::Bijschrift& samenvatting) {
        werkBij();
        bijschrijver_.zet(editor_.GetLineCount() - 1, {samenvatting});
        merken::toonBijschriften(editor_, true);
    }

  private:
    /// Bijschriften bij de regel waarin een byte van regels_ staat.
    struct Bij {
        std::size_t plaats;
        std::vector<kern::Bijschrift> lijst;
    };

    wxStyledTextCtrl& editor_;
    merken::Bijschrijver bijschrijver_;
    std::string regels_;
    std::vector<Bij> bijschriften_;
};

/// Knipt voor een venster: leest zijn bediening bij elk bestand opnieuw en schrijft in zijn editors.
class VensterBatch : public kern::BatchOpdracht {
  public:
    VensterBatch(BezigVenster& bezig, const wxChoice& bestandType, wxStyledTextCtrl& bronLog,
                 wxStyledTextCtrl& doelLog,
                 std::function<kern::KnipUitslag(const wxFileName&, const wxFileName&)> knip)
        : bezig_(bezig),
          bestandType_(bestandType),
          bronLog_(bronLog),
          doelLog_(doelLog),
          knip_(std::move(knip)) {}

    bool isGekozen(const wxFileName& bestand) override {
        return kern::isBestandGekozen(bestand.GetExt(), bestandType_.GetSelection());
    }

    kern::KnipUitslag knip(const wxFileName& bron, const wxFileName& bestemming) override {
        return knip_(bron, bestemming);
    }

    void meldOvergeslagen(long nummer, const wxFileName& bestand, kern::Overslag reden) override {
        bronLog_.voegToe(kern::regelOvergeslagen(nummer, bestand.GetFullPath()));
        bronLog_.schrijfBij(kern::beschrijfOverslag(reden));
        telling_.neemOvergeslagen();
    }

    void meldVerwerkt(long nummer, const wxFileName& bron, const wxFileName& bestemming) override {
        bronLog_.voegToe(kern::regelOrigineel(nummer, bron.GetFullName()));
        doelLog_.voegToe(kern::regelStudent(nummer, bestemming.GetFullName()));
    }

    void meldAfloop(const kern::Afloop& afloop) override {
        const kern::BatchBijschriften bijschriften = kern::beschrijfAfloop(afloop);
        bronLog_.schrijfBij(bijschriften.bron);
        doelLog_.schrijfBij(bijschriften.bestemming);
        telling_.neem(afloop);
    }

    /// Zet onder beide logboeken wat er van de batch kwam, en laat zien wat er onder hun regels staat.
    void vatSamen() {
        for (Logboek* log : {&bronLog_, &doelLog_}) {
            log->sluitAf(telling_.geefSamenvatting());
        }
    }

    void meldVoortgang(std::size_t gedaan, std::size_t totaal) override {
        bezig_.meld(gedaan, totaal, [this] {
            for (Logboek* log : {&bronLog_, &doelLog_}) {
                log->werkBij();
            }
        });
    }

  protected:
    BezigVenster& bezig_;
    const wxChoice& bestandType_;
    Logboek bronLog_;
    Logboek doelLog_;

  private:
    std::function<kern::KnipUitslag(const wxFileName&, const wxFileName&)> knip_;
    kern::BatchTelling telling_;
};

/// Ter plaatse noemt het logboek hele paden en laat het met kleur zien wat er voorkwam.
class TerPlaatseBatch : public VensterBatch {
  public:
    using VensterBatch::VensterBatch;

    void meldOvergeslagen(long nummer, const wxFileName& bestand, kern::Overslag reden) override {
        bronLog_.geefEditor().SetBackgroundColour(rood_);
        VensterBatch::meldOvergeslagen(nummer, bestand, reden);
    }

    void meldVerwerkt(long nummer, const wxFileName& bron, const wxFileName& bestemming) override {
        bronLog_.geefEditor().SetForegroundColour(blauw_);
        bronLog_.voegToe(kern::regelOrigineel(nummer, bron.GetFullPath()));
        doelLog_.voegToe(kern::regelStudent(nummer, bestemming.GetFullPath()));
    }

  private:
    const wxColour rood_ = wxColour("RED");
    const wxColour blauw_ = wxColour("BLUE");
};

}  // namespace

/// Maakt beide editors leeg, met alles wat er onder hun regels stond.
void ParserVenster::wisEditors() {
    markeerder_->wisOrigineel();
    markeerder_->wisResultaat();
    origineelEditor->ClearAll();
    aangepastEditor->ClearAll();
}

/// Knipt één bestand, en geeft een batch hoe het ging.
kern::KnipUitslag ParserVenster::knipVoorBatch(const wxFileName& bron, const wxFileName& bestemming) {
    bewerkBestand(bron, bestemming);
    return std::move(uitslag_);
}

void ParserVenster::verwerkDirectory(BezigVenster& bezig) {
    // Naar zichzelf geknipt raakt elk bestand leeg; dat mag alleen als de gebruiker het wil. Wie de vraag met
    // Escape of het sluitkruis wegdoet, wil het niet.
    if (kern::isZelfdePlaats(kern::naarPad(origineelPad), kern::naarPad(aangepastPad)) &&
        wxMessageBox(wxGetTranslation("Bron en bestemming directories zijn gelijk.\nToch doorgaan?"),
                     "Bevestig", wxYES_NO, this) != wxYES) {
        return;
    }
    wisEditors();
    const auto namen = kern::lijstDirectory(origineelPad);
    origineelEditor->AppendText(kern::regelOrigineleDirectory(origineelPad));
    aangepastEditor->AppendText(kern::regelStudentDirectory(aangepastPad));
    if (namen.empty()) {
        wxLogError("De aangegeven bron directory is leeg!");
        return;
    }
    VensterBatch batch(bezig, *bestandTypeKeuze, *origineelEditor, *aangepastEditor,
                       [this](const auto& bron, const auto& doel) { return knipVoorBatch(bron, doel); });
    kern::knipDirectory(origineelPad, aangepastPad, namen, batch);
    batch.vatSamen();
}

void ParserVenster::verwerkDirectoryRecursief(BezigVenster& bezig) {
    wisEditors();
    const auto paden = kern::lijstBoom(aangepastPad);
    origineelEditor->AppendText(kern::regelTotaal(static_cast<long>(paden.size()), aangepastPad));
    TerPlaatseBatch batch(bezig, *bestandTypeKeuze, *origineelEditor, *aangepastEditor,
                          [this](const auto& bron, const auto& doel) { return knipVoorBatch(bron, doel); });
    kern::knipBoom(aangepastPad, paden, batch);
    batch.vatSamen();
}

void ParserVenster::verwerkDirHandler(wxFileDirPickerEvent& event) {
    auto* kiezer = dynamic_cast<wxDirPickerCtrl*>(FindWindowById(event.GetId(), this));
    if (kiezer == nullptr) {
        return;
    }
    toonHeelPad(*kiezer);
    bool& gekozen = event.GetId() == ID_BRONDIR ? bronGekozen : bestemmingGekozen;
    // De kiezer meldt elke toets in zijn tekstveld. Wie ".../les2" typt komt langs ".../les": alleen een
    // directory die er is telt, en zolang de tekst er geen noemt is er niets gekozen.
    gekozen = wxFileName::DirExists(kiezer->GetPath());
    if (gekozen) {
        huidigBestand = wxFileName::DirName(kiezer->GetPath());
        wxString& pad = event.GetId() == ID_BRONDIR ? origineelPad : aangepastPad;
        pad = huidigBestand.GetPath(wxPATH_GET_VOLUME, wxPATH_NATIVE);
    }
}
