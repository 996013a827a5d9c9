#include "KnipselaarCli/plan.h"

#include <algorithm>
#include <map>
#include <set>

#include "Knipselaar/kern/systeem/paden.h"
#include "KnipselaarCli/bestemming.h"
#include "KnipselaarCli/boom.h"
#include "KnipselaarCli/fout.h"
#include "KnipselaarCli/keuze.h"
#include "KnipselaarCli/links.h"
#include "KnipselaarCli/opruiming.h"

namespace cli {

namespace {

class Planner {
  public:
    explicit Planner(const Opties& opties) : opties_(opties), kiezer_(opties) {}

    Plan maak() {
        if (opties_.naar) {
            plan_.soort = opties_.recursief ? Uitvoersoort::boom : Uitvoersoort::directory;
            neemNaar(*opties_.naar);
        }
        for (const std::string& bron : opties_.bronnen) {
            neemBron(bron);
        }
        kiezer_.keurMaskers();
        plan_.teKnippen = static_cast<std::size_t>(
            std::count_if(plan_.taken.begin(), plan_.taken.end(),
                          [](const Taak& taak) { return taak.handeling == Handeling::knip; }));
        if (opties_.schrijft() || opties_.opdracht == Opdracht::droog) {
            keurBestemmingen(plan_, opties_);
        }
        std::stable_partition(plan_.taken.begin(), plan_.taken.end(),
                              [](const Taak& taak) { return taak.handeling == Handeling::maakDirectory; });
        if (opties_.spiegel && isDirectory(*opties_.naar)) {
            neemOpruiming(*opties_.naar);
        }
        return std::move(plan_);
    }

  private:
    void neemNaar(const std::string& naar) {
        keurNaar(naar);
        if (opties_.schrijft() && !isDirectory(naar)) {
            plan_.taken.push_back(
                {.handeling = Handeling::maakDirectory, .bron = {}, .doel = naar, .echt = {}});
        }
        plan_.nalezen.push_back(naar);
    }

    void neemBron(const std::string& bron) {
        if (bron == standaardinvoer) {
            neemBestand(bron);
            return;
        }
        kern::Kenmerken kenmerken;
        if (const auto fout = kern::leesKenmerken(bron, kenmerken)) {
            throw Fout(bron + ": kan niet gelezen worden: " + noemReden(fout) + "; kijk de naam na");
        }
        if (kenmerken.soort == kern::Bestandssoort::directory) {
            neemDirectory(bron);
        } else {
            neemBestand(bron);
        }
    }

    void neemBestand(const std::string& bron) {
        if (opties_.naar) {
            voegToe(Handeling::knip, bron, kern::plak(*opties_.naar, kern::geefNaam(bron)));
        } else if (opties_.uit) {
            // Wie een link noemt, bedoelt het bestand waar zij heen wijst.
            const std::string doel = kern::isLink(*opties_.uit) ? maakEcht(*opties_.uit) : *opties_.uit;
            plan_.nalezen.push_back(doel);
            voegToe(Handeling::knip, bron, doel);
        } else {
            const bool nieuw = voegTerPlaatseToe(bron, opties_.terPlaatse ? maakEcht(bron) : std::string());
            if (opties_.terPlaatse && nieuw) {
                plan_.nalezen.push_back(bron);
            }
        }
    }

    void neemDirectory(const std::string& bron) {
        if (opties_.uit || opties_.naarUitvoer()) {
            throw Fout(bron + ": is een directory; geef --naar DIR of --ter-plaatse, of noem een bestand");
        }
        if (opties_.naar) {
            keurLigging(bron, *opties_.naar);
        }
        if (opties_.terPlaatse) {
            plan_.nalezen.push_back(bron);
        }
        const LoopWens wens{.recursief = opties_.recursief,
                            .verborgen = opties_.verborgen,
                            .versiebeheer = opties_.versiebeheer,
                            .weglaten = [this](const Boomdeel& deel) { return kiezer_.isWeggelaten(deel); }};
        echteBoom_ = maakEcht(bron);
        const std::vector<Boomdeel> delen = loopAf(bron, wens);
        if (isHeleBoom()) {
            keurOmweg(bron, delen, *opties_.naar);
            onthoudBoom(delen);
        }
        for (const Boomdeel& deel : delen) {
            neemDeel(bron, deel);
        }
    }

    /// Of alles in een directory meegaat, en niet alleen wat gekozen is.
    bool isHeleBoom() const { return opties_.naar && opties_.recursief; }

    /// Alleen wie een link keurt vraagt hiernaar.
    void onthoudBoom(const std::vector<Boomdeel>& delen) {
        inBoom_.clear();
        if (std::none_of(delen.begin(), delen.end(),
                         [](const Boomdeel& deel) { return deel.soort == kern::Bestandssoort::link; })) {
            return;
        }
        for (const Boomdeel& deel : delen) {
            if (deel.soort != kern::Bestandssoort::anders && deel.soort != kern::Bestandssoort::onbekend) {
                inBoom_.insert(deel.pad);
            }
        }
    }

    void neemDeel(const std::string& boom, const Boomdeel& deel) {
        const bool heleBoom = isHeleBoom();
        const std::string bron = kern::plak(boom, deel.pad);
        const std::string doel = opties_.naar ? kern::plak(*opties_.naar, deel.pad) : std::string();
        switch (deel.soort) {
            case kern::Bestandssoort::directory:
                if (heleBoom) {
                    voegToe(Handeling::maakDirectory, bron, doel);
                }
                break;
            case kern::Bestandssoort::link:
                neemLink(boom, deel, bron, doel);
                break;
            case kern::Bestandssoort::bestand:
                if (kiezer_.isGekozen(deel.pad)) {
                    // Er zit geen link tussen de directory en wat er bij het lopen in gevonden is.
                    voegGekozenToe(bron, kern::plak(echteBoom_, deel.pad), doel);
                } else if (heleBoom) {
                    voegToe(Handeling::neemOver, bron, doel);
                }
                break;
            case kern::Bestandssoort::onbekend:
            case kern::Bestandssoort::anders:
                if (heleBoom || kiezer_.isGekozen(deel.pad)) {
                    plan_.waarschuwingen.push_back(bron + ": is geen gewoon bestand; overgeslagen");
                }
                break;
        }
    }

    /// Een link in de boom gaat als link mee; wat er achter zit krijgt zijn eigen beurt. In een platte
    /// directory is dat niet zeker, en komt het knipsel van wat er achter zit op de plaats van de link.
    void neemLink(const std::string& boom, const Boomdeel& deel, const std::string& bron,
                  const std::string& doel) {
        const bool heleBoom = isHeleBoom();
        if (!heleBoom && !kiezer_.isGekozen(deel.pad)) {
            return;
        }
        const std::string bezwaar = keurLink(boom, deel.pad, [&](const std::string& pad) {
            return heleBoom ? inBoom_.contains(pad) : !isWeggelaten(boom, pad);
        });
        if (!bezwaar.empty()) {
            plan_.waarschuwingen.push_back(bron + ": is een link " + bezwaar + "; overgeslagen");
        } else if (heleBoom) {
            voegToe(Handeling::legLink, bron, doel);
        } else if (opties_.naar && !isDirectory(bron)) {
            voegToe(Handeling::knip, bron, doel);
        }
    }

    /// Van wat een link aandoet is elke directory erboven een eerdere stap, of een waar het lopen doorheen
    /// kwam.
    bool isWeggelaten(const std::string& boom, const std::string& pad) const {
        kern::Kenmerken kenmerken;
        kern::leesEigenKenmerken(kern::plak(boom, pad), kenmerken);
        return kiezer_.isWeggelaten({.pad = pad, .soort = kenmerken.soort});
    }

    void voegGekozenToe(const std::string& bron, const std::string& echt, const std::string& doel) {
        if (opties_.naar) {
            voegToe(Handeling::knip, bron, doel);
        } else {
            voegTerPlaatseToe(bron, echt);
        }
    }

    /// Elk echt bestand komt hoogstens eenmaal aan de beurt. Geeft of dit het eerst was.
    bool voegTerPlaatseToe(const std::string& bron, const std::string& echt) {
        if (opties_.terPlaatse && !terPlaatse_.insert(echt).second) {
            return false;
        }
        plan_.taken.push_back({.handeling = Handeling::knip,
                               .bron = bron,
                               .doel = opties_.terPlaatse ? bron : std::string(),
                               .echt = echt});
        return true;
    }

    void voegToe(Handeling handeling, const std::string& bron, const std::string& doel) {
        const auto [eerste, nieuw] = doelen_.try_emplace(kern::maakSleutel(doel), bron);
        if (!nieuw && handeling != Handeling::maakDirectory) {
            throw Fout(doel + ": zowel " + eerste->second + " als " + bron +
                       " zou hier komen; geef ze een eigen directory");
        }
        plan_.taken.push_back({.handeling = handeling, .bron = bron, .doel = doel, .echt = {}});
    }

    void neemOpruiming(const std::string& naar) {
        const Makers makers = [this](const std::string& doel) {
            const auto bron = doelen_.find(kern::maakSleutel(doel));
            return bron == doelen_.end() ? nullptr : &bron->second;
        };
        const Opruiming opruiming = zoekOpruiming(naar, plan_.soort, makers, opties_.bronnen);
        for (const std::string& pad : opruiming.veranderd) {
            plan_.waarschuwingen.push_back(
                pad + ": geen bron maakt dit nog, maar het is veranderd; het blijft staan");
        }
        for (const std::string& pad : opruiming.weg) {
            plan_.taken.push_back({.handeling = Handeling::ruimOp, .bron = {}, .doel = pad, .echt = {}});
        }
        plan_.opTeRuimen = opruiming.weg.size();
    }

    const Opties& opties_;
    Kiezer kiezer_;
    Plan plan_;
    std::map<std::string, std::string> doelen_;  ///< per bestemming wie er komt
    std::string echteBoom_;                      ///< van de directory die afgelopen wordt
    std::set<std::string> inBoom_;               ///< wat daarin gevonden is en mee kan
    std::set<std::string> terPlaatse_;           ///< echte paden die al aan de beurt zijn
};

}  // namespace

Plan maakPlan(const Opties& opties) {
    return Planner(opties).maak();
}

}  // namespace cli
