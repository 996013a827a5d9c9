#pragma once

// De toepassing zelf: geeft DesktopApp haar naam en maakt het ene venster.

#include "gemeenschappelijk/desktopApp.h"

class Knipselaar : public DesktopApp {
  public:
    Knipselaar();
    Knipselaar(const Knipselaar&) = delete;
    Knipselaar& operator=(const Knipselaar&) = delete;
    ~Knipselaar() override;

    /// Maakt en toont het parservenster. Roept de OnInit van de basisklasse niet aan, zodat de toolkit de
    /// opdrachtregel ongemoeid laat: het programma neemt geen opties of bestandsnamen aan.
    bool OnInit() override;
};

wxDECLARE_APP(Knipselaar);
