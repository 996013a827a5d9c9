#pragma once

// Wat een schermlezer over bediening hoort. De toolkit geeft namen niet overal aan het systeem door; dit gaat
// daarom rechtstreeks. Aan het venster zelf is er niets van te zien.
//
// Het label zelf (VastLabel, in vastLabel.h van het systeem) is een label of kader dat de toolkit niet uit
// zichzelf bij een veld zoekt.

class wxChoice;
class wxDirPickerCtrl;
class wxStaticBox;
class wxStaticText;
class wxString;
class wxWindow;

/// Zegt bij welk veld een kader hoort, en geeft het veld de tekst van het kader als naam.
void noemVeld(const wxStaticBox& kader, wxWindow& veld);

/// Hetzelfde voor een kiezer van een directory. Zijn knop krijgt de tekst van het label als beschrijving: er
/// zijn meer kiezers, en hun knoppen hebben dezelfde tekst.
void noemKiezer(const wxStaticText& label, wxDirPickerCtrl& kiezer);

/// Geeft een keuzelijst een naam.
void noemKeuzelijst(wxChoice& keuzelijst, const wxString& naam);
