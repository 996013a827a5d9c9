#pragma once

#include <wx/image.h>

/// Wat de gebruiker op een deel van het scherm ziet, van het systeem zelf.
/// @param plaats  in punten van het scherm.
/// @return een beeld van die grootte; zwart als het niet op te vragen is, en dan faalt de test.
wxImage neemSchermbeeld(const wxRect& plaats);
