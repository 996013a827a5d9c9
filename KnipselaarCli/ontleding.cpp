#include "KnipselaarCli/ontleding.h"

#include <algorithm>
#include <optional>

namespace cli {

namespace {

/// Het langste stuk dat in alle ankers voorkomt.
std::string geefGemeenschap(const std::vector<const kern::MarkerMasker*>& maskers) {
    const std::string& eerste = maskers.front()->geefAnker();
    for (std::size_t lengte = eerste.size(); lengte > 0; --lengte) {
        for (std::size_t begin = 0; begin + lengte <= eerste.size(); ++begin) {
            std::string stuk = eerste.substr(begin, lengte);
            if (std::all_of(maskers.begin(), maskers.end(), [&](const kern::MarkerMasker* masker) {
                    return masker->geefAnker().find(stuk) != std::string::npos;
                })) {
                return stuk;
            }
        }
    }
    return {};
}

/// Loopt de regels af waar een marker in kan staan. Markers lijken meestal op elkaar; wat hun ankers gemeen
/// hebben wordt dan in één keer gezocht. Anders onthoudt elk masker waar het het eerst weer past.
class Markerloper {
  public:
    Markerloper(std::string_view tekst, std::span<const Markerpaar> paren) : tekst_(tekst) {
        std::vector<const kern::MarkerMasker*> maskers;
        for (const Markerpaar& paar : paren) {
            maskers.insert(maskers.end(), {&paar.begin, &paar.eind});
        }
        const std::string zeef = geefGemeenschap(maskers);
        if (zeef.size() >= kleinsteZeef) {
            zeef_.emplace(wxString::FromUTF8(zeef), kern::Jokers::nee);
        }
        if (zeef_ && !zeef_->geefAnker().empty()) {
            maskers = {&*zeef_};
        }
        for (const kern::MarkerMasker* masker : maskers) {
            zoekers_.push_back(Zoeker{masker, masker->zoekRegel(tekst_, 0)});
        }
    }
    Markerloper(const Markerloper&) = delete;
    Markerloper& operator=(const Markerloper&) = delete;
    ~Markerloper() = default;

    /// De volgende regel. Of er echt een marker in staat moet nog blijken.
    std::optional<kern::Regel> volgende() {
        std::optional<kern::Regel> eerste;
        for (const Zoeker& zoeker : zoekers_) {
            if (zoeker.vondst && (!eerste || zoeker.vondst->begin < eerste->begin)) {
                eerste = zoeker.vondst;
            }
        }
        for (Zoeker& zoeker : zoekers_) {
            if (zoeker.vondst && zoeker.vondst->begin == eerste->begin) {
                zoeker.vondst = zoeker.masker->zoekRegel(tekst_, eerste->eind);
            }
        }
        return eerste;
    }

  private:
    /// Een kortere zeef laat te veel door om nog iets te winnen.
    static constexpr std::size_t kleinsteZeef = 4;

    struct Zoeker {
        const kern::MarkerMasker* masker;
        std::optional<kern::Regel> vondst;
    };

    std::string_view tekst_;
    std::optional<kern::MarkerMasker> zeef_;
    std::vector<Zoeker> zoekers_;
};

/// Neemt de markerregels op volgorde en maakt er blokken en meldingen van.
class Ontleder {
  public:
    Ontleder(std::string_view tekst, std::span<const Markerpaar> paren) : tekst_(tekst), paren_(paren) {}

    Ontleding ontleed() {
        Markerloper loper(tekst_, paren_);
        while (const auto regel = loper.volgende()) {
            neem(*regel);
        }
        if (open_) {
            meld(open_->begin, Ernst::fout, "beginmarker zonder eindmarker");
            auto& meldingen = uitslag_.meldingen;
            std::stable_sort(meldingen.begin(), meldingen.end(),
                             [](const Melding& a, const Melding& b) { return a.regel < b.regel; });
        }
        return std::move(uitslag_);
    }

  private:
    void neem(kern::Regel regel) {
        const std::string_view inhoud = tekst_.substr(regel.begin, regel.eind - 1 - regel.begin);
        if (open_ && paar_->eind.past(inhoud)) {
            sluit(regel);
            return;
        }
        const auto begin = std::find_if(paren_.begin(), paren_.end(),
                                        [inhoud](const Markerpaar& paar) { return paar.begin.past(inhoud); });
        if (begin == paren_.end()) {
            neemEind(regel, inhoud);
        } else if (open_) {
            meldBeginInBlok(regel, *begin);
        } else {
            open_ = regel;
            paar_ = &*begin;
        }
    }

    void sluit(kern::Regel regel) {
        const Blok blok{.begin = *open_, .eind = regel};
        if (blok.isLeeg()) {
            meld(blok.begin.begin, Ernst::waarschuwing, "leeg blok; er komt geen vervangtekst");
        }
        uitslag_.blokken.push_back(blok);
        open_.reset();
        binnen_.clear();
    }

    /// Een begin van hetzelfde paar betekent bijna zeker dat er een eind ontbreekt. Een blok van een ander
    /// paar verdwijnt met het blok waar het in staat; dat kan de bedoeling zijn.
    void meldBeginInBlok(kern::Regel regel, const Markerpaar& paar) {
        const std::string waar = " in het blok van regel " + std::to_string(telRegel(open_->begin));
        if (&paar == paar_) {
            meld(regel.begin, Ernst::fout, "beginmarker" + waar);
        } else {
            meld(regel.begin, Ernst::waarschuwing,
                 "beginmarker van een ander paar" + waar + "; hij verdwijnt mee");
            binnen_.push_back(&paar);
        }
    }

    /// Een eind dat geen blok sluit mag alleen in een blok staan, als zijn begin daar ook staat.
    void neemEind(kern::Regel regel, std::string_view inhoud) {
        const auto binnen = std::find_if(binnen_.begin(), binnen_.end(), [inhoud](const Markerpaar* paar) {
            return paar->eind.past(inhoud);
        });
        if (binnen != binnen_.end()) {
            binnen_.erase(binnen);
        } else if (std::any_of(paren_.begin(), paren_.end(),
                               [inhoud](const Markerpaar& paar) { return paar.eind.past(inhoud); })) {
            meld(regel.begin, Ernst::fout, "eindmarker zonder beginmarker");
        }
    }

    void meld(std::size_t plek, Ernst ernst, std::string tekst) {
        uitslag_.meldingen.push_back({.regel = telRegel(plek), .ernst = ernst, .tekst = std::move(tekst)});
    }

    /// Het nummer van de regel die hier begint. Meldingen komen bijna altijd op volgorde, dus meestal telt
    /// alleen wat er sinds de vorige bij kwam.
    std::size_t telRegel(std::size_t plek) {
        if (plek < geteldTot_) {
            return 1 + static_cast<std::size_t>(std::count(tekst_.begin(), naarPlek(plek), '\n'));
        }
        geteld_ += static_cast<std::size_t>(std::count(naarPlek(geteldTot_), naarPlek(plek), '\n'));
        geteldTot_ = plek;
        return geteld_ + 1;
    }

    std::string_view::iterator naarPlek(std::size_t plek) const {
        return tekst_.begin() + static_cast<std::ptrdiff_t>(plek);
    }

    std::string_view tekst_;
    std::span<const Markerpaar> paren_;
    Ontleding uitslag_;
    std::optional<kern::Regel> open_;
    const Markerpaar* paar_ = nullptr;       ///< van het open blok
    std::vector<const Markerpaar*> binnen_;  ///< andere paren die in het open blok begonnen
    std::size_t geteldTot_ = 0;
    std::size_t geteld_ = 0;
};

}  // namespace

bool Ontleding::heeftFout() const {
    return std::any_of(meldingen.begin(), meldingen.end(),
                       [](const Melding& melding) { return melding.ernst == Ernst::fout; });
}

Ontleding ontleed(std::string_view tekst, std::span<const Markerpaar> paren) {
    return Ontleder(tekst, paren).ontleed();
}

}  // namespace cli
