#include "Knipselaar/venster/systeem/toegankelijkheid.h"

#include <wx/access.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace {

/// Alleen naam en beschrijving; van al het andere weet Windows zelf genoeg. Het venster waar het bij hoort
/// bezit het.
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

/// Een veld van Windows heet anders naar het label dat er in de volgorde van de vensters voor staat, en dat
/// is hier niet altijd het zijne; een editor heeft anders geen naam.
void noem(wxWindow& bediening, const wxString& naam, const wxString& beschrijving = wxString()) {
    bediening.SetAccessible(new Toegang(bediening, naam, beschrijving));
}

}  // namespace

void noemVeld(const wxStaticBox& kader, wxWindow& veld) {
    noem(veld, kader.GetLabelText());
}

void noemKiezer(const wxStaticText& label, wxDirPickerCtrl& kiezer) {
    noem(*kiezer.GetTextCtrl(), label.GetLabelText());
    noem(*kiezer.GetPickerCtrl(), wxString(), label.GetLabelText());
}

void noemKeuzelijst(wxChoice& keuzelijst, const wxString& naam) {
    noem(keuzelijst, naam);
}
