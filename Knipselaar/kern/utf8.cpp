#include "Knipselaar/kern/utf8.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <experimental/simd>

#include "Knipselaar/kern/processor/verbreding.h"

namespace kern {

namespace {

namespace simd = std::experimental;

/// Zoveel bytes als de machine in één stap bekijkt.
using Vak = simd::native_simd<signed char>;

enum class Bytesoort { ascii, elke };

/// Of het tellen bij deze byte ophoudt; van een vak: bij welke.
template <Bytesoort soort, CrLf crLf, typename Byte>
auto eindigtBij(const Byte& byte, const Byte& volgende) {
    const auto anders = soort == Bytesoort::ascii ? byte <= '\0' : byte == '\0';
    if constexpr (crLf == CrLf::teltMee) {
        return anders || (byte == '\r' && volgende != '\n');
    } else {
        return anders || byte == '\r';
    }
}

/// Zoveel bytes na een vak tellen mee bij wat er in dat vak gevonden wordt.
template <CrLf crLf>
constexpr std::size_t vooruit = crLf == CrLf::teltMee ? 1 : 0;

/// Bij welke bytes van een vak het tellen ophoudt.
template <Bytesoort soort, CrLf crLf>
auto zoekEinden(const char* vak) {
    return eindigtBij<soort, crLf>(Vak(vak, simd::element_aligned),
                                   Vak(vak + vooruit<crLf>, simd::element_aligned));
}

/// Aantal bytes voor die waar het tellen ophoudt: per vak zolang dat heel is, dan per byte.
template <Bytesoort soort, CrLf crLf>
std::size_t telTotEinde(std::string_view bytes) {
    std::size_t plek = 0;
    for (; plek + Vak::size() + vooruit<crLf> <= bytes.size(); plek += Vak::size()) {
        const auto gevonden = zoekEinden<soort, crLf>(bytes.data() + plek);
        if (simd::any_of(gevonden)) {
            return plek + static_cast<std::size_t>(simd::find_first_set(gevonden));
        }
    }
    const auto geef = [bytes](std::size_t waar) {
        return static_cast<signed char>(waar < bytes.size() ? bytes[waar] : '\0');
    };
    while (plek < bytes.size() && !eindigtBij<soort, crLf>(geef(plek), geef(plek + 1))) {
        ++plek;
    }
    return plek;
}

template <Bytesoort soort>
std::size_t telTotEinde(std::string_view bytes, CrLf crLf) {
    return crLf == CrLf::teltMee ? telTotEinde<soort, CrLf::teltMee>(bytes)
                                 : telTotEinde<soort, CrLf::eindigt>(bytes);
}

/// Of een byte het begin is van een teken van twee bytes; van een vak: van welke.
template <typename Byte>
auto isEersteVanTwee(const Byte& byte) {
    return byte >= static_cast<signed char>(0xC2) && byte < static_cast<signed char>(0xE0);
}

/// Bij welke bytes van een vak iets anders staat dan gewone ASCII of een deel van een teken van twee bytes.
/// Wat er voor het vak staat zegt of het met een vervolg moet beginnen.
template <CrLf crLf>
auto zoekFouten(const char* vak) {
    const Vak hier(vak, simd::element_aligned);
    const Vak ervoor(vak - 1, simd::element_aligned);
    const auto vervolg = hier < static_cast<signed char>(0xC0);
    const auto einde = zoekEinden<Bytesoort::ascii, crLf>(vak);
    return (einde && !vervolg && !isEersteVanTwee(hier)) || vervolg != isEersteVanTwee(ervoor);
}

/// Of een zoeker iets vindt in een paar vakken naast elkaar. Zonder sprong per vak: waar een accent staat is
/// niet te voorspellen.
template <std::size_t aantal, typename Zoek>
bool staatIn(const char* vakken, const Zoek& zoek) {
    auto gevonden = zoek(vakken);
    for (std::size_t vak = 1; vak < aantal; ++vak) {
        gevonden = gevonden || zoek(vakken + vak * Vak::size());
    }
    return simd::any_of(gevonden);
}

/// Aantal bytes vanaf een teken dat gewone ASCII is of hele tekens van twee bytes, per vak. Aan het begin van
/// de bytes nul: er moet iets voor een vak staan.
template <CrLf crLf>
std::size_t telTweetallen(std::string_view bytes, std::size_t begin) {
    if (begin == 0) {
        return 0;
    }
    constexpr std::size_t vakken = 4;
    std::size_t plek = begin;
    const auto past = [bytes, &plek](std::size_t aantal) {
        return plek + aantal * Vak::size() + vooruit<crLf> <= bytes.size();
    };
    // Waar een accent staat volgen er meer: dan is telkens vragen of het nog ASCII is te duur.
    constexpr std::size_t grondigNaAccent = 16;
    std::size_t grondig = grondigNaAccent;
    for (; past(vakken); plek += vakken * Vak::size()) {
        const char* hier = bytes.data() + plek;
        if (grondig == 0) {
            if (!staatIn<vakken>(hier, zoekEinden<Bytesoort::ascii, crLf>)) {
                continue;
            }
            grondig = grondigNaAccent;
        }
        if (staatIn<vakken>(hier, zoekFouten<crLf>)) {
            break;
        }
        grondig -= isEersteVanTwee(static_cast<signed char>(hier[vakken * Vak::size() - 1])) ? 0 : 1;
    }
    while (past(1)) {
        const auto fout = zoekFouten<crLf>(bytes.data() + plek);
        if (simd::any_of(fout)) {
            plek += static_cast<std::size_t>(simd::find_first_set(fout));
            break;
        }
        plek += Vak::size();
    }
    const bool isHalf = plek > begin && isEersteVanTwee(static_cast<signed char>(bytes[plek - 1]));
    return plek - begin - (isHalf ? 1 : 0);
}

template <CrLf crLf>
std::size_t telKort(std::string_view bytes) {
    std::size_t plek = 0;
    for (;;) {
        plek += telTotEinde<Bytesoort::ascii, crLf>(bytes.substr(plek));
        if (plek == bytes.size() || !isEersteVanTwee(static_cast<signed char>(bytes[plek]))) {
            return plek;
        }
        std::size_t erbij = telTweetallen<crLf>(bytes, plek);
        if (erbij == 0) {
            erbij = leesUtf8(bytes.substr(plek)).lengte;
        }
        if (erbij == 0) {
            return plek;
        }
        plek += erbij;
    }
}

constexpr std::size_t reeksLengte(unsigned char eerste) {
    if (eerste < 0x80) {
        return 1;
    }
    if (eerste >= 0xC2 && eerste <= 0xDF) {
        return 2;
    }
    if (eerste >= 0xE0 && eerste <= 0xEF) {
        return 3;
    }
    return eerste >= 0xF0 && eerste <= 0xF4 ? 4 : 0;
}

/// De laagste waarde die een reeks van deze lengte nodig heeft; wat eronder ligt is een te lange vorm.
constexpr std::uint32_t laagsteWaarde(std::size_t lengte) {
    return lengte == 4 ? 0x10000U : lengte == 3 ? 0x800U : lengte == 2 ? 0x80U : 0U;
}

/// Kopieert gewone ASCII naar doel en schuift dat op, met een LF voor elke CR LF, tot de eerste andere byte.
/// @return hoeveel bytes het waren.
std::size_t neemAscii(std::string_view bytes, char*& doel) {
    std::size_t plek = 0;
    while (plek < bytes.size()) {
        if (plek + Vak::size() <= bytes.size()) {
            // Het hele vak gaat mee; wat na de eerste bijzondere byte komt wordt daarna overschreven.
            const Vak vak(bytes.data() + plek, simd::element_aligned);
            vak.copy_to(doel, simd::element_aligned);
            const auto bijzonder = vak <= '\0' || vak == '\r';
            const bool heel = simd::none_of(bijzonder);
            const std::size_t gewoon =
                heel ? Vak::size() : static_cast<std::size_t>(simd::find_first_set(bijzonder));
            doel += gewoon;
            plek += gewoon;
            if (heel) {
                continue;
            }
        }
        const auto teken = static_cast<signed char>(bytes[plek]);
        if (!eindigtBij<Bytesoort::ascii, CrLf::eindigt>(teken, teken)) {
            *doel++ = bytes[plek];
        } else if (!bytes.substr(plek).starts_with("\r\n")) {
            break;
        }
        ++plek;
    }
    return plek;
}

/// Laat iets achter uit schrijven waar plaats is voor zoveel bytes.
/// @param neem  krijgt waar het komt, schuift dat op en geeft hoeveel bytes het nam.
template <typename Neem>
std::size_t neemMet(Bytes& uit, std::size_t hoogstens, const Neem& neem) {
    uit.maakPlaats(hoogstens);
    char* doel = uit.geefBegin() + uit.geef().size();
    const std::size_t genomen = neem(doel);
    uit.zetLengte(static_cast<std::size_t>(doel - uit.geefBegin()));
    return genomen;
}

}  // namespace

Utf8Teken leesUtf8(std::string_view bytes) {
    const auto eerste = static_cast<unsigned char>(bytes[0]);
    const std::size_t lengte = reeksLengte(eerste);
    if (lengte == 0) {
        return {Utf8Oordeel::ongeldig, 0, 0};
    }
    if (lengte == 1) {
        return {Utf8Oordeel::geldig, 1, eerste};
    }
    std::uint32_t waarde = eerste & (0xFFU >> (lengte + 1));
    for (std::size_t i = 1; i < lengte; ++i) {
        if (i == bytes.size()) {
            return {Utf8Oordeel::half, 0, 0};
        }
        const auto volg = static_cast<unsigned char>(bytes[i]);
        if ((volg & 0xC0U) != 0x80U) {
            return {Utf8Oordeel::ongeldig, 0, 0};
        }
        waarde = (waarde << 6U) | (volg & 0x3FU);
        // F4 90 en verder ligt al na twee bytes vast voorbij het laatste codepunt.
        if (i == 1 && eerste == 0xF4 && volg > 0x8F) {
            return {Utf8Oordeel::ongeldig, 0, 0};
        }
    }
    return {Utf8Oordeel::geldig, lengte, waarde};
}

void schrijfUtf8(std::uint32_t waarde, Bytes& uit) {
    if (waarde < 0x80) {
        uit.voegToe(static_cast<char>(waarde));
        return;
    }
    if (waarde < 0x800) {
        uit.voegToe(static_cast<char>(0xC0U | (waarde >> 6U)));
    } else {
        if (waarde < 0x10000) {
            uit.voegToe(static_cast<char>(0xE0U | (waarde >> 12U)));
        } else {
            uit.voegToe(static_cast<char>(0xF0U | (waarde >> 18U)));
            uit.voegToe(static_cast<char>(0x80U | ((waarde >> 12U) & 0x3FU)));
        }
        uit.voegToe(static_cast<char>(0x80U | ((waarde >> 6U) & 0x3FU)));
    }
    uit.voegToe(static_cast<char>(0x80U | (waarde & 0x3FU)));
}

std::size_t telGewoneAscii(std::string_view bytes, CrLf crLf) {
    return telTotEinde<Bytesoort::ascii>(bytes, crLf);
}

std::size_t telKorteTekens(std::string_view bytes, CrLf crLf) {
    return crLf == CrLf::teltMee ? telKort<CrLf::teltMee>(bytes) : telKort<CrLf::eindigt>(bytes);
}

std::size_t telZonderEinden(std::string_view bytes, CrLf crLf) {
    return telTotEinde<Bytesoort::elke>(bytes, crLf);
}

bool isSchoneUtf8(std::string_view bytes) {
    std::size_t plek = 0;
    while ((plek += telTweetallen<CrLf::eindigt>(bytes, plek)) < bytes.size()) {
        const Utf8Teken teken = leesUtf8(bytes.substr(plek));
        if (teken.oordeel != Utf8Oordeel::geldig || teken.waarde < laagsteWaarde(teken.lengte) ||
            teken.waarde == '\0' || teken.waarde == '\r') {
            return false;
        }
        plek += teken.lengte;
    }
    return true;
}

std::size_t telRegeleinden(std::string_view bytes) {
    std::size_t aantal = 0;
    for (; bytes.size() >= Vak::size(); bytes.remove_prefix(Vak::size())) {
        aantal += static_cast<std::size_t>(simd::popcount(Vak(bytes.data(), simd::element_aligned) == '\n'));
    }
    return aantal + static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n'));
}

std::size_t neemGewoneAscii(std::string_view bytes, Bytes& uit) {
    return neemMet(uit, bytes.size(), [bytes](char*& doel) { return neemAscii(bytes, doel); });
}

std::size_t neemLatijn1(std::string_view bytes, Bytes& uit) {
    static const Verbreder snel = zoekSnelleVerbreder();
    const Verbreder verbreed = snel != nullptr ? snel : verbreedPerByte;
    return neemMet(uit, 2 * bytes.size(), [bytes, verbreed](char*& doel) {
        std::size_t plek = 0;
        for (;;) {
            plek += verbreed(bytes.substr(plek), doel);
            if (!bytes.substr(plek).starts_with("\r\n")) {
                return plek;
            }
            ++plek;
        }
    });
}

}  // namespace kern
