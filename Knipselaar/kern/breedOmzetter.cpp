#include "Knipselaar/kern/breedOmzetter.h"

#include "Knipselaar/kern/utf8.h"

namespace kern {

namespace {

constexpr std::uint32_t vervangTeken = 0xFFFD;

constexpr bool isHoogSurrogaat(std::uint32_t waarde) {
    return waarde >= 0xD800 && waarde <= 0xDBFF;
}
constexpr bool isLaagSurrogaat(std::uint32_t waarde) {
    return waarde >= 0xDC00 && waarde <= 0xDFFF;
}

constexpr std::uint32_t voegSamen(std::uint32_t hoog, std::uint32_t laag) {
    return 0x10000 + ((hoog & 0x3FFU) << 10U) + (laag & 0x3FFU);
}

}  // namespace

std::optional<BreedFormaat> herkenBreedFormaat(std::string_view begin) {
    using namespace std::string_view_literals;
    if (begin.starts_with("\xFF\xFE\0\0"sv)) {
        return BreedFormaat{4, false};
    }
    if (begin.starts_with("\0\0\xFE\xFF"sv)) {
        return BreedFormaat{4, true};
    }
    if (begin.starts_with("\xFF\xFE"sv)) {
        return BreedFormaat{2, false};
    }
    if (begin.starts_with("\xFE\xFF"sv)) {
        return BreedFormaat{2, true};
    }
    return std::nullopt;
}

void BreedOmzetter::zetOm(std::string_view blok, Bytes& uit) {
    ruw_ += blok;
    neemHele(false, uit);
}

void BreedOmzetter::sluitAf(Bytes& uit) {
    neemHele(true, uit);
    if (!ruw_.empty()) {
        schrijfUtf8(vervangTeken, uit);
        ruw_.clear();
    }
}

/// Zet om wat er ruw ligt. Vóór het einde blijft een teken liggen waarvan de rest nog kan komen.
void BreedOmzetter::neemHele(bool einde, Bytes& uit) {
    std::size_t plek = 0;
    while (plek + formaat_.eenheid <= ruw_.size()) {
        std::uint32_t waarde = leesEenheid(plek);
        std::size_t volgende = plek + formaat_.eenheid;
        if (formaat_.eenheid == 2 && isHoogSurrogaat(waarde)) {
            const bool heeftPaar = volgende + 2 <= ruw_.size();
            if (!heeftPaar && !einde) {
                break;
            }
            if (heeftPaar && isLaagSurrogaat(leesEenheid(volgende))) {
                waarde = voegSamen(waarde, leesEenheid(volgende));
                volgende += 2;
            } else {
                waarde = vervangTeken;
            }
        } else {
            const bool leesbaar = formaat_.eenheid == 2 ? !isLaagSurrogaat(waarde) : waarde <= 0x10FFFF;
            waarde = leesbaar ? waarde : vervangTeken;
        }
        schrijfUtf8(waarde, uit);
        plek = volgende;
    }
    ruw_.erase(0, plek);
}

std::uint32_t BreedOmzetter::leesEenheid(std::size_t plek) const {
    std::uint32_t waarde = 0;
    for (unsigned i = 0; i < formaat_.eenheid; ++i) {
        const unsigned byte = formaat_.grootEerst ? i : formaat_.eenheid - 1 - i;
        waarde = (waarde << 8U) | static_cast<unsigned char>(ruw_[plek + byte]);
    }
    return waarde;
}

}  // namespace kern
