#include "Knipselaar/kern/tekstLezer.h"

#include <wx/txtstrm.h>

#include <algorithm>
#include <cstring>

#include "Knipselaar/kern/breedHersteller.h"

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

TekstLezer::~TekstLezer() = default;

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
    if (breed_) {
        leesBreed();
        return;
    }
    std::string_view gelezen;
    if (invoer_.GetLastError() == wxSTREAM_NO_ERROR) {
        Bytes& plaats = naast_ ? ruw_ : tekst_;
        plaats.maakPlaats(blok_);
        char* begin = plaats.geefBegin() + plaats.geef().size();
        gelezen = {begin, leesBlok(invoer_, begin, blok_)};
        blok_ = std::min(2 * blok_, grootsteBlok);
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

/// Neemt het eerste blok: haalt een UTF-8-merkteken af, of geeft een brede tekst uit handen.
void TekstLezer::beginTekst(std::string_view begin) {
    if (const auto formaat = herkenBreedFormaat(begin)) {
        hersteller_ = std::make_unique<BreedHersteller>(begin, invoer_, *formaat);
        breed_ = std::make_unique<wxTextInputStream>(*hersteller_, " \t", wxConvAuto());
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

void TekstLezer::sluitAf() {
    klaar_ = true;
    heelGelezen_ = invoer_.GetLastError() == wxSTREAM_EOF;
    omzetter_.sluitAf(tekst_);
}

/// Haalt een blok regels bij de tekststroom van de toolkit. Vóór elke regel vragen of het einde bereikt is
/// bepaalt of er na het laatste regeleinde nog een lege regel komt.
void TekstLezer::leesBreed() {
    const std::size_t genoeg = tekst_.geef().size() + grootsteBlok;
    while (tekst_.geef().size() < genoeg) {
        if (hersteller_->isUitgeput()) {
            klaar_ = true;
            heelGelezen_ = invoer_.GetLastError() == wxSTREAM_EOF;
            return;
        }
        tekst_.voegToe(breed_->ReadLine().utf8_string() + '\n');
    }
}

}  // namespace kern
