#pragma once

// De opties zoals de gebruiker ze kent, geordend naar wat hij wil.

#include <cstdint>
#include <span>
#include <string>

namespace cli {

/// Waar een optie in de hulp, de man-pagina's en de handleiding onder staat, in deze volgorde.
enum class Groep : std::uint8_t {
    bestemming,
    bestanden,
    markers,
    vervanging,
    vorm,
    vooraf,
    achteraf,
    gedrag
};
inline constexpr std::size_t aantalGroepen = 8;

/// Het kopje van een groep.
const char* noemGroep(Groep groep);

/// Eén optie zoals de gebruiker haar kent.
struct Optie {
    Groep groep;
    const char* kort;  ///< mag leeg zijn
    const char* lang;
    const char* waarde;  ///< hoe de waarde in de hulp heet; leeg voor een schakelaar
    const char* uitleg;

    bool heeftWaarde() const { return *waarde != '\0'; }
};

/// Alle opties, groep voor groep.
std::span<const Optie> geefAlleOpties();

/// De optie met deze korte naam, of niets.
const Optie* zoekKort(char kort);

/// De tekst van --help.
std::string maakHulp();

}  // namespace cli
