#include "Knipselaar/kern/systeem/vervanging.h"

#include "Knipselaar/kern/systeem/windows/breed.h"
#include "Knipselaar/kern/systeem/windows/fout.h"
#include "Knipselaar/kern/systeem/windows/plaats.h"

namespace kern {

namespace {

/// Of een bestand anders op de schijf staat: ingepakt of versleuteld. Dat neemt het alleen over van de
/// directory waarin het gemaakt is.
bool isAndersBewaard(const std::wstring& een, const std::wstring& ander) {
    constexpr DWORD bewaard = FILE_ATTRIBUTE_COMPRESSED | FILE_ATTRIBUTE_ENCRYPTED;
    return ((GetFileAttributesW(een.c_str()) ^ GetFileAttributesW(ander.c_str())) & bewaard) != 0;
}

}  // namespace

std::error_code verhuis(const std::string& nieuw, const std::string& plaats, const Kenmerken& oud) {
    Kenmerken kenmerken;
    if (const auto fout = leesKenmerken(nieuw, kenmerken)) {
        return fout;
    }
    const std::wstring van = windows::maakVoluit(nieuw);
    const std::wstring naar = windows::maakVoluit(plaats);
    if (kenmerken.schijf != oud.schijf || isAndersBewaard(van, naar)) {
        return windows::maakFout(ERROR_NOT_SAME_DEVICE);
    }
    const auto fout = windows::neemAllesOver(van, naar);
    return fout ? fout : windows::zetOpPlaats(van, naar);
}

}  // namespace kern
