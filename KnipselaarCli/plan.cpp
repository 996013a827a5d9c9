#include "KnipselaarCli/plan.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

#include "Knipselaar/kern/systeem/masker.h"
#include "Knipselaar/kern/systeem/paden.h"
#include "KnipselaarCli/boom.h"
#include "KnipselaarCli/fout.h"

namespace cli {

namespace fs = std::filesystem;

namespace {

bool isDirectory(const std::string& pad) {
    kern::Kenmerken kenmerken;
    return !kern::leesKenmerken(pad, kenmerken) && kenmerken.soort == kern::Bestandssoort::directory;
}

bool bestaat(const std::string& pad) {
    kern::Kenmerken kenmerken;
    return !kern::leesEigenKenmerken(pad, kenmerken);
}

/// Of een link in deze boom bij iets uitkomt dat er zelf ook in zit, ook als de boom verhuist.
bool blijftBinnen(const std::string& link, const std::string& boom) {
    const std::string echt = kern::geefEchtPad(link);
    return !echt.empty() && !fs::path(kern::leesLink(link)).is_absolute() &&
           kern::ligtIn(echt, maakEcht(boom));
}

/// Kiest in directories wat geknipt wordt, en onthoudt welk masker iets vond.
class Kiezer {
  public:
    explicit Kiezer(const Opties& opties) : opties_(opties) {}

    bool isGekozen(const std::string& pad) {
        if (opties_.maskers.empty()) {
            return opties_.keuze == Bestandskeuze::alles ||
                   (opties_.keuze == Bestandskeuze::talen && kiesTaal(pad) != Taal::overig) ||
                   (opties_.keuze == Bestandskeuze::vhdl && kiesTaal(pad) == Taal::vhdl);
        }
        bool gekozen = false;
        for (const std::string& masker : opties_.maskers) {
            const bool heelPad = kern::geefNaam(masker) != masker;
            const std::string wat(heelPad ? std::string_view(pad) : kern::geefNaam(pad));
            if (kern::pastOp(masker, wat, heelPad)) {
                gebruikt_.insert(masker);
                gekozen = true;
            }
        }
        return gekozen;
    }

    void keurMaskers() const {
        for (const std::string& masker : opties_.maskers) {
            if (!gebruikt_.contains(masker)) {
                throw Fout("--masker: op '" + masker + "' past geen enkel bestand; kijk het masker na" +
                           (opties_.recursief ? "" : ", of geef --recursief"));
            }
        }
    }

  private:
    const Opties& opties_;
    std::set<std::string> gebruikt_;
};

class Planner {
  public:
    explicit Planner(const Opties& opties) : opties_(opties), kiezer_(opties) {}

    Plan maak() {
        if (opties_.naar) {
            plan_.soort = opties_.recursief ? Uitvoersoort::boom : Uitvoersoort::directory;
            keurNaar(*opties_.naar);
        }
        for (const std::string& bron : opties_.bronnen) {
            neemBron(bron);
        }
        kiezer_.keurMaskers();
        if (!heeftKnip()) {
            plan_.waarschuwingen.emplace_back(
                "er is geen bestand gekozen om te knippen; kijk --keuze en --masker na");
        }
        if (opties_.schrijft() || opties_.opdracht == Opdracht::droog) {
            keurBestemmingen();
        }
        std::stable_partition(plan_.taken.begin(), plan_.taken.end(),
                              [](const Taak& taak) { return taak.handeling == Handeling::maakDirectory; });
        return std::move(plan_);
    }

  private:
    bool heeftKnip() const {
        return std::any_of(plan_.taken.begin(), plan_.taken.end(),
                           [](const Taak& taak) { return taak.handeling == Handeling::knip; });
    }

    void keurNaar(const std::string& naar) {
        if (bestaat(naar) && !isDirectory(naar)) {
            throw Fout(naar +
                       ": is geen directory; geef met --naar een directory, of --uit voor één bestand");
        }
        if (opties_.schrijft() && !isDirectory(naar)) {
            plan_.taken.push_back({.handeling = Handeling::maakDirectory, .bron = {}, .doel = naar});
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
                            .versiebeheer = opties_.versiebeheer};
        echteBoom_ = maakEcht(bron);
        for (const Boomdeel& deel : loopAf(bron, wens)) {
            neemDeel(bron, deel);
        }
    }

    static void keurLigging(const std::string& bron, const std::string& naar) {
        const std::string echteBron = maakEcht(bron);
        const std::string echteNaar = maakEcht(naar);
        if (echteBron == echteNaar || kern::isZelfdePlaats(bron, naar)) {
            throw Fout(naar + ": is dezelfde directory als " + bron +
                       "; kies een andere, of geef --ter-plaatse");
        }
        if (kern::ligtIn(echteNaar, echteBron)) {
            throw Fout(naar + ": ligt in de bron " + bron + "; kies een bestemming erbuiten");
        }
        if (kern::ligtIn(echteBron, echteNaar)) {
            throw Fout(naar + ": daar ligt de bron " + bron + " in; kies een andere bestemming");
        }
    }

    void neemDeel(const std::string& boom, const Boomdeel& deel) {
        const bool heleBoom = opties_.naar && opties_.recursief;
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
        const bool heleBoom = opties_.naar && opties_.recursief;
        if (!blijftBinnen(bron, boom)) {
            if (heleBoom || kiezer_.isGekozen(deel.pad)) {
                plan_.waarschuwingen.push_back(bron + ": is een link die buiten " + boom +
                                               " uitkomt; overgeslagen");
            }
        } else if (heleBoom) {
            voegToe(Handeling::legLink, bron, doel);
        } else if (opties_.naar && !isDirectory(bron) && kiezer_.isGekozen(deel.pad)) {
            voegToe(Handeling::knip, bron, doel);
        }
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
        plan_.taken.push_back(
            {.handeling = Handeling::knip, .bron = bron, .doel = opties_.terPlaatse ? bron : std::string()});
        return true;
    }

    void voegToe(Handeling handeling, const std::string& bron, const std::string& doel) {
        const auto [eerste, nieuw] = doelen_.try_emplace(kern::maakSleutel(doel), bron);
        if (!nieuw && handeling != Handeling::maakDirectory) {
            throw Fout(doel + ": zowel " + eerste->second + " als " + bron +
                       " zou hier komen; geef ze een eigen directory");
        }
        plan_.taken.push_back({.handeling = handeling, .bron = bron, .doel = doel});
    }

    void keurBestemmingen() const {
        for (const Taak& taak : plan_.taken) {
            if (!taak.doel.empty() && !opties_.terPlaatse) {
                keurBestemming(taak);
            }
        }
        if (opties_.uit && opties_.schrijft()) {
            const std::string ouder = fs::path(*opties_.uit).parent_path().string();
            if (!ouder.empty() && !isDirectory(ouder)) {
                throw Fout(*opties_.uit + ": de directory " + ouder + " bestaat niet; maak haar eerst");
            }
        }
    }

    void keurBestemming(const Taak& taak) const {
        const std::string& doel = taak.doel;
        if (kern::isZelfdePlaats(taak.bron, doel)) {
            throw Fout(doel + ": is hetzelfde bestand als de bron " + taak.bron +
                       "; kies een andere bestemming, of geef --ter-plaatse");
        }
        if (!bestaat(doel)) {
            return;
        }
        if (taak.handeling == Handeling::maakDirectory) {
            if (kern::isLink(doel) && !taak.bron.empty()) {
                throw Fout(doel + ": is een link; haal haar weg, anders wordt er buiten " + *opties_.naar +
                           " geschreven");
            }
            if (!isDirectory(doel)) {
                throw Fout(doel + ": bestaat al en is geen directory; haal het weg");
            }
            return;
        }
        if (isDirectory(doel) && !kern::isLink(doel)) {
            throw Fout(doel + (opties_.uit ? ": is een directory; geef --naar, of noem een bestand"
                                           : ": bestaat al en is een directory; haal haar weg"));
        }
        kern::Kenmerken kenmerken;
        if (!kern::leesEigenKenmerken(doel, kenmerken) && kenmerken.soort != kern::Bestandssoort::bestand &&
            kenmerken.soort != kern::Bestandssoort::link) {
            throw Fout(doel + ": bestaat al en is geen gewoon bestand; kies een andere bestemming");
        }
        if (!opties_.overschrijf && !isEerder(taak)) {
            throw Fout(doel +
                       ": bestaat al en is geen eerdere uitvoer van zo'n run; geef --overschrijf om het te "
                       "vervangen");
        }
    }

    bool isEerder(const Taak& taak) const {
        if (kern::isLink(taak.doel)) {
            return taak.handeling == Handeling::legLink &&
                   kern::leesLink(taak.doel) == kern::leesLink(taak.bron);
        }
        return isEerdereUitvoer(taak.doel, plan_.soort);
    }

    const Opties& opties_;
    Kiezer kiezer_;
    Plan plan_;
    std::map<std::string, std::string> doelen_;  ///< per bestemming wie er komt
    std::string echteBoom_;                      ///< van de directory die afgelopen wordt
    std::set<std::string> terPlaatse_;           ///< echte paden die al aan de beurt zijn
};

}  // namespace

Plan maakPlan(const Opties& opties) {
    return Planner(opties).maak();
}

}  // namespace cli
