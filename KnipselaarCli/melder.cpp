#include "KnipselaarCli/melder.h"

#include <array>
#include <cstdio>
#include <cstdlib>

#include "Knipselaar/kern/systeem/bestand.h"
#include "KnipselaarCli/bestanden.h"
#include "KnipselaarCli/fout.h"
#include "KnipselaarCli/leesbaar.h"

namespace cli {

namespace {

constexpr std::string_view programma = "knipselaar-cli";
constexpr std::chrono::milliseconds tussenpoos(100);

void schrijfFoutkanaal(std::string_view tekst) {
    // Is er geen foutkanaal, dan is er ook niemand om dat aan te melden.
    std::fwrite(tekst.data(), 1, tekst.size(), stderr);
}

bool magKleur() {
    const char* geenKleur = std::getenv("NO_COLOR");
    const char* terminal = std::getenv("TERM");
    return kern::isTerminal(kern::foutkanaal) && (geenKleur == nullptr || *geenKleur == '\0') &&
           terminal != nullptr && std::string_view(terminal) != "dumb";
}

/// Minuten en seconden, met de uren ervoor als die er zijn.
std::string noemDuur(std::chrono::seconds duur) {
    constexpr long long per = 60;
    const auto alles = static_cast<long long>(duur.count());
    std::array<char, 32> tekst{};
    if (alles < per * per) {
        std::snprintf(tekst.data(), tekst.size(), "%lld:%02lld", alles / per, alles % per);
    } else {
        std::snprintf(tekst.data(), tekst.size(), "%lld:%02lld:%02lld", alles / per / per, alles / per % per,
                      alles % per);
    }
    return tekst.data();
}

/// Of er genoeg gedaan is om te zeggen hoe lang de rest duurt.
bool kanSchatten(std::size_t gedaan, std::size_t totaal) {
    constexpr std::size_t genoeg = 100;
    constexpr std::size_t deel = 20;
    return gedaan >= genoeg || gedaan >= totaal / deel;
}

}  // namespace

Melder::Melder(bool stil)
    : stil_(stil), kleur_(magKleur()), voortgang_(!stil && kern::isTerminal(kern::foutkanaal)) {}

void Melder::meld(std::string_view pad, const Melding& melding) {
    std::string plaats(pad);
    if (melding.regel > 0) {
        plaats += ':';
        plaats += std::to_string(melding.regel);
    }
    schrijfMelding(plaats, melding.ernst, melding.tekst);
}

void Melder::meldRun(std::string_view tekst, Ernst ernst) {
    schrijfMelding(programma, ernst, tekst);
}

void Melder::schrijfMelding(std::string_view voor, Ernst ernst, std::string_view tekst) {
    if (stil_ && ernst == Ernst::waarschuwing) {
        return;
    }
    wisVoortgang();
    const std::string_view naam = ernst == Ernst::fout ? "fout" : "waarschuwing";
    const std::string_view aan = !kleur_ ? "" : ernst == Ernst::fout ? "\x1b[1;31m" : "\x1b[1;35m";
    const std::string_view uit = kleur_ ? "\x1b[0m" : "";
    std::string regel = maakLeesbaar(voor);
    for (const std::string_view deel :
         {std::string_view(": "), aan, naam, std::string_view(":"), uit, std::string_view(" ")}) {
        regel += deel;
    }
    schrijfFoutkanaal(regel + maakLeesbaar(tekst) + "\n");
}

void Melder::toonUitvoer(std::string_view uitvoer) {
    if (uitvoer.empty()) {
        return;
    }
    wisVoortgang();
    schrijfFoutkanaal(std::string(uitvoer) + (uitvoer.ends_with('\n') ? "" : "\n"));
}

void Melder::schrijf(std::string_view tekst) {
    wisVoortgang();
    try {
        schrijfAlles(kern::uitvoerkanaal, [tekst](const Ontvanger& uit) { uit(tekst); });
    } catch (const Fout& fout) {
        throw Fout(std::string("standaarduitvoer: kan niet geschreven worden: ") + fout.what());
    }
}

void Melder::meldVoortgang(std::size_t gedaan, std::size_t totaal) {
    const Klok::time_point nu = Klok::now();
    if (!voortgang_ || totaal < 2 || (gedaan > 1 && nu - getoond_ < tussenpoos)) {
        return;
    }
    getoond_ = nu;
    zichtbaar_ = true;
    std::string regel = "\r";
    regel += std::to_string(gedaan) + "/" + std::to_string(totaal) + " bestanden";
    if (kanSchatten(gedaan, totaal)) {
        const auto nog = (nu - begin_) * (totaal - gedaan) / gedaan;
        regel += ", nog " + noemDuur(std::chrono::ceil<std::chrono::seconds>(nog));
    }
    schrijfFoutkanaal(regel + "\x1b[K");
}

void Melder::wisVoortgang() {
    if (zichtbaar_) {
        schrijfFoutkanaal("\r\x1b[K");
        zichtbaar_ = false;
    }
}

}  // namespace cli
