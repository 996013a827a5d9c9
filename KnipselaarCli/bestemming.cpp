#include "KnipselaarCli/bestemming.h"

#include <algorithm>
#include <filesystem>

#include "Knipselaar/kern/systeem/directory.h"
#include "Knipselaar/kern/systeem/paden.h"
#include "KnipselaarCli/fout.h"

namespace cli {

namespace fs = std::filesystem;

namespace {

bool bestaat(const std::string& pad) {
    kern::Kenmerken kenmerken;
    return !kern::leesEigenKenmerken(pad, kenmerken);
}

/// Van een plaats die er misschien nog niet is, en van elke directory erboven.
std::vector<kern::Kenmerken> leesOmhoog(const std::string& plaats) {
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

bool isEerder(const Taak& taak, Uitvoersoort soort) {
    if (kern::isLink(taak.doel)) {
        return taak.handeling == Handeling::legLink && kern::leesLink(taak.doel) == kern::leesLink(taak.bron);
    }
    return isEerdereUitvoer(taak.doel, soort);
}

void keurBestemming(const Taak& taak, const Opties& opties, Uitvoersoort soort) {
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
            throw Fout(doel + ": is een link; haal haar weg, anders wordt er buiten " + *opties.naar +
                       " geschreven");
        }
        if (!isDirectory(doel)) {
            throw Fout(doel + ": bestaat al en is geen directory; haal het weg");
        }
        return;
    }
    if (isDirectory(doel) && !kern::isLink(doel)) {
        throw Fout(doel + (opties.uit ? ": is een directory; geef --naar, of noem een bestand"
                                      : ": bestaat al en is een directory; haal haar weg"));
    }
    kern::Kenmerken kenmerken;
    if (!kern::leesEigenKenmerken(doel, kenmerken) && kenmerken.soort != kern::Bestandssoort::bestand &&
        kenmerken.soort != kern::Bestandssoort::link) {
        throw Fout(doel + ": bestaat al en is geen gewoon bestand; kies een andere bestemming");
    }
    if (!opties.overschrijf && !isEerder(taak, soort)) {
        throw Fout(doel +
                   ": bestaat al en is geen eerdere uitvoer van zo'n run; geef --overschrijf om het te "
                   "vervangen");
    }
}

}  // namespace

bool isDirectory(const std::string& pad) {
    kern::Kenmerken kenmerken;
    return !kern::leesKenmerken(pad, kenmerken) && kenmerken.soort == kern::Bestandssoort::directory;
}

void keurNaar(const std::string& naar) {
    if (bestaat(naar) && !isDirectory(naar)) {
        throw Fout(naar + ": is geen directory; geef met --naar een directory, of --uit voor één bestand");
    }
}

void keurLigging(const std::string& bron, const std::string& naar) {
    const std::string echteBron = maakEcht(bron);
    const std::string echteNaar = maakEcht(naar);
    if (echteBron == echteNaar || kern::isZelfdePlaats(bron, naar)) {
        throw Fout(naar + ": is dezelfde directory als " + bron + "; kies een andere, of geef --ter-plaatse");
    }
    if (kern::ligtIn(echteNaar, echteBron)) {
        throw Fout(naar + ": ligt in de bron " + bron + "; kies een bestemming erbuiten");
    }
    if (kern::ligtIn(echteBron, echteNaar)) {
        throw Fout(naar + ": daar ligt de bron " + bron + " in; kies een andere bestemming");
    }
}

void keurOmweg(const std::string& bron, const std::vector<Boomdeel>& delen, const std::string& naar) {
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

void keurBestemmingen(const Plan& plan, const Opties& opties) {
    for (const Taak& taak : plan.taken) {
        if (!taak.doel.empty() && !opties.terPlaatse) {
            keurBestemming(taak, opties, plan.soort);
        }
    }
    if (opties.uit) {
        keurOuder(*opties.uit);
    }
}

void keurOuder(const std::string& pad) {
    const std::string ouder = fs::path(pad).parent_path().string();
    if (!ouder.empty() && !isDirectory(ouder)) {
        throw Fout(pad + ": de directory " + ouder + " bestaat niet; maak haar eerst");
    }
}

void keurPlaats(const std::string& doel) {
    if (doel.empty()) {
        return;
    }
    std::error_code fout;
    fs::path directory =
        fs::absolute(kern::isLink(doel) ? fs::path(maakEcht(doel)) : fs::path(doel)).parent_path();
    while (!fs::exists(directory, fout) && directory.has_relative_path()) {
        directory = directory.parent_path();
    }
    if (const auto bezwaar = kern::keurSchrijfbaar(directory.string())) {
        throw Fout(doel + ": kan niet geschreven worden: " + noemReden(bezwaar));
    }
}

}  // namespace cli
