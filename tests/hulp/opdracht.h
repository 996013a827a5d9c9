#pragma once

// Hulpprogramma's van buiten, zoals xdotool en import.

#include <string>
#include <vector>

namespace hulp {

/// De uitvoer van een hulpprogramma, of leeg als het mislukte. Elk woord komt ongewijzigd aan.
std::string voerUit(const std::vector<std::string>& opdracht);

}  // namespace hulp
