#pragma once

// Het keuzerondje van de verwerking. Een klik meldt alleen een echte verandering: GTK stuurt de gebeurtenis
// ook bij een klik op de keuze die er al stond, en het venster zou dan het werk van de gebruiker wissen. Wat
// het programma zelf meldt komt altijd door.

#include <wx/radiobox.h>

#include "vastLabel.h"

class ModeKeuze : public VastLabel<wxRadioBox> {
  public:
    using VastLabel::VastLabel;

    /// Selecteert zonder melding; een selectie die niet bestaat laat alles zoals het is.
    void SetSelection(int selectie) override;

  protected:
    bool TryBefore(wxEvent& event) override;

  private:
    int laatste_ = 0;
};
