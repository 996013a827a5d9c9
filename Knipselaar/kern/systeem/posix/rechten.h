#pragma once

// Alleen voor de bronnen in deze directory.

#include <string>
#include <system_error>

#include "Knipselaar/kern/systeem/kenmerken.h"
#include "Knipselaar/kern/systeem/verlies.h"

namespace kern::posix {

std::error_code zetRechten(int kanaal, std::filesystem::perms rechten);

/// Geeft een open bestand de eigenaar, de groep, de toegangslijst, de rechten en wat er verder aangetekend is
/// van een ander. Wat niet kan blijft achterwege, en nooit mag iemand daardoor meer dan eerst: wie een groep
/// of een toegangslijst niet kan overnemen, geeft de groep die er nu is hoogstens wat iedereen mag.
/// @param nu       van het open bestand.
/// @param pad      van het andere.
/// @param van      van het andere.
/// @param verlies  krijgt wat niet kon.
/// @return         als de rechten niet te zetten zijn; dan klopt er niets van.
std::error_code neemAllesOver(int kanaal, const Kenmerken& nu, const std::string& pad, const Kenmerken& van,
                              Verlies& verlies);

}  // namespace kern::posix
