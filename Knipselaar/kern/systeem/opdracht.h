#pragma once

// Een opdracht laten uitvoeren door de shell van het systeem.

#include <string>
#include <system_error>

namespace kern {

struct Opdrachtuitkomst {
    std::error_code fout;  ///< de shell kon niet gestart worden; de rest zegt dan niets
    int afloop = 0;        ///< van de opdracht; 128 plus het signaal als zij daaraan stierf
    std::string uitvoer;   ///< op haar standaarduitvoer en haar foutkanaal, in de volgorde waarin het kwam
};

/// Voert een opdracht uit en wacht tot zij klaar is. Haar standaardinvoer is leeg.
Opdrachtuitkomst voerOpdrachtUit(const std::string& opdracht);

/// Een pad als één woord voor die shell; het kan ook niet voor een optie aangezien worden.
std::string citeer(const std::string& pad);

}  // namespace kern
