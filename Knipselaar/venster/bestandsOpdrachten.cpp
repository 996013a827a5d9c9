// Openen, toevoegen en opslaan van een enkel bestand. Het venster meldt hier zelf niets; wat de toolkit over
// een bestand meldt dat niet te lezen of te schrijven is, blijft staan.

#include <wx/filedlg.h>
#include <wx/intl.h>
#include <wx/stc/stc.h>
#include <wx/wfstream.h>

#include "Knipselaar/kern/tekstLezer.h"
#include "Knipselaar/venster/markeerder.h"
#include "Knipselaar/venster/padKiezer.h"
#include "Knipselaar/venster/parserVenster.h"

namespace {

constexpr const char* bestandsfilter =
    "C files (*.c)|*.c|C++ files (*.cpp)|*.cpp|Header files (*.h)|*.h|VHDL files (*.vhdl)|*.vhdl|"
    "All Files (*.*)|*.*";

/// Of er iets bestaat dat geen gewoon bestand is. Een pijp zou het venster voor altijd laten wachten.
bool isBijzonderBestand(const wxString& pad) {
    return wxFileName::Exists(pad) && !wxFileName::FileExists(pad);
}

wxString geefDirectory(const wxFileName& bestand) {
    return bestand.GetPath(wxPATH_GET_VOLUME, wxPATH_NATIVE);
}

}  // namespace

/// Laat een origineel kiezen en kleurt de editors ernaar. False als de gebruiker afzag; dan is er niets
/// veranderd.
bool ParserVenster::kiesOrigineel() {
    wxFileDialog dialoog(this, wxGetTranslation("Kies een origineel bestand."), origineelPad, wxEmptyString,
                         bestandsfilter, wxFD_OPEN | wxFD_FILE_MUST_EXIST);
    if (dialoog.ShowModal() != wxID_OK) {
        return false;
    }
    huidigBestand = dialoog.GetPath();
    origineelPad = geefDirectory(huidigBestand);
    toonPad(*bronDirKiezer, origineelPad);  // een batch begint nu daar
    kleurVoorHuidigBestand();
    markeerder_->wisOrigineel();
    return true;
}

void ParserVenster::openHandler(wxCommandEvent& /*event*/) {
    if (!kiesOrigineel()) {
        return;
    }
    origineelEditor->ClearAll();
    const wxString pad = huidigBestand.GetFullPath();
    if (!isBijzonderBestand(pad)) {
        origineelEditor->LoadFile(pad);
    }
    origineelGeladen = true;
}

void ParserVenster::openAddHandler(wxCommandEvent& /*event*/) {
    if (!kiesOrigineel()) {
        return;
    }
    const wxString pad = huidigBestand.GetFullPath();
    if (isBijzonderBestand(pad)) {
        return;
    }
    wxFileInputStream stroom(pad);
    if (!stroom.IsOk()) {
        return;
    }
    kern::TekstLezer lezer(stroom);
    for (auto regels = lezer.leesRegels(); !regels.empty(); regels = lezer.leesRegels()) {
        origineelEditor->AppendTextRaw(regels.data(), static_cast<int>(regels.size()));
    }
}

void ParserVenster::opslagHandler(wxCommandEvent& /*event*/) {
    wxFileDialog dialoog(this, wxGetTranslation("Sla aangepast bestand op."), aangepastPad,
                         huidigBestand.GetFullName(), bestandsfilter, wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    if (dialoog.ShowModal() != wxID_OK) {
        return;
    }
    const wxFileName gekozen(dialoog.GetPath());
    aangepastPad = geefDirectory(gekozen);
    toonPad(*bestemmingDirKiezer, aangepastPad);  // een batch schrijft nu daar
    const wxString pad = gekozen.GetFullPath();
    if (!isBijzonderBestand(pad)) {
        aangepastEditor->SaveFile(pad);
    }
}
