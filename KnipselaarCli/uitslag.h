#pragma once

// Wat er van één taak van het plan terechtkwam.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "KnipselaarCli/bestanden.h"
#include "KnipselaarCli/bewijs.h"
#include "KnipselaarCli/ontleding.h"
#include "KnipselaarCli/opties.h"

namespace cli {

enum class Status : std::uint8_t {
    geknipt,        ///< of, als er niets geschreven mag worden, in orde om te knippen
    ongewijzigd,    ///< ter plaatse: er viel niets te knippen
    overgenomen,    ///< als bestand, link of directory
    opgeruimd,      ///< of, als er niets geschreven mag worden, wat dan weggaat
    gelaten,        ///< ter plaatse: knippen kon, maar elders ging iets mis en dan verandert er niets
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
    std::unique_ptr<Klaargezet> klaar;  ///< ter plaatse: wat de plaats van het bestand nog in moet nemen
};

/// Hoe erg een regel is die bijna een marker is: met een bewijs gaat er niets door dat er een had moeten
/// zijn.
Ernst geefErnstVanBijna(const Opties& opties);

/// Neemt de meldingen over een bestand op. Geeft of het zo verwerkt mag worden.
bool neemMeldingen(std::vector<Melding> meldingen, const Opties& opties, Uitslag& uitslag);

}  // namespace cli
