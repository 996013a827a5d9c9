#include "KnipselaarCli/bewijs.h"

#include <algorithm>
#include <functional>

#include "Knipselaar/kern/systeem/paden.h"
#include "KnipselaarCli/bestanden.h"
#include "KnipselaarCli/boom.h"
#include "KnipselaarCli/brontekst.h"

namespace cli {

namespace {

/// Roept iets aan met elke regel, zonder haar regeleinde; de eerste heeft dit nummer.
template <typename Doe>
void loopRegelsAf(std::string_view tekst, std::size_t nummer, const Doe& doe) {
    for (; !tekst.empty(); ++nummer) {
        const std::size_t einde = std::min(tekst.find('\n'), tekst.size());
        doe(nummer, tekst.substr(0, einde));
        tekst.remove_prefix(std::min(einde + 1, tekst.size()));
    }
}

std::string_view snoei(std::string_view regel) {
    constexpr std::string_view blanco = " \t\v\f\r";
    const std::size_t begin = regel.find_first_not_of(blanco);
    return begin == std::string_view::npos ? std::string_view()
                                           : regel.substr(begin, regel.find_last_not_of(blanco) - begin + 1);
}

/// Het aantal tekens van een tekst in UTF-8.
std::size_t telTekens(std::string_view tekst) {
    return static_cast<std::size_t>(std::count_if(tekst.begin(), tekst.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
    }));
}

}  // namespace

Bewijsstof verzamelStof(std::string_view tekst, std::span<const kern::Blok> blokken, std::size_t lengte) {
    Bewijsstof stof;
    std::size_t nummer = 1;
    std::size_t plek = 0;
    const auto neem = [&](std::size_t eind, const auto& bewaar) {
        loopRegelsAf(tekst.substr(plek, eind - plek), nummer,
                     [&](std::size_t regel, std::string_view inhoud) {
                         const std::string_view kern = snoei(inhoud);
                         if (telTekens(kern) > lengte) {
                             bewaar(regel, kern);
                         }
                         nummer = regel + 1;
                     });
        plek = eind;
    };
    const auto gebleven = [&stof](std::size_t, std::string_view regel) { stof.gebleven.emplace_back(regel); };
    const auto weg = [&stof](std::size_t nr, std::string_view regel) {
        stof.weg.push_back({.regel = nr, .tekst = std::string(regel)});
    };
    const auto marker = [](std::size_t, std::string_view) {};
    for (const kern::Blok& blok : blokken) {
        neem(blok.begin.begin, gebleven);
        neem(blok.begin.eind, marker);
        neem(blok.eind.begin, weg);
        neem(blok.eind.eind, marker);
    }
    neem(tekst.size(), gebleven);
    return stof;
}

void Bewijs::neem(const std::string& bron, Bewijsstof stof) {
    for (WegRegel& regel : stof.weg) {
        weg_.try_emplace(std::move(regel.tekst), bron + ":" + std::to_string(regel.regel));
    }
    for (std::string& regel : stof.gebleven) {
        toegelaten_.insert(std::move(regel));
    }
}

void Bewijs::laatToe(std::string_view tekst) {
    loopRegelsAf(tekst, 1, [this](std::size_t, std::string_view regel) {
        toegelaten_.insert(std::string(snoei(regel)));
    });
}

std::vector<Bewijsvondst> Bewijs::leesNa(const std::string& plaats) const {
    std::vector<Bewijsvondst> vondsten;
    kern::Kenmerken kenmerken;
    if (kern::leesKenmerken(plaats, kenmerken) || kenmerken.soort != kern::Bestandssoort::directory) {
        leesBestandNa(plaats, vondsten);
        return vondsten;
    }
    for (const Boomdeel& deel :
         loopAf(plaats, {.recursief = true, .verborgen = true, .versiebeheer = false})) {
        if (deel.soort == kern::Bestandssoort::bestand) {
            leesBestandNa(kern::plak(plaats, deel.pad), vondsten);
        }
    }
    return vondsten;
}

void Bewijs::leesBestandNa(const std::string& pad, std::vector<Bewijsvondst>& vondsten) const {
    const Brontekst inhoud(leesInhoud(pad).bytes, Lezing::tekst);
    loopRegelsAf(inhoud.geefTekst(), 1, [&](std::size_t nummer, std::string_view regel) {
        if (draagtMarker(regel)) {
            vondsten.push_back({.pad = pad, .regel = nummer, .tekst = "er staat nog een markerregel"});
            return;
        }
        const std::string kern(snoei(regel));
        const auto weg = weg_.find(kern);
        if (weg != weg_.end() && !toegelaten_.contains(kern)) {
            vondsten.push_back(
                {.pad = pad, .regel = nummer, .tekst = "hier staat de weggelaten regel van " + weg->second});
        }
    });
}

bool Bewijs::draagtMarker(std::string_view regel) const {
    return std::any_of(paren_.begin(), paren_.end(), [regel](const kern::Markerpaar& paar) {
        return paar.begin.past(regel) || paar.eind.past(regel);
    });
}

}  // namespace cli
