#include "Knipselaar/kern/systeem/windows/breed.h"

#include <windows.h>

namespace kern::windows {

namespace {

constexpr std::wstring_view voorvoegsel = L"\\\\?\\";
constexpr std::wstring_view netwerkVoorvoegsel = L"\\\\?\\UNC\\";
constexpr std::wstring_view apparaatVoorvoegsel = L"\\\\.\\";
constexpr std::wstring_view netwerk = L"\\\\";

/// Zoals Windows een pad leest: vanaf de wortel, met backslashes en zonder "." en "..".
std::wstring maakHeel(const std::wstring& pad) {
    std::wstring heel;
    DWORD nodig = GetFullPathNameW(pad.c_str(), 0, nullptr, nullptr);
    // Verandert een andere draad intussen de werkdirectory, dan kan het nog langer zijn.
    while (nodig > heel.size()) {
        heel.resize(nodig);
        nodig = GetFullPathNameW(pad.c_str(), nodig, heel.data(), nullptr);
    }
    heel.resize(nodig);
    return heel;
}

}  // namespace

std::wstring maakBreed(std::string_view tekst) {
    const int lengte = static_cast<int>(tekst.size());
    std::wstring breed(tekst.size(), L'\0');
    const int gelukt = MultiByteToWideChar(CP_UTF8, 0, tekst.data(), lengte, breed.data(), lengte);
    breed.resize(static_cast<std::size_t>(gelukt));
    return breed;
}

std::string maakSmal(std::wstring_view tekst) {
    constexpr std::size_t hoogstensPerTeken = 3;
    std::string smal(tekst.size() * hoogstensPerTeken, '\0');
    const int gelukt = WideCharToMultiByte(CP_UTF8, 0, tekst.data(), static_cast<int>(tekst.size()),
                                           smal.data(), static_cast<int>(smal.size()), nullptr, nullptr);
    smal.resize(static_cast<std::size_t>(gelukt));
    return smal;
}

std::wstring maakVoluit(const std::string& pad) {
    if (pad.empty()) {
        return {};
    }
    std::wstring heel = maakHeel(maakBreed(pad));
    if (heel.starts_with(voorvoegsel) || heel.starts_with(apparaatVoorvoegsel)) {
        return heel;
    }
    if (heel.starts_with(netwerk)) {
        return heel.replace(0, netwerk.size(), netwerkVoorvoegsel);
    }
    return heel.insert(0, voorvoegsel);
}

bool isApparaat(std::wstring_view voluit) {
    return voluit.starts_with(apparaatVoorvoegsel);
}

std::wstring maakLeesbaar(std::wstring voluit) {
    if (voluit.starts_with(netwerkVoorvoegsel)) {
        return voluit.replace(0, netwerkVoorvoegsel.size(), netwerk);
    }
    return voluit.erase(0, voluit.starts_with(voorvoegsel) ? voorvoegsel.size() : 0);
}

}  // namespace kern::windows
