#include "Knipselaar/kern/zoeker.h"

#include <cstring>
#include <utility>

#include "Knipselaar/kern/systeem/vindBytes.h"

namespace kern {

namespace {

/// De bytes waar broncode vol mee staat, de gewoonste eerst. Wat er niet bij is, is zeldzaam.
constexpr std::string_view gewoneBytes = " etaonirslcdupmfhgybvxwkqjz_,();.=*/\"-<>{}01&:+[]\t'!#|";

/// Zoveel byte is er bij het zoeken naar één byte ongeveer afgelegd in de tijd die een misser kost.
constexpr std::size_t bytesPerMisser = 64;
constexpr std::size_t vrijeMissers = 8;

std::size_t vindZeldzaamste(std::string_view naald) {
    std::size_t beste = 0;
    std::size_t rang = 0;
    for (std::size_t plek = 0; plek < naald.size(); ++plek) {
        const std::size_t nieuw = gewoneBytes.find(naald[plek]);
        if (nieuw == std::string_view::npos) {
            return plek;
        }
        if (nieuw > rang) {
            rang = nieuw;
            beste = plek;
        }
    }
    return beste;
}

std::size_t naarPlek(const void* gevonden, std::string_view hooi) {
    return gevonden == nullptr ? std::string_view::npos
                               : static_cast<std::size_t>(static_cast<const char*>(gevonden) - hooi.data());
}

std::size_t zoekLineair(std::string_view hooi, std::string_view naald, std::size_t vanaf) {
    const std::size_t plek = vindBytes(hooi.substr(vanaf), naald);
    return plek == std::string_view::npos ? plek : vanaf + plek;
}

}  // namespace

Zoeker::Zoeker(std::string naald) : naald_(std::move(naald)), zeldzaam_(vindZeldzaamste(naald_)) {}

// Naar één byte zoeken gaat vele malen sneller dan naar een tekst, zolang die byte weinig voorkomt. Blijkt
// hij gewoon, dan gaat het verder zonder deze gok.
std::size_t Zoeker::zoek(std::string_view hooi) const {
    std::size_t begin = 0;
    for (std::size_t missers = 0; missers <= vrijeMissers + begin / bytesPerMisser; ++missers) {
        if (naald_.empty() || hooi.size() - begin < naald_.size()) {
            return naald_.empty() ? 0 : std::string_view::npos;
        }
        const std::size_t laatste = hooi.size() - naald_.size() + zeldzaam_;
        const std::size_t vanaf = begin + zeldzaam_;
        const std::size_t plek =
            naarPlek(std::memchr(hooi.data() + vanaf, naald_[zeldzaam_], laatste + 1 - vanaf), hooi);
        if (plek == std::string_view::npos) {
            return plek;
        }
        begin = plek - zeldzaam_;
        if (std::memcmp(hooi.data() + begin, naald_.data(), naald_.size()) == 0) {
            return begin;
        }
        ++begin;
    }
    return zoekLineair(hooi, naald_, begin);
}

}  // namespace kern
