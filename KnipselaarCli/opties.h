#pragma once

// Wat de gebruiker op de opdrachtregel vroeg. Namen van bestanden en teksten zijn de bytes die de shell gaf.

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "KnipselaarCli/knipsel.h"
#include "KnipselaarCli/teksten.h"

namespace cli {

/// Wat er met de bronnen moet gebeuren. Alleen knippen schrijft.
enum class Opdracht : std::uint8_t { knip, controle, droog, verschil, help, versie };

/// De drie keuzes van het venster voor wat er in een directory geknipt wordt. De middelste neemt in het
/// venster niets; hier neemt zij wat haar naam zegt.
enum class Bestandskeuze : std::uint8_t { talen, vhdl, alles };

struct Opties {
    Opdracht opdracht = Opdracht::knip;
    std::vector<std::string> bronnen;
    std::optional<std::string> uit;
    std::optional<std::string> naar;
    bool naarStandaarduitvoer = false;  ///< met zoveel woorden gevraagd
    bool terPlaatse = false;
    bool allesOfNiets = false;
    bool recursief = false;
    bool overschrijf = false;

    std::vector<std::string> maskers;
    std::optional<Bestandskeuze> keuze;  ///< standaard talen
    bool verborgen = false;
    bool versiebeheer = false;

    TekstKeuze teksten;
    std::optional<Taal> taal;
    Manier manier = Manier::getrouw;
    bool inspringen = false;

    bool streng = false;
    bool bewijs = false;
    bool stil = false;
    bool json = false;
    std::size_t bewijsLengte = 10;
    std::size_t taken = 0;  ///< bestanden tegelijk; 0 is wat de machine aankan

    /// Of er iets geschreven mag worden.
    bool schrijft() const { return opdracht == Opdracht::knip; }

    /// Of het knipsel zelf op de standaarduitvoer komt.
    bool naarUitvoer() const { return schrijft() && !uit && !naar && !terPlaatse; }
};

/// Leest de opdrachtregel, zonder de naam van het programma. Leest ook de bestanden met teksten die erop
/// genoemd staan. Gooit Fout bij alles wat niet kan of niet samengaat.
Opties leesOpties(const std::vector<std::string>& woorden);

/// Of er om JSON gevraagd wordt, ook op een opdrachtregel die verder niet klopt.
bool vraagtJson(const std::vector<std::string>& woorden);

/// Eén optie zoals de gebruiker haar kent.
struct Optie {
    const char* kort;  ///< mag leeg zijn
    const char* lang;
    const char* waarde;  ///< hoe de waarde in de hulp heet; leeg voor een schakelaar
    const char* uitleg;
};

std::span<const Optie> geefAlleOpties();

/// De tekst van --help.
std::string maakHulp();

}  // namespace cli
