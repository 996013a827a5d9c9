#include "Knipselaar/kern/systeem/geheugen.h"

#include <malloc.h>

#include <new>

namespace kern {

// Grote pagina's geeft Windows alleen aan wie daar een apart recht voor heeft.
char* neemGeheugen(std::size_t ruimte) {
    constexpr std::size_t grens = 64;
    void* bytes = _aligned_malloc(ruimte, grens);
    if (bytes == nullptr) {
        throw std::bad_alloc();
    }
    return static_cast<char*>(bytes);
}

void geefGeheugenTerug(char* bytes) {
    _aligned_free(bytes);
}

}  // namespace kern
