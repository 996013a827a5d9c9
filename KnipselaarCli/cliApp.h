#pragma once

// Het consoleprogramma: leest de opdrachtregel, laat het plan uitvoeren en doet verslag.

#include <string>
#include <vector>

#include "gemeenschappelijk/desktopApp.h"

namespace cli {

class CliApp : public ConsoleApp {
  public:
    /// @param woorden  de opdrachtregel zonder de naam van het programma, in de bytes van de shell.
    explicit CliApp(std::vector<std::string> woorden);

    /// De toolkit hoeft de opdrachtregel niet te lezen; zij zou namen omzetten.
    bool OnInit() override { return true; }

    /// Geeft de afloop: 0 alles goed, 1 fouten in de invoer, 2 verkeerd gebruik of een storing. Keert niet
    /// terug als om stoppen gevraagd is.
    int OnRun() override;

  private:
    std::vector<std::string> woorden_;
};

}  // namespace cli
