#pragma once

// Een bestand in één stap de plaats van een ander geven: op elk moment staat daar het oude of het nieuwe.

#include <string>
#include <system_error>

#include "Knipselaar/kern/systeem/kenmerken.h"

namespace kern {

/// Verhuist een gewoon bestand naar de plaats van een bestaand gewoon bestand op hetzelfde bestandssysteem.
/// Het krijgt eerst diens eigenaar, groep, rechten, toegangslijst en aantekeningen (op Windows: kenmerken en
/// toegangslijst). Mislukt er iets, dan staan beide waar ze stonden, maar het nieuwe kan al andere rechten
/// hebben.
/// @param oud  van wat er nu op de plaats staat.
std::error_code verhuis(const std::string& nieuw, const std::string& plaats, const Kenmerken& oud);

}  // namespace kern
