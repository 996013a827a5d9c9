#include <wx/fileconf.h>
#include <wx/log.h>
#include <wx/snglinst.h>

#include "tests/venster/dialogen.h"
#include "tests/venster/vensterTest.h"

namespace {

/// Geeft de test toegang tot de leden van de toepassing.
class AppInzage : public DesktopApp {
  public:
    using DesktopApp::hoofdVenster;
    using DesktopApp::instantieControle;
    using DesktopApp::locale;
    using DesktopApp::taal;
};

class DesktopAppTest : public VensterTest {
  protected:
    DesktopApp& app_ = wxGetApp();
};

// Het slot is er één per gebruiker, voor alle lopende tests samen; deze test loopt daarom alleen.
using Slot = DesktopAppTest;

}  // namespace

TEST_F(Slot, StaatOpNaamVanDezeGebruiker) {
    EXPECT_NE(nullptr, app_.*&AppInzage::instantieControle);
    EXPECT_TRUE(std::filesystem::exists("/tmp/Knipselaar-" + wxGetUserId().utf8_string()));
}

TEST_F(DesktopAppTest, HeeftZijnNamen) {
    EXPECT_EQ("Knipselaar", app_.GetAppName());
    EXPECT_EQ("Werkplaats Knipselaar", app_.GetVendorName());
}

TEST_F(DesktopAppTest, IsDeGlobaleOpslag) {
    EXPECT_EQ(app_.configuratie, wxConfigBase::Get(false));
    EXPECT_NE(nullptr, dynamic_cast<wxFileConfig*>(app_.configuratie));
    EXPECT_FALSE(app_.configuratie->IsExpandingEnvVars());
}

TEST_F(DesktopAppTest, LaatDeToolkitZelfGeenOpslagMaken) {
    wxConfigBase::Set(nullptr);
    EXPECT_EQ(nullptr, wxConfigBase::Get(true)) << "ook niet als er om gevraagd wordt";
    delete wxConfigBase::Set(app_.configuratie);
}

TEST_F(DesktopAppTest, SpreektNederlands) {
    EXPECT_EQ(static_cast<int>(wxLANGUAGE_DUTCH), app_.*&AppInzage::taal);
    EXPECT_TRUE((app_.*&AppInzage::locale)->IsOk());
    EXPECT_EQ("Bestand", wxGetTranslation("File"));
}

TEST_F(DesktopAppTest, SchrijftDeStartMeteen) {
    const wxString datum = app_.configuratie->Read("/Statistiek/StartDatum");
    const wxString tijd = app_.configuratie->Read("/Statistiek/StartTijd");
    wxDateTime moment;
    ASSERT_TRUE(moment.ParseISOCombined(datum + "T" + tijd)) << datum << " " << tijd;
    EXPECT_TRUE(moment.IsBetween(wxDateTime::Now() - wxTimeSpan::Minutes(5), wxDateTime::Now()));
    EXPECT_FALSE(app_.configuratie->Exists("/Statistiek/StopDatum"));
}

TEST_F(DesktopAppTest, OnthoudtHetHoofdvenster) {
    EXPECT_EQ(nullptr, app_.*&AppInzage::hoofdVenster) << "het programma zet het zelf niet";
    app_.zetHoofdVenster(venster_);
    EXPECT_EQ(venster_, app_.*&AppInzage::hoofdVenster);
    app_.zetHoofdVenster(nullptr);
    EXPECT_EQ(nullptr, app_.*&AppInzage::hoofdVenster);
    EXPECT_EQ((std::vector<hulp::Bewering>{
                  {"(win != (wxWindow *)Null)", "(DesktopApp::zetHoofdVenster) win = NULL"}}),
              hulp::neemBeweringen());
}

TEST_F(DesktopAppTest, GaatZonderVangerGewoonVerder) {
    const auto vanger = wxSetAssertHandler(nullptr);
    app_.zetHoofdVenster(nullptr);
    wxSetAssertHandler(vanger);
    EXPECT_EQ(nullptr, app_.*&AppInzage::hoofdVenster);
}

TEST_F(DesktopAppTest, VraagtOmEenNieuweStartNaEenAndereTaal) {
    app_.zetHoofdVenster(venster_);
    const auto melding = beantwoordMelding(wxID_OK, [this] { app_.zetTaal(wxLANGUAGE_FRENCH); });
    EXPECT_EQ("De applicatie moet nu opnieuw opgestart worden om de nieuwe taal te aktiveren", melding.tekst);
    EXPECT_EQ("Start de applicatie opnieuw", melding.titel);
    EXPECT_EQ(wxOK, melding.stijl & (wxOK | wxCANCEL | wxYES_NO | wxHELP));
    EXPECT_EQ(venster_, melding.ouder);
    EXPECT_EQ(static_cast<int>(wxLANGUAGE_FRENCH), app_.*&AppInzage::taal);
    EXPECT_EQ("Bestand", wxGetTranslation("File")) << "de lopende interface verandert niet";
    EXPECT_FALSE(app_.configuratie->Exists("/Basisconfiguratie/Taal")) << "pas aan het einde van de run";
    app_.zetHoofdVenster(nullptr);
    hulp::neemBeweringen();
}

TEST_F(DesktopAppTest, ZetDeTaalOokZonderHoofdvenster) {
    beantwoordMelding(wxID_OK, [this] { app_.zetTaal(wxLANGUAGE_GERMAN); });
    EXPECT_EQ((std::vector<hulp::Bewering>{
                  {"(hoofdVenster != (wxWindow *)Null)", "(DesktopApp::zetTaal) win = NULL"}}),
              hulp::neemBeweringen());
    EXPECT_EQ(static_cast<int>(wxLANGUAGE_GERMAN), app_.*&AppInzage::taal);
}
