// De twee batches van het venster: vragen, de editors als logboek, en het kiezen van de directories. Het
// lopen, tellen en vervangen doet de kern.

#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/intl.h>
#include <wx/log.h>
#include <wx/msgdlg.h>
#include <wx/stc/stc.h>

#include "Knipselaar/kern/batch.h"
#include "Knipselaar/kern/keuzes.h"
#include "Knipselaar/kern/logregels.h"
#include "Knipselaar/kern/paden.h"
#include "Knipselaar/venster/bezigVenster.h"
#include "Knipselaar/venster/identificaties.h"
#include "Knipselaar/venster/parserVenster.h"

namespace {

/// Laat een editor zijn schuifbalk pas bijwerken als er niets meer bij komt. De toolkit rekent hem anders bij
/// elke regel opnieuw uit, en dat kost een tiende van de hele batch.
class Schuifrust {
  public:
    explicit Schuifrust(wxStyledTextCtrl& editor) : editor_(editor) {
        editor_.SetUseVerticalScrollBar(false);
    }
    Schuifrust(const Schuifrust&) = delete;
    Schuifrust& operator=(const Schuifrust&) = delete;
    ~Schuifrust() { editor_.SetUseVerticalScrollBar(true); }

  private:
    wxStyledTextCtrl& editor_;
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
          bronRust_(bronLog),
          doelRust_(doelLog),
          knip_(std::move(knip)) {}

    bool isGekozen(const wxFileName& bestand) override {
        return kern::isBestandGekozen(bestand.GetExt(), bestandType_.GetSelection());
    }

    kern::KnipUitslag knip(const wxFileName& bron, const wxFileName& bestemming) override {
        return knip_(bron, bestemming);
    }

    void meldOvergeslagen(long nummer, const wxFileName& bestand) override {
        bronLog_.AppendText(kern::regelOvergeslagen(nummer, bestand.GetFullPath()));
    }

    void meldVerwerkt(long nummer, const wxFileName& bron, const wxFileName& bestemming) override {
        bronLog_.AppendText(kern::regelOrigineel(nummer, bron.GetFullName()));
        doelLog_.AppendText(kern::regelStudent(nummer, bestemming.GetFullName()));
    }

    void meldVoortgang(std::size_t gedaan, std::size_t totaal) override { bezig_.meld(gedaan, totaal); }

  protected:
    BezigVenster& bezig_;
    const wxChoice& bestandType_;
    wxStyledTextCtrl& bronLog_;
    wxStyledTextCtrl& doelLog_;

  private:
    Schuifrust bronRust_;
    Schuifrust doelRust_;
    std::function<kern::KnipUitslag(const wxFileName&, const wxFileName&)> knip_;
};

/// Ter plaatse noemt het logboek hele paden en laat het met kleur zien wat er voorkwam.
class TerPlaatseBatch : public VensterBatch {
  public:
    using VensterBatch::VensterBatch;

    void meldOvergeslagen(long nummer, const wxFileName& bestand) override {
        bronLog_.SetBackgroundColour(wxColour("RED"));
        VensterBatch::meldOvergeslagen(nummer, bestand);
    }

    void meldVerwerkt(long nummer, const wxFileName& bron, const wxFileName& bestemming) override {
        bronLog_.SetForegroundColour(wxColour("BLUE"));
        bronLog_.AppendText(kern::regelOrigineel(nummer, bron.GetFullPath()));
        doelLog_.AppendText(kern::regelStudent(nummer, bestemming.GetFullPath()));
    }
};

}  // namespace

void ParserVenster::verwerkDirectory(BezigVenster& bezig) {
    // Naar zichzelf geknipt raakt elk bestand leeg; dat mag alleen als de gebruiker het wil.
    if (kern::isZelfdePlaats(origineelPad, aangepastPad) &&
        wxMessageBox(wxGetTranslation("Bron en bestemming directories zijn gelijk.\nToch doorgaan?"),
                     "Bevestig", wxYES_NO, this) == wxNO) {
        return;
    }
    origineelEditor->ClearAll();
    aangepastEditor->ClearAll();
    const auto namen = kern::lijstDirectory(origineelPad);
    origineelEditor->AppendText(kern::regelOrigineleDirectory(origineelPad));
    aangepastEditor->AppendText(kern::regelStudentDirectory(aangepastPad));
    if (namen.empty()) {
        wxLogError("De aangegeven bron directory is leeg!");
        return;
    }
    VensterBatch batch(bezig, *bestandTypeKeuze, *origineelEditor, *aangepastEditor,
                       [this](const auto& bron, const auto& doel) { return knipBestand(bron, doel); });
    kern::knipDirectory(origineelPad, aangepastPad, namen, batch);
}

void ParserVenster::verwerkDirectoryRecursief(BezigVenster& bezig) {
    origineelEditor->ClearAll();
    aangepastEditor->ClearAll();
    const auto paden = kern::lijstBoom(aangepastPad);
    origineelEditor->AppendText(kern::regelTotaal(static_cast<long>(paden.size()), aangepastPad));
    TerPlaatseBatch batch(bezig, *bestandTypeKeuze, *origineelEditor, *aangepastEditor,
                          [this](const auto& bron, const auto& doel) { return knipBestand(bron, doel); });
    kern::knipBoom(aangepastPad, paden, batch);
}

void ParserVenster::verwerkDirHandler(wxFileDirPickerEvent& event) {
    const auto* kiezer = dynamic_cast<wxDirPickerCtrl*>(FindWindowById(event.GetId(), this));
    if (kiezer == nullptr) {
        return;
    }
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
