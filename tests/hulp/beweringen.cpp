#include "tests/hulp/beweringen.h"

#include <gtest/gtest.h>
#include <wx/debug.h>
#include <wx/string.h>

#include <utility>

namespace hulp {

namespace {

std::vector<Bewering>& gevangen() {
    static std::vector<Bewering> beweringen;
    return beweringen;
}

void vang(const wxString& /*bestand*/, int /*regel*/, const wxString& /*functie*/, const wxString& voorwaarde,
          const wxString& melding) {
    gevangen().push_back({voorwaarde.utf8_string(), melding.utf8_string()});
}

class Bewaker : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo& /*test*/) override { neemBeweringen(); }
    void OnTestEnd(const testing::TestInfo& /*test*/) override {
        for (const Bewering& bewering : neemBeweringen()) {
            ADD_FAILURE() << "onverwachte bewering: " << testing::PrintToString(bewering);
        }
    }
};

}  // namespace

void PrintTo(const Bewering& bewering, std::ostream* uit) {
    *uit << "\"" << bewering.voorwaarde << "\" (" << bewering.melding << ")";
}

void vangBeweringen() {
    wxSetAssertHandler(vang);
    testing::UnitTest::GetInstance()->listeners().Append(new Bewaker);
}

std::vector<Bewering> neemBeweringen() {
    return std::exchange(gevangen(), {});
}

}  // namespace hulp
