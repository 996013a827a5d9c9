#include "KnipselaarCli/keuring.h"

#include <cstddef>

#include "Knipselaar/kern/utf8.h"

namespace cli {

namespace {

bool isKort(const kern::Utf8Teken& teken) {
    return teken.lengte < 3 || teken.waarde >= (teken.lengte == 3 ? 0x800U : 0x10000U);
}

}  // namespace

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

}  // namespace cli
