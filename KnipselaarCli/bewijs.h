#pragma once

// Het bewijs dat er in een bestemming niets van de oplossing staat: geen markerregel, geen regel die bij het
// knippen wegviel en niet ook buiten een blok staat, en geen link die ergens anders uitkomt.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "KnipselaarCli/brontekst.h"
#include "KnipselaarCli/ontleding.h"
#include "KnipselaarCli/teksten.h"

namespace cli {

/// Waar een regel aan te herkennen is. Een bron van een gigabyte heeft er tientallen miljoenen; ze zelf
/// bewaren kost meer geheugen dan het bestand. Dat twee verschillende regels hetzelfde merk hebben, komt bij
/// 64 bits niet voor.
using Regelmerk = std::uint64_t;

/// Een regel die wegviel, zonder de blanco tekens eromheen.
struct WegRegel {
    Regelmerk merk;
    std::size_t regel;
};

/// Wat één bestand aan het bewijs bijdraagt. Beide alleen de regels die lang genoeg zijn.
struct Bewijsstof {
    std::vector<WegRegel> weg;
    std::vector<Regelmerk> gebleven;
};

/// Wat er op een markerregel naast de marker staat, valt ook weg.
/// @param ontleding  van de bron, met deze teksten.
/// @param lengte     regels van meer dan zoveel tekens tellen, de blanco tekens eromheen niet meegerekend.
Bewijsstof verzamelStof(const Brontekst& bron, const Ontleding& ontleding, const Teksten& teksten,
                        std::size_t lengte);

/// Een plaats in de bestemming waar iets staat dat er niet hoort.
struct Bewijsvondst {
    std::string pad;
    std::size_t regel;  ///< vanaf 1; 0 als het om het bestand zelf gaat
    std::string tekst;
};

/// Wat het nalezen van een plaats opleverde.
struct Nalezing {
    std::vector<Bewijsvondst> vondsten;
    std::vector<std::string> storingen;  ///< wat niet te lezen was, met de reden
};

class Bewijs {
  public:
    /// De markers en wat toegestaan is moeten langer leven.
    /// @param toegestaan  regels die in de bestemming mogen staan, zonder de blanco tekens eromheen en op
    ///                    volgorde.
    Bewijs(const kern::MarkerReeks& markers, std::size_t lengte, std::span<const std::string> toegestaan)
        : markers_(markers), lengte_(lengte), toegestaan_(toegestaan) {}

    /// Voegt de stof van een bestand toe.
    void neem(const std::string& bron, const Bewijsstof& stof);

    /// Regels van deze tekst horen in de bestemming.
    void laatToe(std::string_view tekst);

    /// Er komt geen stof meer.
    void sluitAf();

    /// Leest een bestand of alle bestanden van een directory na, ook verborgen bestanden; niet de
    /// geschiedenis van een versiebeheer. Pas na sluitAf. Wat niet te lezen is houdt de rest niet op.
    Nalezing leesNa(const std::string& plaats) const;

  private:
    struct Weggevallen {
        Regelmerk merk;
        std::uint32_t bron;
        std::uint32_t regel;
    };

    void leesBestandNa(const std::string& pad, Nalezing& uit) const;
    void leesDirectoryNa(const std::string& plaats, Nalezing& uit) const;
    std::string beoordeel(std::string_view regel) const;

    const kern::MarkerReeks& markers_;
    std::size_t lengte_;
    std::span<const std::string> toegestaan_;
    std::vector<std::string> bronnen_;
    std::vector<Weggevallen> weg_;  ///< na sluitAf op merk, van elk merk alleen de eerste plaats
    std::vector<Regelmerk> toegelaten_;
};

}  // namespace cli
