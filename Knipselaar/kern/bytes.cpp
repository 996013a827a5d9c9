#include "Knipselaar/kern/bytes.h"

#include <sys/mman.h>

#include <algorithm>
#include <cstring>
#include <new>

namespace kern {

namespace {

/// Zo groot zijn de grote pagina's van het systeem; een groot blok dat er op begint kost honderden keren
/// minder paginafouten.
constexpr std::size_t grotePagina = std::size_t{2} * 1024 * 1024;
constexpr std::size_t gewoneGrens = 64;

char* neemGeheugen(std::size_t ruimte) {
    const bool groot = ruimte >= grotePagina;
    const std::size_t grens = groot ? grotePagina : gewoneGrens;
    const std::size_t veelvoud = (ruimte + grens - 1) / grens * grens;
    void* bytes = std::aligned_alloc(grens, veelvoud);
    if (bytes == nullptr) {
        throw std::bad_alloc();
    }
    if (groot) {
        madvise(bytes, veelvoud, MADV_HUGEPAGE);  // alleen een wens
    }
    return static_cast<char*>(bytes);
}

}  // namespace

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
