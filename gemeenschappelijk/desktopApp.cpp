#include "gemeenschappelijk/desktopApp.h"

#include <wx/aboutdlg.h>
#include <wx/datetime.h>
#include <wx/fileconf.h>
#include <wx/intl.h>
#include <wx/log.h>
#include <wx/msgdlg.h>
#include <wx/snglinst.h>
#include <wx/utils.h>

#include "gemeenschappelijk/systeem/overPlaatje.h"
#include "gemeenschappelijk/systeem/slotDirectory.h"

namespace {

/// Een bewering met precies deze tekst als voorwaarde; wxASSERT_MSG zou NULL erin uitwerken. Zonder vanger
/// gebeurt er niets: de toolkit kijkt zelf niet of er een is.
void beweer(bool geldt, const char* functie, const char* voorwaarde, const char* melding) {
    if (!geldt && wxTheAssertHandler != nullptr) {
        wxOnAssert(__FILE__, __LINE__, functie, voorwaarde, wxString(melding));
    }
}

constexpr const char* taalSleutel = "/Basisconfiguratie/Taal";

/// Datum en tijd komen uit één klokstand, zodat ze ook rond middernacht bij elkaar horen.
void schrijfMoment(wxConfigBase& opslag, const wxString& soort, const wxDateTime& moment) {
    opslag.Write("/Statistiek/" + soort + "Datum", moment.FormatISODate());
    opslag.Write("/Statistiek/" + soort + "Tijd", moment.FormatISOTime());
}

}  // namespace

DesktopApp::DesktopApp(const wxString& naam)
    : configuratie(new wxFileConfig(naam, leverancierNaam, wxEmptyString, wxEmptyString,
                                    wxCONFIG_USE_LOCAL_FILE | wxCONFIG_USE_GLOBAL_FILE)),
      locale(new wxLocale),
      instantieControle(new wxSingleInstanceChecker) {
    // Een "$" in een marker of vervangtekst is gewone tekst; de opslag zou hem anders bij het lezen als
    // omgevingsvariabele uitwerken.
    configuratie->SetExpandEnvVars(false);
    {
        // Het slot laat anderen alleen zien dat er een instantie loopt; een tweede mag gewoon starten.
        // Starten er twee tegelijk, of is er een gedood, dan zegt de toolkit daar iets over waar niemand iets
        // aan heeft.
        const wxLogNull stil;
        instantieControle->Create(naam + wxString::Format("-%s", wxGetUserId()), geefSlotDirectory());
    }

    const wxDateTime start = wxDateTime::Now();
    wxConfigBase::DontCreateOnDemand();
    wxConfigBase::Set(configuratie);
    schrijfMoment(*configuratie, "Start", start);

    configuratie->Read(taalSleutel, &taal, taal);
    if (!locale->Init(taal, wxLOCALE_LOAD_DEFAULT)) {
        wxLogError("Could not initialise the Locale for %s", wxLocale::GetLanguageName(taal));
    }
    SetAppName(naam);
    SetVendorName(leverancierNaam);
}

DesktopApp::~DesktopApp() {
    delete instantieControle;
    const wxDateTime stop = wxDateTime::Now();
    configuratie->Write(taalSleutel, static_cast<long>(taal));
    schrijfMoment(*configuratie, "Stop", stop);
    wxConfigBase::Set(nullptr);
    delete locale;
    delete configuratie;
}

int DesktopApp::OnExit() {
    // Na OnExit verwijdert de toolkit de geregistreerde opslag zelf, nog vóór deze toepassing wordt
    // afgebroken. Uitgeschreven blijft zij leven tot de destructor er het einde van de run in heeft gezet.
    wxConfigBase::Set(nullptr);
    return 0;
}

void DesktopApp::zetHoofdVenster(wxWindow* win) {
    beweer(win != nullptr, __func__, "(win != (wxWindow *)Null)", "(DesktopApp::zetHoofdVenster) win = NULL");
    hoofdVenster = win;
}

void DesktopApp::zetTaal(wxLanguage nieuweTaal) {
    taal = static_cast<std::int32_t>(nieuweTaal);
    beweer(hoofdVenster != nullptr, __func__, "(hoofdVenster != (wxWindow *)Null)",
           "(DesktopApp::zetTaal) win = NULL");
    const wxString titel = wxGetTranslation("Start de applicatie opnieuw");
    const wxString melding =
        wxGetTranslation("De applicatie moet nu opnieuw opgestart worden om de nieuwe taal te aktiveren");
    wxMessageBox(melding, titel, wxOK, hoofdVenster);
}

void DesktopApp::geefCopyright(const wxString& naam, const wxString& beschrijving, const wxString& versie) {
    wxAboutDialogInfo gegevens;
    gegevens.SetName(naam);
    gegevens.SetVersion(versie);
    gegevens.SetDescription(beschrijving);
    gegevens.SetCopyright(rechtenregel);
    wxAboutBox(gegevens);
    verbergPlaatje();
}
