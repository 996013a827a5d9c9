#include "Knipselaar/venster/systeem/pictogram.h"

#include <wx/iconbndl.h>
#include <wx/toplevel.h>

// Het staat in alle maten in de hulpbronnen van het programma (gegevens/windows). Een ander programma met dit
// venster hoeft het niet te hebben.
void zetPictogram(wxTopLevelWindow& venster) {
    const wxIconBundle pictogram("knipselaar", nullptr);
    if (!pictogram.IsEmpty()) {
        venster.SetIcons(pictogram);
    }
}
