#include <wx/app.h>
#include <wx/debug.h>
#include <wx/init.h>
#include <wx/log.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "Knipselaar/kern/systeem/console.h"
#include "KnipselaarCli/cliApp.h"

// De toolkit krijgt alleen de naam van het programma te zien: zij zou elk woord naar Unicode omzetten, en een
// bestandsnaam in een andere codering dan die van de locale ging verloren. Haar eigen meldingen blijven
// achterwege; het programma zegt zelf wat er niet lukt, ook uit andere draden.
int main(int argc, char** argv) {
    std::vector<std::string> woorden = kern::beginConsole(argc, argv);
    wxDisableAsserts();
    wxLog::SetLogLevel(wxLOG_FatalError);
    // De toolkit ruimt de toepassing zelf op.
    wxApp::SetInstance(new cli::CliApp(std::move(woorden)));
    std::string naam = "knipselaar-cli";
    std::array<char*, 2> toolkitWoorden{naam.data(), nullptr};
    int aantal = 1;
    return wxEntry(aantal, toolkitWoorden.data());
}
