#include "KnipselaarCli/ontleding.h"

#include <algorithm>
#include <optional>

namespace cli {

namespace {

/// Niets als er in de console niets over te zeggen is.
std::optional<Melding> maakMelding(const kern::Bevinding& bevinding, Ernst bijna) {
    const std::string waar = " in het blok van regel " + std::to_string(bevinding.blokBegin);
    switch (bevinding.soort) {
        case kern::Soort::leegBlok:
            return Melding{bevinding.regel, Ernst::waarschuwing, "leeg blok; er komt geen vervangtekst"};
        case kern::Soort::zonderEind:
            return Melding{bevinding.regel, Ernst::fout, "beginmarker zonder eindmarker"};
        case kern::Soort::zonderBegin:
            return Melding{bevinding.regel, Ernst::fout, "eindmarker zonder beginmarker"};
        case kern::Soort::beginInBlok:
            return Melding{bevinding.regel, Ernst::fout, "beginmarker" + waar};
        case kern::Soort::anderBeginInBlok:
            return Melding{bevinding.regel, Ernst::waarschuwing,
                           "beginmarker van een ander paar" + waar + "; hij verdwijnt mee"};
        case kern::Soort::bijnaBegin:
            return maakBijnaMelding(bevinding.regel, kern::Gelijkenis::begin, bijna);
        case kern::Soort::bijnaEind:
            return maakBijnaMelding(bevinding.regel, kern::Gelijkenis::eind, bijna);
        default:
            return std::nullopt;
    }
}

}  // namespace

bool Ontleding::heeftFout() const {
    return std::any_of(meldingen.begin(), meldingen.end(),
                       [](const Melding& melding) { return melding.ernst == Ernst::fout; });
}

Melding maakBijnaMelding(std::size_t regel, kern::Gelijkenis lijktOp, Ernst ernst) {
    const std::string welke = lijktOp == kern::Gelijkenis::begin ? "beginmarker" : "eindmarker";
    return {.regel = regel, .ernst = ernst, .tekst = "bijna een " + welke + "; zo telt hij niet"};
}

Ontleding ontleed(std::string_view tekst, const kern::MarkerReeks& markers, Ernst bijna) {
    Ontleding uitslag;
    kern::Ontleder ontleder(markers, [&uitslag](const kern::Blok& blok) { uitslag.blokken.push_back(blok); });
    ontleder.neem(tekst);
    for (const kern::Bevinding& bevinding : ontleder.maakAf().lijst) {
        if (auto melding = maakMelding(bevinding, bijna)) {
            uitslag.meldingen.push_back(std::move(*melding));
        }
    }
    return uitslag;
}

}  // namespace cli
