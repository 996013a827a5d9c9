#include "KnipselaarCli/breedLezer.h"

#include <algorithm>

namespace cli {

namespace {

constexpr std::uint32_t vervangTeken = 0xFFFD;

}  // namespace

std::optional<std::uint32_t> BreedLezer::lees() {
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

bool BreedLezer::neem(std::uint32_t teken) {
    const bool gevonden = leesEenheid(plek_) == teken;
    plek_ += gevonden ? geefBreedte(codering_) : 0;
    return gevonden;
}

std::optional<std::uint32_t> BreedLezer::leesEenheid(std::size_t plek) const {
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

}  // namespace cli
