#pragma once

// Wachten tot iets zo is: met een grens, en nooit langer dan nodig.

namespace hulp {

/// De tijd, in ms sinds een vast ogenblik.
long klokMs();

/// Eén keer kort wachten tussen twee blikken op een voorwaarde van buiten dit proces. Na een blik die lang
/// duurde langer: wie vaak kijkt, houdt op wat hij wil zien.
/// @param blikMs  hoe lang de vorige blik duurde.
void wachtEven(long blikMs);

/// Wacht op een voorwaarde. False als de grens voorbij is en het nog steeds niet zo is.
template <typename Voorwaarde>
bool wachtTot(Voorwaarde&& voorwaarde, int hoogstensMs = 90000) {
    const long einde = klokMs() + hoogstensMs;
    for (long begin = klokMs(); !voorwaarde(); begin = klokMs()) {
        const long nu = klokMs();
        if (nu > einde) {
            return false;
        }
        wachtEven(nu - begin);
    }
    return true;
}

}  // namespace hulp
