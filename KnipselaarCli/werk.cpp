#include "KnipselaarCli/werk.h"

#include <algorithm>
#include <filesystem>

#include "Knipselaar/kern/regeleinden.h"
#include "Knipselaar/kern/systeem/bestand.h"
#include "Knipselaar/kern/systeem/directory.h"
#include "Knipselaar/kern/systeem/onderbreking.h"
#include "Knipselaar/kern/utf8.h"
#include "KnipselaarCli/bestanden.h"
#include "KnipselaarCli/fout.h"
#include "KnipselaarCli/knipsel.h"
#include "KnipselaarCli/verschil.h"

namespace cli {

namespace fs = std::filesystem;

namespace {

/// Het aantal regels van een tekst van de kern; de lege regel achter het laatste regeleinde telt niet.
std::size_t telTekst(std::string_view tekst) {
    const bool extra = tekst.size() == 1 || tekst.ends_with("\n\n");
    return kern::telRegeleinden(tekst) - (extra ? 1 : 0);
}

class Knipbeurt {
  public:
    Knipbeurt(const Taak& taak, const Opties& opties, const Teksten& teksten, Uitvoersoort soort)
        : taak_(taak), opties_(opties), teksten_(teksten), soort_(soort) {}

    Uitslag voerUit() {
        Inhoud inhoud = leesInhoud(taak_.bron);
        const Brontekst bron(std::move(inhoud.bytes), kiesLezing());
        const Ontleding ontleding = ontleed(bron.geefTekst(), teksten_.markers);
        uitslag_.blokken = ontleding.blokken.size();
        uitslag_.meldingen = ontleding.meldingen;
        if (opties_.streng) {
            for (Melding& melding : uitslag_.meldingen) {
                melding.ernst = Ernst::fout;
            }
        }
        if (std::any_of(uitslag_.meldingen.begin(), uitslag_.meldingen.end(),
                        [](const Melding& melding) { return melding.ernst == Ernst::fout; })) {
            uitslag_.status = Status::tegengehouden;
            return std::move(uitslag_);
        }
        knip(bron, ontleding, inhoud.rechten);
        return std::move(uitslag_);
    }

  private:
    /// Voor een bewijs telt de tekst zoals de kern haar leest.
    Lezing kiesLezing() const {
        if (opties_.manier == Manier::venster && opties_.opdracht == Opdracht::verschil) {
            return Lezing::volledig;
        }
        if (teksten_.markersGewoon && !opties_.bewijs) {
            return Lezing::zuinig;
        }
        return opties_.manier == Manier::venster ? Lezing::tekst : Lezing::volledig;
    }

    const std::string& geefVervanging() const {
        return teksten_.geefVervanging(opties_.taal.value_or(kiesTaal(taak_.bron)));
    }

    void knip(const Brontekst& bron, const Ontleding& ontleding, fs::perms rechten) {
        if (opties_.bewijs) {
            uitslag_.stof = verzamelStof(bron.geefTekst(), ontleding.blokken, opties_.bewijsLengte);
        }
        try {
            Knipsel knipsel(
                bron, ontleding,
                {.manier = opties_.manier, .inspringen = opties_.inspringen, .vervanging = geefVervanging()});
            verwerk(bron, ontleding, knipsel, rechten);
        } catch (const CodeerFout& fout) {
            const std::size_t regel =
                kern::telRegeleinden(bron.geefTekst().substr(0, ontleding.blokken.front().begin.begin));
            uitslag_.meldingen.push_back({.regel = regel + 1, .ernst = Ernst::fout, .tekst = fout.what()});
            uitslag_.status = Status::tegengehouden;
        }
    }

    void verwerk(const Brontekst& bron, const Ontleding& ontleding, Knipsel& knipsel, fs::perms rechten) {
        if (opties_.json || opties_.opdracht == Opdracht::droog) {
            tel(bron, ontleding, knipsel);
        }
        if (opties_.opdracht == Opdracht::verschil) {
            const std::string naam = taak_.bron == standaardinvoer ? "standaardinvoer" : taak_.bron;
            uitslag_.verschil = maakVerschil(naam, bron.geefRuw(), knipsel.geefWijzigingen());
        }
        const bool blijft =
            opties_.terPlaatse && opties_.manier == Manier::getrouw && ontleding.blokken.empty();
        if (blijft) {
            uitslag_.status = Status::ongewijzigd;
        } else if (opties_.schrijft()) {
            schrijf(knipsel, rechten);
        }
    }

    void tel(const Brontekst& bron, const Ontleding& ontleding, Knipsel& knipsel) {
        uitslag_.regelsErin = telTekst(bron.geefTekst());
        if (opties_.manier == Manier::venster) {
            uitslag_.regelsEruit = kern::telRegeleinden(knipsel.geefInhoud());
            return;
        }
        std::size_t weg = 0;
        for (const kern::Blok& blok : ontleding.blokken) {
            weg += kern::telRegeleinden(
                bron.geefTekst().substr(blok.begin.begin, blok.eind.eind - blok.begin.begin));
        }
        const std::string& vervanging = geefVervanging();
        const std::size_t erbij =
            kern::telRegeleinden(vervanging) + (vervanging.empty() || vervanging.ends_with('\n') ? 0 : 1);
        const auto vervangen =
            static_cast<std::size_t>(std::count_if(ontleding.blokken.begin(), ontleding.blokken.end(),
                                                   [](const kern::Blok& blok) { return !blok.isLeeg(); }));
        uitslag_.regelsEruit = uitslag_.regelsErin - weg + vervangen * erbij;
    }

    void schrijf(Knipsel& knipsel, fs::perms rechten) {
        if (kern::isOnderbroken()) {
            throw Fout(noemReden(std::make_error_code(std::errc::interrupted)));
        }
        const Stukken stukken = [this, &knipsel](const Ontvanger& uit) {
            if (opties_.manier == Manier::getrouw) {
                knipsel.geef(uit);
            } else {
                knipsel.geef([&uit](std::string_view stuk) { kern::geefMetEigenRegeleinden(stuk, uit); });
            }
        };
        if (opties_.terPlaatse) {
            vervangTerPlaatse(taak_.doel, stukken);
        } else if (taak_.doel.empty()) {
            try {
                schrijfAlles(kern::uitvoerkanaal, stukken);
            } catch (const Fout& fout) {
                throw Fout(std::string("standaarduitvoer: kan niet geschreven worden: ") + fout.what());
            }
        } else {
            schrijfUitvoer(taak_.doel, stukken, rechten, soort_);
        }
    }

    const Taak& taak_;
    const Opties& opties_;
    const Teksten& teksten_;
    Uitvoersoort soort_;
    Uitslag uitslag_;
};

void maakDirectory(const Taak& taak) {
    if (const auto fout = kern::maakDirectories(taak.doel)) {
        throw Fout(taak.doel + ": kan niet gemaakt worden: " + noemReden(fout));
    }
}

void neemOver(const Taak& taak, Uitvoersoort soort) {
    const Inhoud inhoud = leesInhoud(taak.bron);
    schrijfUitvoer(
        taak.doel, [&inhoud](const Ontvanger& uit) { uit(inhoud.bytes.geef()); }, inhoud.rechten, soort);
}

void legLink(const Taak& taak) {
    std::error_code fout;
    const fs::path naar = fs::read_symlink(taak.bron, fout);
    if (!fout) {
        fs::remove(taak.doel, fout);
        fs::create_symlink(naar, taak.doel, fout);
    }
    if (fout) {
        throw Fout(taak.doel + ": kan niet gemaakt worden: " + noemReden(fout));
    }
}

Uitslag doe(const Taak& taak, const Opties& opties, const Teksten& teksten, Uitvoersoort soort) {
    if (taak.handeling == Handeling::knip) {
        return Knipbeurt(taak, opties, teksten, soort).voerUit();
    }
    Uitslag uitslag;
    uitslag.status = Status::overgenomen;
    if (!opties.schrijft()) {
        return uitslag;
    }
    switch (taak.handeling) {
        case Handeling::maakDirectory:
            maakDirectory(taak);
            break;
        case Handeling::neemOver:
            neemOver(taak, soort);
            break;
        default:
            legLink(taak);
            break;
    }
    return uitslag;
}

}  // namespace

Uitslag voerUit(const Taak& taak, const Opties& opties, const Teksten& teksten, Uitvoersoort soort) {
    try {
        return doe(taak, opties, teksten, soort);
    } catch (const std::exception& fout) {
        Uitslag uitslag;
        uitslag.status = Status::mislukt;
        uitslag.storing = fout.what();
        return uitslag;
    }
}

}  // namespace cli
