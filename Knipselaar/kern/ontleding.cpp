#include "Knipselaar/kern/ontleding.h"

#include <algorithm>

#include "Knipselaar/kern/utf8.h"

namespace kern {

bool isFout(Soort soort) {
    switch (soort) {
        case Soort::geenBlok:
        case Soort::leegBlok:
        case Soort::bijnaBegin:
        case Soort::bijnaEind:
        case Soort::anderBeginInBlok:
            return false;
        default:
            return true;
    }
}

Ontleder::Ontleder(const MarkerReeks& reeks, OpBlok opBlok, std::size_t hoogstens)
    : reeks_(reeks), opBlok_(std::move(opBlok)), hoogstens_(hoogstens) {}

void Ontleder::neem(std::string_view regels) {
    stuk_ = regels;
    Markerloper loper(reeks_, regels);
    while (const auto regel = loper.volgende()) {
        telTot(regel->begin);
        neemRegel({basis_ + regel->begin, basis_ + regel->eind},
                  regels.substr(regel->begin, regel->eind - 1 - regel->begin));
    }
    telTot(regels.size());
    basis_ += regels.size();
    geteldTot_ = 0;
}

void Ontleder::neemStaart(std::string_view regel) {
    basis_ += regel.size();
    const Markerpaar* begin = zoekBegin(regel);
    const bool isEigenEind = filter_.isInBlok() && paar_->eind.past(regel);
    if (!isEigenEind && begin != nullptr && !begin->begin.pastOpElkeRegel()) {
        meld(nummer_, Soort::beginZonderRegeleinde);
    } else if (isEind(regel)) {
        meld(nummer_, Soort::eindZonderRegeleinde);
    } else {
        meldBijna(regel);
    }
}

Bevindingen Ontleder::maakAf() {
    if (basis_ == 0) {
        return std::move(uitslag_);
    }
    if (filter_.isInBlok()) {
        uitslag_.open = beginNummer_;
        const Bevinding zonderEind{.regel = beginNummer_, .soort = Soort::zonderEind};
        uitslag_.lijst.insert(uitslag_.lijst.begin() + static_cast<std::ptrdiff_t>(eersteBinnen_),
                              zonderEind);
    }
    meldLegeMarkers();
    return std::move(uitslag_);
}

void Ontleder::neemRegel(Regel regel, std::string_view inhoud) {
    if (filter_.isInBlok() && paar_->eind.past(inhoud)) {
        sluit(regel);
    } else if (const Markerpaar* paar = zoekBegin(inhoud); paar == nullptr) {
        neemEind(inhoud);
    } else if (filter_.isInBlok()) {
        meldBeginInBlok(*paar);
    } else {
        open(regel, *paar);
    }
}

void Ontleder::open(Regel regel, const Markerpaar& paar) {
    filter_.beoordeel(true);
    ++uitslag_.blokken;
    begin_ = regel;
    beginNummer_ = nummer_;
    paar_ = &paar;
    eersteBinnen_ = uitslag_.lijst.size();
}

void Ontleder::sluit(Regel regel) {
    for (std::size_t i = eersteBinnen_; i < uitslag_.lijst.size(); ++i) {
        uitslag_.lijst[i].blokEind = nummer_;
    }
    filter_.beoordeel(true);
    const Blok blok{.begin = begin_,
                    .eind = regel,
                    .beginNummer = beginNummer_,
                    .eindNummer = nummer_,
                    .paar = static_cast<std::size_t>(paar_ - reeks_.geefParen().data())};
    if (blok.isLeeg()) {
        meld(blok.beginNummer, Soort::leegBlok);
    }
    opBlok_(blok);
    binnen_.clear();
}

/// Een begin van hetzelfde paar betekent bijna zeker dat er een eind ontbreekt. Een blok van een ander paar
/// verdwijnt met het blok waar het in staat; dat kan de bedoeling zijn.
void Ontleder::meldBeginInBlok(const Markerpaar& paar) {
    if (paar.begin.pastOpElkeRegel()) {
        return;
    }
    if (&paar != paar_) {
        binnen_.push_back(&paar);
    }
    meld(nummer_, &paar == paar_ ? Soort::beginInBlok : Soort::anderBeginInBlok);
}

/// Een eind dat geen blok sluit mag alleen in een blok staan, als zijn begin daar ook staat.
void Ontleder::neemEind(std::string_view inhoud) {
    const auto binnen = std::find_if(binnen_.begin(), binnen_.end(),
                                     [inhoud](const Markerpaar* paar) { return paar->eind.past(inhoud); });
    if (binnen != binnen_.end()) {
        binnen_.erase(binnen);
    } else if (isEind(inhoud)) {
        meld(nummer_, Soort::zonderBegin);
    } else {
        meldBijna(inhoud);
    }
}

void Ontleder::meldBijna(std::string_view inhoud) {
    if (const auto lijktOp = reeks_.lijktOpMarker(inhoud)) {
        meld(nummer_, *lijktOp == Gelijkenis::begin ? Soort::bijnaBegin : Soort::bijnaEind);
    }
}

void Ontleder::meldLegeMarkers() {
    const auto& paren = reeks_.geefParen();
    const auto meldBoven = [this](Soort soort) {
        uitslag_.lijst.insert(uitslag_.lijst.begin(), {.regel = 1, .soort = soort});
    };
    if (std::any_of(paren.begin(), paren.end(),
                    [](const Markerpaar& paar) { return paar.eind.pastOpElkeRegel(); })) {
        meldBoven(Soort::eindOpElkeRegel);
    }
    if (std::any_of(paren.begin(), paren.end(),
                    [](const Markerpaar& paar) { return paar.begin.pastOpElkeRegel(); })) {
        meldBoven(Soort::beginOpElkeRegel);
    }
    if (uitslag_.blokken == 0) {
        meldBoven(Soort::geenBlok);
    }
}

const Markerpaar* Ontleder::zoekBegin(std::string_view inhoud) const {
    const auto& paren = reeks_.geefParen();
    const auto paar = std::find_if(paren.begin(), paren.end(), [inhoud](const Markerpaar& kandidaat) {
        return kandidaat.begin.past(inhoud);
    });
    return paar == paren.end() ? nullptr : &*paar;
}

/// Een eindmarker die op elke regel past zegt nooit iets over een regel.
bool Ontleder::isEind(std::string_view inhoud) const {
    const auto& paren = reeks_.geefParen();
    return std::any_of(paren.begin(), paren.end(), [inhoud](const Markerpaar& paar) {
        return !paar.eind.pastOpElkeRegel() && paar.eind.past(inhoud);
    });
}

void Ontleder::meld(std::size_t regel, Soort soort) {
    if (uitslag_.lijst.size() < hoogstens_) {
        const std::size_t blokBegin = filter_.isInBlok() ? beginNummer_ : 0;
        uitslag_.lijst.push_back({.regel = regel, .soort = soort, .blokBegin = blokBegin});
    } else {
        ++uitslag_.verzwegen;
        uitslag_.verzwegenFouten += isFout(soort) ? 1 : 0;
    }
}

/// Brengt het regelnummer bij. Elke plaats ligt voorbij de vorige, dus alleen wat erbij kwam wordt geteld.
void Ontleder::telTot(std::size_t plek) {
    nummer_ += telRegeleinden(stuk_.substr(geteldTot_, plek - geteldTot_));
    geteldTot_ = plek;
}

}  // namespace kern
