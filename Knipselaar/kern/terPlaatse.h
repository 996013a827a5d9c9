#pragma once

// Vervangt een bestand door zijn geknipte versie, zo dat het op elk moment heel is: zoals het was, of
// geknipt. Het knipsel komt eerst in een tijdelijk bestand in de tijdelijke directory van het systeem; is dat
// gelukt, dan krijgt het met één hernoeming zijn plaats. Ligt die op een ander bestandssysteem, dan gaat
// eerst een kopie onder een tijdelijke naam naast het bestand staan, en wordt die hernoemd. Geen tijdelijk
// bestand overleeft het object.

#include <wx/filename.h>

#include <optional>
#include <string>
#include <system_error>

#include "Knipselaar/kern/systeem/kenmerken.h"
#include "Knipselaar/kern/systeem/verlies.h"

namespace kern {

class TerPlaatse {
  public:
    /// Maakt het tijdelijke bestand. Lukt dat niet, dan is geefTijdelijk een leeg pad.
    /// @param tijdelijkeDirectory  die van het systeem; wie veel bestanden vervangt zoekt haar één keer.
    explicit TerPlaatse(const wxString& tijdelijkeDirectory = wxFileName::GetTempDir());
    TerPlaatse(const TerPlaatse&) = delete;
    TerPlaatse& operator=(const TerPlaatse&) = delete;
    ~TerPlaatse();

    const wxFileName& geefTijdelijk() const { return tijdelijk_; }

    /// Waarom het tijdelijke bestand er niet kwam, of waarom vervang niet lukte; leeg zolang alles lukt.
    const std::string& geefReden() const { return reden_; }

    /// Wat het bestand bij het vervangen niet kon houden.
    const Verlies& geefVerlies() const { return verlies_; }

    /// Zet de inhoud van het tijdelijke bestand op de plaats van een bestaand gewoon bestand; dat kan één
    /// keer. Rechten, eigenaar, groep, toegangslijst en aantekeningen blijven, op wat geefVerlies zegt na.
    /// Geeft false, en laat het bestand zoals het was, als er iets niet lukt.
    /// @param echt     het pad zonder links, zoals geefEchtPad het geeft; dan blijft een link een link.
    /// @param gelezen  van het bestand dat geknipt is. Staat er intussen een ander, omdat iemand een nieuwe
    ///                 versie bewaarde of een directory verlegde, dan blijft dat staan. Zonder wordt daar
    ///                 niet naar gekeken.
    bool vervang(const std::string& echt, const std::optional<Kenmerken>& gelezen = std::nullopt);

  private:
    bool onthoudReden(const std::error_code& fout);

    wxFileName tijdelijk_;
    std::string reden_;
    Verlies verlies_;
};

}  // namespace kern
