#pragma once

// Hoe een consoleprogramma begint.

#include <string>
#include <vector>

namespace kern {

/// Opent de kanalen 0 tot en met 2 op niets als ze dicht zijn: anders krijgt het eerste bestand dat opengaat
/// zo'n nummer, en komt een melding daarin terecht. Lezen en schrijven mislukt erop zoals op een dicht
/// kanaal. Voor elk programma, als eerste.
void zorgVoorKanalen();

/// Maakt de kanalen klaar voor bytes en UTF-8 en geeft de woorden achter de naam van het programma, als
/// paden (zie kenmerken.h). Roept eerst zorgVoorKanalen aan. De eerste regel van main.
std::vector<std::string> beginConsole(int aantal, char** woorden);

}  // namespace kern
