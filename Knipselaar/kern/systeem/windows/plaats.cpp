#include "Knipselaar/kern/systeem/windows/plaats.h"

#include <vector>

#include "Knipselaar/kern/systeem/windows/fout.h"
#include "Knipselaar/kern/systeem/windows/handvat.h"

namespace kern::windows {

namespace {

/// De kenmerken die een gebruiker zelf kan zetten.
constexpr DWORD vrijeKenmerken = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                                 FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

std::error_code neemKenmerkenOver(const std::wstring& nieuw, const WIN32_FILE_ATTRIBUTE_DATA& oud) {
    const Handvat handvat(CreateFileW(nieuw.c_str(), FILE_WRITE_ATTRIBUTES, deelAlles, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!handvat.isOpen()) {
        return geefFout();
    }
    // Een tijd van nul blijft zoals zij is; geen enkel kenmerk heet NORMAL.
    FILE_BASIC_INFO gegevens{};
    gegevens.CreationTime.LowPart = oud.ftCreationTime.dwLowDateTime;
    gegevens.CreationTime.HighPart = static_cast<LONG>(oud.ftCreationTime.dwHighDateTime);
    const DWORD kenmerken = oud.dwFileAttributes & vrijeKenmerken;
    gegevens.FileAttributes = kenmerken == 0 ? FILE_ATTRIBUTE_NORMAL : kenmerken;
    return keur(SetFileInformationByHandle(handvat.geef(), FileBasicInfo, &gegevens, sizeof gegevens));
}

/// De toegangslijst, in de vorm waarin Windows haar geeft en neemt; leeg als zij niet te lezen is.
std::vector<BYTE> leesToegang(const std::wstring& pad) {
    DWORD nodig = 0;
    GetFileSecurityW(pad.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &nodig);
    std::vector<BYTE> lijst(nodig);
    if (nodig == 0 ||
        GetFileSecurityW(pad.c_str(), DACL_SECURITY_INFORMATION, lijst.data(), nodig, &nodig) == 0) {
        lijst.clear();
    }
    return lijst;
}

std::error_code neemToegangOver(const std::wstring& nieuw, const std::wstring& van) {
    std::vector<BYTE> lijst = leesToegang(van);
    if (lijst.empty()) {
        return geefFout();
    }
    // Wie geen rechten mag geven hoeft dat meestal ook niet: het nieuwe bestand ligt in dezelfde directory.
    if (lijst == leesToegang(nieuw)) {
        return {};
    }
    // Zonder dit verzoek vergeet Windows dat de lijst van de directory komt, en volgt zij die voortaan niet
    // meer.
    SECURITY_DESCRIPTOR_CONTROL stand = 0;
    DWORD uitgave = 0;
    if (GetSecurityDescriptorControl(lijst.data(), &stand, &uitgave) != 0 &&
        (stand & SE_DACL_AUTO_INHERITED) != 0) {
        SetSecurityDescriptorControl(lijst.data(), SE_DACL_AUTO_INHERIT_REQ, SE_DACL_AUTO_INHERIT_REQ);
    }
    return keur(SetFileSecurityW(nieuw.c_str(), DACL_SECURITY_INFORMATION, lijst.data()));
}

/// Of niemand dit bestand open heeft. Een virusscanner kijkt vaak even mee; daar wordt kort op gewacht.
std::error_code wachtOpAnderen(const std::wstring& plaats) {
    constexpr int pogingen = 20;
    constexpr DWORD tussenpoosMs = 10;
    std::error_code fout;
    for (int poging = 0; poging < pogingen; ++poging) {
        const Handvat handvat(CreateFileW(plaats.c_str(), DELETE, 0, nullptr, OPEN_EXISTING,
                                          FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
        fout = handvat.isOpen() ? std::error_code() : geefFout();
        if (fout != maakFout(ERROR_SHARING_VIOLATION)) {
            return fout;
        }
        Sleep(tussenpoosMs);
    }
    return fout;
}

}  // namespace

std::error_code neemAllesOver(const std::wstring& nieuw, const std::wstring& van) {
    WIN32_FILE_ATTRIBUTE_DATA oud{};
    if (GetFileAttributesExW(van.c_str(), GetFileExInfoStandard, &oud) == 0) {
        return geefFout();
    }
    const auto fout = neemKenmerkenOver(nieuw, oud);
    return fout ? fout : neemToegangOver(nieuw, van);
}

std::error_code zetOpPlaats(const std::wstring& nieuw, const std::wstring& plaats) {
    const DWORD kenmerken = GetFileAttributesW(plaats.c_str());
    if (kenmerken != INVALID_FILE_ATTRIBUTES) {
        if ((kenmerken & FILE_ATTRIBUTE_DIRECTORY) != 0) {
            return std::make_error_code(std::errc::is_a_directory);
        }
        if ((kenmerken & FILE_ATTRIBUTE_READONLY) != 0) {
            return maakFout(ERROR_FILE_READ_ONLY);
        }
        if (const auto fout = wachtOpAnderen(plaats)) {
            return fout;
        }
    }
    return keur(MoveFileExW(nieuw.c_str(), plaats.c_str(), MOVEFILE_REPLACE_EXISTING));
}

}  // namespace kern::windows
