#include "KnipselaarCli/keuze.h"

#include <algorithm>

#include "Knipselaar/kern/systeem/masker.h"
#include "Knipselaar/kern/systeem/paden.h"
#include "KnipselaarCli/fout.h"

namespace cli {

namespace {

/// Een masker met een schuine streep erin geldt voor het hele pad, een ander voor de naam.
bool past(const std::string& masker, const std::string& pad) {
    const bool heelPad = kern::geefNaam(masker) != masker;
    return kern::pastOp(masker, std::string(heelPad ? std::string_view(pad) : kern::geefNaam(pad)), heelPad);
}

/// Een masker met een schuine streep aan het einde is er alleen voor directories.
bool pastOpDeel(std::string_view masker, const Boomdeel& deel) {
    const std::size_t lengte = masker.find_last_not_of(kern::geefScheidingstekens()) + 1;
    const bool magAltijd = lengte == masker.size();
    return (magAltijd || deel.soort == kern::Bestandssoort::directory) &&
           past(std::string(masker.substr(0, lengte)), deel.pad);
}

}  // namespace

bool Kiezer::isWeggelaten(const Boomdeel& deel) const {
    return std::any_of(opties_.weglaten.begin(), opties_.weglaten.end(),
                       [&](const std::string& masker) { return pastOpDeel(masker, deel); });
}

bool Kiezer::isGekozen(const std::string& pad) {
    if (opties_.maskers.empty()) {
        const Bestandskeuze keuze = opties_.keuze.value_or(Bestandskeuze::talen);
        return keuze == Bestandskeuze::alles ||
               (keuze == Bestandskeuze::talen && kiesTaal(pad) != Taal::overig) ||
               (keuze == Bestandskeuze::vhdl && kiesTaal(pad) == Taal::vhdl);
    }
    bool gekozen = false;
    for (const std::string& masker : opties_.maskers) {
        if (past(masker, pad)) {
            gebruikt_.insert(masker);
            gekozen = true;
        }
    }
    return gekozen;
}

void Kiezer::keurMaskers() const {
    for (const std::string& masker : opties_.maskers) {
        if (!gebruikt_.contains(masker)) {
            throw Fout("--masker: op '" + masker + "' past geen enkel bestand; kijk het masker na" +
                       (opties_.recursief ? "" : ", of geef --recursief"));
        }
    }
}

}  // namespace cli
