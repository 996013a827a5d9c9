#include "KnipselaarCli/knipsel.h"

#include <algorithm>

#include "Knipselaar/kern/regelOmzetter.h"
#include "Knipselaar/kern/regeleinden.h"

namespace cli {

Knipsel::Knipsel(const Brontekst& bron, const Ontleding& ontleding, const KnipWens& wens)
    : bron_(bron), ontleding_(ontleding), wens_(wens), vulling_(bron, wens) {
    if (wens.manier == Manier::venster) {
        vensterVervanging_ = std::string(wens.vervanging) + '\n';
        return;
    }
    // Past de vervangtekst niet, dan moet dat blijken voor er iets geschreven is.
    const auto& blokken = ontleding.blokken;
    const auto vol = std::find_if(blokken.begin(), blokken.end(), [this](const kern::Blok& blok) {
        return vulling_.heeftVervangtekst(blok);
    });
    if (vol != blokken.end()) {
        vulling_.geef(*vol);
    }
}

/// Roept iets aan met elk deel van de tekst dat weggaat en wat ervoor komt, op volgorde.
template <typename Doe>
void Knipsel::loopIngrepenAf(const Doe& doe) {
    auto weg = ontleding_.weg.begin();
    const auto doeWegTot = [&](std::size_t plek) {
        for (; weg != ontleding_.weg.end() && weg->begin < plek; ++weg) {
            doe(*weg, vulling_.geefVoorRegel(*weg));
        }
    };
    for (const kern::Blok& blok : ontleding_.blokken) {
        doeWegTot(blok.begin.begin);
        doe(kern::Regel{blok.begin.begin, blok.eind.eind}, geefVervanging(blok));
    }
    doeWegTot(bron_.geefTekst().size());
}

std::string Knipsel::geefInhoud() {
    std::string inhoud;
    geef([&inhoud](std::string_view stuk) { inhoud += stuk; });
    return inhoud;
}

void Knipsel::geef(const std::function<void(std::string_view)>& uit) {
    if (wens_.manier == Manier::venster && bron_.isRauw()) {
        zetOm(uit);
        return;
    }
    std::size_t plek = 0;
    loopIngrepenAf([&](kern::Regel deel, std::string_view nieuw) {
        uit(geefBlijvend(plek, deel.begin));
        uit(nieuw);
        plek = deel.eind;
    });
    uit(geefBlijvend(plek, bron_.geefTekst().size()));
}

/// Een deel van de tekst zoals het in het knipsel komt.
std::string_view Knipsel::geefBlijvend(std::size_t begin, std::size_t eind) const {
    if (wens_.manier == Manier::venster) {
        return bron_.geefTekst().substr(begin, eind - begin);
    }
    const std::size_t ruwBegin = begin == 0 ? 0 : bron_.naarRuw(begin);
    return bron_.geefRuw().substr(ruwBegin, bron_.naarRuw(eind) - ruwBegin);
}

/// Laat de omzetter van de kern het hele bestand zien, in kleine delen die in de cache blijven, en geeft door
/// wat buiten de blokken ligt.
void Knipsel::zetOm(const std::function<void(std::string_view)>& uit) {
    constexpr std::size_t deel = std::size_t{128} * 1024;
    const std::string_view tekst = bron_.geefTekst();
    std::string_view rest = tekst.substr(0, tekst.size() - 1);  // zonder het regeleinde dat er niet in staat
    std::size_t plek = 0;
    kern::RegelOmzetter omzetter;
    kern::Bytes omgezet;
    const auto neemTot = [&](std::size_t eind) {
        omgezet.zetLengte(0);
        const std::string_view stuk = rest.substr(0, eind - plek);
        omzetter.zetOm(stuk, omgezet);
        rest.remove_prefix(stuk.size());
        plek = eind;
    };
    const auto geefTot = [&](std::size_t eind) {
        while (plek < eind) {
            neemTot(std::min(eind, plek + deel));
            uit(omgezet.geef());
        }
    };
    for (const kern::Blok& blok : ontleding_.blokken) {
        geefTot(blok.begin.begin);
        neemTot(blok.eind.eind);
        uit(geefVervanging(blok));
    }
    const bool eindigtMetBlok = plek == tekst.size();
    geefTot(tekst.size());
    omgezet.zetLengte(0);
    omzetter.sluitAf(omgezet);
    uit(eindigtMetBlok ? std::string_view() : omgezet.geef());
}

std::string_view Knipsel::geefVervanging(const kern::Blok& blok) {
    if (wens_.manier == Manier::getrouw) {
        return vulling_.geef(blok);
    }
    return blok.isLeeg() ? std::string_view() : vensterVervanging_;
}

std::vector<Wijziging> Knipsel::geefWijzigingen() {
    std::vector<Wijziging> uit;
    std::size_t plek = 0;
    loopIngrepenAf([&](kern::Regel deel, std::string_view nieuw) {
        vergelijkRegels({plek, deel.begin}, uit);
        // Op de manier van het venster gaat het merkteken van een eerste regel mee weg.
        const bool metMerkteken = wens_.manier == Manier::venster && deel.begin == 0;
        uit.push_back({.begin = metMerkteken ? 0 : bron_.naarRuw(deel.begin),
                       .eind = bron_.naarRuw(deel.eind),
                       .nieuw = zoalsGeschreven(nieuw)});
        plek = deel.eind;
    });
    vergelijkRegels({plek, bron_.geefTekst().size()}, uit);
    return uit;
}

/// De wijzigingen van een deel dat blijft: bij de manier "venster" de regels die er anders uit komen.
void Knipsel::vergelijkRegels(kern::Regel deel, std::vector<Wijziging>& uit) {
    if (wens_.manier == Manier::getrouw) {
        return;
    }
    const std::string_view tekst = bron_.geefTekst();
    for (std::size_t plek = deel.begin; plek < deel.eind;) {
        const std::size_t volgende = tekst.find('\n', plek) + 1;
        // Het merkteken hoort bij de eerste regel.
        const std::size_t begin = plek == 0 ? 0 : bron_.naarRuw(plek);
        const std::size_t eind = bron_.naarRuw(volgende);
        const std::string_view nieuw = zoalsGeschreven(tekst.substr(plek, volgende - plek));
        if (bron_.geefRuw().substr(begin, eind - begin) != nieuw) {
            uit.push_back(Wijziging{begin, eind, nieuw});
        }
        plek = volgende;
    }
}

/// Een stuk zoals het in het bestand komt: bij de manier "venster" met de regeleinden van dit systeem.
std::string_view Knipsel::zoalsGeschreven(std::string_view tekst) {
    if (wens_.manier == Manier::getrouw || !kern::isRegeleindeCrLf()) {
        return tekst;
    }
    std::string& geschreven = geschreven_.emplace_back();
    kern::geefMetEigenRegeleinden(tekst, [&geschreven](std::string_view stuk) { geschreven += stuk; });
    return geschreven;
}

}  // namespace cli
