#include "Knipselaar/kern/tekstLezer.h"

#include <algorithm>
#include <cstring>

namespace kern {

namespace {

// Het eerste blok is klein: een groot blok klaarleggen kost meer dan een gemiddeld bestand knippen. Daarna
// verdubbelt het.
constexpr std::size_t grootsteBlok = 256 * 1024;
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
    std::size_t gelezen = 0;
    // Wat er na een leesfout nog uit de bron komt, hoeft niet aan te sluiten op wat er al was.
    if (invoer_.GetLastError() == wxSTREAM_NO_ERROR) {
        const std::size_t vulling = tekst_.geef().size();
        if (tekst_.geefRuimte() < vulling + blok_) {
            tekst_.maakRuimte(std::max(2 * tekst_.geefRuimte(), vulling + blok_));
        }
        gelezen = invoer_.Read(tekst_.geefBegin() + vulling, blok_).LastRead();
        blok_ = std::min(2 * blok_, grootsteBlok);
    }
    if (!begonnen_) {
        begonnen_ = true;
        beginTekst(gelezen);
    } else {
        voegRuwToe(gelezen);
    }
    if (gelezen == 0) {
        sluitAf();
    }
}

/// Neemt het eerste blok: haalt een merkteken eraf, en onthoudt of het een brede tekst aanwees.
void TekstLezer::beginTekst(std::size_t gelezen) {
    const std::string_view begin(tekst_.geefBegin(), gelezen);
    if (const auto formaat = herkenBreedFormaat(begin)) {
        breed_.emplace(*formaat);
        voegBreedToe(begin.substr(formaat->eenheid));
    } else if (begin.starts_with(utf8Merkteken)) {
        const std::size_t rest = gelezen - utf8Merkteken.size();
        std::memmove(tekst_.geefBegin(), tekst_.geefBegin() + utf8Merkteken.size(), rest);
        voegRuwToe(rest);
    } else if (!isAfgebrokenMerkteken(begin)) {
        voegRuwToe(gelezen);
    }
}

/// Maakt ruwe bytes die achter de tekst staan tot tekst. Meestal zijn ze dat al.
void TekstLezer::voegRuwToe(std::size_t gelezen) {
    const std::size_t vulling = tekst_.geef().size();
    const std::string_view ruw(tekst_.geefBegin() + vulling, gelezen);
    if (breed_) {
        voegBreedToe(ruw);
        return;
    }
    if (omzetter_.isAlGoed(ruw)) {
        tekst_.zetLengte(vulling + gelezen);
        return;
    }
    omgezet_.clear();
    omzetter_.zetOm(ruw, omgezet_);
    tekst_.voegToe(omgezet_);
}

void TekstLezer::sluitAf() {
    klaar_ = true;
    heelGelezen_ = invoer_.GetLastError() == wxSTREAM_EOF;
    omgezet_.clear();
    if (breed_) {
        std::string rest;
        breed_->sluitAf(rest);
        omzetter_.zetOm(rest, omgezet_);
    }
    omzetter_.sluitAf(omgezet_);
    tekst_.voegToe(omgezet_);
}

/// De regels van een brede tekst eindigen zoals die van elke andere.
void TekstLezer::voegBreedToe(std::string_view ruw) {
    std::string smal;
    breed_->zetOm(ruw, smal);
    omgezet_.clear();
    omzetter_.zetOm(smal, omgezet_);
    tekst_.voegToe(omgezet_);
}

}  // namespace kern
