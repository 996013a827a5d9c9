#pragma once

// Welke van twee editors die gelijk opschuiven de andere meeneemt. Beide melden elke tekening, ook als er
// niets verschoven is; wie dan de verkeerde laat leiden, duwt de gebruiker terug.

namespace kern {

/// Waar een editor staat.
struct Schuifstand {
    int bovenste;     ///< de bovenste regel, zoals hij op het scherm telt: afgebroken en gevouwen
    bool verschoven;  ///< sinds zijn vorige melding
    bool aanEinde;    ///< verder kan hij niet
};

/// Of een editor die zich meldt zijn partner mag meenemen. Wie stilstaat laat de leiding aan een partner die
/// verschoof. Staat de partner verder, dan is deze de kortste tekst: hij volgde zo ver als hij kon en neemt
/// niemand mee, tot de gebruiker hem weer van zijn einde haalt.
bool magLeiden(const Schuifstand& zelf, const Schuifstand& partner);

}  // namespace kern
