#pragma once

// De keuzes van de gebruiker en wat eruit volgt. Alles hier is zonder venster te beslissen; de handlers van
// het venster lezen knoppen en vlaggen, vragen het hier en zetten knoppen.

#include <wx/string.h>

namespace kern {

/// Wat er geknipt wordt: de selectie van het keuzerondje "Parser Mode", en zo ook opgeslagen.
enum Verwerkingkeuze { enkelBestand = 0, alleBestanden = 1, alleBestandenRecursief = 2 };

/// De taal waarin de editors een bestand kleuren.
enum class Brontaal { geen, c, cpp, vhdl };

/// De kleuring bij een extensie zonder punt. Alleen kleine letters tellen; een header is C++.
Brontaal kiesBrontaal(const wxString& extensie);

/// Of een batch een bestand neemt, naar zijn extensie zonder punt en de selectie van "bestandstype". Beide
/// talen horen bij keuze 0; keuze 1, "VHDL bestanden", neemt niets en keuze 2 alles. Alleen kleine letters
/// tellen.
bool isBestandGekozen(const wxString& extensie, int bestandType);

/// De vlaggen die vertellen hoe ver de gebruiker is.
struct Voortgang {
    bool origineelGeladen;
    bool bronGekozen;
    bool bestemmingGekozen;
};

/// Of er iets te knippen valt: een geladen origineel, of beide directories.
bool magKnippen(const Voortgang& voortgang);

/// Wat bij een verwerkingkeuze gebruikt kan worden.
struct Bediening {
    bool openen;
    bool bron;
    bool bestemming;
    bool bestandType;

    bool operator==(const Bediening&) const = default;
};

/// @param keuze  een selectie; elke andere waarde dan 0 en 2 geldt als 1.
Bediening geefBediening(int keuze);

}  // namespace kern
