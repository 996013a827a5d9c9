#pragma once

// Hulpprogramma's van buiten, zoals xdotool en import.

#include <filesystem>
#include <string>
#include <vector>

namespace hulp {

/// De uitvoer van een hulpprogramma, of leeg als het mislukte. Elk woord komt ongewijzigd aan.
std::string voerUit(const std::vector<std::string>& opdracht);

struct Afloop {
    int status;           ///< 0 als de opdracht slaagde
    std::string uitvoer;  ///< met wat op de foutuitvoer kwam
};

/// Voert een opdracht van de shell uit in een directory.
Afloop voerUitIn(const std::filesystem::path& map, const std::string& opdracht);

}  // namespace hulp
