// Voert één batch uit en houdt dan op, zonder venster en zonder uitvoer. De tests storen dit programma van
// buiten: het krijgt fouten van het systeem, of het wordt gedood.
//
//   fouten_aandrijver vlak BRON BESTEMMING BEGIN EIND VERVANGTEKST
//   fouten_aandrijver boom BOOM BEGIN EIND VERVANGTEKST

#include <unistd.h>
#include <wx/debug.h>
#include <wx/init.h>

#include <string>
#include <vector>

#include "tests/hulp/stilleOpdracht.h"

namespace {

/// Geeft of de opdrachtregel een batch was.
bool voerUit(const std::vector<wxString>& woorden) {
    if (woorden.size() == 6 && woorden[0] == "vlak") {
        const kern::KnipTeksten teksten{woorden[3], woorden[4], woorden[5]};
        hulp::StilleOpdracht opdracht(teksten);
        kern::knipDirectory(woorden[1], woorden[2], kern::lijstDirectory(woorden[1]), opdracht);
        return true;
    }
    if (woorden.size() == 5 && woorden[0] == "boom") {
        const kern::KnipTeksten teksten{woorden[2], woorden[3], woorden[4]};
        hulp::StilleOpdracht opdracht(teksten);
        kern::knipBoom(woorden[1], kern::lijstBoom(woorden[1]), opdracht);
        return true;
    }
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    // Wie blijft hangen wordt gedood; zo hoeft een test alleen op het einde te wachten.
    constexpr unsigned hoogstensSeconden = 20;
    alarm(hoogstensSeconden);
    const wxInitializer toolkit;
    // Een bestand dat niet opengaat beweert; dat is hier de bedoeling en mag het programma niet ophouden.
    wxDisableAsserts();
    return toolkit.IsOk() && voerUit(std::vector<wxString>(argv + 1, argv + argc)) ? 0 : 2;
}
