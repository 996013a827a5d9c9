// Met SSSE3, dat bijna elke processor van deze soort heeft en de vertaler niet mag veronderstellen: acht
// bytes tegelijk, zonder sprong.

#include <cpuid.h>
#include <tmmintrin.h>

#include <array>
#include <cstddef>
#include <cstdint>

#include "Knipselaar/kern/processor/verbreding.h"

namespace kern {

namespace {

constexpr std::size_t vakgrootte = 16;

/// Van elk van acht tekens staan er twee bytes klaar. Dit zegt welke er blijven, naar waar een teken geen
/// ASCII is: een bit per teken. Een plaats met de hoogste bit wordt nul.
using Keuze = std::array<std::uint8_t, vakgrootte>;

constexpr std::array<Keuze, 256> maakKeuzes() {
    constexpr std::uint8_t geen = 0x80;
    std::array<Keuze, 256> keuzes{};
    for (std::size_t breed = 0; breed < keuzes.size(); ++breed) {
        Keuze& keuze = keuzes.at(breed);
        keuze.fill(geen);
        std::size_t plek = 0;
        for (std::size_t teken = 0; teken < 8; ++teken) {
            keuze.at(plek++) = static_cast<std::uint8_t>(2 * teken);
            if ((breed >> teken & 1U) != 0) {
                keuze.at(plek++) = static_cast<std::uint8_t>(2 * teken + 1);
            }
        }
    }
    return keuzes;
}

constexpr auto alleKeuzes = maakKeuzes();

/// Laat van acht paren bytes achter wat er blijft.
/// @param breed  welke tekens geen ASCII zijn.
__attribute__((target("ssse3,popcnt"))) char* schrijfAcht(__m128i paren, unsigned breed, char* doel) {
    const __m128i keuze = _mm_loadu_si128(reinterpret_cast<const __m128i*>(alleKeuzes[breed].data()));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(doel), _mm_shuffle_epi8(paren, keuze));
    return doel + 8 + __builtin_popcount(breed);
}

/// Of er een CR of een NUL in een vak staat.
__attribute__((target("ssse3,popcnt"))) bool heeftEinde(__m128i bytes) {
    const __m128i nul = _mm_cmpeq_epi8(bytes, _mm_setzero_si128());
    const __m128i cr = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\r'));
    return _mm_movemask_epi8(_mm_or_si128(nul, cr)) != 0;
}

/// Zet een heel vak om.
__attribute__((target("ssse3,popcnt"))) char* schrijfVak(__m128i bytes, char* doel) {
    const __m128i isBreed = _mm_cmplt_epi8(bytes, _mm_setzero_si128());
    // De eerste byte van een breed teken is C2, en vanaf 0xC0 C3. De tweede is de byte zelf zonder bit 6.
    const __m128i hoog = _mm_and_si128(_mm_srli_epi16(bytes, 6), _mm_set1_epi8(1));
    const __m128i voorop = _mm_add_epi8(_mm_set1_epi8(static_cast<char>(0xC2)), hoog);
    const __m128i eerste = _mm_or_si128(_mm_and_si128(isBreed, voorop), _mm_andnot_si128(isBreed, bytes));
    const __m128i tweede = _mm_and_si128(bytes, _mm_set1_epi8(static_cast<char>(0xBF)));
    const auto breed = static_cast<unsigned>(_mm_movemask_epi8(bytes));
    doel = schrijfAcht(_mm_unpacklo_epi8(eerste, tweede), breed & 0xFFU, doel);
    return schrijfAcht(_mm_unpackhi_epi8(eerste, tweede), breed >> 8U, doel);
}

__attribute__((target("ssse3,popcnt"))) std::size_t verbreedPerVak(std::string_view bytes, char*& doel) {
    char* hier = doel;
    std::size_t plek = 0;
    // Een heel vak schrijft hoogstens waar de uitkomst ervan had kunnen staan.
    for (; plek + vakgrootte <= bytes.size(); plek += vakgrootte) {
        const __m128i vak = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes.data() + plek));
        if (heeftEinde(vak)) {
            break;
        }
        hier = schrijfVak(vak, hier);
    }
    doel = hier;
    return plek + verbreedPerByte(bytes.substr(plek), doel);
}

}  // namespace

Verbreder zoekSnelleVerbreder() {
    // Zelf gevraagd, en pas nu: __builtin_cpu_supports laat elk programma bij zijn start alles van de
    // processor uitzoeken, en dat duurt onder een hypervisor lang.
    constexpr unsigned soortEnMogelijkheden = 1;
    unsigned eax = 0;
    unsigned ebx = 0;
    unsigned ecx = 0;
    unsigned edx = 0;
    constexpr unsigned nodig = bit_SSSE3 | bit_POPCNT;
    const bool weetHet = __get_cpuid(soortEnMogelijkheden, &eax, &ebx, &ecx, &edx) != 0;
    return weetHet && (ecx & nodig) == nodig ? verbreedPerVak : nullptr;
}

}  // namespace kern
