#pragma once

// Waar een knipsel vandaan komt, en of dat er nog zo is.

#include <wx/string.h>

#include <string>
#include <string_view>

#include "Knipselaar/kern/knipMal.h"

namespace kern {

/// Alles wat een knipsel bepaalde, op het ogenblik van knippen.
struct Herkomst {
    wxString pad;   ///< het volledige pad van het origineel
    wxString naam;  ///< de naam ervan, zonder directory
    KnipTeksten teksten;
    std::string origineel;  ///< de tekst, met "\n" als regeleinde
};

/// Wat er sinds het knippen veranderd is, als een zin die noemt bij welk bestand het knipsel hoort. Leeg als
/// opnieuw knippen hetzelfde zou geven en het bestand nog openstaat.
wxString noemVeroudering(const Herkomst& herkomst, const wxString& pad, const KnipTeksten& teksten,
                         std::string_view origineel);

}  // namespace kern
