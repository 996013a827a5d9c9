// De begintoestand en de sizers van het parservenster.

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/intl.h>
#include <wx/panel.h>
#include <wx/radiobox.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/stc/stc.h>
#include <wx/textctrl.h>

#include "Knipselaar/venster/parserVenster.h"

namespace {

/// Een liggend kader om één veld dat het helemaal vult.
wxSizer* omkader(wxStaticBox* kader, wxWindow* veld) {
    auto* sizer = new wxStaticBoxSizer(kader, wxHORIZONTAL);
    sizer->Add(veld, 1, wxEXPAND, 0);
    return sizer;
}

}  // namespace

void ParserVenster::set_properties() {
    SetTitle(wxGetTranslation("Knipselaar"));
    parserModeKeuze->SetSelection(0);
    opslaanKnop->Enable(false);
    bestandTypeKeuze->SetSelection(0);
    pasAanKnop->Enable(false);
}

void ParserVenster::do_layout() {
    auto* inhoud = new wxBoxSizer(wxVERTICAL);
    inhoud->Add(maakBovenrij(), 1, wxEXPAND, 0);
    inhoud->Add(maakMiddenrij(), 0, wxEXPAND, 0);
    inhoud->Add(maakOnderrij(), 0, wxEXPAND, 0);
    paneel->SetSizer(inhoud);

    auto* geheel = new wxBoxSizer(wxVERTICAL);
    geheel->Add(paneel, 1, wxEXPAND, 0);
    SetSizer(geheel);
    geheel->Fit(this);
    Layout();
}

wxSizer* ParserVenster::maakBovenrij() {
    auto* origineelInhoud = new wxBoxSizer(wxVERTICAL);
    origineelInhoud->Add(origineelEditor, 3, wxEXPAND | wxFIXED_MINSIZE, 0);
    origineelInhoud->Add(omkader(beginMarkerBox, beginMarkerTekst), 1, wxEXPAND, 0);
    origineelInhoud->Add(omkader(eindMarkerBox, eindMarkerTekst), 1, wxEXPAND, 0);
    auto* origineel = new wxStaticBoxSizer(origineelBox, wxVERTICAL);
    origineel->Add(origineelInhoud, 1, wxEXPAND, 0);

    auto* aangepast = new wxStaticBoxSizer(aangepastBox, wxVERTICAL);
    aangepast->Add(aangepastEditor, 3, wxEXPAND | wxFIXED_MINSIZE, 0);
    aangepast->Add(omkader(vervangBox, vervangTekst), 1, wxEXPAND, 0);

    auto* rij = new wxBoxSizer(wxHORIZONTAL);
    rij->Add(origineel, 1, wxEXPAND, 0);
    rij->Add(aangepast, 1, wxEXPAND, 0);
    return rij;
}

wxSizer* ParserVenster::maakMiddenrij() {
    auto* openen = new wxBoxSizer(wxHORIZONTAL);
    openen->Add(openKnop, 0, wxALL, 10);
    openen->Add(voegToeKnop, 0, wxALL, 10);
    auto* enkelBestand = new wxStaticBoxSizer(enkelBestandBox, wxVERTICAL);
    enkelBestand->Add(openen, 1, wxEXPAND, 0);
    enkelBestand->Add(opslaanKnop, 0, wxALL | wxEXPAND, 10);

    // Geen rij of kolom groeit, en de rand van 10 bij de kiezers heeft geen richting en doet dus niets.
    auto* directories = new wxFlexGridSizer(2, 2, 5, 5);
    directories->Add(bronLabel, 0, wxALIGN_CENTER_VERTICAL, 0);
    directories->Add(bronDirKiezer, 1, wxEXPAND, 10);
    directories->Add(bestemmingLabel, 0, wxALIGN_CENTER_VERTICAL, 0);
    directories->Add(bestemmingDirKiezer, 1, wxEXPAND, 10);
    auto* batch = new wxStaticBoxSizer(batchBox, wxVERTICAL);
    batch->Add(directories, 1, wxEXPAND, 0);
    batch->Add(bestandTypeKeuze, 0, wxALL | wxEXPAND, 5);

    auto* rij = new wxBoxSizer(wxHORIZONTAL);
    rij->Add(parserModeKeuze, 0, wxEXPAND, 0);
    rij->Add(enkelBestand, 0, wxEXPAND, 0);
    rij->Add(batch, 1, wxEXPAND, 0);
    return rij;
}

wxSizer* ParserVenster::maakOnderrij() {
    auto* rij = new wxBoxSizer(wxHORIZONTAL);
    rij->Add(pasAanKnop, 2, wxALL, 10);
    rij->Add(eindeKnop, 1, wxALL, 10);
    return rij;
}
