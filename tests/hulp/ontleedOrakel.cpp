#include "tests/hulp/ontleedOrakel.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "Knipselaar/kern/bijnaMarker.h"

using kern::Bevinding;
using kern::Bevindingen;
using kern::Blok;
using kern::MarkerMasker;
using kern::Markerpaar;
using kern::Regel;
using kern::Soort;

namespace orakel {

namespace {

/// Een marker die zelfs een lege regel draagt, heeft alleen jokers en zegt van geen regel iets.
bool draagtElkeRegel(const MarkerMasker& masker) {
    return masker.past("");
}

bool draagt(std::string_view regel, const MarkerMasker& masker) {
    return !draagtElkeRegel(masker) && masker.past(regel);
}

/// Loopt de regels af en schrijft op wat er te zeggen is, zonder grens en zonder wat over het geheel gaat.
class Lopende {
  public:
    explicit Lopende(const std::vector<Markerpaar>& paren) : paren_(paren) {
        for (const Markerpaar& paar : paren) {
            bijna_.push_back({kern::BijnaMarker(paar.begin.geefMarker()), Soort::bijnaBegin});
            bijna_.push_back({kern::BijnaMarker(paar.eind.geefMarker()), Soort::bijnaEind});
        }
    }

    void neem(std::size_t nummer, Regel plaats, std::string_view regel) {
        const Markerpaar* paar = zoekBegin(regel);
        if (open_ && open_->paar->eind.past(regel)) {
            sluit(nummer, plaats);
        } else if (paar != nullptr && !open_) {
            open_ = Open{.paar = paar, .begin = plaats, .nummer = nummer, .binnen = {}};
            ++blokken_;
        } else if (paar != nullptr) {
            beginInBlok(nummer, *paar);
        } else if (!sluitBinnen(regel)) {
            zonderBegin(nummer, regel);
        }
    }

    /// Een marker zonder regeleinde telt niet. Wat met een regeleinde het blok zou sluiten is geen begin.
    void neemStaart(std::size_t nummer, std::string_view regel) {
        const Markerpaar* paar = zoekBegin(regel);
        const bool sluit = open_ && open_->paar->eind.past(regel);
        if (paar != nullptr && !sluit && !draagtElkeRegel(paar->begin)) {
            meld(nummer, Soort::beginZonderRegeleinde);
        } else if (draagtEind(regel)) {
            meld(nummer, Soort::eindZonderRegeleinde);
        } else {
            meldBijna(nummer, regel);
        }
    }

    Ontleding maakAf(std::size_t hoogstens) {
        Bevindingen& uitslag = gesloten_.bevindingen;
        uitslag.blokken = blokken_;
        for (const Bevinding& bevinding : gewoon_) {
            if (uitslag.lijst.size() < hoogstens) {
                uitslag.lijst.push_back(bevinding);
            } else {
                ++uitslag.verzwegen;
                uitslag.verzwegenFouten += kern::isFout(bevinding.soort) ? 1 : 0;
            }
        }
        std::vector<Bevinding> geheel;
        const auto een = [this](auto vraag) { return std::any_of(paren_.begin(), paren_.end(), vraag); };
        if (blokken_ == 0) {
            geheel.push_back({.regel = 1, .soort = Soort::geenBlok});
        }
        if (een([](const Markerpaar& paar) { return draagtElkeRegel(paar.begin); })) {
            geheel.push_back({.regel = 1, .soort = Soort::beginOpElkeRegel});
        }
        if (een([](const Markerpaar& paar) { return draagtElkeRegel(paar.eind); })) {
            geheel.push_back({.regel = 1, .soort = Soort::eindOpElkeRegel});
        }
        if (open_) {
            uitslag.open = open_->nummer;
            geheel.push_back({.regel = open_->nummer, .soort = Soort::zonderEind});
        }
        // Ze komen elk voor wat er op hun regel en erna is.
        uitslag.lijst.insert(uitslag.lijst.begin(), geheel.begin(), geheel.end());
        std::stable_sort(
            uitslag.lijst.begin(), uitslag.lijst.end(),
            [](const Bevinding& een, const Bevinding& ander) { return een.regel < ander.regel; });
        return std::move(gesloten_);
    }

  private:
    struct Open {
        const Markerpaar* paar;
        Regel begin;
        std::size_t nummer;
        std::vector<const Markerpaar*> binnen;  ///< andere paren die erin begonnen en nog niet eindigden
    };

    const Markerpaar* zoekBegin(std::string_view regel) const {
        for (const Markerpaar& paar : paren_) {
            if (paar.begin.past(regel)) {
                return &paar;
            }
        }
        return nullptr;
    }

    bool draagtBegin(std::string_view regel) const {
        return std::any_of(paren_.begin(), paren_.end(),
                           [regel](const Markerpaar& paar) { return draagt(regel, paar.begin); });
    }

    bool draagtEind(std::string_view regel) const {
        return std::any_of(paren_.begin(), paren_.end(),
                           [regel](const Markerpaar& paar) { return draagt(regel, paar.eind); });
    }

    void sluit(std::size_t nummer, Regel plaats) {
        for (Bevinding& bevinding : gewoon_) {
            if (bevinding.blokBegin == open_->nummer) {
                bevinding.blokEind = nummer;
            }
        }
        if (nummer == open_->nummer + 1) {
            gewoon_.push_back({.regel = open_->nummer, .soort = Soort::leegBlok});
        }
        gesloten_.blokken.push_back(
            {.begin = open_->begin, .eind = plaats, .beginNummer = open_->nummer, .eindNummer = nummer});
        open_.reset();
    }

    void beginInBlok(std::size_t nummer, const Markerpaar& paar) {
        if (draagtElkeRegel(paar.begin)) {
            return;
        }
        const bool eigen = &paar == open_->paar;
        meld(nummer, eigen ? Soort::beginInBlok : Soort::anderBeginInBlok);
        if (!eigen) {
            open_->binnen.push_back(&paar);
        }
    }

    /// Een eind hoort bij het oudste begin in het blok waar het bij past.
    bool sluitBinnen(std::string_view regel) {
        if (!open_) {
            return false;
        }
        for (std::size_t i = 0; i < open_->binnen.size(); ++i) {
            if (open_->binnen[i]->eind.past(regel)) {
                open_->binnen.erase(open_->binnen.begin() + static_cast<std::ptrdiff_t>(i));
                return true;
            }
        }
        return false;
    }

    void zonderBegin(std::size_t nummer, std::string_view regel) {
        if (draagtEind(regel)) {
            meld(nummer, Soort::zonderBegin);
        } else {
            meldBijna(nummer, regel);
        }
    }

    /// Bijna een marker is wie er op een lijkt en er geen draagt.
    void meldBijna(std::size_t nummer, std::string_view regel) {
        if (draagtBegin(regel) || draagtEind(regel)) {
            return;
        }
        for (const auto& [marker, soort] : bijna_) {
            if (marker.lijkt(regel)) {
                meld(nummer, soort);
                return;
            }
        }
    }

    void meld(std::size_t nummer, Soort soort) {
        gewoon_.push_back({.regel = nummer, .soort = soort, .blokBegin = open_ ? open_->nummer : 0});
    }

    const std::vector<Markerpaar>& paren_;
    std::vector<std::pair<kern::BijnaMarker, Soort>> bijna_;
    std::optional<Open> open_;
    std::vector<Bevinding> gewoon_;
    std::size_t blokken_ = 0;
    Ontleding gesloten_;
};

/// De regels van een tekst zoals een editor ze telt, elk met haar regeleinde.
std::vector<std::string_view> splits(std::string_view tekst) {
    std::vector<std::string_view> regels;
    std::size_t begin = 0;
    for (std::size_t einde = tekst.find('\n'); einde != std::string_view::npos;
         einde = tekst.find('\n', begin)) {
        regels.push_back(tekst.substr(begin, einde + 1 - begin));
        begin = einde + 1;
    }
    regels.push_back(tekst.substr(begin));
    return regels;
}

}  // namespace

Ontleding ontleed(std::string_view tekst, Staart staart, const std::vector<Markerpaar>& paren,
                  std::size_t hoogstens) {
    if (tekst.empty()) {
        return {};
    }
    Lopende lopende(paren);
    std::size_t plek = 0;
    std::size_t nummer = 0;
    for (const std::string_view regel : splits(tekst)) {
        ++nummer;
        if (regel.ends_with('\n')) {
            lopende.neem(nummer, {plek, plek + regel.size()}, regel.substr(0, regel.size() - 1));
        } else if (staart == Staart::regel) {
            lopende.neemStaart(nummer, regel);
        }
        plek += regel.size();
    }
    return lopende.maakAf(hoogstens);
}

std::string knipBlokken(std::string_view tekst, const Ontleding& ontleding, const std::string& vervanging) {
    const auto regels = splits(tekst);
    std::string uit;
    std::size_t volgende = 0;
    std::vector<Blok> blokken = ontleding.blokken;
    if (ontleding.bevindingen.open > 0) {
        blokken.push_back({.begin = {},
                           .eind = {},
                           .beginNummer = ontleding.bevindingen.open,
                           .eindNummer = regels.size() + 1});
    }
    for (const Blok& blok : blokken) {
        for (; volgende + 1 < blok.beginNummer; ++volgende) {
            uit += regels[volgende];
        }
        uit += blok.eindNummer > blok.beginNummer + 1 ? vervanging : "";
        volgende = blok.eindNummer;
    }
    for (; volgende < regels.size(); ++volgende) {
        uit += regels[volgende];
    }
    return uit;
}

std::string toon(const std::vector<Bevinding>& lijst) {
    std::string uit;
    for (const Bevinding& bevinding : lijst) {
        uit += std::to_string(bevinding.regel) + ":" + std::to_string(static_cast<int>(bevinding.soort)) +
               "(" + std::to_string(bevinding.blokBegin) + "-" + std::to_string(bevinding.blokEind) + ") ";
    }
    return uit;
}

std::string toon(const Ontleding& ontleding) {
    std::string uit;
    const auto schrijf = [&uit](std::initializer_list<std::size_t> getallen) {
        for (const std::size_t getal : getallen) {
            uit += std::to_string(getal) + " ";
        }
        uit += "\n";
    };
    for (const Blok& blok : ontleding.blokken) {
        schrijf({blok.beginNummer, blok.begin.begin, blok.begin.eind, blok.eindNummer, blok.eind.begin,
                 blok.eind.eind});
    }
    const Bevindingen& bevindingen = ontleding.bevindingen;
    schrijf({bevindingen.blokken, bevindingen.open, bevindingen.verzwegen, bevindingen.verzwegenFouten});
    return uit + toon(bevindingen.lijst);
}

}  // namespace orakel
