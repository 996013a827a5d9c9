#include "Knipselaar/kern/systeem/kenmerken.h"

#include <functional>

#include "Knipselaar/kern/systeem/windows/breed.h"
#include "Knipselaar/kern/systeem/windows/fout.h"
#include "Knipselaar/kern/systeem/windows/handvat.h"

namespace kern {

namespace {

using std::filesystem::perms;
using windows::Handvat;

constexpr int halfNummer = 32;

std::uint64_t voegSamen(DWORD hoog, DWORD laag) {
    return (std::uint64_t{hoog} << halfNummer) | laag;
}

/// Een junction en een link wijzen naar een andere naam. Wat verder zo heet is een gewoon bestand dat ergens
/// anders bewaard wordt, zoals in de cloud.
bool isLink(HANDLE handvat) {
    FILE_ATTRIBUTE_TAG_INFO label{};
    return GetFileInformationByHandleEx(handvat, FileAttributeTagInfo, &label, sizeof label) != 0 &&
           (label.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           IsReparseTagNameSurrogate(label.ReparseTag);
}

/// Het oude nummer van 64 bits is niet overal van één bestand; dit is het waar het systeem het kent.
void leesNummer(HANDLE handvat, Kenmerken& uit) {
    FILE_ID_INFO nummers{};
    if (GetFileInformationByHandleEx(handvat, FileIdInfo, &nummers, sizeof nummers) == 0) {
        return;
    }
    uit.schijf = nummers.VolumeSerialNumber;
    uit.nummer = 0;
    constexpr std::size_t halve = sizeof nummers.FileId.Identifier / 2;
    constexpr int bitsPerByte = 8;
    for (std::size_t i = 0; i < halve; ++i) {
        const auto paar = nummers.FileId.Identifier[i] ^ nummers.FileId.Identifier[halve + i];
        uit.nummer |= static_cast<std::uint64_t>(paar) << (i * bitsPerByte);
    }
}

void leesTijd(const FILETIME& tijd, Kenmerken& uit) {
    constexpr std::uint64_t perSeconde = 10'000'000;
    constexpr std::int64_t nanosecondenPer = 100;
    const std::uint64_t tikken = voegSamen(tijd.dwHighDateTime, tijd.dwLowDateTime);
    uit.seconden = static_cast<std::int64_t>(tikken / perSeconde);
    uit.nanoseconden = static_cast<std::int64_t>(tikken % perSeconde) * nanosecondenPer;
}

std::error_code neemOver(HANDLE handvat, Kenmerken& uit) {
    if (GetFileType(handvat) != FILE_TYPE_DISK) {
        uit.soort = Bestandssoort::anders;
        return {};
    }
    BY_HANDLE_FILE_INFORMATION gegevens{};
    if (GetFileInformationByHandle(handvat, &gegevens) == 0) {
        return windows::geefFout();
    }
    if (isLink(handvat)) {
        uit.soort = Bestandssoort::link;
    } else {
        const bool directory = (gegevens.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        uit.soort = directory ? Bestandssoort::directory : Bestandssoort::bestand;
    }
    uit.schijf = gegevens.dwVolumeSerialNumber;
    uit.nummer = voegSamen(gegevens.nFileIndexHigh, gegevens.nFileIndexLow);
    leesNummer(handvat, uit);
    uit.lengte = voegSamen(gegevens.nFileSizeHigh, gegevens.nFileSizeLow);
    leesTijd(gegevens.ftLastWriteTime, uit);
    const bool alleenLezen = (gegevens.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
    constexpr perms lezen = perms::owner_read | perms::group_read | perms::others_read;
    constexpr perms schrijven = perms::owner_write | perms::group_write | perms::others_write;
    uit.rechten = alleenLezen ? lezen : lezen | schrijven;
    return {};
}

std::error_code leesVan(const std::string& pad, DWORD wijze, Kenmerken& uit) {
    const std::wstring voluit = windows::maakVoluit(pad);
    if (windows::isApparaat(voluit)) {
        uit.soort = Bestandssoort::anders;
        uit.nummer = std::hash<std::wstring>()(voluit);
        return {};
    }
    // Zonder BACKUP_SEMANTICS gaat een directory niet open.
    const Handvat handvat(CreateFileW(voluit.c_str(), FILE_READ_ATTRIBUTES, windows::deelAlles, nullptr,
                                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | wijze, nullptr));
    return handvat.isOpen() ? neemOver(handvat.geef(), uit) : windows::geefFout();
}

}  // namespace

std::error_code leesKenmerken(const std::string& pad, Kenmerken& uit) {
    return leesVan(pad, 0, uit);
}

std::error_code leesEigenKenmerken(const std::string& pad, Kenmerken& uit) {
    return leesVan(pad, FILE_FLAG_OPEN_REPARSE_POINT, uit);
}

std::error_code leesKenmerken(int kanaal, Kenmerken& uit) {
    return neemOver(windows::geefHandvat(kanaal), uit);
}

}  // namespace kern
