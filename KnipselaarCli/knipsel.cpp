#include "KnipselaarCli/knipsel.h"

#include <algorithm>
#include <functional>

#include "Knipselaar/kern/regelOmzetter.h"
#include "Knipselaar/kern/regeleinden.h"
#include "KnipselaarCli/regels.h"

namespace cli {

namespace {

/// De regels van een vervangtekst met dit regeleinde en deze inspringing; een lege regel springt niet in.
std::string zetRegels(std::string_view vervanging, std::string_view inspringing,
                      std::string_view regeleinde) {
    std::string uit;
    while (!vervanging.empty()) {
        const std::size_t einde = vervanging.find('\n');
        const std::string_view regel = vervanging.substr(0, einde);
        if (!regel.empty()) {
            uit += inspringing;
            uit += regel;
        }
        uit += regeleinde;
        vervanging.remove_prefix(einde == std::string_view::npos ? vervanging.size() : einde + 1);
    }
    return uit;
}

}  // namespace

Knipsel::Knipsel(const Brontekst& bron, const Ontleding& ontleding, const KnipWens& wens)
    : bron_(bron), ontleding_(ontleding), wens_(wens) {
    // Past de vervangtekst niet, dan moet dat blijken voor er iets geschreven is.
    const auto& blokken = ontleding.blokken;
    const auto vol = std::find_if_not(blokken.begin(), blokken.end(), std::mem_fn(&kern::Blok::isLeeg));
    if (vol != blokken.end()) {
        geefVervanging(*vol);
    }
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
    for (const kern::Blok& blok : ontleding_.blokken) {
        uit(geefBlijvend(plek, blok.begin.begin));
        uit(geefVervanging(blok));
        plek = blok.eind.eind;
    }
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
    if (blok.isLeeg()) {
        return {};
    }
    return wens_.manier == Manier::venster ? geefVensterVervanging() : geefGetrouweVervanging(blok);
}

std::string_view Knipsel::geefVensterVervanging() {
    if (eigen_.empty()) {
        eigen_.push_back(std::string(wens_.vervanging) + '\n');
    }
    return eigen_.back();
}

/// De vervangtekst in de codering en met het regeleinde van het bestand. Heeft het bestand na het blok niets
/// meer, ook geen regeleinde, dan krijgt de vervangtekst er ook geen.
std::string_view Knipsel::geefGetrouweVervanging(const kern::Blok& blok) {
    const std::string_view ruw = bron_.geefRuw();
    const std::string_view tekst = bron_.geefTekst();
    const std::size_t begin = bron_.naarRuw(blok.begin.begin);
    const std::size_t na = bron_.naarRuw(blok.begin.eind);
    const std::string_view eigenEinde = geefRegeleinde(ruw.substr(begin, na - begin), bron_.geefCodering());
    const std::string_view regeleinde = eigenEinde.empty() ? "\n" : eigenEinde;
    const std::string_view inspringing =
        wens_.inspringen ? geefInspringing(tekst.substr(blok.begin.begin, blok.begin.eind - blok.begin.begin))
                         : std::string_view();
    if (eigen_.empty() || inspringing != vorigeInspringing_ || regeleinde != vorigRegeleinde_) {
        vorigeInspringing_ = inspringing;
        vorigRegeleinde_ = regeleinde;
        const std::string regels = zetRegels(wens_.vervanging, inspringing, regeleinde);
        try {
            eigen_.push_back(codeer(regels, bron_.geefCodering()));
        } catch (const CodeerFout& teken) {
            throw CodeerFout(std::string("de vervangtekst heeft het teken '") + teken.what() +
                             "', dat niet in " + noemCodering(bron_.geefCodering()) +
                             " past; kies een andere tekst of zet het bestand om");
        }
    }
    const std::size_t eind = bron_.naarRuw(blok.eind.begin);
    const bool zonderEinde = bron_.naarRuw(blok.eind.eind) == ruw.size() &&
                             geefRegeleinde(ruw.substr(eind), bron_.geefCodering()).empty();
    const std::size_t teVeel = zonderEinde ? codeer(regeleinde, bron_.geefCodering()).size() : 0;
    const std::string_view geheel = eigen_.back();
    return geheel.substr(0, geheel.size() - std::min(teVeel, geheel.size()));
}

std::vector<Wijziging> Knipsel::geefWijzigingen() {
    std::vector<Wijziging> uit;
    std::size_t plek = 0;
    for (const kern::Blok& blok : ontleding_.blokken) {
        vergelijkRegels({plek, blok.begin.begin}, uit);
        // Op de manier van het venster gaat het merkteken van een eerste regel mee weg.
        const bool metMerkteken = wens_.manier == Manier::venster && blok.begin.begin == 0;
        uit.push_back({.begin = metMerkteken ? 0 : bron_.naarRuw(blok.begin.begin),
                       .eind = bron_.naarRuw(blok.eind.eind),
                       .nieuw = zoalsGeschreven(geefVervanging(blok))});
        plek = blok.eind.eind;
    }
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
