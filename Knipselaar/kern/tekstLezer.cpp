#include "Knipselaar/kern/tekstLezer.h"

#include <algorithm>
#include <cstring>

#include "Knipselaar/kern/blokgrootte.h"

namespace kern {

namespace {

constexpr std::string_view utf8Merkteken = "\xEF\xBB\xBF";

/// Een of twee NULs zijn het begin van het UTF-32-merkteken. Bestaat de hele tekst daaruit, dan wacht de
/// toolkit op de rest ervan en blijft er één lege regel over.
bool isAfgebrokenMerkteken(std::string_view tekst) {
    return tekst.size() <= 2 && std::all_of(tekst.begin(), tekst.end(), [](char c) { return c == '\0'; });
}

}  // namespace

// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): het lezen vult begin_
TekstLezer::TekstLezer(wxInputStream& invoer) : invoer_(invoer) {}

std::string_view TekstLezer::leesRegels() {
    if (gegeven_ > 0) {
        const std::size_t rest = tekst_.geef().size() - gegeven_;
        std::memmove(tekst_.geefBegin(), tekst_.geefBegin() + gegeven_, rest);
        tekst_.zetLengte(rest);
        gegeven_ = 0;
    }
    while (!klaar_) {
        const std::size_t doorzocht = tekst_.geef().size();
        vulAan();
        const std::size_t laatste = tekst_.geef().substr(doorzocht).rfind('\n');
        if (laatste != std::string_view::npos) {
            gegeven_ = doorzocht + laatste + 1;
            return tekst_.geef().substr(0, gegeven_);
        }
    }
    return {};
}

void TekstLezer::vulAan() {
    std::string_view gelezen;
    // Wat er na een leesfout nog uit de bron komt, hoeft niet aan te sluiten op wat er al was.
    if (invoer_.GetLastError() == wxSTREAM_NO_ERROR) {
        Bytes& plaats = naast_ ? ruw_ : tekst_;
        plaats.maakPlaats(blok_);
        char* begin = plaats.geefBegin() + plaats.geef().size();
        gelezen = {begin, invoer_.Read(begin, blok_).LastRead()};
        // Begint klein: een groot blok klaarleggen kost meer dan een gemiddeld bestand knippen.
        blok_ = std::min(2 * blok_, blokGrootte);
    }
    if (!begonnen_) {
        begonnen_ = true;
        beginTekst(gelezen);
    } else {
        voegRuwToe(gelezen);
    }
    if (gelezen.empty()) {
        sluitAf();
    }
}

/// Neemt het eerste blok: haalt een merkteken eraf, en onthoudt of het een brede tekst aanwees.
void TekstLezer::beginTekst(std::string_view begin) {
    if (const auto formaat = herkenBreedFormaat(begin)) {
        breed_.emplace(*formaat);
        voegBreedToe(begin.substr(formaat->eenheid));
    } else if (begin.starts_with(utf8Merkteken)) {
        const std::size_t rest = begin.size() - utf8Merkteken.size();
        std::memmove(tekst_.geefBegin(), tekst_.geefBegin() + utf8Merkteken.size(), rest);
        voegRuwToe(begin.substr(0, rest));
    } else if (!isAfgebrokenMerkteken(begin)) {
        voegRuwToe(begin);
    }
}

/// Maakt de bytes van een blok tot tekst. Meestal zijn ze dat al, en staan ze er al achter.
void TekstLezer::voegRuwToe(std::string_view ruw) {
    if (breed_) {
        voegBreedToe(ruw);
        return;
    }
    const bool goed = omzetter_.isAlGoed(ruw);
    if (goed && !naast_) {
        tekst_.zetLengte(tekst_.geef().size() + ruw.size());
        return;
    }
    if (!naast_) {
        // De tekst komt waar de bytes nu staan, en kan langer zijn.
        ruw_.voegToe(ruw);
        ruw = ruw_.geef();
    }
    naast_ = !goed;
    if (goed) {
        tekst_.voegToe(ruw);
    } else {
        omzetter_.zetOm(ruw, tekst_);
    }
    ruw_.zetLengte(0);
}

/// De regels van een brede tekst eindigen zoals die van elke andere.
void TekstLezer::voegBreedToe(std::string_view ruw) {
    smal_.zetLengte(0);
    breed_->zetOm(ruw, smal_);
    omzetter_.zetOm(smal_.geef(), tekst_);
}

void TekstLezer::sluitAf() {
    klaar_ = true;
    heelGelezen_ = invoer_.GetLastError() == wxSTREAM_EOF;
    if (breed_) {
        smal_.zetLengte(0);
        breed_->sluitAf(smal_);
        omzetter_.zetOm(smal_.geef(), tekst_);
    }
    omzetter_.sluitAf(tekst_);
}

}  // namespace kern
