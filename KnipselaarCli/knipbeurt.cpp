#include "KnipselaarCli/knipbeurt.h"

#include <algorithm>

#include "Knipselaar/kern/regeleinden.h"
#include "Knipselaar/kern/systeem/bestand.h"
#include "Knipselaar/kern/systeem/onderbreking.h"
#include "Knipselaar/kern/utf8.h"
#include "KnipselaarCli/bestemming.h"
#include "KnipselaarCli/fout.h"
#include "KnipselaarCli/knipsel.h"
#include "KnipselaarCli/verschil.h"

namespace cli {

namespace {

/// Het aantal regels van een bestand. De kern leest achter het laatste regeleinde meestal nog een lege regel;
/// die telt niet.
std::size_t telBestand(const Brontekst& bron) {
    const std::string_view tekst = bron.geefTekst();
    const std::size_t laatste = tekst.substr(0, tekst.size() - 1).rfind('\n') + 1;
    const bool extra = bron.naarRuw(laatste) == bron.geefRuw().size();
    return kern::telRegeleinden(tekst) - (extra ? 1 : 0);
}

class Knipbeurt {
  public:
    Knipbeurt(const Taak& taak, const Opties& opties, const Teksten& teksten, Uitvoersoort soort)
        : taak_(taak), opties_(opties), teksten_(teksten), soort_(soort) {}

    Uitslag voerUit() {
        Inhoud inhoud = leesInhoud(taak_.bron);
        gelezen_ = inhoud.kenmerken;
        const Brontekst bron(std::move(inhoud.bytes), kiesLezing());
        Ontleding ontleding = ontleed(bron.geefTekst(), teksten_.markers,
                                      {.bijna = geefErnstVanBijna(opties_),
                                       .toegestaan = opties_.toegestaan,
                                       .houd = teksten_.houd,
                                       .geef = teksten_.geef});
        uitslag_.blokken = ontleding.gevonden;
        for (Melding& melding : keurPlaatsInBlok(bron, ontleding)) {
            ontleding.voegToe(std::move(melding));
        }
        if (neemMeldingen(std::move(ontleding.meldingen), opties_, uitslag_)) {
            knip(bron, ontleding);
        }
        return std::move(uitslag_);
    }

  private:
    Lezing kiesLezing() const {
        if (opties_.manier == Manier::venster && opties_.opdracht == Opdracht::verschil) {
            return Lezing::volledig;
        }
        if (teksten_.markersGewoon) {
            return Lezing::zuinig;
        }
        return opties_.manier == Manier::venster && !moetTellen() ? Lezing::tekst : Lezing::volledig;
    }

    bool moetTellen() const { return opties_.json || opties_.opdracht == Opdracht::droog; }

    const std::string& geefVervanging() const {
        return teksten_.geefVervanging(opties_.taal.value_or(kiesTaal(taak_.bron)));
    }

    KnipWens maakWens() const {
        return {.manier = opties_.manier,
                .inspringen = opties_.inspringen,
                .regelsGelijk = opties_.regelsGelijk,
                .vervanging = geefVervanging(),
                .geef = teksten_.geef};
    }

    /// Lege regels houden de nummers alleen gelijk als er voor een blok niet meer regels komen dan het had.
    std::vector<Melding> keurPlaatsInBlok(const Brontekst& bron, const Ontleding& ontleding) const {
        std::vector<Melding> meldingen;
        if (!opties_.regelsGelijk) {
            return meldingen;
        }
        const KnipWens wens = maakWens();
        for (const kern::Blok& blok : ontleding.blokken) {
            if (telVulling(bron.geefTekst(), blok, wens) > telBlok(blok)) {
                meldingen.push_back({.regel = blok.beginNummer,
                                     .ernst = Ernst::waarschuwing,
                                     .tekst =
                                         "de vervangtekst heeft meer regels dan het blok; de nummers van "
                                         "de regels erna verschuiven"});
            }
        }
        return meldingen;
    }

    void knip(const Brontekst& bron, const Ontleding& ontleding) {
        if (opties_.bewijs) {
            uitslag_.stof =
                verzamelStof(bron, ontleding, teksten_, opties_.bewijsLengte.value_or(standaardBewijsLengte));
        }
        try {
            Knipsel knipsel(bron, ontleding, maakWens());
            verwerk(bron, ontleding, knipsel);
        } catch (const CodeerFout& fout) {
            const Vulling vulling(bron, maakWens());
            const auto blok =
                std::find_if(ontleding.blokken.begin(), ontleding.blokken.end(),
                             [&vulling](const kern::Blok& een) { return vulling.heeftVervangtekst(een); });
            uitslag_.meldingen.push_back(
                {.regel = blok->beginNummer, .ernst = Ernst::fout, .tekst = fout.what()});
            uitslag_.status = Status::tegengehouden;
        }
    }

    void verwerk(const Brontekst& bron, const Ontleding& ontleding, Knipsel& knipsel) {
        if (moetTellen()) {
            tel(bron, ontleding, knipsel);
        }
        if (opties_.opdracht == Opdracht::verschil) {
            const std::string naam = taak_.bron == standaardinvoer ? "standaardinvoer" : taak_.bron;
            uitslag_.verschil = maakVerschil(naam, bron.geefRuw(), knipsel.geefWijzigingen());
        }
        const bool blijft =
            opties_.terPlaatse && opties_.manier == Manier::getrouw && ontleding.gevonden == 0;
        if (blijft) {
            uitslag_.status = Status::ongewijzigd;
        } else if (opties_.schrijft()) {
            schrijf(knipsel);
        } else if (opties_.opdracht == Opdracht::droog) {
            keurPlaats(taak_.doel);
        }
    }

    void tel(const Brontekst& bron, const Ontleding& ontleding, Knipsel& knipsel) {
        uitslag_.regelsErin = telBestand(bron);
        if (opties_.manier == Manier::venster) {
            uitslag_.regelsEruit = kern::telRegeleinden(knipsel.geefInhoud());
            return;
        }
        const KnipWens wens = maakWens();
        std::size_t weg = opties_.regelsGelijk ? 0 : ontleding.weg.size();
        std::size_t erbij = 0;
        for (const kern::Blok& blok : ontleding.blokken) {
            weg += telBlok(blok);
            erbij += telVulling(bron.geefTekst(), blok, wens);
        }
        uitslag_.regelsEruit = uitslag_.regelsErin - weg + erbij;
    }

    void schrijf(Knipsel& knipsel) {
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
            uitslag_.klaar = std::make_unique<Klaargezet>(taak_.bron, taak_.echt, gelezen_, stukken);
            const kern::Verlies& verlies = uitslag_.klaar->geefVerlies();
            if (verlies.isEr()) {
                uitslag_.meldingen.push_back({.regel = 0,
                                              .ernst = opties_.streng ? Ernst::fout : Ernst::waarschuwing,
                                              .tekst = kern::noemVerlies(verlies)});
            }
        } else if (taak_.doel.empty()) {
            try {
                schrijfAlles(kern::uitvoerkanaal, stukken);
            } catch (const Fout& fout) {
                throw Fout(std::string("standaarduitvoer: kan niet geschreven worden: ") + fout.what());
            }
        } else {
            schrijfUitvoer(taak_.doel, stukken, gelezen_.rechten, soort_);
        }
    }

    const Taak& taak_;
    const Opties& opties_;
    const Teksten& teksten_;
    Uitvoersoort soort_;
    kern::Kenmerken gelezen_;  ///< van de bron
    Uitslag uitslag_;
};

}  // namespace

Uitslag knipBestand(const Taak& taak, const Opties& opties, const Teksten& teksten, Uitvoersoort soort) {
    return Knipbeurt(taak, opties, teksten, soort).voerUit();
}

}  // namespace cli
