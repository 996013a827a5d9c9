#include "Knipselaar/kern/processor/verbreding.h"

#include <array>
#include <cstddef>
#include <cstring>

namespace kern {

namespace {

/// Elke byte van ISO 8859-1 in UTF-8; die van ASCII hebben genoeg aan de eerste van de twee.
constexpr std::array<std::array<char, 2>, 256> maakLatijn1Tekens() {
    std::array<std::array<char, 2>, 256> tekens{};
    for (std::size_t byte = 0; byte < tekens.size(); ++byte) {
        tekens.at(byte) = byte < 0x80 ? std::array{static_cast<char>(byte), '\0'}
                                      : std::array{static_cast<char>(0xC0U | (byte >> 6U)),
                                                   static_cast<char>(0x80U | (byte & 0x3FU))};
    }
    return tekens;
}

constexpr auto latijn1Tekens = maakLatijn1Tekens();

}  // namespace

// Zonder sprong om een accent: waar dat staat is niet te voorspellen.
std::size_t verbreedPerByte(std::string_view bytes, char*& doel) {
    char* hier = doel;
    std::size_t plek = 0;
    for (; plek < bytes.size() && bytes[plek] != '\r' && bytes[plek] != '\0'; ++plek) {
        const auto byte = static_cast<unsigned char>(bytes[plek]);
        std::memcpy(hier, latijn1Tekens[byte].data(), 2);
        hier += 1 + (byte >> 7U);
    }
    doel = hier;
    return plek;
}

}  // namespace kern
