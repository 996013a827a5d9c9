#include "KnipselaarCli/run.h"

#include <algorithm>
#include <functional>
#include <thread>

#include "Knipselaar/kern/systeem/onderbreking.h"
#include "KnipselaarCli/afhankelijk.h"
#include "KnipselaarCli/bestanden.h"
#include "KnipselaarCli/bewijs.h"
#include "KnipselaarCli/plan.h"
#include "KnipselaarCli/ploeg.h"
#include "KnipselaarCli/proef.h"
#include "KnipselaarCli/verslag.h"
#include "KnipselaarCli/vervanging.h"
#include "KnipselaarCli/werk.h"

namespace cli {

namespace {

/// Zoveel bestanden per draad maken het starten van een draad de moeite waard.
constexpr std::size_t bestandenPerDraad = 8;

/// Meer draden dan dit maken geen enkele machine sneller.
constexpr std::size_t meesteDraden = 256;

std::size_t kiesDraden(const Opties& opties, std::size_t taken) {
    if (opties.taken > 0) {
        return std::min({opties.taken, taken, meesteDraden});
    }
    return std::min<std::size_t>(std::thread::hardware_concurrency(), taken / bestandenPerDraad);
}

/// Eén run: een plan uitvoeren en er verslag van doen.
class Run {
  public:
    Run(const Opties& opties, Melder& melder)
        : opties_(opties),
          melder_(melder),
          teksten_(bepaalTeksten(opties.teksten)),
          plan_(maakPlan(opties)),
          afhankelijkheden_(opties.afhankelijk ? maakAfhankelijkheden(plan_, opties) : std::string()) {}

    Afloop voerUit() {
        for (const std::string& waarschuwing : plan_.waarschuwingen) {
            meldOpmerking(waarschuwing, opties_.streng);
        }
        if (plan_.teKnippen == 0) {
            meldOpmerking("er is geen bestand gekozen om te knippen; kijk --keuze en --masker na",
                          opties_.streng || opties_.bewijs);
        }
        const auto grens = std::find_if(plan_.taken.begin(), plan_.taken.end(), [](const Taak& taak) {
            return taak.handeling != Handeling::maakDirectory;
        });
        const auto directories = static_cast<std::size_t>(grens - plan_.taken.begin());
        doeTaken(0, directories, 1, [this](const Taak& taak, Uitslag&& uitslag) { neem(taak, uitslag); });
        const std::size_t opruimen = plan_.taken.size() - plan_.opTeRuimen;
        const std::size_t draden = kiesDraden(opties_, opruimen - directories);
        if (opties_.terPlaatse) {
            vervang(directories, draden);
        } else {
            doeTaken(directories, opruimen, draden,
                     [this](const Taak& taak, Uitslag&& uitslag) { neem(taak, uitslag); });
        }
        melder_.wisVoortgang();
        if (kern::isOnderbroken()) {
            return misbruikOfStoring;
        }
        keurBlokken();
        ruimOp(opruimen);
        probeer();
        if (opties_.bewijs && !kern::isOnderbroken()) {
            bewijs();
        }
        if (kern::isOnderbroken()) {
            return misbruikOfStoring;
        }
        const Afloop afloop = verslag_.geefAfloop();
        if (afloop == goed && opties_.afhankelijk) {
            schrijfUitvoer(
                *opties_.afhankelijk, [this](const Ontvanger& uit) { uit(afhankelijkheden_); }, gewoneRechten,
                Uitvoersoort::bestand);
        }
        const std::string einde = verslag_.sluitAf(afloop);
        if (!einde.empty()) {
            melder_.schrijf(einde);
        }
        return afloop;
    }

  private:
    void meldOpmerking(const std::string& tekst, bool isFout) {
        const Ernst ernst = isFout ? Ernst::fout : Ernst::waarschuwing;
        melder_.meldRun(tekst, ernst);
        verslag_.neemOpmerking(tekst, ernst);
    }

    /// Een run zonder blok is bijna zeker een run met de verkeerde markers. Ging er iets mis, dan kan daar
    /// een blok in gezeten hebben.
    void keurBlokken() {
        const Tellingen& tellingen = verslag_.geefTellingen();
        const bool nulIsGoed = opties_.nulBlokken && !opties_.bewijs;
        if (!nulIsGoed && plan_.teKnippen > 0 && tellingen.gevonden == 0 && tellingen.mislukt == 0 &&
            tellingen.tegengehouden == 0) {
            meldOpmerking("er is nergens een blok gevonden; kijk de markers na",
                          opties_.streng || opties_.bewijs);
        }
        if (tellingen.gevonden < opties_.minstens) {
            meldOpmerking("er zijn minder blokken dan --minstens " + std::to_string(opties_.minstens) +
                              " vraagt: " + std::to_string(tellingen.gevonden),
                          true);
        }
    }

    /// Zet eerst alles klaar en vast, en vervangt dan pas het eerste bestand. Valt de stroom uit, dan is elk
    /// bestand heel: zoals het was, of geknipt. Wie daarvoor onderbroken wordt heeft niets veranderd.
    void vervang(std::size_t eerste, std::size_t draden) {
        std::vector<Uitslag> uitslagen;
        doeTaken(eerste, plan_.taken.size(), draden,
                 [&uitslagen](const Taak&, Uitslag&& uitslag) { uitslagen.push_back(std::move(uitslag)); });
        if (kern::isOnderbroken()) {
            return;
        }
        if (opties_.schrijft()) {
            const std::string bezwaar = vervangAlles(uitslagen, opties_);
            if (!bezwaar.empty()) {
                meldOpmerking(bezwaar, true);
            }
        }
        for (std::size_t i = 0; i < uitslagen.size(); ++i) {
            neem(plan_.taken[eerste + i], uitslagen[i]);
        }
    }

    /// Een bron die niet te lezen was, een fout heeft of er niet meer is, mag de student niets kosten.
    void ruimOp(std::size_t eerste) {
        if (plan_.opTeRuimen == 0) {
            return;
        }
        if (verslag_.geefAfloop() != goed || plan_.teKnippen == 0) {
            meldOpmerking("er is niets opgeruimd: eerst moet alles lukken", opties_.streng);
            return;
        }
        doeTaken(eerste, plan_.taken.size(), 1,
                 [this](const Taak& taak, Uitslag&& uitslag) { neem(taak, uitslag); });
    }

    void doeTaken(std::size_t eerste, std::size_t voorbij, std::size_t draden,
                  const std::function<void(const Taak&, Uitslag&&)>& neemUitslag) {
        const std::size_t aantal = voorbij - eerste;
        const bool schrijftBestanden = aantal > 0 &&
                                       plan_.taken[eerste].handeling != Handeling::maakDirectory &&
                                       plan_.taken[eerste].handeling != Handeling::ruimOp;
        Ploeg<Uitslag> ploeg(
            aantal,
            [&](std::size_t i) {
                return cli::voerUit(plan_.taken[eerste + i], opties_, teksten_, plan_.soort);
            },
            [] { return !kern::isOnderbroken(); });
        ploeg.werk(draden, [&](std::size_t i, Uitslag&& uitslag) {
            neemUitslag(plan_.taken[eerste + i], std::move(uitslag));
            if (schrijftBestanden) {
                melder_.meldVoortgang(i + 1, aantal);
            }
        });
    }

    void neem(const Taak& taak, const Uitslag& uitslag) {
        if (kern::isOnderbroken()) {
            return;
        }
        const std::string naam = taak.bron == standaardinvoer ? "standaardinvoer" : taak.bron;
        for (const Melding& melding : uitslag.meldingen) {
            melder_.meld(naam, melding);
        }
        if (!uitslag.storing.empty()) {
            melder_.meldRun(uitslag.storing, Ernst::fout);
        }
        bewijs_.neem(naam, uitslag.stof);
        if (opties_.probeer && taak.handeling == Handeling::knip && uitslag.status == Status::geknipt) {
            teProberen_.push_back(taak.doel);
        }
        const std::string tekst = verslag_.neem(taak, uitslag);
        if (!tekst.empty()) {
            melder_.schrijf(tekst);
        }
    }

    /// Elk geknipt bestand heeft nu de bestanden naast zich die erbij horen.
    void probeer() {
        Ploeg<Proef> ploeg(
            teProberen_.size(),
            [this](std::size_t i) { return cli::probeer(*opties_.probeer, teProberen_[i]); },
            [] { return !kern::isOnderbroken(); });
        const std::size_t draden = opties_.taken > 0 ? opties_.taken : std::thread::hardware_concurrency();
        ploeg.werk(std::min({draden, teProberen_.size(), meesteDraden}), [this](std::size_t, Proef&& proef) {
            if (kern::isOnderbroken()) {
                return;
            }
            meldProef(proef);
            verslag_.neem(proef);
        });
    }

    void meldProef(const Proef& proef) {
        if (!proef.isGelukt()) {
            const std::string reden = proef.uitkomst.fout ? noemReden(proef.uitkomst.fout)
                                                          : "afloop " + std::to_string(proef.uitkomst.afloop);
            melder_.meld(proef.pad, {.regel = 0,
                                     .ernst = Ernst::fout,
                                     .tekst = "de proef mislukt (" + reden + "): " + proef.opdracht});
        }
        if (!opties_.stil || !proef.isGelukt()) {
            melder_.toonUitvoer(proef.uitkomst.uitvoer);
        }
    }

    void bewijs() {
        for (const std::string& vervanging : teksten_.vervanging) {
            bewijs_.laatToe(vervanging);
        }
        bewijs_.sluitAf();
        for (const std::string& plaats : plan_.nalezen) {
            const Nalezing nalezing = bewijs_.leesNa(plaats);
            for (const Bewijsvondst& vondst : nalezing.vondsten) {
                melder_.meld(vondst.pad,
                             {.regel = vondst.regel, .ernst = Ernst::fout, .tekst = vondst.tekst});
            }
            for (const std::string& storing : nalezing.storingen) {
                melder_.meldRun(storing, Ernst::fout);
            }
            verslag_.neem(nalezing);
        }
    }

    const Opties& opties_;
    Melder& melder_;
    Teksten teksten_;
    Plan plan_;
    std::string afhankelijkheden_;
    Verslag verslag_{opties_};
    std::vector<std::string> teProberen_;
    Bewijs bewijs_{teksten_.markers, opties_.bewijsLengte.value_or(standaardBewijsLengte),
                   opties_.toegestaan};
};

}  // namespace

Afloop voerRunUit(const Opties& opties, Melder& melder) {
    return Run(opties, melder).voerUit();
}

}  // namespace cli
