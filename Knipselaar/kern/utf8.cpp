#include "Knipselaar/kern/utf8.h"

#include <bit>
#include <cstring>

namespace kern {

namespace {

constexpr std::uint64_t enen = 0x0101010101010101U;
constexpr std::uint64_t toppen = 0x8080808080808080U;

/// Niet nul als een van de acht bytes nul is. De laagste byte waarvan de top gezet is, is er zeker zo een.
constexpr std::uint64_t heeftNul(std::uint64_t woord) {
    return (woord - enen) & ~woord & toppen;
}

/// Bewaart een machine de hoogste byte eerst, dan is uit de laagste gezette bit geen plaats af te leiden:
/// elke plaats wordt daar nul, en de zoektocht gaat er byte voor byte verder.
constexpr int bitsPerPlaats = std::endian::native == std::endian::little ? 8 : 64;

/// De eerste van de acht bytes in het geheugen met haar top gezet; woord is niet nul.
constexpr std::size_t geefEersteByte(std::uint64_t woord) {
    return static_cast<std::size_t>(std::countr_zero(woord) / bitsPerPlaats);
}

/// Een byte die geen regel kan eindigen; een LF telt mee.
struct ZonderEinde {
    static constexpr bool past(char byte) { return byte != '\0' && byte != '\r'; }
    static constexpr std::uint64_t zoekAndere(std::uint64_t woord) {
        return heeftNul(woord) | heeftNul(woord ^ (enen * '\r'));
    }
};

struct GewoneAscii {
    static constexpr bool past(char byte) { return static_cast<signed char>(byte) > 0 && byte != '\r'; }
    static constexpr std::uint64_t zoekAndere(std::uint64_t woord) {
        return (woord & toppen) | ZonderEinde::zoekAndere(woord);
    }
};

constexpr std::size_t vakGrootte = 32;

/// Of elke byte van een heel vak past. Zonder sprongen, dan maakt de vertaler er vectorinstructies van.
template <typename Soort>
bool pastVak(const char* vak) {
    unsigned char andere = 0;
    for (std::size_t i = 0; i < vakGrootte; ++i) {
        andere |= static_cast<unsigned char>(!Soort::past(vak[i]));
    }
    return andere == 0;
}

/// Aantal bytes aan het begin dat past: eerst per vak, dan per woord en het laatste per byte.
template <typename Soort>
std::size_t telPassende(std::string_view bytes) {
    std::size_t plek = 0;
    while (plek + vakGrootte <= bytes.size() && pastVak<Soort>(bytes.data() + plek)) {
        plek += vakGrootte;
    }
    for (; plek + sizeof(std::uint64_t) <= bytes.size(); plek += sizeof(std::uint64_t)) {
        std::uint64_t woord = 0;
        std::memcpy(&woord, bytes.data() + plek, sizeof woord);
        if (const std::uint64_t andere = Soort::zoekAndere(woord); andere != 0) {
            plek += geefEersteByte(andere);
            break;
        }
    }
    while (plek < bytes.size() && Soort::past(bytes[plek])) {
        ++plek;
    }
    return plek;
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

void schrijfUtf8(std::uint32_t waarde, std::string& uit) {
    if (waarde < 0x80) {
        uit += static_cast<char>(waarde);
        return;
    }
    if (waarde < 0x800) {
        uit += static_cast<char>(0xC0U | (waarde >> 6U));
    } else {
        if (waarde < 0x10000) {
            uit += static_cast<char>(0xE0U | (waarde >> 12U));
        } else {
            uit += static_cast<char>(0xF0U | (waarde >> 18U));
            uit += static_cast<char>(0x80U | ((waarde >> 12U) & 0x3FU));
        }
        uit += static_cast<char>(0x80U | ((waarde >> 6U) & 0x3FU));
    }
    uit += static_cast<char>(0x80U | (waarde & 0x3FU));
}

std::size_t telGewoneAscii(std::string_view bytes) {
    return telPassende<GewoneAscii>(bytes);
}

std::size_t telZonderEinden(std::string_view bytes) {
    return telPassende<ZonderEinde>(bytes);
}

bool isSchoneUtf8(std::string_view bytes) {
    std::size_t plek = 0;
    while ((plek += telGewoneAscii(bytes.substr(plek))) < bytes.size()) {
        const Utf8Teken teken = leesUtf8(bytes.substr(plek));
        if (teken.oordeel != Utf8Oordeel::geldig || teken.lengte < 2 ||
            teken.waarde < laagsteWaarde(teken.lengte)) {
            return false;
        }
        plek += teken.lengte;
    }
    return true;
}

}  // namespace kern
