#pragma once

// Het rekenwerk achter GrafiekVenster: waar een punt in het tekenveld ligt en hoe staven op het veld passen.
// Vrije functies zonder toestand en zonder beeldscherm. Grafiekcoördinaten lopen vanaf de oorsprong naar
// rechts en omhoog, veldcoördinaten in pixels vanaf linksboven naar rechts en omlaag. Alle tussenuitkomsten
// zijn breder dan een int; wat aan het eind niet in een int past, blijft aan die kant op de rand staan,
// zodat geen enkele invoer tot een overloop leidt.

#include <wx/gdicmn.h>

namespace grafiek {

/// De straal van het rondje dat een punt markeert, in veldpixels.
inline constexpr int puntStraal = 2;

/// Breekt af naar nul: 1.9 wordt 1 en -1.9 wordt -1. Een waarde buiten het bereik van int wordt de
/// dichtstbijzijnde int, en geen getal (nan) wordt 0; de omzetting van C++ zelf is daar ongedefinieerd.
int kapAf(double waarde);

/// Waar een grafiekpunt in een veld van deze grootte ligt. De oorsprong telt in pixels vanaf linksonder.
wxPoint naarVeld(const wxPoint& punt, const wxPoint& oorsprong, const wxSize& veld);

/// Het punt dat met verschuiving mee verplaatst is.
wxPoint verschuif(const wxPoint& punt, const wxPoint& verschuiving);

/// De oorsprong op een deel van het veld, afgebroken op hele pixels: (0, 0) is linksonder, (1, 1)
/// rechtsboven.
wxPoint geefOorsprong(const wxRealPoint& deel, const wxSize& veld);

/// Hetzelfde veldpunt, maar nooit verder weg dan de toolkit kan tekenen: heel verre coördinaten lopen daar
/// rond en zouden midden in het beeld uitkomen. Wat in of in de wijde omtrek van het veld ligt, blijft
/// gelijk.
wxPoint naarTekenbaar(const wxPoint& veldpunt);

/// De rechthoek om het rondje dat op dit veldpunt staat.
wxRect geefRondje(const wxPoint& veldpunt);

/// De grootste en kleinste x en y van een rij punten.
struct Grenzen {
    wxPoint maxPunt;
    wxPoint minPunt;
};

/// De grenzen van een rij zonder punten: het maximum op 0 en het minimum op de grootte van het veld. Een rij
/// die helemaal links of onder de oorsprong ligt houdt dus 0 als maximum.
Grenzen geefLegeGrenzen(const wxSize& veld);

/// Neemt een punt in de grenzen op.
void verruim(Grenzen& grenzen, const wxPoint& punt);

/// Vermenigvuldigers voor x en y; standaard blijft alles op ware grootte.
struct Schaal {
    double x = 1.0;
    double y = 1.0;
};

/// De schaal waarmee punten met deze grenzen het veld op een marge van 5 % na vullen. Zijn het grootste en
/// het kleinste punt in een richting gelijk, dan is de factor daar oneindig of geen getal.
Schaal geefSchaal(const Grenzen& grenzen, const wxPoint& verschuiving, const wxSize& veld);

/// Een staaf in veldpixels: een verticale lijn op x, van voet naar top.
struct Staaf {
    int x = 0;
    int voet = 0;
    int top = 0;
};

/// De staaf bij een punt. De verschuiving telt mee in de schaal en tilt ook de voet van de x-as.
Staaf geefStaaf(const wxPoint& punt, const wxPoint& verschuiving, const Schaal& schaal,
                const wxPoint& oorsprong, const wxSize& veld);

}  // namespace grafiek
