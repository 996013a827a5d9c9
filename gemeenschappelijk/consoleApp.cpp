#include "gemeenschappelijk/desktopApp.h"

ConsoleApp::ConsoleApp(const wxString& naam) {
    SetAppName(naam);
    SetVendorName(leverancierNaam);
}

ConsoleApp::~ConsoleApp() = default;

int ConsoleApp::OnExit() {
    return 0;
}
