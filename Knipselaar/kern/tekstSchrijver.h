#pragma once

// Schrijft tekst in blokken naar een stroom, met de regeleinden van het systeem, en onthoudt of alles
// aankwam. Na een schrijffout gaat niets meer naar de stroom. De stroom blijft van de aanroeper en moet
// langer leven.

#include <wx/stream.h>

#include <string>
#include <string_view>

namespace kern {

class TekstSchrijver {
  public:
    /// @param uitvoer  mag een stroom zijn die niet openging; dan gaat alle tekst verloren.
    explicit TekstSchrijver(wxOutputStream& uitvoer);

    /// Zet tekst met LF klaar; een vol blok gaat meteen naar de stroom.
    void schrijf(std::string_view tekst);

    /// Schrijft wat nog klaarstaat. Geeft of alle tekst zonder fout in de stroom staat.
    bool maakAf();

  private:
    void zetKlaar(std::string_view stuk);
    void schrijfNaarStroom(std::string_view tekst);

    wxOutputStream& uitvoer_;
    std::string blok_;
    bool gelukt_;
};

}  // namespace kern
