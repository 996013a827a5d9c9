#pragma once

// Een editor die met een partner gelijk opschuift. Het venster verschuift na elke tekening van de ene editor
// de andere; dat gaat alleen goed als het de editor hoort die de gebruiker verschoof. GTK 3 tekent er echter
// vaak twee tegelijk, de linker eerst, zolang een schuifbalk nog in- of uitfadet: de linker zou de rechter
// dan terugduwen voordat die zelf getekend is. Ook zou de kortste tekst, die niet verder kan, de langste van
// haar einde weghouden. Deze editor houdt daarom zijn tekengebeurtenis achter zolang hij niet mag leiden.

#include <wx/stc/stc.h>

#include <string_view>

#include "Knipselaar/kern/schuiven.h"

class VolgEditor : public wxStyledTextCtrl {
  public:
    using wxStyledTextCtrl::wxStyledTextCtrl;

    /// Maakt twee editors elkaars partner; elke regel van beide kan dan bovenaan staan. Ze moeten even lang
    /// leven.
    static void koppel(VolgEditor& een, VolgEditor& ander);

    /// Zet een andere tekst in de plaats van wat er staat, zonder er een gebeurtenis van te geven. De toolkit
    /// geeft met elke gebeurtenis de hele tekst mee die verdween of kwam, en bij een grote tekst kost dat
    /// meer dan hem zetten.
    /// @param tekst  in UTF-8.
    void vervang(std::string_view tekst);

    /// Een getal dat bij elke verandering van de tekst anders wordt.
    long geefVersie() const { return versie_; }

  protected:
    bool TryBefore(wxEvent& event) override;

  private:
    kern::Schuifstand geefStand();

    VolgEditor* partner_ = nullptr;
    int gemeldeRegel_ = 0;  ///< de bovenste regel bij de laatste tekening
    long versie_ = 0;
};
