#include "Knipselaar/kern/knipper.h"

namespace kern {

Knipper::Knipper(const KnipMal& mal, std::string_view achterVervanging)
    : mal_(mal), vervanging_(mal.geefVervanging()) {
    vervanging_ += achterVervanging;
}

void Knipper::knip(std::string_view regels, const Uitvoer& uit) {
    std::size_t plek = 0;
    while (plek < regels.size()) {
        const MarkerMasker& masker = filter_.isInBlok() ? mal_.geefPaar().eind : mal_.geefPaar().begin;
        const auto marker = masker.zoekRegel(regels, plek);
        const std::size_t reeksEinde = marker ? marker->begin : regels.size();
        if (reeksEinde > plek) {
            switch (filter_.beoordeel(false)) {
                case Lot::houden:
                    uit(regels.substr(plek, reeksEinde - plek), Lot::houden);
                    break;
                case Lot::vervangen:
                    uit(vervanging_, Lot::vervangen);
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
        uit(vervanging_, Lot::vervangen);
    }
}

Geknipt knipTekst(std::string_view tekst, const KnipMal& mal) {
    Geknipt geknipt;
    geknipt.tekst.reserve(tekst.size());
    const auto voegToe = [&geknipt](std::string_view stuk, Lot lot) {
        const std::size_t begin = geknipt.tekst.size();
        geknipt.tekst += stuk;
        if (lot == Lot::vervangen) {
            geknipt.vervangingen.push_back({.begin = begin, .eind = geknipt.tekst.size()});
        }
    };
    Knipper knipper(mal, "");
    knipper.knip(tekst, voegToe);
    if (tekst.ends_with('\n')) {
        knipper.knipLegeRegel(voegToe);
    }
    return geknipt;
}

std::string knipTekst(std::string_view tekst, const KnipTeksten& teksten) {
    return knipTekst(tekst, KnipMal(teksten)).tekst;
}

}  // namespace kern
