#pragma once

// Alleen voor de bronnen in deze directory.

#include <system_error>

#include "Knipselaar/kern/systeem/kenmerken.h"

namespace kern::posix {

/// Geeft een open bestand de eigenaar en de groep van een ander, als het die nog niet heeft. Alleen root kan
/// iets weggeven.
/// @param nu  van het open bestand.
std::error_code neemEigenaarOver(int kanaal, const Kenmerken& nu, const Kenmerken& van);

std::error_code zetRechten(int kanaal, std::filesystem::perms rechten);

}  // namespace kern::posix
