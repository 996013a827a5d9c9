// Begint en eindigt de toolkit met het proces; libFuzzer heeft zijn eigen main.

#include <wx/debug.h>
#include <wx/init.h>
#include <wx/log.h>

#include <clocale>

// libFuzzer zoekt deze functie onder deze naam.
extern "C" int LLVMFuzzerInitialize(int* /*aantal*/, char*** /*argumenten*/) {
    static const wxInitializer toolkit;
    // Net als het programma met zijn venster: welke tekens spaties zijn hangt van de locale af.
    std::setlocale(LC_CTYPE, "C.UTF-8");
    wxLog::EnableLogging(false);
    // De toolkit beweert bij onzin in een opslag van alles; wat ervan terechtkomt zegt het doel zelf.
    wxSetAssertHandler(nullptr);
    return toolkit.IsOk() ? 0 : 1;
}
