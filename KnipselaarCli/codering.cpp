#include "KnipselaarCli/codering.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "Knipselaar/kern/utf8.h"

namespace cli {

namespace {

using namespace std::string_view_literals;

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

}  // namespace

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
