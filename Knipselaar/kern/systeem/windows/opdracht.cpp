#include "Knipselaar/kern/systeem/opdracht.h"

#include <array>
#include <cerrno>
#include <cstdio>

#include "Knipselaar/kern/systeem/windows/breed.h"

namespace kern {

Opdrachtuitkomst voerOpdrachtUit(const std::string& opdracht) {
    Opdrachtuitkomst uitkomst;
    // cmd haalt de buitenste aanhalingstekens weg, en laat dan die in de opdracht staan.
    const std::wstring regel = windows::maakBreed("\"" + opdracht + " 2>&1 <NUL\"");
    FILE* pijp = _wpopen(regel.c_str(), L"rb");
    if (pijp == nullptr) {
        uitkomst.fout = {errno, std::generic_category()};
        return uitkomst;
    }
    constexpr std::size_t leesBlok = 4096;
    std::array<char, leesBlok> blok{};
    std::size_t gelezen = 0;
    while ((gelezen = std::fread(blok.data(), 1, blok.size(), pijp)) > 0) {
        uitkomst.uitvoer.append(blok.data(), gelezen);
    }
    uitkomst.afloop = _pclose(pijp);
    return uitkomst;
}

/// In een naam kan hier geen aanhalingsteken staan.
std::string citeer(const std::string& pad) {
    return (pad.starts_with('-') ? "\".\\" : "\"") + pad + "\"";
}

}  // namespace kern
