#include "KnipselaarCli/cliApp.h"

#include <algorithm>
#include <thread>

#include "Knipselaar/kern/systeem/onderbreking.h"
#include "KnipselaarCli/fout.h"
#include "KnipselaarCli/melder.h"
#include "KnipselaarCli/opties.h"
#include "KnipselaarCli/plan.h"
#include "KnipselaarCli/ploeg.h"
#include "KnipselaarCli/verslag.h"
#include "KnipselaarCli/werk.h"

namespace cli {

namespace {

/// Zoveel bestanden per draad maken het starten van een draad de moeite waard.
constexpr std::size_t bestandenPerDraad = 8;

std::size_t kiesDraden(const Opties& opties, std::size_t taken) {
    if (opties.taken > 0) {
        return std::min(opties.taken, taken);
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
          plan_(maakPlan(opties)) {}

    Afloop voerUit() {
        for (const std::string& waarschuwing : plan_.waarschuwingen) {
            melder_.meldRun(waarschuwing, opties_.streng ? Ernst::fout : Ernst::waarschuwing);
        }
        verslag_.neemOpmerkingen(plan_.waarschuwingen);
        const auto grens = std::find_if(plan_.taken.begin(), plan_.taken.end(), [](const Taak& taak) {
            return taak.handeling != Handeling::maakDirectory;
        });
        const auto directories = static_cast<std::size_t>(grens - plan_.taken.begin());
        doeTaken(0, directories, 1);
        doeTaken(directories, plan_.taken.size(), kiesDraden(opties_, plan_.taken.size() - directories));
        melder_.wisVoortgang();
        if (kern::isOnderbroken()) {
            return misbruikOfStoring;
        }
        if (opties_.bewijs) {
            bewijs();
        }
        const Afloop afloop = verslag_.geefAfloop();
        const std::string einde = verslag_.sluitAf(afloop);
        if (!einde.empty()) {
            melder_.schrijf(einde);
        }
        return afloop;
    }

  private:
    void doeTaken(std::size_t eerste, std::size_t voorbij, std::size_t draden) {
        const std::size_t aantal = voorbij - eerste;
        Ploeg<Uitslag> ploeg(
            aantal,
            [&](std::size_t i) {
                return cli::voerUit(plan_.taken[eerste + i], opties_, teksten_, plan_.soort);
            },
            [] { return !kern::isOnderbroken(); });
        ploeg.werk(draden, [&](std::size_t i, const Uitslag& uitslag) {
            neem(plan_.taken[eerste + i], uitslag);
            melder_.meldVoortgang(i + 1, aantal);
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
        const std::string tekst = verslag_.neem(taak, uitslag);
        if (!tekst.empty()) {
            melder_.schrijf(tekst);
        }
    }

    void bewijs() {
        for (const std::string& vervanging : teksten_.vervanging) {
            bewijs_.laatToe(vervanging);
        }
        for (const std::string& plaats : plan_.nalezen) {
            const std::vector<Bewijsvondst> vondsten = bewijs_.leesNa(plaats);
            for (const Bewijsvondst& vondst : vondsten) {
                melder_.meld(vondst.pad,
                             {.regel = vondst.regel, .ernst = Ernst::fout, .tekst = vondst.tekst});
            }
            verslag_.neem(vondsten);
        }
    }

    const Opties& opties_;
    Melder& melder_;
    Teksten teksten_;
    Plan plan_;
    Verslag verslag_{opties_};
    Bewijs bewijs_{teksten_.markers.geefParen(), opties_.bewijsLengte};
};

Afloop voerUit(const std::vector<std::string>& woorden) {
    try {
        const Opties opties = leesOpties(woorden);
        Melder melder(opties.stil);
        if (opties.opdracht == Opdracht::help) {
            melder.schrijf(maakHulp());
            return goed;
        }
        if (opties.opdracht == Opdracht::versie) {
            melder.schrijf("knipselaar-cli " KNIPSELAAR_VERSIE "\n");
            return goed;
        }
        return Run(opties, melder).voerUit();
    } catch (const std::exception& fout) {
        if (!kern::isOnderbroken()) {
            Melder(false).meldRun(fout.what(), Ernst::fout);
        }
        return misbruikOfStoring;
    }
}

}  // namespace

CliApp::CliApp(std::vector<std::string> woorden)
    : ConsoleApp("knipselaar-cli"), woorden_(std::move(woorden)) {}

int CliApp::OnRun() {
    kern::vangOnderbreking();
    const Afloop afloop = voerUit(woorden_);
    kern::sterfAanOnderbreking();
    return afloop;
}

}  // namespace cli
