#include <wx/debug.h>
#include <wx/init.h>
#include <wx/log.h>

#include "Knipselaar/kern/systeem/console.h"

// De controles op aannames zijn voor wie aan het programma werkt; een docent krijgt er geen vragen over.
// wxDISABLE_DEBUG_SUPPORT doet dit alleen in een bouw zonder controles, daarom staat het hier uitgeschreven.
int main(int argc, char** argv) {
    kern::zorgVoorKanalen();
    wxDisableAsserts();
    wxLog::SetLogLevel(wxLOG_Info);
    return wxEntry(argc, argv);
}
