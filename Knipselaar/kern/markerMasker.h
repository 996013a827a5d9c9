#pragma once

// Het masker van één marker: "*" + marker + "*", gehouden tegen een regel zonder haar regeleinde. Wat past
// is precies wat wxString::Matches laat passen, dus "*" en "?" in de marker zijn jokers, tenzij de maker ze
// als gewone tekens wil. Het masker bezit zijn eigen kopie van de marker.

#include <wx/string.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Knipselaar/kern/zoeker.h"

namespace kern {

/// Plaats van een regel in een tekst, in bytes; eind ligt voorbij het regeleinde.
struct Regel {
    std::size_t begin;
    std::size_t eind;
};

/// Wat "*" en "?" in een marker betekenen.
enum class Jokers { ja, nee };

class MarkerMasker {
  public:
    explicit MarkerMasker(const wxString& marker, Jokers jokers = Jokers::ja);

    /// De marker, met zijn jokers.
    const wxString& geefMarker() const { return marker_; }

    /// Of elke regel past, omdat de marker leeg is of alleen jokers heeft.
    bool pastOpElkeRegel() const;

    /// Of een regel past.
    /// @param regel  één regel in UTF-8 zonder regeleinde.
    bool past(std::string_view regel) const;

    /// Wat er in een passende regel voor en achter de marker staat: voor zijn eerste letterlijke stuk en
    /// achter zijn laatste. Van een marker met alleen jokers is er niets omheen.
    std::pair<std::string_view, std::string_view> geefOmheen(std::string_view regel) const;

    /// Het langste letterlijke stuk van de marker, in UTF-8: staat in elke regel die past. Leeg als de marker
    /// alleen jokers heeft.
    const std::string& geefAnker() const { return anker_.geefNaald(); }

    /// De eerste passende regel vanaf een regelbegin.
    /// @param regels  hele regels in UTF-8, elk gesloten door "\n". Een laatste regel zonder regeleinde
    ///                past nooit.
    /// @param vanaf   plaats in regels waar een regel begint, hoogstens regels.size().
    std::optional<Regel> zoekRegel(std::string_view regels, std::size_t vanaf) const;

  private:
    /// Of alle stukken op volgorde in de regel staan.
    bool heeftStukken(std::string_view regel) const;

    /// Of een regel waar alle stukken in staan ook echt past.
    bool pastVerder(std::string_view regel) const;

    wxString marker_;
    wxString masker_;
    std::vector<Zoeker> stukken_;  ///< de letterlijke stukken tussen de jokers, in UTF-8
    Zoeker anker_;                 ///< het langste stuk: komt in andere regels het minst voor
    bool heeftVraagteken_;
};

}  // namespace kern
