#include "Knipselaar/kern/systeem/aantekening.h"

#include <array>

#include "Knipselaar/kern/systeem/paden.h"
#include "Knipselaar/kern/systeem/windows/breed.h"
#include "Knipselaar/kern/systeem/windows/handvat.h"

namespace kern {

namespace {

/// Een tweede inhoud onder dezelfde naam. NTFS bewaart die, FAT en een netwerkschijf vaak niet.
constexpr const wchar_t* stroom = L":knipselaar";

constexpr DWORD langste = 80;

/// Waar geen tweede inhoud bestaat, is de naam ervan misschien die van een ander bestand.
bool heeftStromen(HANDLE handvat) {
    DWORD kenmerken = 0;
    return GetVolumeInformationByHandleW(handvat, nullptr, 0, nullptr, nullptr, &kenmerken, nullptr, 0) !=
               0 &&
           (kenmerken & FILE_NAMED_STREAMS) != 0;
}

}  // namespace

void tekenAan(int kanaal, std::string_view tekst) {
    if (!heeftStromen(windows::geefHandvat(kanaal))) {
        return;
    }
    const std::wstring pad = windows::geefPad(windows::geefHandvat(kanaal)) + stroom;
    const windows::Handvat handvat(CreateFileW(pad.c_str(), GENERIC_WRITE, windows::deelAlles, nullptr,
                                               CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!handvat.isOpen()) {
        return;
    }
    // Anders kreeg ook de gewone inhoud een nieuwe tijd.
    constexpr DWORD alleBits = 0xFFFFFFFF;
    const FILETIME laatStaan{.dwLowDateTime = alleBits, .dwHighDateTime = alleBits};
    SetFileTime(handvat.geef(), nullptr, nullptr, &laatStaan);
    DWORD geschreven = 0;
    WriteFile(handvat.geef(), tekst.data(), static_cast<DWORD>(tekst.size()), &geschreven, nullptr);
}

std::string leesAantekening(const std::string& pad) {
    if (isLink(pad)) {
        return {};
    }
    const std::wstring naam = windows::maakVoluit(pad) + stroom;
    const windows::Handvat handvat(CreateFileW(naam.c_str(), GENERIC_READ, windows::deelAlles, nullptr,
                                               OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    std::array<char, langste> gelezen{};
    DWORD aantal = 0;
    const bool heel =
        handvat.isOpen() && ReadFile(handvat.geef(), gelezen.data(), langste, &aantal, nullptr) != 0;
    return heel && aantal < langste ? std::string(gelezen.data(), aantal) : std::string();
}

}  // namespace kern
