// De venstertests draaien in de hoofdlus van de echte toepassing: dezelfde klasse, dezelfde start en
// hetzelfde einde als het programma. Alleen de beweringen staan hier aan, en voor de tests opsommen is geen
// beeldscherm nodig.

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/init.h>
#include <wx/log.h>

#include <cstring>

#include "Knipselaar/knipselaar.h"
#include "tests/hulp/beweringen.h"
#include "tests/hulp/omgeving.h"
#include "tests/venster/vensterTest.h"

namespace {

int draaiInHoofdlus(int argc, char** argv) {
    int uitkomst = 1;
    if (!wxEntryStart(argc, argv)) {
        return uitkomst;
    }
    if (wxGetApp().CallOnInit()) {
        wxGetApp().CallAfter([&uitkomst] {
            uitkomst = RUN_ALL_TESTS();
            wxGetApp().GetTopWindow()->Destroy();
        });
        wxGetApp().OnRun();
        wxGetApp().OnExit();
    }
    wxEntryCleanup();
    return uitkomst;
}

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) {
        return RUN_ALL_TESTS();
    }
    const hulp::Omgeving omgeving(hulp::Beeldscherm::kaal);
    zetOmgeving(omgeving);
    wxLog::SetLogLevel(wxLOG_Info);
    hulp::vangBeweringen();
    return draaiInHoofdlus(argc, argv);
}
