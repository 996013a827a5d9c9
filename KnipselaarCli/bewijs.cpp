#include "KnipselaarCli/bewijs.h"

#include <algorithm>
#include <functional>
#include <tuple>

#include "Knipselaar/kern/regelOmzetter.h"
#include "Knipselaar/kern/systeem/onderbreking.h"
#include "Knipselaar/kern/systeem/paden.h"
#include "KnipselaarCli/bestanden.h"
#include "KnipselaarCli/boom.h"
#include "KnipselaarCli/fout.h"
#include "KnipselaarCli/geefregel.h"
#include "KnipselaarCli/links.h"
#include "KnipselaarCli/regels.h"

namespace cli {

namespace {

Regelmerk maakMerk(std::string_view regel) {
    return std::hash<std::string_view>()(regel);
}

/// Geeft de regels van een brontekst zoals de kern ze leest. Wat nog rauw is wordt regel voor regel omgezet:
/// zo kost dat geen geheugen.
class RegelLezer {
  public:
    explicit RegelLezer(const Brontekst& bron) : rauw_(bron.isRauw()) {}

    /// @param regel  de volgende regel, met haar regeleinde.
    /// @return       zonder; geldig tot de volgende aanroep.
    std::string_view lees(std::string_view regel) {
        if (!rauw_) {
            return regel.substr(0, regel.size() - 1);
        }
        omgezet_.zetLengte(0);
        omzetter_.zetOm(regel, omgezet_);
        return omgezet_.geef().substr(0, omgezet_.geef().size() - 1);
    }

  private:
    bool rauw_;
    kern::RegelOmzetter omzetter_;
    kern::Bytes omgezet_;
};

}  // namespace

Bewijsstof verzamelStof(const Brontekst& bron, const Ontleding& ontleding, const Teksten& teksten,
                        std::size_t lengte) {
    Bewijsstof stof;
    RegelLezer lezer(bron);
    const auto neemWeg = [&](std::size_t nummer, std::string_view inhoud) {
        const std::string_view kern = snoei(inhoud);
        if (telTekens(kern) > lengte) {
            stof.weg.push_back({.merk = maakMerk(kern), .regel = nummer});
        }
    };
    const auto neemGebleven = [&](std::string_view inhoud) {
        const std::string_view kern = snoei(inhoud);
        if (telTekens(kern) > lengte) {
            stof.gebleven.push_back(maakMerk(kern));
        }
    };
    const auto neemNaast = [&](std::size_t nummer, std::string_view inhoud) {
        for (const kern::Markerpaar& paar : teksten.markers.geefParen()) {
            for (const kern::MarkerMasker* marker : {&paar.begin, &paar.eind}) {
                if (marker->past(inhoud)) {
                    const auto [ervoor, erachter] = marker->geefOmheen(inhoud);
                    neemWeg(nummer, ervoor);
                    neemWeg(nummer, erachter);
                }
            }
        }
    };
    const auto neemUitBlok = [&](std::size_t nummer, std::string_view inhoud) {
        neemWeg(nummer, inhoud);
        if (const auto geefregel = zoekGeefregel(inhoud, teksten.geef)) {
            neemGebleven(geefregel->maakTekst(inhoud));
        }
    };
    const std::string_view tekst = bron.geefTekst();
    auto blok = ontleding.blokken.begin();
    auto weg = ontleding.weg.begin();
    std::size_t nummer = 1;
    for (std::size_t plek = 0; plek < tekst.size(); ++nummer) {
        const std::size_t volgende = tekst.find('\n', plek) + 1;
        const std::string_view inhoud = lezer.lees(tekst.substr(plek, volgende - plek));
        if (weg != ontleding.weg.end() && plek == weg->begin) {
            neemNaast(nummer, inhoud);
            ++weg;
        } else if (blok == ontleding.blokken.end() || plek < blok->begin.begin) {
            neemGebleven(inhoud);
        } else if (plek == blok->begin.begin) {
            neemNaast(nummer, inhoud);
        } else if (plek < blok->eind.begin) {
            neemUitBlok(nummer, inhoud);
        } else {
            neemNaast(nummer, inhoud);
            ++blok;
        }
        plek = volgende;
    }
    return stof;
}

void Bewijs::neem(const std::string& bron, const Bewijsstof& stof) {
    const auto nummer = static_cast<std::uint32_t>(bronnen_.size());
    bronnen_.push_back(bron);
    for (const WegRegel& regel : stof.weg) {
        weg_.push_back(
            {.merk = regel.merk, .bron = nummer, .regel = static_cast<std::uint32_t>(regel.regel)});
    }
    toegelaten_.insert(toegelaten_.end(), stof.gebleven.begin(), stof.gebleven.end());
}

void Bewijs::laatToe(std::string_view tekst) {
    loopRegelsAf(tekst, [this](std::size_t, std::string_view regel) {
        toegelaten_.push_back(maakMerk(snoei(regel)));
    });
}

void Bewijs::sluitAf() {
    std::sort(weg_.begin(), weg_.end(), [](const Weggevallen& een, const Weggevallen& ander) {
        return std::tie(een.merk, een.bron, een.regel) < std::tie(ander.merk, ander.bron, ander.regel);
    });
    std::sort(toegelaten_.begin(), toegelaten_.end());
    const auto einde = std::unique(weg_.begin(), weg_.end(),
                                   [](const auto& een, const auto& ander) { return een.merk == ander.merk; });
    weg_.erase(einde, weg_.end());
}

Nalezing Bewijs::leesNa(const std::string& plaats) const {
    Nalezing uit;
    kern::Kenmerken kenmerken;
    if (kern::leesKenmerken(plaats, kenmerken) || kenmerken.soort != kern::Bestandssoort::directory) {
        leesBestandNa(plaats, uit);
    } else {
        leesDirectoryNa(plaats, uit);
    }
    return uit;
}

void Bewijs::leesDirectoryNa(const std::string& plaats, Nalezing& uit) const {
    const LoopWens wens{.recursief = true, .verborgen = true, .versiebeheer = false};
    const auto delen =
        loopAf(plaats, wens, [&uit](const Fout& fout) { uit.storingen.emplace_back(fout.what()); });
    for (const Boomdeel& deel : delen) {
        const std::string pad = kern::plak(plaats, deel.pad);
        if (deel.soort == kern::Bestandssoort::bestand) {
            leesBestandNa(pad, uit);
        } else if (deel.soort == kern::Bestandssoort::link &&
                   volgLink(plaats, deel.pad).uitkomst == Linkuitkomst::erbuiten) {
            uit.vondsten.push_back(
                {.pad = pad, .regel = 0, .tekst = "is een link die buiten " + plaats + " uitkomt"});
        }
    }
}

void Bewijs::leesBestandNa(const std::string& pad, Nalezing& uit) const {
    if (kern::isOnderbroken()) {
        return;
    }
    try {
        const Brontekst inhoud(leesInhoud(pad).bytes, Lezing::tekst);
        loopRegelsAf(inhoud.geefTekst(), [&](std::size_t nummer, std::string_view regel) {
            std::string tekst = beoordeel(regel);
            if (!tekst.empty()) {
                uit.vondsten.push_back({.pad = pad, .regel = nummer, .tekst = std::move(tekst)});
            }
        });
    } catch (const std::exception& fout) {
        uit.storingen.emplace_back(fout.what());
    }
}

/// Wat er over een regel van de bestemming te melden is; leeg als zij er mag staan.
std::string Bewijs::beoordeel(std::string_view regel) const {
    const std::string_view kern = snoei(regel);
    if (!toegestaan_.empty() && std::binary_search(toegestaan_.begin(), toegestaan_.end(), kern)) {
        return {};
    }
    if (markers_.draagtMarker(regel)) {
        return "er staat nog een markerregel";
    }
    if (markers_.lijktOpMarker(regel)) {
        return "er staat een regel die bijna een marker is";
    }
    if (weg_.empty() || telTekens(kern) <= lengte_) {
        return {};
    }
    const Regelmerk merk = maakMerk(kern);
    const auto weg = std::lower_bound(
        weg_.begin(), weg_.end(), merk,
        [](const Weggevallen& regelWeg, Regelmerk gezocht) { return regelWeg.merk < gezocht; });
    if (weg == weg_.end() || weg->merk != merk ||
        std::binary_search(toegelaten_.begin(), toegelaten_.end(), merk)) {
        return {};
    }
    return "hier staat de weggelaten regel van " + bronnen_[weg->bron] + ":" + std::to_string(weg->regel);
}

}  // namespace cli
