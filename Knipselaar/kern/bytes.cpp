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

void Bytes::voegToe(char byte) {
    voegToe(std::string_view(&byte, 1));
}

void Bytes::voegToe(std::string_view bytes) {
    if (ruimte_ - lengte_ < bytes.size()) {
        maakRuimte(std::max(2 * ruimte_, lengte_ + bytes.size()));
    }
    std::copy(bytes.begin(), bytes.end(), geefBegin() + lengte_);
    lengte_ += bytes.size();
}

}  // namespace kern
