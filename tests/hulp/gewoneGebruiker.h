#pragma once

// Root mag overal bij; wat een gewone gebruiker geweigerd wordt, is alleen als gewone gebruiker te zien.

#include <sys/types.h>

#include <functional>

namespace hulp {

/// De gebruiker en de groep zonder rechten.
inline constexpr uid_t niemand = 65534;

/// Voert iets uit in een kindproces zonder rechten. True als het daar zonder fout verliep.
bool doeAlsGewoneGebruiker(const std::function<void()>& handeling);

}  // namespace hulp
