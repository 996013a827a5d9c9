#pragma once

// Verwachtingen over dialogen, in de plaats van een gebruiker. Een dialoog die niet verwacht is en een
// verwachting die niet uitkomt laten de test falen.

#include <wx/filedlg.h>
#include <wx/msgdlg.h>
#include <wx/testing.h>

#include <functional>
#include <string>
#include <vector>

/// Wat een bestandsdialoog liet zien toen hij verscheen.
struct Bestandsdialoog {
    wxString titel;
    wxString directory;
    wxString bestand;
    wxString filter;
    long stijl = 0;
};

/// Voert een handeling uit waarbij precies één bestandsdialoog verschijnt.
/// @param keuze  pad dat de gebruiker kiest; leeg als hij afziet.
Bestandsdialoog beantwoordBestandsdialoog(const wxString& keuze, const std::function<void()>& handeling);

/// Wat een meldingsvenster liet zien.
struct Melding {
    std::string tekst;
    std::string titel;
    long stijl = 0;
    wxWindow* ouder = nullptr;
    wxRect bezigVenster;  ///< waar het bezigvenster toen lag; leeg als er geen was
};

/// Voert een handeling uit waarbij precies één melding verschijnt.
/// @param antwoord  de knop die de gebruiker kiest, zoals wxID_YES.
Melding beantwoordMelding(int antwoord, const std::function<void()>& handeling);

/// Voert een handeling uit waarbij eerst een bestandsdialoog verschijnt en dan een melding.
/// @param keuze      pad dat de gebruiker kiest.
/// @param bijLezen   wordt aangeroepen als de melding er staat.
Melding beantwoordDialoogEnMelding(const wxString& keuze, const std::function<void()>& bijLezen,
                                   const std::function<void()>& handeling);

/// Voert een handeling uit waarbij geen enkele dialoog mag verschijnen.
void zonderDialoog(const std::function<void()>& handeling);
