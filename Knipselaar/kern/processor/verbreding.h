#pragma once

// ISO 8859-1 omzetten in UTF-8, zo snel als de processor kan: elke byte wordt een teken van een of twee
// bytes.

#include <cstddef>
#include <string_view>

namespace kern {

/// Zet bytes om tot de eerste CR of NUL.
/// @param doel  waar twee bytes passen voor elke byte; wat daarvan na de uitkomst komt, kan overschreven
///              zijn. Daarna waar het volgende teken komt.
/// @return hoeveel bytes het waren.
using Verbreder = std::size_t (*)(std::string_view bytes, char*& doel);

/// Kan elke processor.
std::size_t verbreedPerByte(std::string_view bytes, char*& doel);

/// Een snellere, die hetzelfde doet; nullptr als deze processor er geen kan uitvoeren.
Verbreder zoekSnelleVerbreder();

}  // namespace kern
