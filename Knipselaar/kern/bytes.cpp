#include "Knipselaar/kern/bytes.h"

#include <algorithm>
#include <cstring>

namespace kern {

Bytes::Bytes(std::string_view bytes) {
    voegToe(bytes);
}

void Bytes::maakRuimte(std::size_t ruimte) {
    if (ruimte <= ruimte_) {
        return;
    }
    Eigendom nieuw(neemGeheugen(ruimte));
    if (lengte_ > 0) {
        std::memcpy(nieuw.get(), bytes_.get(), lengte_);
    }
    bytes_ = std::move(nieuw);
    ruimte_ = ruimte;
}

void Bytes::maakPlaats(std::size_t erbij) {
    if (ruimte_ - lengte_ < erbij) {
        maakRuimte(std::max(2 * ruimte_, lengte_ + erbij));
    }
}

void Bytes::voegToe(char byte) {
    maakPlaats(1);
    geefBegin()[lengte_] = byte;
    ++lengte_;
}

void Bytes::voegToe(std::string_view bytes) {
    maakPlaats(bytes.size());
    std::copy(bytes.begin(), bytes.end(), geefBegin() + lengte_);
    lengte_ += bytes.size();
}

}  // namespace kern
