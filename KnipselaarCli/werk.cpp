#include "KnipselaarCli/werk.h"

#include <algorithm>
#include <filesystem>

#include "Knipselaar/kern/systeem/directory.h"
#include "Knipselaar/kern/utf8.h"
#include "KnipselaarCli/bestemming.h"
#include "KnipselaarCli/fout.h"
#include "KnipselaarCli/knipbeurt.h"
#include "KnipselaarCli/opruiming.h"
#include "KnipselaarCli/regels.h"

namespace cli {

namespace fs = std::filesystem;

namespace {

/// Een directory uit de boom houdt haar rechten; de bestemming zelf is nieuw.
void maakDirectory(const Taak& taak) {
    kern::Kenmerken kenmerken;
    const bool uitBoom = !taak.bron.empty() && !kern::leesKenmerken(taak.bron, kenmerken);
    if (const auto fout =
            uitBoom ? kern::maakDirectory(taak.doel, kenmerken.rechten) : kern::maakDirectories(taak.doel)) {
        throw Fout(taak.doel + ": kan niet gemaakt worden: " + noemReden(fout));
    }
}

/// Wat er te melden is over een bestand dat heel meegaat: de eerste marker, want wat die omsluit gaat dan ook
/// mee, en elke regel die bijna een marker is. Bij een bewijs blijkt een marker bij het nalezen.
std::vector<Melding> keurOvername(std::string_view tekst, const Opties& opties, const Teksten& teksten) {
    std::vector<Melding> meldingen;
    kern::Markerloper loper(teksten.markers, tekst);
    std::size_t nummer = 1;
    std::size_t plek = 0;
    bool heeftMarker = opties.bewijs;
    while (const auto regel = loper.volgende()) {
        nummer += kern::telRegeleinden(tekst.substr(plek, regel->begin - plek));
        plek = regel->begin;
        const std::string_view inhoud = tekst.substr(regel->begin, regel->eind - 1 - regel->begin);
        if (teksten.markers.draagtMarker(inhoud)) {
            if (!heeftMarker) {
                meldingen.push_back({.regel = nummer,
                                     .ernst = Ernst::waarschuwing,
                                     .tekst =
                                         "hier staat een marker, maar het bestand gaat heel mee; kies het "
                                         "met --masker of --keuze"});
            }
            heeftMarker = true;
        } else if (const auto bijna = teksten.markers.lijktOpMarker(inhoud);
                   bijna &&
                   !std::binary_search(opties.toegestaan.begin(), opties.toegestaan.end(), snoei(inhoud))) {
            meldingen.push_back(maakBijnaMelding(nummer, *bijna, geefErnstVanBijna(opties)));
        }
    }
    return meldingen;
}

/// De inhoud wordt ook gelezen als er niets geschreven mag worden: zo blijkt wat er bij schrijven misgaat.
Uitslag neemOver(const Taak& taak, const Opties& opties, const Teksten& teksten, Uitvoersoort soort) {
    Inhoud inhoud = leesInhoud(taak.bron);
    const Brontekst bron(std::move(inhoud.bytes), Lezing::tekst);
    Uitslag uitslag;
    uitslag.status = Status::overgenomen;
    if (!neemMeldingen(keurOvername(bron.geefTekst(), opties, teksten), opties, uitslag)) {
        return uitslag;
    }
    if (opties.schrijft()) {
        schrijfUitvoer(
            taak.doel, [&bron](const Ontvanger& uit) { uit(bron.geefRuw()); }, inhoud.kenmerken.rechten,
            soort);
    } else if (opties.opdracht == Opdracht::droog) {
        keurPlaats(taak.doel);
    }
    return uitslag;
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
        return knipBestand(taak, opties, teksten, soort);
    }
    if (taak.handeling == Handeling::neemOver) {
        return neemOver(taak, opties, teksten, soort);
    }
    Uitslag uitslag;
    if (taak.handeling == Handeling::ruimOp) {
        uitslag.status = Status::opgeruimd;
        if (opties.schrijft()) {
            ruimOp(taak.doel, soort);
        } else {
            keurOpruimen(taak.doel);
        }
        return uitslag;
    }
    uitslag.status = Status::overgenomen;
    if (!opties.schrijft()) {
        return uitslag;
    }
    if (taak.handeling == Handeling::maakDirectory) {
        maakDirectory(taak);
    } else {
        legLink(taak);
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
