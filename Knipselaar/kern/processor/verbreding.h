#pragma once

// ISO 8859-1 omzetten in UTF-8, zo snel als de processor kan: elke byte wordt een teken van een of twee
// bytes.

#include <string_view>

namespace kern {

/// Zet bytes om, ook een NUL en een regeleinde.
/// @param doel  waar twee bytes passen voor elke byte; wat daarvan na de uitkomst komt, kan overschreven
/// zijn.
/// @return waar het volgende teken komt.
using Verbreder = char* (*)(std::string_view bytes, char* doel);

/// Kan elke processor.
char* verbreedPerByte(std::string_view bytes, char* doel);

/// Een snellere, die hetzelfde doet; nullptr als deze processor er geen kan uitvoeren.
Verbreder zoekSnelleVerbreder();

}  // namespace kern
