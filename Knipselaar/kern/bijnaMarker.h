#pragma once

// Regels die bijna een marker zijn: gelijk aan een marker op hoofdletters, blanco tekens en de tekens / * - #
// na. Zo'n regel telt niet, en wie haar schreef bedoelde vrijwel zeker van wel.

#include <wx/string.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Knipselaar/kern/markerMasker.h"

namespace kern {

class BijnaMarker {
  public:
    explicit BijnaMarker(const wxString& marker);

    /// Of een regel op de marker lijkt; een regel die hem draagt kan dat ook doen. Op een marker die alleen
    /// uit jokers, blanco tekens en / - # bestaat lijkt niets.
    /// @param regel  één regel in UTF-8 zonder regeleinde.
    bool lijkt(std::string_view regel) const;

    /// Wat er van de marker overblijft om op te lijken, in kleine letters en UTF-8.
    const std::string& geefKern() const { return kern_; }

  private:
    std::string kern_;
};

/// Zoekt regels die op een van een reeks markers lijken.
class BijnaZoeker {
  public:
    explicit BijnaZoeker(std::vector<BijnaMarker> markers);

    /// De eerste regel vanaf een regelbegin die op een marker kan lijken, naar haar eerste twee tekens en
    /// haar laatste. Of zij het doet, zegt geefMarker; overslaan doet hij er geen.
    /// @param regels  hele regels in UTF-8, elk gesloten door "\n". Een laatste regel zonder regeleinde telt
    ///                niet mee.
    std::optional<Regel> zoekRegel(std::string_view regels, std::size_t vanaf) const;

    /// Het nummer in de reeks van de eerste marker waar een regel op lijkt.
    std::optional<std::size_t> geefMarker(std::string_view regel) const;

  private:
    /// Waar vanaf een plaats het eerste teken dat telt van zo'n regel kan staan; npos als dat nergens is. Wat
    /// er eerder in de regel staat is dan nog niet bekeken.
    std::size_t zoekBegin(std::string_view regels, std::size_t vanaf) const;

    std::vector<BijnaMarker> markers_;
    std::vector<char> beginnen_;           ///< de eerste twee tekens van elke marker, elk een vak vol
    std::array<bool, 256> kanEindigen_{};  ///< met welke bytes het laatste teken dat telt kan eindigen
};

}  // namespace kern
