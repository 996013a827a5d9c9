#pragma once

// Wat een lange run over zijn voortgang laat zien, en wanneer: de eerste seconde niets, want dan is hij
// misschien al klaar, en daarna zo zelden dat het de run niet ophoudt.

#include <wx/string.h>

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>

namespace kern {

class Voortgangstekst {
  public:
    using Tijd = std::chrono::steady_clock::time_point;

    /// Begint te tellen.
    /// @param begin  de tekst die er van het begin af staat.
    /// @param klok   zegt hoe laat het is.
    Voortgangstekst(const wxString& begin, std::function<Tijd()> klok);

    /// De hele tekst als zij nu vernieuwd mag worden, anders niets. Wat zij geeft geldt als getoond.
    std::optional<wxString> vernieuw(std::size_t gedaan, std::size_t totaal);

  private:
    wxString begin_;
    std::function<Tijd()> klok_;
    Tijd volgende_;
};

}  // namespace kern
