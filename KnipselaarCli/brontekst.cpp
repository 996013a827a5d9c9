#include "KnipselaarCli/brontekst.h"

#include <algorithm>
#include <utility>

#include "Knipselaar/kern/breedOmzetter.h"
#include "Knipselaar/kern/regelOmzetter.h"
#include "Knipselaar/kern/utf8.h"
#include "KnipselaarCli/breedLezer.h"
#include "KnipselaarCli/keuring.h"

namespace cli {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view utf8Merkteken = "\xEF\xBB\xBF";

/// Een of twee NULs lezen als het begin van een merkteken waar nooit meer iets van komt: één lege regel.
bool isAfgebrokenMerkteken(std::string_view bytes) {
    return bytes == "\0"sv || bytes == "\0\0"sv;
}

/// Of een stukje waar geen tekst uit kwam de tweede helft van een regeleinde is, en niet een half teken.
bool isTweedeDeel(std::string_view stukje) {
    return stukje == "\n"sv || stukje == "\0"sv;
}

Codering geefCodering(kern::BreedFormaat formaat) {
    if (formaat.eenheid == 2) {
        return formaat.grootEerst ? Codering::utf16be : Codering::utf16le;
    }
    return formaat.grootEerst ? Codering::utf32be : Codering::utf32le;
}

}  // namespace

Brontekst::Brontekst(kern::Bytes inhoud, Lezing lezing)
    : inhoud_(std::move(inhoud)), lengte_(inhoud_.geef().size()) {
    inhoud_.voegToe('\n');
    if (const auto formaat = kern::herkenBreedFormaat(geefRuw())) {
        codering_ = cli::geefCodering(*formaat);
        merk_ = formaat->eenheid;
        leesBreed();
    } else {
        merk_ = geefRuw().starts_with(utf8Merkteken) ? utf8Merkteken.size() : 0;
        leesSmal(lezing);
    }
}

std::size_t Brontekst::naarRuw(std::size_t plek) const {
    if (direct_) {
        return std::min(plek + merk_, lengte_);
    }
    const auto regel = std::lower_bound(regels_.begin(), regels_.end(), plek);
    return regel == regels_.end() ? lengte_ : ruwe_[static_cast<std::size_t>(regel - regels_.begin())];
}

void Brontekst::beginRegel(std::size_t plek, std::size_t ruw) {
    regels_.push_back(plek);
    ruwe_.push_back(ruw);
}

void Brontekst::leesSmal(Lezing lezing) {
    const std::string_view bytes = geefRuw().substr(merk_);
    if (isAfgebrokenMerkteken(bytes) && merk_ == 0) {
        beginRegel(0, 0);
        tekst_.voegToe('\n');
        return;
    }
    const Keuring keuring = keur(bytes);
    codering_ = keuring.utf8 ? Codering::utf8 : Codering::latijn1;
    const bool schoon = keuring.utf8 && keuring.kort && !keuring.heeftCR;
    direct_ = keuring.regelsGewoon && (schoon || lezing == Lezing::zuinig);
    rauw_ = direct_ && !schoon;
    alleenLF_ = direct_ && !keuring.heeftCR;
    if (direct_) {
        return;
    }
    if (lezing == Lezing::tekst) {
        zetOm(bytes);
    } else {
        deelIn(bytes, merk_);
    }
}

void Brontekst::zetOm(std::string_view smal) {
    constexpr std::size_t blok = std::size_t{256} * 1024;
    kern::RegelOmzetter omzetter;
    // Uit één byte komen er hoogstens twee; wat niet gebruikt wordt kost niets.
    tekst_.maakRuimte(2 * smal.size() + 1);
    for (; !smal.empty(); smal.remove_prefix(std::min(blok, smal.size()))) {
        omzetter.zetOm(smal.substr(0, blok), tekst_);
    }
    omzetter.sluitAf(tekst_);
}

/// Zet de bytes in stukjes om en kijkt na elk stukje of er een regel bij kwam. Een stukje eindigt waar een
/// regel kan eindigen; wat de omzetter daarvan niet als regeleinde ziet hoort bij wat ervoor stond.
void Brontekst::deelIn(std::string_view stuk, std::size_t begin) {
    kern::RegelOmzetter omzetter;
    // Uit één byte komen er hoogstens twee; wat niet gebruikt wordt kost niets.
    tekst_.maakRuimte(2 * stuk.size() + 1);
    // Een te lang geschreven LF, CR of NUL is ook een regeleinde; die bytes komen dan één voor één.
    constexpr std::string_view mogelijkEinde = "\n\r\0\x8A\x8D\x80"sv;
    beginRegel(0, begin);
    for (std::size_t plek = 0; plek < stuk.size();) {
        const std::size_t einde = stuk.find_first_of(mogelijkEinde, plek);
        const std::size_t volgende = einde == std::string_view::npos ? stuk.size() : einde + 1;
        const std::string_view nieuw = stuk.substr(plek, volgende - plek);
        const std::size_t vooraf = tekst_.geef().size();
        omzetter.zetOm(nieuw, tekst_);
        plek = volgende;
        const std::string_view erbij = tekst_.geef().substr(vooraf);
        if (erbij.ends_with('\n')) {
            beginRegel(vooraf + erbij.size(), begin + plek);
        } else if (erbij.empty() && isTweedeDeel(nieuw)) {
            ruwe_.back() = begin + plek;
        }
    }
    const std::size_t vooraf = tekst_.geef().size();
    omzetter.sluitAf(tekst_);
    if (tekst_.geef().size() == vooraf) {
        regels_.pop_back();
        ruwe_.pop_back();
    }
}

void Brontekst::leesBreed() {
    BreedLezer lezer(geefRuw().substr(merk_), codering_);
    beginRegel(0, merk_);
    bool naCR = false;
    while (const auto teken = lezer.lees()) {
        naCR = *teken == '\r';
        if (!naCR && *teken != '\n' && *teken != 0) {
            kern::schrijfUtf8(*teken, tekst_);
            continue;
        }
        if (naCR) {
            // Ook een NUL hoort bij de CR ervoor.
            naCR = !lezer.neem('\n') && !lezer.neem(0);
        }
        tekst_.voegToe('\n');
        beginRegel(tekst_.geef().size(), merk_ + lezer.geefPlek());
    }
    if (naCR) {
        regels_.pop_back();
        ruwe_.pop_back();
    } else {
        tekst_.voegToe('\n');
    }
}

}  // namespace cli
