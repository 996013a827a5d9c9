#pragma once

// Vangt de beweringen (assertions) van de toolkit en van het programma. Een bewering die een test niet zelf
// opvraagt, laat die test falen.

#include <string>
#include <vector>

namespace hulp {

struct Bewering {
    std::string voorwaarde;
    std::string melding;

    bool operator==(const Bewering&) const = default;
};

void PrintTo(const Bewering& bewering, std::ostream* uit);

/// Zet de vanger aan voor alle tests van dit proces. Eenmaal aan te roepen, na InitGoogleTest.
void vangBeweringen();

/// De beweringen sinds de vorige aanroep of het begin van de test, op volgorde.
std::vector<Bewering> neemBeweringen();

}  // namespace hulp
