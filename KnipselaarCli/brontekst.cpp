#include "KnipselaarCli/brontekst.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <utility>

#include "Knipselaar/kern/breedOmzetter.h"
#include "Knipselaar/kern/regelOmzetter.h"
#include "Knipselaar/kern/utf8.h"

namespace cli {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view utf8Merkteken = "\xEF\xBB\xBF";
constexpr std::uint32_t vervangTeken = 0xFFFD;

/// Wat er aan een smalle tekst te zien is.
struct Keuring {
    bool utf8 = true;          ///< alles is UTF-8
    bool kort = true;          ///< elk teken staat in zijn kortste vorm
    bool regelsGewoon = true;  ///< geen NUL, geen CR zonder LF en niets dat alleen te lang geschreven LF is
    bool heeftCR = false;
};

bool isKort(const kern::Utf8Teken& teken) {
    return teken.lengte < 3 || teken.waarde >= (teken.lengte == 3 ? 0x800U : 0x10000U);
}

Keuring keur(std::string_view bytes) {
    Keuring keuring;
    std::size_t plek = 0;
    // Wat geen UTF-8 is, is ISO 8859-1; dan tellen alleen de regeleinden nog.
    const auto telGewone = [&keuring](std::string_view rest) {
        const kern::CrLf crLf = keuring.heeftCR ? kern::CrLf::teltMee : kern::CrLf::eindigt;
        return keuring.utf8 ? kern::telKorteTekens(rest, crLf) : kern::telZonderEinden(rest, crLf);
    };
    while ((plek += telGewone(bytes.substr(plek))) < bytes.size()) {
        const char teken = bytes[plek];
        if (teken == '\r') {
            keuring.heeftCR = true;
            keuring.regelsGewoon = keuring.regelsGewoon && bytes.substr(plek + 1).starts_with('\n');
            ++plek;
        } else if (teken == '\0') {
            keuring.regelsGewoon = false;
            ++plek;
        } else {
            const kern::Utf8Teken gelezen = kern::leesUtf8(bytes.substr(plek));
            const bool heel = gelezen.oordeel == kern::Utf8Oordeel::geldig;
            keuring.utf8 = keuring.utf8 && heel;
            keuring.kort = keuring.kort && isKort(gelezen);
            keuring.regelsGewoon = keuring.regelsGewoon && (!heel || gelezen.waarde >= 0x80);
            plek += heel ? gelezen.lengte : 1;
        }
        if (!keuring.regelsGewoon && !keuring.utf8) {
            break;
        }
    }
    return keuring;
}

/// Een of twee NULs lezen als het begin van een merkteken waar nooit meer iets van komt: één lege regel.
bool isAfgebrokenMerkteken(std::string_view bytes) {
    return bytes == "\0"sv || bytes == "\0\0"sv;
}

/// Of een stukje waar geen tekst uit kwam de tweede helft van een regeleinde is, en niet een half teken.
bool isTweedeDeel(std::string_view stukje) {
    return stukje == "\n"sv || stukje == "\0"sv;
}

std::size_t geefBreedte(Codering codering) {
    switch (codering) {
        case Codering::utf16le:
        case Codering::utf16be:
            return 2;
        case Codering::utf32le:
        case Codering::utf32be:
            return 4;
        default:
            return 1;
    }
}

bool isGrootEerst(Codering codering) {
    return codering == Codering::utf16be || codering == Codering::utf32be;
}

void schrijfEenheid(std::uint32_t waarde, Codering codering, std::string& uit) {
    const std::size_t breedte = geefBreedte(codering);
    for (std::size_t i = 0; i < breedte; ++i) {
        const std::size_t rang = isGrootEerst(codering) ? breedte - 1 - i : i;
        uit += static_cast<char>((waarde >> (8 * rang)) & 0xFFU);
    }
}

void schrijfTeken(std::uint32_t waarde, Codering codering, std::string& uit) {
    if (geefBreedte(codering) == 2 && waarde > 0xFFFF) {
        schrijfEenheid(0xD800 + ((waarde - 0x10000) >> 10U), codering, uit);
        schrijfEenheid(0xDC00 + ((waarde - 0x10000) & 0x3FFU), codering, uit);
    } else {
        schrijfEenheid(waarde, codering, uit);
    }
}

/// Leest een brede tekst teken voor teken, met U+FFFD voor wat geen teken is, zoals de kern het doet.
class BreedLezer {
  public:
    BreedLezer(std::string_view bytes, Codering codering) : bytes_(bytes), codering_(codering) {}

    /// Het volgende teken, of niets aan het einde.
    std::optional<std::uint32_t> lees() {
        if (plek_ >= bytes_.size()) {
            return std::nullopt;
        }
        const std::size_t breedte = geefBreedte(codering_);
        const auto eerste = leesEenheid(plek_);
        plek_ = std::min(plek_ + breedte, bytes_.size());
        if (!eerste) {
            return vervangTeken;
        }
        if (breedte == 4) {
            return *eerste <= 0x10FFFF ? *eerste : vervangTeken;
        }
        if ((*eerste & 0xF800U) != 0xD800U) {
            return *eerste;
        }
        const auto tweede = leesEenheid(plek_);
        if (*eerste >= 0xDC00U || !tweede || (*tweede & 0xFC00U) != 0xDC00U) {
            return vervangTeken;
        }
        plek_ += breedte;
        return 0x10000U + ((*eerste & 0x3FFU) << 10U) + (*tweede & 0x3FFU);
    }

    std::size_t geefPlek() const { return plek_; }

    /// Slaat het volgende teken over als het dit is. Geeft of het dat was.
    bool neem(std::uint32_t teken) {
        const bool gevonden = leesEenheid(plek_) == teken;
        plek_ += gevonden ? geefBreedte(codering_) : 0;
        return gevonden;
    }

  private:
    std::optional<std::uint32_t> leesEenheid(std::size_t plek) const {
        const std::size_t breedte = geefBreedte(codering_);
        if (plek + breedte > bytes_.size()) {
            return std::nullopt;
        }
        std::uint32_t waarde = 0;
        for (std::size_t i = 0; i < breedte; ++i) {
            const std::size_t rang = isGrootEerst(codering_) ? i : breedte - 1 - i;
            waarde = (waarde << 8U) | static_cast<unsigned char>(bytes_[plek + rang]);
        }
        return waarde;
    }

    std::string_view bytes_;
    Codering codering_;
    std::size_t plek_ = 0;
};

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

std::string codeer(std::string_view utf8, Codering codering) {
    if (codering == Codering::utf8) {
        return std::string(utf8);
    }
    std::string uit;
    while (!utf8.empty()) {
        const kern::Utf8Teken teken = kern::leesUtf8(utf8);
        const bool past = teken.oordeel == kern::Utf8Oordeel::geldig &&
                          (codering != Codering::latijn1 || teken.waarde <= 0xFF);
        if (!past) {
            throw CodeerFout(std::string(utf8.substr(0, std::max<std::size_t>(teken.lengte, 1))));
        }
        schrijfTeken(teken.waarde, codering, uit);
        utf8.remove_prefix(teken.lengte);
    }
    return uit;
}

std::string_view geefRegeleinde(std::string_view ruweRegel, Codering codering) {
    for (const std::string_view einde : {"\r\n"sv, "\n"sv, "\r"sv}) {
        if (ruweRegel.ends_with(codeer(einde, codering))) {
            return einde;
        }
    }
    return {};
}

const char* noemCodering(Codering codering) {
    constexpr std::array namen{"UTF-8", "ISO 8859-1", "UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE"};
    return namen.at(static_cast<std::size_t>(codering));
}

}  // namespace cli
