#pragma once

// Wat de gebruiker op de opdrachtregel vroeg. Namen van bestanden en teksten zijn de bytes die de shell gaf.

#include <cstdint>
#include <optional>
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

/// Regels van meer dan zoveel tekens tellen voor een bewijs.
inline constexpr std::size_t standaardBewijsLengte = 10;

struct Opties {
    std::vector<std::string> bronnen;
    std::optional<std::string> uit;
    std::optional<std::string> naar;
    std::vector<std::string> maskers;
    std::vector<std::string> weglaten;
    TekstKeuze teksten;
    std::size_t minstens = 0;                 ///< zoveel blokken moeten er zijn
    std::optional<std::size_t> bewijsLengte;  ///< standaard standaardBewijsLengte
    std::vector<std::string> toegestaan;  ///< regels die in de bestemming mogen staan, zonder blanco tekens
                                          ///< eromheen; op volgorde
    std::optional<std::string> probeer;
    std::optional<std::string> afhankelijk;
    std::vector<std::string> gelezen;  ///< bestanden die voor deze opties gelezen zijn
    std::size_t taken = 0;             ///< bestanden tegelijk; 0 is wat de machine aankan

    Opdracht opdracht = Opdracht::knip;
    Manier manier = Manier::getrouw;
    std::optional<Bestandskeuze> keuze;  ///< standaard talen
    std::optional<Taal> taal;
    bool naarStandaarduitvoer = false;  ///< met zoveel woorden gevraagd
    bool terPlaatse = false;
    bool allesOfNiets = false;
    bool recursief = false;
    bool overschrijf = false;
    bool spiegel = false;
    bool verborgen = false;
    bool versiebeheer = false;
    bool inspringen = false;
    bool regelsGelijk = false;
    bool streng = false;
    bool nulBlokken = false;  ///< met zoveel woorden: geen enkel blok is ook goed
    bool bewijs = false;
    bool stil = false;
    bool json = false;

    /// Of er iets geschreven mag worden.
    bool schrijft() const { return opdracht == Opdracht::knip; }

    /// Of het knipsel zelf op de standaarduitvoer komt.
    bool naarUitvoer() const { return schrijft() && !uit && !naar && !terPlaatse; }
};

/// Leest de opdrachtregel, zonder de naam van het programma. Leest ook de bestanden die bij opties horen.
/// Gooit Fout bij alles wat niet kan of niet samengaat.
Opties leesOpties(const std::vector<std::string>& woorden);

}  // namespace cli
