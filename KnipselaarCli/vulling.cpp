#include "KnipselaarCli/vulling.h"

#include <algorithm>

#include "Knipselaar/kern/utf8.h"
#include "KnipselaarCli/geefregel.h"
#include "KnipselaarCli/regels.h"

namespace cli {

namespace {

/// De regels van een vervangtekst met dit regeleinde en deze inspringing; een lege regel springt niet in.
std::string zetRegels(std::string_view vervanging, std::string_view inspringing,
                      std::string_view regeleinde) {
    std::string uit;
    loopRegelsAf(vervanging, [&](std::size_t, std::string_view regel) {
        if (!regel.empty()) {
            uit += inspringing;
            uit += regel;
        }
        uit += regeleinde;
    });
    return uit;
}

/// Roept iets aan met elke regel van een blok die voor de student is, met haar regeleinde.
template <typename Doe>
void loopGeefregelsAf(std::string_view tekst, const kern::Blok& blok, std::span<const std::string> prefixen,
                      const Doe& doe) {
    if (prefixen.empty()) {
        return;
    }
    for (std::size_t plek = blok.begin.eind; plek < blok.eind.begin;) {
        const std::size_t volgende = tekst.find('\n', plek) + 1;
        if (const auto geefregel = zoekGeefregel(tekst.substr(plek, volgende - plek), prefixen)) {
            doe(kern::Regel{plek, volgende}, *geefregel);
        }
        plek = volgende;
    }
}

std::size_t telGeefregels(std::string_view tekst, const kern::Blok& blok,
                          std::span<const std::string> prefixen) {
    std::size_t aantal = 0;
    loopGeefregelsAf(tekst, blok, prefixen, [&aantal](kern::Regel, const Geefregel&) { ++aantal; });
    return aantal;
}

}  // namespace

std::size_t telBlok(const kern::Blok& blok) {
    return blok.eindNummer - blok.beginNummer + 1;
}

std::size_t telVulling(std::string_view tekst, const kern::Blok& blok, const KnipWens& wens) {
    std::size_t regels = telGeefregels(tekst, blok, wens.geef);
    if (regels == 0 && !blok.isLeeg()) {
        loopRegelsAf(wens.vervanging, [&regels](std::size_t, std::string_view) { ++regels; });
    }
    return wens.regelsGelijk ? std::max(regels, telBlok(blok)) : regels;
}

bool Vulling::heeftVervangtekst(const kern::Blok& blok) const {
    return !blok.isLeeg() && telGeefregels(bron_.geefTekst(), blok, wens_.geef) == 0;
}

std::string_view Vulling::geef(const kern::Blok& blok) {
    std::string_view geheel;
    if (heeftVervangtekst(blok)) {
        geheel = geefVervangtekst(blok);
    } else if (!wens_.geef.empty()) {
        geheel = eigen_.emplace_back(maakGeefregels(blok));
    }
    if (wens_.regelsGelijk) {
        geheel = eigen_.emplace_back(std::string(geheel) + maakLegeRegels(blok));
    }
    // Heeft het bestand na het blok niets meer, ook geen regeleinde, dan komt er ook geen.
    const bool zonderEinde = bron_.naarRuw(blok.eind.eind) == bron_.geefRuw().size() &&
                             geefRegeleinde(geefRuw(blok.eind), bron_.geefCodering()).empty();
    if (zonderEinde && !geheel.empty()) {
        geheel.remove_suffix(codeer(kiesRegeleinde(blok), bron_.geefCodering()).size());
    }
    return geheel;
}

/// Het regeleinde van de beginmarker. In een groot bestand is die regel alweer uit de cache; wie niet hoeft
/// te kijken, wacht niet op elk blok.
std::string_view Vulling::kiesRegeleinde(const kern::Blok& blok) const {
    if (bron_.heeftAlleenLF()) {
        return "\n";
    }
    const std::string_view eigenEinde = geefRegeleinde(geefRuw(blok.begin), bron_.geefCodering());
    return eigenEinde.empty() ? "\n" : eigenEinde;
}

/// Zoveel lege regels als er voor het blok minder komen dan het er had.
std::string Vulling::maakLegeRegels(const kern::Blok& blok) const {
    const std::string regeleinde = codeer(kiesRegeleinde(blok), bron_.geefCodering());
    KnipWens zonder = wens_;
    zonder.regelsGelijk = false;
    std::string uit;
    for (std::size_t i = telVulling(bron_.geefTekst(), blok, zonder); i < telBlok(blok); ++i) {
        uit += regeleinde;
    }
    return uit;
}

std::string_view Vulling::geefVoorRegel(kern::Regel regel) const {
    if (!wens_.regelsGelijk) {
        return {};
    }
    const std::string_view ruw = geefRuw(regel);
    const Codering codering = bron_.geefCodering();
    return ruw.substr(ruw.size() - codeer(geefRegeleinde(ruw, codering), codering).size());
}

/// De bytes van een regel in het bestand. Het merkteken telt niet mee.
std::string_view Vulling::geefRuw(kern::Regel regel) const {
    const std::size_t begin = bron_.naarRuw(regel.begin);
    return bron_.geefRuw().substr(begin, bron_.naarRuw(regel.eind) - begin);
}

std::string_view Vulling::geefVervangtekst(const kern::Blok& blok) {
    const Codering codering = bron_.geefCodering();
    const std::string_view regeleinde = kiesRegeleinde(blok);
    const std::string_view regel =
        bron_.geefTekst().substr(blok.begin.begin, blok.begin.eind - blok.begin.begin);
    const std::string_view inspringing = wens_.inspringen ? geefInspringing(regel) : std::string_view();
    if (!omgezet_ || inspringing != inspringing_ || regeleinde != regeleinde_) {
        omgezet_ = true;
        inspringing_ = inspringing;
        regeleinde_ = regeleinde;
        try {
            vervangtekst_ =
                eigen_.emplace_back(codeer(zetRegels(wens_.vervanging, inspringing, regeleinde), codering));
        } catch (const CodeerFout& teken) {
            throw CodeerFout(std::string("de vervangtekst heeft het teken '") + teken.what() +
                             "', dat niet in " + noemCodering(codering) +
                             " past; kies een andere tekst of zet het bestand om");
        }
    }
    return vervangtekst_;
}

/// De regels voor de student, in de bytes van het bestand.
std::string Vulling::maakGeefregels(const kern::Blok& blok) const {
    const Codering codering = bron_.geefCodering();
    const std::string_view tekst = bron_.geefTekst();
    const auto telRuw = [codering](std::string_view deel) { return codeer(deel, codering).size(); };
    std::string uit;
    loopGeefregelsAf(tekst, blok, wens_.geef, [&](kern::Regel regel, const Geefregel& geefregel) {
        const std::string_view ruw = geefRuw(regel);
        const std::string_view inhoud = tekst.substr(regel.begin, regel.eind - regel.begin);
        uit += ruw.substr(0, telRuw(inhoud.substr(0, geefregel.inspringing)));
        uit += ruw.substr(telRuw(inhoud.substr(0, geefregel.rest)));
    });
    return uit;
}

}  // namespace cli
