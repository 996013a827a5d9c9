#include "KnipselaarCli/samengaan.h"

#include <algorithm>

#include "KnipselaarCli/bestanden.h"
#include "KnipselaarCli/fout.h"

namespace cli {

namespace {

void keurUitgang(const Opties& opties) {
    if ((opties.uit || opties.naarStandaarduitvoer ? 1 : 0) + (opties.naar ? 1 : 0) +
            (opties.terPlaatse ? 1 : 0) >
        1) {
        throw Fout("--uit, --naar en --ter-plaatse gaan niet samen; kies er één");
    }
    if (opties.bronnen.empty()) {
        throw Fout("er is niets om te knippen; noem een bestand, een directory, of '-'");
    }
    if (opties.bronnen.size() > 1 && (opties.uit || opties.naarUitvoer())) {
        throw Fout("er zijn " + std::to_string(opties.bronnen.size()) +
                   " bronnen voor één uitvoer; geef --naar of --ter-plaatse");
    }
    const bool metInvoer =
        std::find(opties.bronnen.begin(), opties.bronnen.end(), standaardinvoer) != opties.bronnen.end();
    if (metInvoer && (opties.naar || opties.terPlaatse)) {
        throw Fout("de standaardinvoer ('-') heeft geen naam; gebruik --uit of de standaarduitvoer");
    }
    if (metInvoer && opties.bronnen.size() > 1) {
        throw Fout("'-' gaat niet samen met andere bronnen; geef hem alleen");
    }
}

void keurUitvoer(const Opties& opties) {
    if (opties.json && (opties.naarUitvoer() || opties.opdracht == Opdracht::verschil)) {
        throw Fout(
            "--json gaat niet samen met een knipsel of verschil op de standaarduitvoer; geef --uit, --naar, "
            "--ter-plaatse, --controle of --droog");
    }
    if (opties.allesOfNiets && !opties.terPlaatse) {
        throw Fout("--alles-of-niets hoort bij --ter-plaatse; alleen daar verandert een origineel");
    }
    if (opties.spiegel && !opties.naar) {
        throw Fout("--spiegel hoort bij --naar; alleen een directory kan iets over hebben");
    }
    if (opties.spiegel && (opties.opdracht == Opdracht::controle || opties.opdracht == Opdracht::verschil)) {
        throw Fout("--spiegel gaat niet samen met --controle of --verschil; die veranderen geen bestemming");
    }
    if (opties.probeer && (!opties.schrijft() || opties.naarUitvoer())) {
        throw Fout("--probeer heeft geknipte bestanden nodig; geef --uit, --naar of --ter-plaatse");
    }
    if (opties.afhankelijk && (!opties.schrijft() || (!opties.uit && !opties.naar))) {
        throw Fout(
            "--afhankelijk hoort bij --uit of --naar; alleen dan hangt er een knipsel van een bron af");
    }
}

void keurKeuze(const Opties& opties) {
    if (opties.keuze && !opties.maskers.empty()) {
        throw Fout("--keuze en --masker gaan niet samen; met --masker kiest u alles zelf");
    }
}

void keurVorm(const Opties& opties) {
    const bool isOplossing = opties.teksten.versie == Versie::oplossing;
    if (opties.manier == Manier::venster) {
        if (opties.inspringen) {
            throw Fout("--inspringen gaat niet samen met --als-venster; het venster springt niet in");
        }
        if (isOplossing || opties.regelsGelijk || !opties.teksten.houd.empty() ||
            !opties.teksten.geef.empty()) {
            throw Fout(
                "--maak, --houd, --geef en --regels-gelijk gaan niet samen met --als-venster; het venster "
                "kent ze niet");
        }
    }
    if (isOplossing && !opties.teksten.houd.empty()) {
        throw Fout("--houd gaat niet samen met --maak oplossing; die houdt van elk paar wat erin staat");
    }
}

void keurBewijs(const Opties& opties) {
    if (!opties.bewijs) {
        if (opties.bewijsLengte || !opties.toegestaan.empty()) {
            throw Fout("--bewijs-lengte en --bewijs-toegestaan horen bij --bewijs; geef dat ook");
        }
        return;
    }
    if (opties.teksten.versie == Versie::oplossing) {
        throw Fout("--bewijs gaat niet samen met --maak oplossing; daar staat de oplossing juist in");
    }
    if (opties.versiebeheer) {
        throw Fout("--bewijs gaat niet samen met --versiebeheer; in de geschiedenis staat elke oplossing");
    }
    if (opties.naarUitvoer() || (opties.opdracht == Opdracht::controle && !opties.uit && !opties.naar)) {
        throw Fout("--bewijs heeft een bestemming nodig om na te lezen; geef --uit, --naar of --ter-plaatse");
    }
    if (opties.opdracht == Opdracht::droog || opties.opdracht == Opdracht::verschil) {
        throw Fout("--bewijs gaat niet samen met --droog of --verschil; die schrijven geen bestemming");
    }
}

}  // namespace

void keurSamengaan(const Opties& opties) {
    keurUitgang(opties);
    keurKeuze(opties);
    keurBewijs(opties);
    keurUitvoer(opties);
    keurVorm(opties);
}

}  // namespace cli
