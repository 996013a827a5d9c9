#pragma once

// De kiezers van een directory. Hun tekstveld is smaller dan een lang pad; het hele pad staat daarom ook in
// zijn tooltip.

#include <wx/filepicker.h>

/// Een kiezer die dit pad toont, met een tekstveld waar een gewoon pad in past. De ouder bezit hem.
wxDirPickerCtrl* maakPadKiezer(wxWindow* ouder, int id, const wxString& pad);

/// Laat een kiezer een pad zien zonder dat als keuze te melden.
void toonPad(wxDirPickerCtrl& kiezer, const wxString& pad);

/// Zet wat er in het tekstveld staat in de tooltip.
void toonHeelPad(wxDirPickerCtrl& kiezer);
