#include "Knipselaar/kern/breedHersteller.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace kern {

namespace {

constexpr std::size_t blokGrootte = 64 * 1024;
constexpr std::uint32_t vervangTeken = 0xFFFD;

constexpr bool isHoogSurrogaat(std::uint32_t waarde) {
    return waarde >= 0xD800 && waarde <= 0xDBFF;
}
constexpr bool isLaagSurrogaat(std::uint32_t waarde) {
    return waarde >= 0xDC00 && waarde <= 0xDFFF;
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

std::size_t leesBlok(wxInputStream& bron, char* bytes, std::size_t aantal) {
    return bron.GetLastError() == wxSTREAM_NO_ERROR ? bron.Read(bytes, aantal).LastRead() : 0;
}

BreedHersteller::BreedHersteller(std::string_view begin, wxInputStream& bron, BreedFormaat formaat)
    : bron_(bron), formaat_(formaat), ruw_(begin) {}

size_t BreedHersteller::OnSysRead(void* buffer, size_t lengte) {
    while (afgehaald_ == goed_.size() && !einde_) {
        vulAan();
    }
    const std::size_t aantal = std::min(lengte, goed_.size() - afgehaald_);
    if (aantal == 0) {
        uitgeput_ = true;
        m_lasterror = wxSTREAM_EOF;
        return 0;
    }
    m_lasterror = wxSTREAM_NO_ERROR;
    std::memcpy(buffer, goed_.data() + afgehaald_, aantal);
    afgehaald_ += aantal;
    return aantal;
}

void BreedHersteller::vulAan() {
    goed_.clear();
    afgehaald_ = 0;
    std::array<char, blokGrootte> blok;  // NOLINT(cppcoreguidelines-pro-type-member-init): Read vult hem
    const std::size_t gelezen = leesBlok(bron_, blok.data(), blok.size());
    ruw_.append(blok.data(), gelezen);
    einde_ = gelezen == 0;
    herstel();
}

/// Beoordeelt wat er ruw ligt. Vóór het einde blijft een teken liggen waarvan de rest nog kan komen.
void BreedHersteller::herstel() {
    std::size_t plek = 0;
    while (plek + formaat_.eenheid <= ruw_.size()) {
        const std::uint32_t waarde = leesEenheid(plek);
        std::size_t volgende = plek + formaat_.eenheid;
        if (formaat_.eenheid == 2 && isHoogSurrogaat(waarde)) {
            const bool heeftPaar = volgende + 2 <= ruw_.size();
            if (!heeftPaar && !einde_) {
                break;
            }
            if (heeftPaar && isLaagSurrogaat(leesEenheid(volgende))) {
                schrijfEenheid(waarde);
                schrijfEenheid(leesEenheid(volgende));
                volgende += 2;
            } else {
                schrijfEenheid(vervangTeken);
            }
        } else {
            const bool leesbaar = formaat_.eenheid == 2 ? !isLaagSurrogaat(waarde) : waarde <= 0x10FFFF;
            schrijfEenheid(leesbaar ? waarde : vervangTeken);
        }
        plek = volgende;
    }
    ruw_.erase(0, plek);
    if (einde_ && !ruw_.empty()) {
        schrijfEenheid(vervangTeken);
        ruw_.clear();
    }
}

std::uint32_t BreedHersteller::leesEenheid(std::size_t plek) const {
    std::uint32_t waarde = 0;
    for (unsigned i = 0; i < formaat_.eenheid; ++i) {
        const unsigned byte = formaat_.grootEerst ? i : formaat_.eenheid - 1 - i;
        waarde = (waarde << 8U) | static_cast<unsigned char>(ruw_[plek + byte]);
    }
    return waarde;
}

void BreedHersteller::schrijfEenheid(std::uint32_t waarde) {
    for (unsigned i = 0; i < formaat_.eenheid; ++i) {
        const unsigned byte = formaat_.grootEerst ? formaat_.eenheid - 1 - i : i;
        goed_ += static_cast<char>((waarde >> (8U * byte)) & 0xFFU);
    }
}

}  // namespace kern
