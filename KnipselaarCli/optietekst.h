#pragma once

// De bestanden die bij een optie horen: teksten, markers en lijsten. Een naam kan ook een pijp van de shell
// of de standaardinvoer zijn. Wat niet te lezen is gooit Fout.

#include <string>
#include <vector>

#include "KnipselaarCli/teksten.h"

namespace cli {

/// De hele tekst, met "\n" als regeleinde en zonder merkteken.
std::string leesTekst(const std::string& pad);

/// Voegt de markerparen uit een bestand toe: om de regel een begin en een eind. Lege regels tellen niet.
void leesMarkers(const std::string& pad, TekstKeuze& teksten);

struct Tekstregel {
    std::size_t nummer;  ///< vanaf 1
    std::string tekst;   ///< zonder de blanco tekens eromheen
};

/// De regels van een lijst. Lege regels en regels die met "#" beginnen tellen niet.
std::vector<Tekstregel> leesLijst(const std::string& pad);

}  // namespace cli
