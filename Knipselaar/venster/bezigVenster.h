#pragma once

// Het venster dat er staat zolang een knipopdracht duurt. De opdracht houdt de hoofdlus op, en zonder hulp
// wordt er dan niets getekend. Dit venster staat er getekend zodra het gemaakt is, en zegt bij een lange run
// hoe ver die is. Wat de gebruiker intussen klikt of typt, ook om het hoofdvenster te sluiten, vervalt:
// anders zou het na afloop alsnog gebeuren, en de run bijvoorbeeld overdoen.

#include <wx/busyinfo.h>

#include "Knipselaar/kern/voortgangstekst.h"
#include "Knipselaar/venster/invoerslot.h"

class wxCloseEvent;
class wxWindow;

class BezigVenster {
  public:
    /// @param ouder  waar het boven komt te liggen.
    /// @param slot   is dicht zolang het er staat, en tot daarna alle invoer van intussen vervallen is. Het
    ///               moet dit venster overleven.
    /// @param klok   zegt hoe laat het is.
    BezigVenster(wxWindow& ouder, Invoerslot& slot, const wxString& tekst,
                 std::function<kern::Voortgangstekst::Tijd()> klok = std::chrono::steady_clock::now);
    BezigVenster(const BezigVenster&) = delete;
    BezigVenster& operator=(const BezigVenster&) = delete;
    ~BezigVenster();

    /// Laat zien hoe ver de run is, als het daar tijd voor is.
    /// @param vooraf  gebeurt dan eerst: wat andere vensters moeten laten zien.
    void meld(std::size_t gedaan, std::size_t totaal, const std::function<void()>& vooraf);

  private:
    static void laatSluitenZitten(wxCloseEvent& event);
    void toon();

    wxBusyInfo info_;
    wxWindow& kader_;  ///< het venster van info_
    Invoerslot& slot_;
    kern::Voortgangstekst tekst_;
};
