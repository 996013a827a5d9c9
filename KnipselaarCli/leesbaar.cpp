#include "KnipselaarCli/leesbaar.h"

#include <array>
#include <cstdint>
#include <cstdio>

#include "Knipselaar/kern/utf8.h"

namespace cli {

namespace {

bool isBesturing(std::uint32_t teken) {
    constexpr std::uint32_t eersteGewone = 0x20;
    constexpr std::uint32_t wis = 0x7F;
    constexpr std::uint32_t eersteLatijnse = 0xA0;
    return teken < eersteGewone || (teken >= wis && teken < eersteLatijnse);
}

}  // namespace

std::string maakLeesbaar(std::string_view tekst) {
    std::string uit;
    while (!tekst.empty()) {
        const kern::Utf8Teken teken = kern::leesUtf8(tekst);
        const bool heel = teken.oordeel == kern::Utf8Oordeel::geldig;
        const std::size_t lengte = heel ? teken.lengte : 1;
        if (heel && isBesturing(teken.waarde)) {
            std::array<char, 8> code{};
            std::snprintf(code.data(), code.size(), "\\x%02x", static_cast<unsigned>(teken.waarde));
            uit += code.data();
        } else {
            uit += tekst.substr(0, lengte);
        }
        tekst.remove_prefix(lengte);
    }
    return uit;
}

}  // namespace cli
