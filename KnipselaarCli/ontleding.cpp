#include "KnipselaarCli/ontleding.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

#include "KnipselaarCli/geefregel.h"
#include "KnipselaarCli/regels.h"

namespace cli {

namespace {

/// Niets als er in de console niets over te zeggen is.
std::optional<Melding> maakMelding(const kern::Bevinding& bevinding, Ernst bijna) {
    const std::string waar = " in het blok van regel " + std::to_string(bevinding.blokBegin);
    switch (bevinding.soort) {
        case kern::Soort::leegBlok:
            return Melding{bevinding.regel, Ernst::waarschuwing, "leeg blok; er komt geen vervangtekst"};
        case kern::Soort::zonderEind:
            return Melding{bevinding.regel, Ernst::fout, "beginmarker zonder eindmarker"};
        case kern::Soort::zonderBegin:
            return Melding{bevinding.regel, Ernst::fout, "eindmarker zonder beginmarker"};
        case kern::Soort::beginInBlok:
            return Melding{bevinding.regel, Ernst::fout, "beginmarker" + waar};
        case kern::Soort::anderBeginInBlok:
            return Melding{bevinding.regel, Ernst::waarschuwing,
                           "beginmarker van een ander paar" + waar + "; hij verdwijnt mee"};
        case kern::Soort::bijnaBegin:
            return maakBijnaMelding(bevinding.regel, kern::Gelijkenis::begin, bijna);
        case kern::Soort::bijnaEind:
            return maakBijnaMelding(bevinding.regel, kern::Gelijkenis::eind, bijna);
        default:
            return std::nullopt;
    }
}

/// De regel met dit nummer, zonder haar regeleinde.
std::string_view zoekRegel(std::string_view tekst, std::size_t nummer) {
    for (; nummer > 1; --nummer) {
        tekst.remove_prefix(tekst.find('\n') + 1);
    }
    return tekst.substr(0, tekst.find('\n'));
}

/// Een deel van de tekst, en de paren die daarin tellen.
struct Laag {
    kern::Regel deel;
    std::size_t eersteRegel;  ///< het nummer van de regel waar het begint
    std::vector<bool> houd;   ///< per paar
    bool isBinnen;            ///< de inhoud van een blok dat blijft
};

class Ontleedbeurt {
  public:
    Ontleedbeurt(std::string_view tekst, const OntleedWens& wens) : tekst_(tekst), wens_(wens) {}

    Ontleding ontleed(const kern::MarkerReeks& markers) {
        std::vector<bool> houd = wens_.houd;
        houd.resize(markers.geefParen().size());
        ontleedLaag(
            {.deel = {0, tekst_.size()}, .eersteRegel = 1, .houd = std::move(houd), .isBinnen = false},
            markers);
        if (!wens_.geef.empty()) {
            verdeelGeefregels();
        }
        std::stable_sort(uit_.meldingen.begin(), uit_.meldingen.end(),
                         [](const Melding& een, const Melding& ander) { return een.regel < ander.regel; });
        return std::move(uit_);
    }

  private:
    void ontleedLaag(const Laag& laag, const kern::MarkerReeks& markers) {
        std::vector<kern::Blok> blokken;
        kern::Ontleder ontleder(markers, [&blokken](const kern::Blok& blok) { blokken.push_back(blok); });
        ontleder.neem(tekst_.substr(laag.deel.begin, laag.deel.eind - laag.deel.begin));
        const std::vector<kern::Bevinding> bevindingen = ontleder.maakAf().lijst;
        for (const kern::Bevinding& bevinding : bevindingen) {
            neem(bevinding, laag, blokken);
        }
        if (std::none_of(laag.houd.begin(), laag.houd.end(), std::identity())) {
            neemBlokken(laag, std::move(blokken));
        } else {
            verdeelBlokken(laag, markers, blokken, bevindingen);
        }
    }

    /// Elk blok gaat weg.
    void neemBlokken(const Laag& laag, std::vector<kern::Blok> blokken) {
        uit_.gevonden += blokken.size();
        if (!laag.isBinnen) {
            uit_.blokken = std::move(blokken);
            return;
        }
        for (kern::Blok& blok : blokken) {
            verschuif(blok, laag);
            uit_.blokken.push_back(blok);
        }
    }

    void verdeelBlokken(const Laag& laag, const kern::MarkerReeks& markers, std::vector<kern::Blok>& blokken,
                        const std::vector<kern::Bevinding>& bevindingen) {
        for (kern::Blok& blok : blokken) {
            const std::size_t beginNummer = blok.beginNummer;
            verschuif(blok, laag);
            ++uit_.gevonden;
            if (!laag.houd[blok.paar]) {
                uit_.blokken.push_back(blok);
                continue;
            }
            uit_.weg.push_back(blok.begin);
            if (std::any_of(bevindingen.begin(), bevindingen.end(), [&](const kern::Bevinding& bevinding) {
                    return bevinding.blokBegin == beginNummer && isAnderPaar(bevinding);
                })) {
                ontleedInhoud(blok, laag, markers);
            }
            uit_.weg.push_back(blok.eind);
            if (!laag.isBinnen) {
                gehouden_.push_back(blok);
            }
        }
    }

    static void verschuif(kern::Blok& blok, const Laag& laag) {
        for (kern::Regel* regel : {&blok.begin, &blok.eind}) {
            regel->begin += laag.deel.begin;
            regel->eind += laag.deel.begin;
        }
        blok.beginNummer += laag.eersteRegel - 1;
        blok.eindNummer += laag.eersteRegel - 1;
    }

    static bool isAnderPaar(const kern::Bevinding& bevinding) {
        return bevinding.soort == kern::Soort::anderBeginInBlok ||
               bevinding.soort == kern::Soort::zonderBegin;
    }

    /// Ontleedt wat er tussen de markers van een blok staat, voor de andere paren.
    void ontleedInhoud(const kern::Blok& blok, const Laag& buiten, const kern::MarkerReeks& markers) {
        Laag laag{.deel = {blok.begin.eind, blok.eind.begin},
                  .eersteRegel = blok.beginNummer + 1,
                  .houd = buiten.houd,
                  .isBinnen = true};
        std::vector<kern::Markerpaar> paren = markers.geefParen();
        paren.erase(paren.begin() + static_cast<std::ptrdiff_t>(blok.paar));
        laag.houd.erase(laag.houd.begin() + static_cast<std::ptrdiff_t>(blok.paar));
        ontleedLaag(laag, kern::MarkerReeks(std::move(paren)));
    }

    /// Wat in een blok dat blijft over een ander paar gaat, blijkt als zijn inhoud ontleed wordt; en wat
    /// bijna een marker is, is al gemeld toen dat blok gevonden werd.
    void neem(const kern::Bevinding& bevinding, const Laag& laag, const std::vector<kern::Blok>& blokken) {
        const std::size_t verschil = laag.eersteRegel - 1;
        const bool isBijna =
            bevinding.soort == kern::Soort::bijnaBegin || bevinding.soort == kern::Soort::bijnaEind;
        if ((isBijna && (laag.isBinnen || isToegestaan(bevinding.regel))) ||
            ((isAnderPaar(bevinding) || bevinding.soort == kern::Soort::leegBlok) &&
             ligtInGehouden(bevinding, laag, blokken))) {
            return;
        }
        kern::Bevinding verschoven = bevinding;
        verschoven.regel += verschil;
        verschoven.blokBegin += bevinding.blokBegin == 0 ? 0 : verschil;
        if (auto melding = maakMelding(verschoven, wens_.bijna)) {
            uit_.meldingen.push_back(std::move(*melding));
        }
    }

    static bool ligtInGehouden(const kern::Bevinding& bevinding, const Laag& laag,
                               const std::vector<kern::Blok>& blokken) {
        const std::size_t begin =
            bevinding.soort == kern::Soort::leegBlok ? bevinding.regel : bevinding.blokBegin;
        const auto blok = std::lower_bound(
            blokken.begin(), blokken.end(), begin,
            [](const kern::Blok& een, std::size_t regel) { return een.beginNummer < regel; });
        return blok != blokken.end() && blok->beginNummer == begin && laag.houd[blok->paar];
    }

    bool isToegestaan(std::size_t nummer) const {
        return !wens_.toegestaan.empty() &&
               std::binary_search(wens_.toegestaan.begin(), wens_.toegestaan.end(),
                                  snoei(zoekRegel(tekst_, nummer)));
    }

    /// In een blok dat blijft gaan de regels voor de student weg; buiten de blokken blijven ze staan, en dan
    /// is er vast een marker vergeten.
    void verdeelGeefregels() {
        const std::vector<kern::Regel> markers = std::exchange(uit_.weg, {});
        auto marker = markers.begin();
        auto blok = uit_.blokken.begin();
        auto gehouden = gehouden_.begin();
        std::size_t nummer = 1;
        for (std::size_t plek = 0; plek < tekst_.size(); ++nummer) {
            const kern::Regel regel{plek, tekst_.find('\n', plek) + 1};
            plek = regel.eind;
            while (blok != uit_.blokken.end() && blok->eind.eind <= regel.begin) {
                ++blok;
            }
            while (gehouden != gehouden_.end() && gehouden->eind.eind <= regel.begin) {
                ++gehouden;
            }
            if (marker != markers.end() && marker->begin == regel.begin) {
                uit_.weg.push_back(*marker++);
            } else if ((blok == uit_.blokken.end() || regel.begin < blok->begin.begin) &&
                       zoekGeefregel(tekst_.substr(regel.begin, regel.eind - regel.begin), wens_.geef)) {
                if (gehouden != gehouden_.end() && regel.begin > gehouden->begin.begin) {
                    uit_.weg.push_back(regel);
                } else {
                    uit_.meldingen.push_back({.regel = nummer,
                                              .ernst = Ernst::waarschuwing,
                                              .tekst = "regel van --geef buiten een blok; hij blijft staan"});
                }
            }
        }
    }

    std::string_view tekst_;
    const OntleedWens& wens_;
    Ontleding uit_;
    std::vector<kern::Blok> gehouden_;  ///< die blijven en niet in een ander liggen
};

}  // namespace

bool Ontleding::heeftFout() const {
    return std::any_of(meldingen.begin(), meldingen.end(),
                       [](const Melding& melding) { return melding.ernst == Ernst::fout; });
}

void Ontleding::voegToe(Melding melding) {
    const auto plek =
        std::upper_bound(meldingen.begin(), meldingen.end(), melding,
                         [](const Melding& een, const Melding& ander) { return een.regel < ander.regel; });
    meldingen.insert(plek, std::move(melding));
}

Melding maakBijnaMelding(std::size_t regel, kern::Gelijkenis lijktOp, Ernst ernst) {
    const std::string welke = lijktOp == kern::Gelijkenis::begin ? "beginmarker" : "eindmarker";
    return {.regel = regel, .ernst = ernst, .tekst = "bijna een " + welke + "; zo telt hij niet"};
}

Ontleding ontleed(std::string_view tekst, const kern::MarkerReeks& markers, const OntleedWens& wens) {
    return Ontleedbeurt(tekst, wens).ontleed(markers);
}

}  // namespace cli
