#pragma once

// Eén taak van het plan uitvoeren: lezen, nakijken, knippen en schrijven. Elke taak staat op zichzelf en mag
// naast andere lopen.

#include <cstdint>
#include <string>
#include <vector>

#include "KnipselaarCli/bewijs.h"
#include "KnipselaarCli/ontleding.h"
#include "KnipselaarCli/opties.h"
#include "KnipselaarCli/plan.h"

namespace cli {

enum class Status : std::uint8_t {
    geknipt,        ///< of, als er niets geschreven mag worden, in orde om te knippen
    ongewijzigd,    ///< ter plaatse: er viel niets te knippen
    overgenomen,    ///< als bestand, link of directory
    tegengehouden,  ///< de invoer klopt niet; er is niets geschreven
    mislukt         ///< niet te lezen of te schrijven
};

struct Uitslag {
    Status status = Status::geknipt;
    std::vector<Melding> meldingen;
    std::string storing;  ///< bij mislukt: wat er misging
    std::size_t blokken = 0;
    std::size_t regelsErin = 0;
    std::size_t regelsEruit = 0;
    std::string verschil;
    Bewijsstof stof;
};

/// Gooit niets; wat er misgaat staat in de uitslag.
Uitslag voerUit(const Taak& taak, const Opties& opties, const Teksten& teksten, Uitvoersoort soort);

}  // namespace cli
