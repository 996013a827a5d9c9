// Wat een schermlezer over de bediening hoort. Een veld van Windows zelf heet naar het label dat er in de volgorde van
// de vensters voor staat, en dat klopt hier niet altijd; een editor heeft helemaal geen naam.

#include "Knipselaar/venster/toegankelijkheid.h"

#include <wx/access.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/intl.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/stc/stc.h>
#include <wx/textctrl.h>

#include "Knipselaar/venster/parserVenster.h"

namespace {

/// Alleen naam en beschrijving; van al het andere weet Windows zelf genoeg. Het venster waar zij bij hoort bezit haar.
class Toegang : public wxAccessible {
  public:
    Toegang(wxWindow& bediening, const wxString& naam, const wxString& beschrijving)
        : wxAccessible(&bediening), naam_(naam), beschrijving_(beschrijving) {}

    wxAccStatus GetName(int deel, wxString* naam) override { return geef(deel, naam_, naam); }

    wxAccStatus GetDescription(int deel, wxString* beschrijving) override {
        return geef(deel, beschrijving_, beschrijving);
    }

  private:
    static wxAccStatus geef(int deel, const wxString& tekst, wxString* uit) {
        if (deel != wxACC_SELF || tekst.empty()) {
            return wxACC_NOT_IMPLEMENTED;
        }
        *uit = tekst;
        return wxACC_OK;
    }

    wxString naam_;
    wxString beschrijving_;
};

void noem(wxWindow& bediening, const wxString& naam, const wxString& beschrijving = wxString()) {
    bediening.SetAccessible(new Toegang(bediening, naam, beschrijving));
}

/// Beide kiezers hebben een knop met dezelfde tekst; de beschrijving zegt welke het is.
void noemKiezer(const wxStaticText& label, wxDirPickerCtrl& kiezer) {
    noem(*kiezer.GetTextCtrl(), label.GetLabelText());
    noem(*kiezer.GetPickerCtrl(), wxString(), label.GetLabelText());
}

}  // namespace

void ParserVenster::noemVoorSchermlezer() {
    noem(*origineelEditor, origineelBox->GetLabelText());
    noem(*beginMarkerTekst, beginMarkerBox->GetLabelText());
    noem(*eindMarkerTekst, eindMarkerBox->GetLabelText());
    noem(*aangepastEditor, aangepastBox->GetLabelText());
    noem(*vervangTekst, vervangBox->GetLabelText());
    noemKiezer(*bronLabel, *bronDirKiezer);
    noemKiezer(*bestemmingLabel, *bestemmingDirKiezer);
    noem(*bestandTypeKeuze, wxGetTranslation("Soort bestanden"));
}
