#pragma once

// Een hele boom met bestanden maken en teruglezen, om er in één vergelijking alles van te zien.

#include <filesystem>
#include <map>
#include <string>

namespace hulp {

/// Inhoud per pad, ten opzichte van de wortel. Een link staat er als "-> doel", een directory als "/", iets
/// anders als "bijzonder".
using Boom = std::map<std::string, std::string>;

/// Maakt de bestanden en de directories waar ze in staan.
void maakBoom(const std::filesystem::path& wortel, const Boom& boom);

/// Leest alles wat onder de wortel staat, verborgen of niet.
Boom leesBoom(const std::filesystem::path& wortel);

/// Of een boom er nu zo uitziet. Een programma mag er nog mee bezig zijn.
bool isBoom(const std::filesystem::path& wortel, const Boom& verwacht);

}  // namespace hulp
