#pragma once

// Hoe een consoleprogramma begint.

#include <string>
#include <vector>

namespace kern {

/// Maakt de kanalen klaar voor bytes en UTF-8 en geeft de woorden achter de naam van het programma, als
/// paden (zie kenmerken.h). De eerste regel van main.
std::vector<std::string> beginConsole(int aantal, char** woorden);

}  // namespace kern
