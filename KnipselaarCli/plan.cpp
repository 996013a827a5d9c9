#include "KnipselaarCli/plan.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

#include "Knipselaar/kern/systeem/masker.h"
#include "Knipselaar/kern/systeem/paden.h"
#include "KnipselaarCli/boom.h"
#include "KnipselaarCli/fout.h"
#include "KnipselaarCli/links.h"

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

/// Kiest in directories wat geknipt wordt, en onthoudt welk masker iets vond.
class Kiezer {
  public:
    explicit Kiezer(const Opties& opties) : opties_(opties) {}

    bool isGekozen(const std::string& pad) {
        if (opties_.maskers.empty()) {
            const Bestandskeuze keuze = opties_.keuze.value_or(Bestandskeuze::talen);
            return keuze == Bestandskeuze::alles ||
                   (keuze == Bestandskeuze::talen && kiesTaal(pad) != Taal::overig) ||
                   (keuze == Bestandskeuze::vhdl && kiesTaal(pad) == Taal::vhdl);
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
        plan_.teKnippen = static_cast<std::size_t>(
            std::count_if(plan_.taken.begin(), plan_.taken.end(),
                          [](const Taak& taak) { return taak.handeling == Handeling::knip; }));
        if (opties_.schrijft() || opties_.opdracht == Opdracht::droog) {
            keurBestemmingen();
        }
        std::stable_partition(plan_.taken.begin(), plan_.taken.end(),
                              [](const Taak& taak) { return taak.handeling == Handeling::maakDirectory; });
        return std::move(plan_);
    }

  private:
    void keurNaar(const std::string& naar) {
        if (bestaat(naar) && !isDirectory(naar)) {
            throw Fout(naar +
                       ": is geen directory; geef met --naar een directory, of --uit voor één bestand");
        }
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
                            .versiebeheer = opties_.versiebeheer};
        echteBoom_ = maakEcht(bron);
        const std::vector<Boomdeel> delen = loopAf(bron, wens);
        inBoom_.clear();
        if (opties_.naar && opties_.recursief) {
            keurOmweg(bron, delen, *opties_.naar);
        }
        for (const Boomdeel& deel : delen) {
            if (deel.soort != kern::Bestandssoort::anders && deel.soort != kern::Bestandssoort::onbekend) {
                inBoom_.insert(deel.pad);
            }
        }
        for (const Boomdeel& deel : delen) {
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

    /// Een directory van de bron kan ergens anders aangekoppeld zijn: dan is aan haar pad niet te zien dat de
    /// bestemming erin ligt.
    static void keurOmweg(const std::string& bron, const std::vector<Boomdeel>& delen,
                          const std::string& naar) {
        const std::vector<kern::Kenmerken> omhoog = leesOmhoog(naar);
        for (const Boomdeel& deel : delen) {
            const std::string pad = kern::plak(bron, deel.pad);
            kern::Kenmerken kenmerken;
            if (deel.soort == kern::Bestandssoort::directory && !kern::leesKenmerken(pad, kenmerken) &&
                std::any_of(omhoog.begin(), omhoog.end(),
                            [&](const auto& plaats) { return plaats.isZelfdePlaats(kenmerken); })) {
                throw Fout((naar + ": ligt in de bron, via ").append(pad) + "; kies een bestemming erbuiten");
            }
        }
    }

    /// Van een plaats die er misschien nog niet is, en van elke directory erboven.
    static std::vector<kern::Kenmerken> leesOmhoog(const std::string& plaats) {
        std::vector<kern::Kenmerken> uit;
        for (fs::path hier = maakEcht(plaats);; hier = hier.parent_path()) {
            kern::Kenmerken kenmerken;
            if (!kern::leesKenmerken(hier.string(), kenmerken)) {
                uit.push_back(kenmerken);
            }
            if (!hier.has_relative_path()) {
                return uit;
            }
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
        if (!heleBoom && !kiezer_.isGekozen(deel.pad)) {
            return;
        }
        const std::string bezwaar = keurLink(boom, deel, heleBoom);
        if (!bezwaar.empty()) {
            plan_.waarschuwingen.push_back(bron + ": is een link " + bezwaar + "; overgeslagen");
        } else if (heleBoom) {
            voegToe(Handeling::legLink, bron, doel);
        } else if (opties_.naar && !isDirectory(bron)) {
            voegToe(Handeling::knip, bron, doel);
        }
    }

    /// Waarom een link niet meegaat; leeg als zij meegaat.
    std::string keurLink(const std::string& boom, const Boomdeel& deel, bool heleBoom) const {
        const Linkweg weg = volgLink(boom, deel.pad);
        switch (weg.uitkomst) {
            case Linkuitkomst::erbuiten:
                return "die buiten " + boom + " uitkomt";
            case Linkuitkomst::nergens:
                return "die nergens heen wijst";
            case Linkuitkomst::binnen:
                break;
        }
        const auto achter = std::find_if(weg.langs.begin(), weg.langs.end(),
                                         [this](const std::string& pad) { return !inBoom_.contains(pad); });
        return heleBoom && achter != weg.langs.end()
                   ? "naar " + kern::plak(boom, *achter) + ", en dat gaat niet mee"
                   : std::string();
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

    void keurBestemmingen() const {
        for (const Taak& taak : plan_.taken) {
            if (!taak.doel.empty() && !opties_.terPlaatse) {
                keurBestemming(taak);
            }
        }
        if (opties_.uit) {
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
    std::set<std::string> inBoom_;               ///< wat daarin gevonden is en mee kan
    std::set<std::string> terPlaatse_;           ///< echte paden die al aan de beurt zijn
};

}  // namespace

Plan maakPlan(const Opties& opties) {
    return Planner(opties).maak();
}

}  // namespace cli
