#include <gtest/gtest.h>
#include <wx/config.h>
#include <wx/utils.h>

#include <filesystem>
#include <type_traits>

#include "gemeenschappelijk/desktopApp.h"

namespace {

/// Elke nieuwe toepassing maakt zichzelf tot de lopende; na de test moet die van de testrun er weer staan.
class ConsoleAppTest : public testing::Test {
  protected:
    ~ConsoleAppTest() override { wxAppConsole::SetInstance(vorige_); }

    wxAppConsole* vorige_ = wxTheApp;
};

}  // namespace

TEST_F(ConsoleAppTest, LegtAlleenDeNamenVast) {
    const ConsoleApp app("Proefconsole");
    EXPECT_EQ("Proefconsole", app.GetAppName());
    EXPECT_EQ("Werkplaats Knipselaar", app.GetVendorName());
}

TEST_F(ConsoleAppTest, IsDeLopendeToepassing) {
    const ConsoleApp app("Proefconsole");
    EXPECT_EQ(&app, wxTheApp);
}

TEST_F(ConsoleAppTest, MaaktGeenOpslagEnGeenSlot) {
    const ConsoleApp app("Proefconsole");
    EXPECT_EQ(nullptr, wxConfigBase::Get(false));
    EXPECT_FALSE(std::filesystem::exists("/tmp/Proefconsole-" + wxGetUserId().utf8_string()));
}

TEST_F(ConsoleAppTest, EindigtMetNul) {
    ConsoleApp app("Proefconsole");
    EXPECT_EQ(0, app.OnExit());
    EXPECT_EQ(nullptr, wxConfigBase::Get(false));
}

TEST_F(ConsoleAppTest, HeeftNietsVanEenVenster) {
    EXPECT_TRUE((std::is_base_of_v<wxAppConsole, ConsoleApp>));
    EXPECT_EQ(sizeof(wxAppConsole), sizeof(ConsoleApp)) << "geen eigen leden";
}
