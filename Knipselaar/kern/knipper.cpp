#include "Knipselaar/kern/knipper.h"

namespace kern {

Knipper::Knipper(const KnipTeksten& teksten, std::string_view achterVervanging)
    : begin_(teksten.beginMarker),
      eind_(teksten.eindMarker),
      vervanging_(teksten.vervangtekst.utf8_string()) {
    vervanging_ += achterVervanging;
}

void Knipper::knip(std::string_view regels, const Uitvoer& uit) {
    std::size_t plek = 0;
    while (plek < regels.size()) {
        const MarkerMasker& masker = filter_.isInBlok() ? eind_ : begin_;
        const auto marker = masker.zoekRegel(regels, plek);
        const std::size_t reeksEinde = marker ? marker->begin : regels.size();
        if (reeksEinde > plek) {
            switch (filter_.beoordeel(false)) {
                case Lot::houden:
                    uit(regels.substr(plek, reeksEinde - plek));
                    break;
                case Lot::vervangen:
                    uit(vervanging_);
                    break;
                case Lot::weglaten:
                    break;
            }
        }
        if (marker) {
            filter_.beoordeel(true);
        }
        plek = marker ? marker->eind : regels.size();
    }
}

void Knipper::knipLegeRegel(const Uitvoer& uit) {
    if (filter_.beoordeel(false) == Lot::vervangen) {
        uit(vervanging_);
    }
}

std::string knipTekst(std::string_view tekst, const KnipTeksten& teksten) {
    std::string resultaat;
    const auto voegToe = [&resultaat](std::string_view stuk) { resultaat += stuk; };
    Knipper knipper(teksten, "");
    knipper.knip(tekst, voegToe);
    if (tekst.ends_with('\n')) {
        knipper.knipLegeRegel(voegToe);
    }
    return resultaat;
}

}  // namespace kern
