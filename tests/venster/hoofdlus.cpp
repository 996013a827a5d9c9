#include "tests/venster/hoofdlus.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/init.h>
#include <wx/log.h>

#include "Knipselaar/knipselaar.h"
#include "tests/hulp/beweringen.h"
#include "tests/venster/vensterTest.h"

int draaiInHoofdlus(int argc, char** argv, const hulp::Omgeving& omgeving) {
    zetOmgeving(omgeving);
    wxLog::SetLogLevel(wxLOG_Info);
    hulp::vangBeweringen();
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
