#include "KnipselaarCli/bestanden.h"

#include <algorithm>
#include <array>

#include "Knipselaar/kern/blokgrootte.h"
#include "Knipselaar/kern/systeem/aantekening.h"
#include "Knipselaar/kern/systeem/bestand.h"
#include "Knipselaar/kern/systeem/buurbestand.h"
#include "Knipselaar/kern/systeem/paden.h"
#include "KnipselaarCli/fout.h"

namespace cli {

namespace {

using std::filesystem::perms;

constexpr std::size_t leesBlok = 256 * 1024;
/// Eén byte om het einde mee te vinden, en één voor wie er nog iets achter wil.
constexpr std::size_t kleinsteRuimte = 2;

[[noreturn]] void gooi(const std::string& pad, const char* wat, const std::error_code& fout) {
    throw Fout(pad + ": kan niet " + wat + " worden: " + noemReden(fout));
}

/// Leest tot het einde, achter wat er al is.
std::error_code leesVerder(int kanaal, kern::Bytes& bytes) {
    for (;;) {
        const std::size_t lengte = bytes.geef().size();
        if (bytes.geefRuimte() - lengte < kleinsteRuimte) {
            bytes.maakPlaats(leesBlok);
        }
        const kern::Gelezen gelezen =
            kern::lees(kanaal, {bytes.geefBegin() + lengte, bytes.geefRuimte() - lengte});
        if (gelezen.fout || gelezen.aantal == 0) {
            return gelezen.fout;
        }
        bytes.zetLengte(lengte + gelezen.aantal);
    }
}

kern::Bytes leesStandaardinvoer() {
    kern::Bytes bytes;
    if (const auto fout = leesVerder(kern::invoerkanaal, bytes)) {
        gooi("standaardinvoer", "gelezen", fout);
    }
    return bytes;
}

/// Waar een aantekening mee begint.
std::string noemSoort(Uitvoersoort soort) {
    constexpr std::array namen{"bestand", "directory", "boom"};
    return namen.at(static_cast<std::size_t>(soort));
}

/// Wat er bij een uitvoerbestand aangetekend wordt: wie het daarna nog schrijft, verandert lengte of tijd.
std::string maakAantekening(Uitvoersoort soort, const kern::Kenmerken& kenmerken) {
    std::string tekst = noemSoort(soort);
    for (const std::string& getal : {std::to_string(kenmerken.lengte), std::to_string(kenmerken.seconden),
                                     std::to_string(kenmerken.nanoseconden)}) {
        tekst += ' ';
        tekst += getal;
    }
    return tekst;
}

/// Lukt de aantekening niet, dan vraagt een volgende run of het bestand overschreven mag worden.
void tekenAan(int kanaal, Uitvoersoort soort) {
    kern::Kenmerken kenmerken;
    if (!kern::leesKenmerken(kanaal, kenmerken)) {
        kern::tekenAan(kanaal, maakAantekening(soort, kenmerken));
    }
}

void schrijfBytes(int kanaal, std::string_view bytes) {
    if (const auto fout = kern::schrijf(kanaal, bytes)) {
        throw Fout(noemReden(fout));
    }
}

}  // namespace

kern::Bytes leesStroom(const std::string& pad) {
    if (pad == standaardinvoer) {
        return leesStandaardinvoer();
    }
    const kern::Opening bron = kern::openStroom(pad);
    kern::Bytes bytes;
    const auto fout = bron.fout ? bron.fout : leesVerder(bron.bestand.geefKanaal(), bytes);
    if (fout) {
        gooi(pad, "gelezen", fout);
    }
    return bytes;
}

Inhoud leesInhoud(const std::string& pad) {
    Inhoud inhoud;
    if (pad == standaardinvoer) {
        inhoud.kenmerken.rechten = gewoneRechten;
        inhoud.bytes = leesStandaardinvoer();
        return inhoud;
    }
    const kern::Opening bron = kern::openBron(pad);
    if (bron.fout) {
        gooi(pad, "gelezen", bron.fout);
    }
    if (!bron.bestand.isOpen()) {
        throw Fout(pad + (bron.kenmerken.soort == kern::Bestandssoort::directory
                              ? ": is een directory; noem een bestand, of geef --naar of --ter-plaatse"
                              : ": is geen gewoon bestand; gebruik '-' voor de standaardinvoer"));
    }
    inhoud.kenmerken = bron.kenmerken;
    // Het bestand mag intussen korter of langer geworden zijn.
    inhoud.bytes.maakRuimte(static_cast<std::size_t>(bron.kenmerken.lengte) + kleinsteRuimte);
    if (const auto fout = leesVerder(bron.bestand.geefKanaal(), inhoud.bytes)) {
        gooi(pad, "gelezen", fout);
    }
    return inhoud;
}

void schrijfAlles(int kanaal, const Stukken& stukken) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): wordt gevuld
    std::array<char, kern::blokGrootte> plaats;
    kern::Bytes blok = kern::Bytes::leen(plaats);
    stukken([&](std::string_view stuk) {
        if (blok.geef().size() + stuk.size() > kern::blokGrootte) {
            schrijfBytes(kanaal, blok.geef());
            blok.zetLengte(0);
        }
        if (stuk.size() > kern::blokGrootte) {
            schrijfBytes(kanaal, stuk);
        } else {
            blok.voegToe(stuk);
        }
    });
    schrijfBytes(kanaal, blok.geef());
}

void schrijfUitvoer(const std::string& pad, const Stukken& stukken, perms rechten, Uitvoersoort soort) {
    kern::Buurbestand nieuw(pad);
    if (!nieuw.isOpen()) {
        gooi(pad, "geschreven", nieuw.geefFout());
    }
    try {
        schrijfAlles(nieuw.geefKanaal(), stukken);
    } catch (const Fout& fout) {
        throw Fout(pad + ": kan niet geschreven worden: " + fout.what());
    }
    tekenAan(nieuw.geefKanaal(), soort);
    if (const auto fout = nieuw.ruil(rechten)) {
        gooi(pad, "geschreven", fout);
    }
}

Uitvoerstand keurUitvoer(const std::string& pad, Uitvoersoort soort) {
    const std::string aantekening = kern::leesAantekening(pad);
    kern::Kenmerken kenmerken;
    if (!aantekening.starts_with(noemSoort(soort) + ' ') || kern::leesEigenKenmerken(pad, kenmerken)) {
        return Uitvoerstand::geen;
    }
    return aantekening == maakAantekening(soort, kenmerken) ? Uitvoerstand::eerder : Uitvoerstand::veranderd;
}

bool isEerdereUitvoer(const std::string& pad, Uitvoersoort soort) {
    return keurUitvoer(pad, soort) == Uitvoerstand::eerder;
}

Klaargezet::Klaargezet(std::string pad, const std::string& echt, const kern::Kenmerken& gelezen,
                       const Stukken& stukken)
    : pad_(std::move(pad)), echt_(echt), gelezen_(gelezen), nieuw_(echt) {
    if (!nieuw_.isOpen()) {
        throw Fout(pad_ + ": blijft zoals het is: ernaast is geen bestand te maken: " +
                   noemReden(nieuw_.geefFout()));
    }
    try {
        schrijfAlles(nieuw_.geefKanaal(), stukken);
    } catch (const Fout& fout) {
        throw Fout(pad_ + ": blijft zoals het is: " + fout.what());
    }
    if (const auto fout = nieuw_.maakKlaar(gelezen_)) {
        gooi(pad_, "vervangen", fout);
    }
}

std::string Klaargezet::geefDirectory() const {
    return echt_.substr(0, echt_.size() - kern::geefNaam(echt_).size());
}

void Klaargezet::keur() const {
    kern::Kenmerken nu;
    if (const auto fout = kern::leesEigenKenmerken(echt_, nu)) {
        gooi(pad_, "vervangen", fout);
    }
    // Tussen lezen en vervangen komen alle andere bestanden; intussen kan iemand dit bewaard hebben.
    if (!nu.isOngewijzigd(gelezen_)) {
        throw Fout(pad_ + ": blijft zoals het is: is intussen veranderd; knip het opnieuw");
    }
}

void Klaargezet::vervang() {
    keur();
    if (const auto fout = nieuw_.neemPlaatsIn()) {
        gooi(pad_, "vervangen", fout);
    }
}

}  // namespace cli
