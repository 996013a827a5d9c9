#pragma once

// Wat het knippen moet opleveren, langs de rechte weg: de stromen en de vergelijking van de toolkit, regel
// voor regel, zonder blokken en zonder haast. De kern wordt hiertegen gehouden.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "Knipselaar/kern/knipper.h"

namespace orakel {

/// De bestandsvariant: tekststromen met wxConvAuto over bestandsstromen, maskers "*" + marker + "*".
/// Alleen voor inhoud die herstel ongewijzigd laat.
std::string knipBestand(const std::filesystem::path& bron, const kern::KnipTeksten& teksten);

/// Hetzelfde met de inhoud van het bestand in het geheugen. Gooit std::runtime_error als de stromen van de
/// toolkit erop blijken niet op te houden.
std::string knipInhoud(std::string_view inhoud, const kern::KnipTeksten& teksten);

/// De bestandsvariant op regels die al gelezen zijn, in UTF-8 en elk gesloten door "\n".
std::string knipRegels(std::string_view regels, const kern::KnipTeksten& teksten);

/// De editorvariant op de regels van een editor, van GetLine(0) tot en met GetLine(GetLineCount() - 1):
/// maskers "*" + marker + "*\n".
std::string knipEditorregels(const std::vector<wxString>& regels, const kern::KnipTeksten& teksten);

/// De editorvariant op een tekst met "\n" als regeleinde. De laatste regel heeft er geen; eindigt de tekst op
/// een regeleinde, dan is zij leeg.
std::string knipTekst(std::string_view tekst, const kern::KnipTeksten& teksten);

/// De inhoud van een bestand zonder de bytes die de stromen laten verdwijnen of waarop ze niet ophouden.
/// Daar staan de tekens die de kern er met opzet van maakt: U+FFFD in UTF-16 en UTF-32, en anders alles vanaf
/// de eerste zulke byte als ISO 8859-1. Elk ander bestand komt ongewijzigd terug.
std::string herstel(std::string_view inhoud);

}  // namespace orakel
