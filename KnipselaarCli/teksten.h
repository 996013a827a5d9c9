#pragma once

// Wat er geknipt wordt en wat ervoor in de plaats komt: de markerparen en per taal een vervangtekst.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Knipselaar/kern/markerReeks.h"

namespace cli {

enum class Taal : std::uint8_t { c, vhdl, overig };
inline constexpr std::size_t aantalTalen = 3;

/// De taal van een bestand, naar zijn extensie.
Taal kiesTaal(std::string_view pad);

/// Voor wie het knipsel is. De oplossing is alleen de markers kwijt, en wat er alleen voor de student staat.
enum class Versie : std::uint8_t { student, oplossing };

/// De markers en vervangteksten van een run; alle teksten in UTF-8.
struct Teksten {
    kern::MarkerReeks markers;
    std::vector<bool> houd;         ///< per paar: of zijn blokken blijven en alleen de markers weggaan
    std::vector<std::string> geef;  ///< waarmee een regel begint die in een blok voor de student is
    std::array<std::string, aantalTalen> vervanging;
    /// Of alle markers, en waarmee regels voor de student beginnen, in de ruwe bytes van elke smalle codering
    /// te herkennen zijn.
    bool markersGewoon = true;

    const std::string& geefVervanging(Taal taal) const {
        return vervanging.at(static_cast<std::size_t>(taal));
    }
};

/// Wat de gebruiker met opties over de teksten zei.
struct TekstKeuze {
    std::vector<std::string> begin;
    std::vector<std::string> eind;
    bool letterlijk = false;
    bool zonderInstellingen = false;
    Versie versie = Versie::student;
    std::vector<std::size_t> houd;  ///< nummers van markerparen, vanaf 1
    std::vector<std::string> geef;
    std::optional<std::string> vervanging;                        ///< voor elke taal
    std::array<std::optional<std::string>, aantalTalen> perTaal;  ///< gaat voor
};

/// Vult aan wat niet gekozen is: uit de instellingen van het venster als die er zijn, en anders met de
/// standaardteksten. De instellingen worden alleen gelezen. Een vervangtekst uit de instellingen geldt voor
/// elke taal, tenzij zij de standaardtekst is; dan krijgt elke taal haar eigen standaard.
/// Gooit Fout bij een lege marker, een begin zonder eind, of een paar dat er niet is.
Teksten bepaalTeksten(const TekstKeuze& keuze);

}  // namespace cli
