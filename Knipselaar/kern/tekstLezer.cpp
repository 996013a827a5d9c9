#include "Knipselaar/kern/tekstLezer.h"

#include <wx/txtstrm.h>

#include <algorithm>
#include <cstring>

#include "Knipselaar/kern/breedHersteller.h"

namespace kern {

namespace {

// Het eerste blok is klein: de meeste bronbestanden passen erin, en een groot blok klaarleggen kost dan meer
// dan het hele bestand knippen. Daarna verdubbelt het.
constexpr std::size_t grootsteBlok = 256 * 1024;
constexpr std::string_view utf8Merkteken = "\xEF\xBB\xBF";

/// Een of twee NULs zijn het begin van het UTF-32-merkteken. Bestaat de hele tekst daaruit, dan wacht de
/// toolkit op de rest ervan en blijft er één lege regel over.
bool isAfgebrokenMerkteken(std::string_view tekst) {
    return tekst.size() <= 2 && std::all_of(tekst.begin(), tekst.end(), [](char c) { return c == '\0'; });
}

}  // namespace

TekstLezer::TekstLezer(wxInputStream& invoer) : invoer_(invoer) {}

TekstLezer::~TekstLezer() = default;

std::string_view TekstLezer::leesRegels() {
    if (gegeven_ > 0) {
        std::memmove(buffer_.data(), buffer_.data() + gegeven_, vulling_ - gegeven_);
        vulling_ -= gegeven_;
        gegeven_ = 0;
    }
    while (!klaar_) {
        const std::size_t doorzocht = vulling_;
        vulAan();
        const std::string_view nieuw(buffer_.data() + doorzocht, vulling_ - doorzocht);
        const std::size_t laatste = nieuw.rfind('\n');
        if (laatste != std::string_view::npos) {
            gegeven_ = doorzocht + laatste + 1;
            return {buffer_.data(), gegeven_};
        }
    }
    return {};
}

void TekstLezer::vulAan() {
    if (breed_) {
        leesBreed();
        return;
    }
    if (buffer_.size() < vulling_ + blok_) {
        buffer_.resize(std::max(2 * buffer_.size(), vulling_ + blok_));
    }
    const std::size_t gelezen = leesBlok(invoer_, buffer_.data() + vulling_, blok_);
    blok_ = std::min(2 * blok_, grootsteBlok);
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

/// Neemt het eerste blok: haalt een UTF-8-merkteken af, of geeft een brede tekst uit handen.
void TekstLezer::beginTekst(std::size_t gelezen) {
    const std::string_view begin(buffer_.data(), gelezen);
    if (const auto formaat = herkenBreedFormaat(begin)) {
        hersteller_ = std::make_unique<BreedHersteller>(begin, invoer_, *formaat);
        breed_ = std::make_unique<wxTextInputStream>(*hersteller_, " \t", wxConvAuto());
    } else if (begin.starts_with(utf8Merkteken)) {
        const std::size_t rest = gelezen - utf8Merkteken.size();
        std::memmove(buffer_.data(), buffer_.data() + utf8Merkteken.size(), rest);
        voegRuwToe(rest);
    } else if (!isAfgebrokenMerkteken(begin)) {
        voegRuwToe(gelezen);
    }
}

/// Maakt ruwe bytes die achter de tekst in de buffer staan tot tekst. Meestal zijn ze dat al.
void TekstLezer::voegRuwToe(std::size_t gelezen) {
    const std::string_view ruw(buffer_.data() + vulling_, gelezen);
    if (omzetter_.isAlGoed(ruw)) {
        vulling_ += gelezen;
        return;
    }
    omgezet_.clear();
    omzetter_.zetOm(ruw, omgezet_);
    voegToe(omgezet_);
}

void TekstLezer::voegToe(std::string_view tekst) {
    if (buffer_.size() < vulling_ + tekst.size()) {
        buffer_.resize(std::max(2 * buffer_.size(), vulling_ + tekst.size()));
    }
    std::copy(tekst.begin(), tekst.end(), buffer_.begin() + static_cast<std::ptrdiff_t>(vulling_));
    vulling_ += tekst.size();
}

void TekstLezer::sluitAf() {
    klaar_ = true;
    heelGelezen_ = invoer_.GetLastError() == wxSTREAM_EOF;
    omgezet_.clear();
    omzetter_.sluitAf(omgezet_);
    voegToe(omgezet_);
}

/// Haalt een blok regels bij de tekststroom van de toolkit. Vóór elke regel vragen of het einde bereikt is
/// bepaalt of er na het laatste regeleinde nog een lege regel komt.
void TekstLezer::leesBreed() {
    const std::size_t genoeg = vulling_ + grootsteBlok;
    while (vulling_ < genoeg) {
        if (hersteller_->isUitgeput()) {
            klaar_ = true;
            heelGelezen_ = invoer_.GetLastError() == wxSTREAM_EOF;
            return;
        }
        voegToe(breed_->ReadLine().utf8_string() + '\n');
    }
}

}  // namespace kern
