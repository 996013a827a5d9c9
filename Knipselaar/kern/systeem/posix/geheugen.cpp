#include "Knipselaar/kern/systeem/geheugen.h"

#include <sys/mman.h>

#include <cstdlib>
#include <new>

namespace kern {

namespace {

/// Zo groot zijn de grote pagina's van het systeem.
constexpr std::size_t grotePagina = std::size_t{2} * 1024 * 1024;
constexpr std::size_t gewoneGrens = 64;

}  // namespace

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

void geefGeheugenTerug(char* bytes) {
    std::free(bytes);  // NOLINT(cppcoreguidelines-no-malloc)
}

}  // namespace kern
