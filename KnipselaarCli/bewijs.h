#pragma once

// Het bewijs dat er in een bestemming niets van de oplossing staat: geen markerregel, en geen regel die bij
// het knippen wegviel en niet ook buiten een blok staat.

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "KnipselaarCli/ontleding.h"

namespace cli {

/// Een regel die wegviel, zonder de blanco tekens eromheen.
struct WegRegel {
    std::size_t regel;
    std::string tekst;
};

/// Wat één bestand aan het bewijs bijdraagt. Beide alleen de regels die lang genoeg zijn.
struct Bewijsstof {
    std::vector<WegRegel> weg;
    std::vector<std::string> gebleven;
};

/// @param lengte  regels van meer dan zoveel tekens tellen, de blanco tekens eromheen niet meegerekend.
Bewijsstof verzamelStof(std::string_view tekst, std::span<const kern::Blok> blokken, std::size_t lengte);

/// Een plaats in de bestemming waar iets staat dat er niet hoort.
struct Bewijsvondst {
    std::string pad;
    std::size_t regel;
    std::string tekst;
};

class Bewijs {
  public:
    Bewijs(std::span<const kern::Markerpaar> paren, std::size_t lengte) : paren_(paren), lengte_(lengte) {}

    /// Voegt de stof van een bestand toe.
    void neem(const std::string& bron, Bewijsstof stof);

    /// Regels van deze tekst horen in de bestemming.
    void laatToe(std::string_view tekst);

    /// Leest een bestand of alle bestanden van een directory na, ook verborgen bestanden; niet de
    /// geschiedenis van een versiebeheer. Gooit Fout als er iets niet te lezen is.
    std::vector<Bewijsvondst> leesNa(const std::string& plaats) const;

  private:
    void leesBestandNa(const std::string& pad, std::vector<Bewijsvondst>& vondsten) const;
    bool draagtMarker(std::string_view regel) const;

    std::span<const kern::Markerpaar> paren_;
    std::size_t lengte_;
    std::unordered_map<std::string, std::string> weg_;  ///< met de plaats waar de regel wegviel
    std::unordered_set<std::string> toegelaten_;
};

}  // namespace cli
