#pragma once

// Vervangt een bestand door zijn geknipte versie, zo dat het op elk moment heel is: zoals het was, of
// geknipt. Het knipsel komt eerst in een tijdelijk bestand in de tijdelijke directory van het systeem; is dat
// gelukt, dan gaat een kopie onder een tijdelijke naam naast het bestand staan, en die krijgt met één
// hernoeming zijn plaats. Geen van beide tijdelijke bestanden overleeft het object.

#include <wx/filename.h>

namespace kern {

class TerPlaatse {
  public:
    /// Maakt het tijdelijke bestand. Lukt dat niet, dan is geefTijdelijk een leeg pad.
    TerPlaatse();
    TerPlaatse(const TerPlaatse&) = delete;
    TerPlaatse& operator=(const TerPlaatse&) = delete;
    ~TerPlaatse();

    const wxFileName& geefTijdelijk() const { return tijdelijk_; }

    /// Zet de inhoud van het tijdelijke bestand op de plaats van een bestaand gewoon bestand. Rechten,
    /// eigenaar en groep blijven; een link blijft een link en het bestand erachter wordt vervangen. Geeft
    /// false, en laat het bestand zoals het was, als er iets niet lukt.
    bool vervang(const wxFileName& bestand) const;

  private:
    wxFileName tijdelijk_;
};

}  // namespace kern
