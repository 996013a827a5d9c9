#pragma once

// Een editor die met een partner gelijk opschuift. Het venster verschuift na elke tekening van de ene editor
// de andere; dat gaat alleen goed als het de editor hoort die de gebruiker verschoof. GTK 3 tekent er echter
// vaak twee tegelijk, de linker eerst, zolang een schuifbalk nog in- of uitfadet: de linker zou de rechter
// dan terugduwen voordat die zelf getekend is. Deze editor houdt zijn tekengebeurtenis daarom achter zolang
// hij zelf stilstaat en zijn partner verschoven is; de gebeurtenis van de partner komt dan nog.

#include <wx/stc/stc.h>

class VolgEditor : public wxStyledTextCtrl {
  public:
    using wxStyledTextCtrl::wxStyledTextCtrl;

    /// Maakt twee editors elkaars partner. Ze moeten even lang leven.
    static void koppel(VolgEditor& een, VolgEditor& ander);

    /// Een getal dat bij elke verandering van de tekst anders wordt.
    long geefVersie() const { return versie_; }

  protected:
    bool TryBefore(wxEvent& event) override;

  private:
    bool isVerschoven() const { return GetFirstVisibleLine() != getekendeRegel_; }

    VolgEditor* partner_ = nullptr;
    long versie_ = 0;
    int getekendeRegel_ = 0;  ///< de bovenste regel bij de laatste tekening die het venster zag
};
