#pragma once

// Waar een pad werkelijk heen wijst. Vraagt het aan het bestandssysteem; een pad dat niet bestaat wijst
// nergens heen.

#include <wx/string.h>

#include <string>

namespace kern {

/// Of het pad zelf een symbolische link is.
bool isLink(const wxString& pad);

/// Of twee paden hetzelfde bestand of dezelfde directory zijn, hoe ze ook geschreven zijn. Twee gelijk
/// geschreven paden zijn dat altijd.
bool isZelfdePlaats(const wxString& een, const wxString& ander);

/// Het pad zonder links, ".", ".." en dubbele schuine strepen, in de bytes van het bestandssysteem. Leeg als
/// het nergens heen wijst.
std::string geefEchtPad(const wxString& pad);

}  // namespace kern
