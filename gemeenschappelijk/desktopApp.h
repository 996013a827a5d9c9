#pragma once

// Basisklassen voor toepassingen: DesktopApp met vensters, ConsoleApp zonder. Een DesktopApp bezit de
// instellingenopslag, de taal en het slot van de lopende instantie, en schrijft start en einde van elke
// run weg. Beide klassen en het logo (qorlogo) komen uit deze ene header; DesktopApp bestaat alleen waar de
// toolkit met vensters gebouwd wordt (wxUSE_GUI).

#include <wx/app.h>
#if wxUSE_GUI
#include <wx/fileconf.h>
#endif

#include <cstdint>

#include "gemeenschappelijk/qorlogo.h"

/// De organisatie die de toepassingen uitgeeft.
inline constexpr const char* leverancierNaam = "Werkplaats Knipselaar";

/// Basis voor een toepassing zonder vensters. Legt alleen de namen vast; heeft geen opslag, taal of slot.
class ConsoleApp : public wxAppConsole {
  public:
    /// @param naam  naam van de toepassing, zoals de toolkit haar aan anderen opgeeft.
    explicit ConsoleApp(const wxString& naam);
    ConsoleApp(const ConsoleApp&) = delete;
    ConsoleApp& operator=(const ConsoleApp&) = delete;
    ~ConsoleApp() override;

    int OnExit() override;
};

#if wxUSE_GUI

class wxLocale;
class wxSingleInstanceChecker;

/// Basis voor een toepassing met vensters. Opslag, taal en slot leven precies zo lang als het object; de
/// opslag is al die tijd ook het globale configuratieobject van de toolkit.
class DesktopApp : public wxApp {
  public:
    /// Opent de opslag van naam, schrijft de startstatistiek en stelt de opgeslagen taal in. Een opslag,
    /// taal of slot die niet lukt, houdt de start niet tegen.
    explicit DesktopApp(const wxString& naam);
    DesktopApp(const DesktopApp&) = delete;
    DesktopApp& operator=(const DesktopApp&) = delete;

    /// Schrijft taal en stopstatistiek en sluit de opslag, die dan pas haar bestand schrijft.
    ~DesktopApp() override;

    /// Houdt de opslag in leven voor de destructor en geeft 0.
    int OnExit() override;

    /// Legt vast op welk venster zetTaal zijn melding toont. win hoort niet NULL te zijn; het venster
    /// blijft van de aanroeper.
    void zetHoofdVenster(wxWindow* win);

    /// Onthoudt de taal voor de volgende start en vraagt de gebruiker opnieuw te starten. De lopende
    /// interface verandert niet.
    void zetTaal(wxLanguage nieuweTaal);

    /// De Engelse naam van een besturingssysteem; "Unbekannt" (vertaald) voor alles wat geen enkel
    /// bekend systeem is, ook voor de familiemaskers.
    wxString verkrijgOSNaam(wxOperatingSystemId id);

    /// De directory waaruit het programma gestart is; leeg als die niet te vinden is.
    /// @param startNaam      het programmapad zoals het gestart is (argument 0).
    /// @param werkDir        de werkdirectory bij de start; leeg telt als een directory zonder naam.
    /// @param variabeleNaam  omgevingsvariabele die de directory mag noemen, of leeg.
    wxString wxFindAppPath(const wxString& startNaam, const wxString& werkDir, const wxString& variabeleNaam);

    /// Toont het Over-venster van de toolkit met deze teksten en rechtenregel, zonder plaatje.
    void geefCopyright(const wxString& naam, const wxString& beschrijving, const wxString& versie);

    /// De rechten: jaren en auteur, opleiding, organisatie; elk op een regel.
    static constexpr const char* rechtenregel =
        "(c)2025-2026 ing. Team Knipselaar\nopleiding Elektrotechniek\nWerkplaats Knipselaar";

    /// De opslag van deze run; blijft eigendom van de toepassing.
    wxFileConfig* configuratie;

  protected:
    wxLocale* locale;
    /// Een wxLanguage, met teken: ook een onbekend getal komt onveranderd terug.
    std::int32_t taal = wxLANGUAGE_DUTCH;
    wxWindow* hoofdVenster = nullptr;
    wxSingleInstanceChecker* instantieControle;
};

#endif
