#pragma once

#include <wx/string.h>

/// De directory waarin het slot van een lopende instantie ligt; leeg waar het systeem er geen bestand voor
/// nodig heeft.
wxString geefSlotDirectory();
