#include "Knipselaar/kern/bevindingTekst.h"

namespace kern {

namespace {

wxString naarTekst(std::size_t getal) {
    return wxString::Format("%zu", getal);
}

wxString noem(const Bevinding& bevinding) {
    switch (bevinding.soort) {
        case Soort::geenBlok:
            return "geen enkel blok; er valt niets weg";
        case Soort::beginOpElkeRegel:
            return "de beginmarker is leeg: elke regel is een begin";
        case Soort::eindOpElkeRegel:
            return "de eindmarker is leeg: elke regel is een eind";
        case Soort::leegBlok:
            return "leeg blok: geen vervangingstekst";
        case Soort::zonderEind:
            return "begin zonder eind: alles hierna valt weg";
        case Soort::zonderBegin:
            return "eind zonder begin: blijft staan";
        case Soort::beginInBlok:
        case Soort::anderBeginInBlok:
            return "begin in een blok: telt niet; " +
                   (bevinding.blokEind == 0 ? wxString("het blok eindigt nergens")
                                            : "het blok eindigt bij regel " + naarTekst(bevinding.blokEind));
        case Soort::beginZonderRegeleinde:
            return "begin op een laatste regel zonder regeleinde: telt niet";
        case Soort::eindZonderRegeleinde:
            return "eind op een laatste regel zonder regeleinde: telt niet";
        case Soort::bijnaBegin:
            return "bijna een beginmarker: telt niet";
        case Soort::bijnaEind:
            return "bijna een eindmarker: telt niet";
    }
    return {};
}

bool gaatOverAlles(Soort soort) {
    return soort == Soort::geenBlok || soort == Soort::beginOpElkeRegel || soort == Soort::eindOpElkeRegel;
}

}  // namespace

Bijschrift maakBijschrift(Ernst ernst, const wxString& tekst) {
    switch (ernst) {
        case Ernst::fout:
            return {.ernst = ernst, .tekst = "Fout: " + tekst};
        case Ernst::waarschuwing:
            return {.ernst = ernst, .tekst = "Let op: " + tekst};
        case Ernst::opmerking:
            break;
    }
    return {.ernst = ernst, .tekst = tekst};
}

Ernst geefErnst(Soort soort) {
    return isFout(soort) ? Ernst::fout : Ernst::waarschuwing;
}

Bijschrift beschrijf(const Bevinding& bevinding) {
    return maakBijschrift(geefErnst(bevinding.soort), noem(bevinding));
}

Bijschrift beschrijfMetRegel(const Bevinding& bevinding) {
    if (gaatOverAlles(bevinding.soort)) {
        return beschrijf(bevinding);
    }
    return maakBijschrift(geefErnst(bevinding.soort),
                          "regel " + naarTekst(bevinding.regel) + ": " + noem(bevinding));
}

}  // namespace kern
