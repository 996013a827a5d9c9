#include "gemeenschappelijk/grafiekRekenen.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace grafiek {

namespace {

// Delen door nul moet oneindig of geen getal geven: de schaal van staven rekent daarop.
static_assert(std::numeric_limits<double>::is_iec559);

constexpr double vulling = 0.95;

/// De tekenlaag van de toolkit rekent met 24 bits voor de komma; dit blijft er ruim binnen.
constexpr int tekenGrens = 1 << 22;

/// Een som van enkele int-waarden past altijd in 64 bits.
std::int64_t breed(int waarde) {
    return waarde;
}

int pasInInt(std::int64_t waarde) {
    return static_cast<int>(
        std::clamp(waarde, breed(std::numeric_limits<int>::min()), breed(std::numeric_limits<int>::max())));
}

double schaalVoor(int grootte, int verschuiving, int grootste, int kleinste) {
    const auto ruimte = static_cast<double>(breed(grootte) - verschuiving);
    const auto bereik = static_cast<double>(breed(grootste) - kleinste);
    return vulling * ruimte / bereik;
}

}  // namespace

int kapAf(double waarde) {
    if (std::isnan(waarde)) {
        return 0;
    }
    return static_cast<int>(std::clamp(waarde, static_cast<double>(std::numeric_limits<int>::min()),
                                       static_cast<double>(std::numeric_limits<int>::max())));
}

wxPoint naarVeld(const wxPoint& punt, const wxPoint& oorsprong, const wxSize& veld) {
    return {pasInInt(breed(oorsprong.x) + punt.x), pasInInt(breed(veld.GetHeight()) - oorsprong.y - punt.y)};
}

wxPoint verschuif(const wxPoint& punt, const wxPoint& verschuiving) {
    return {pasInInt(breed(punt.x) + verschuiving.x), pasInInt(breed(punt.y) + verschuiving.y)};
}

wxPoint geefOorsprong(const wxRealPoint& deel, const wxSize& veld) {
    return {kapAf(veld.GetWidth() * deel.x), kapAf(veld.GetHeight() * deel.y)};
}

wxPoint naarTekenbaar(const wxPoint& veldpunt) {
    return {std::clamp(veldpunt.x, -tekenGrens, tekenGrens), std::clamp(veldpunt.y, -tekenGrens, tekenGrens)};
}

wxRect geefRondje(const wxPoint& veldpunt) {
    return {pasInInt(breed(veldpunt.x) - puntStraal), pasInInt(breed(veldpunt.y) - puntStraal),
            2 * puntStraal, 2 * puntStraal};
}

Grenzen geefLegeGrenzen(const wxSize& veld) {
    return {wxPoint(0, 0), wxPoint(veld.GetWidth(), veld.GetHeight())};
}

void verruim(Grenzen& grenzen, const wxPoint& punt) {
    grenzen.maxPunt.x = std::max(grenzen.maxPunt.x, punt.x);
    grenzen.maxPunt.y = std::max(grenzen.maxPunt.y, punt.y);
    grenzen.minPunt.x = std::min(grenzen.minPunt.x, punt.x);
    grenzen.minPunt.y = std::min(grenzen.minPunt.y, punt.y);
}

Schaal geefSchaal(const Grenzen& grenzen, const wxPoint& verschuiving, const wxSize& veld) {
    return {schaalVoor(veld.GetWidth(), verschuiving.x, grenzen.maxPunt.x, grenzen.minPunt.x),
            schaalVoor(veld.GetHeight(), verschuiving.y, grenzen.maxPunt.y, grenzen.minPunt.y)};
}

Staaf geefStaaf(const wxPoint& punt, const wxPoint& verschuiving, const Schaal& schaal,
                const wxPoint& oorsprong, const wxSize& veld) {
    const auto schaalAf = [](std::int64_t waarde, double factor) {
        return breed(kapAf(static_cast<double>(waarde) * factor));
    };
    const std::int64_t basis = breed(veld.GetHeight()) - oorsprong.y;
    return {pasInInt(schaalAf(breed(verschuiving.x) + punt.x, schaal.x) + oorsprong.x),
            pasInInt(basis - schaalAf(verschuiving.y, schaal.y)),
            pasInInt(basis - schaalAf(breed(verschuiving.y) + punt.y, schaal.y))};
}

}  // namespace grafiek
