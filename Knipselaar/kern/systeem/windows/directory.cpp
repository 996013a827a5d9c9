#include "Knipselaar/kern/systeem/directory.h"

#include <memory>

#include "Knipselaar/kern/systeem/windows/breed.h"
#include "Knipselaar/kern/systeem/windows/fout.h"

namespace kern {

namespace {

Bestandssoort bepaalSoort(const WIN32_FIND_DATAW& deel) {
    // Bij een naam die ergens anders heen wijst staat hier hoe; zie ook kenmerken.cpp.
    if ((deel.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
        IsReparseTagNameSurrogate(deel.dwReserved0)) {
        return Bestandssoort::link;
    }
    if ((deel.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return Bestandssoort::directory;
    }
    return (deel.dwFileAttributes & FILE_ATTRIBUTE_DEVICE) != 0 ? Bestandssoort::anders
                                                                : Bestandssoort::bestand;
}

/// Wat van een andere wereld komt heet ook hier verborgen: ".git", ".vscode".
bool isVerborgen(const WIN32_FIND_DATAW& deel) {
    return (deel.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) != 0 || deel.cFileName[0] == L'.';
}

/// @param voluit  zie breed.h.
std::error_code maakVolledig(const std::wstring& voluit) {
    if (CreateDirectoryW(voluit.c_str(), nullptr) != 0) {
        return {};
    }
    const std::error_code fout = windows::geefFout();
    const DWORD kenmerken = GetFileAttributesW(voluit.c_str());
    if (kenmerken != INVALID_FILE_ATTRIBUTES) {
        return (kenmerken & FILE_ATTRIBUTE_DIRECTORY) != 0 ? std::error_code() : fout;
    }
    const std::size_t plek = voluit.find_last_of(L'\\');
    // Boven een schijf is niets meer te maken.
    if (fout != std::errc::no_such_file_or_directory || plek == std::wstring::npos ||
        voluit.ends_with(L':')) {
        return fout;
    }
    const auto boven = maakVolledig(voluit.substr(0, plek));
    return boven ? boven : windows::keur(CreateDirectoryW(voluit.c_str(), nullptr));
}

}  // namespace

std::error_code leesDirectory(const std::string& pad, std::vector<Deel>& uit) {
    std::wstring wat = windows::maakVoluit(pad);
    if (windows::isApparaat(wat)) {
        return windows::maakFout(ERROR_DIRECTORY);
    }
    wat += wat.ends_with(L'\\') ? L"*" : L"\\*";
    WIN32_FIND_DATAW deel{};
    const std::unique_ptr<void, decltype(&FindClose)> zoeker(
        FindFirstFileExW(wat.c_str(), FindExInfoBasic, &deel, FindExSearchNameMatch, nullptr,
                         FIND_FIRST_EX_LARGE_FETCH),
        &FindClose);
    if (zoeker.get() == INVALID_HANDLE_VALUE) {
        // De wortel van een lege schijf heeft ook geen "." en "..".
        return GetLastError() == ERROR_FILE_NOT_FOUND ? std::error_code() : windows::geefFout();
    }
    do {
        const std::wstring_view naam(deel.cFileName);
        if (naam != L"." && naam != L"..") {
            uit.push_back({.naam = windows::maakSmal(naam),
                           .soort = bepaalSoort(deel),
                           .verborgen = isVerborgen(deel)});
        }
    } while (FindNextFileW(zoeker.get(), &deel) != 0);
    return GetLastError() == ERROR_NO_MORE_FILES ? std::error_code() : windows::geefFout();
}

std::error_code maakDirectories(const std::string& pad) {
    std::wstring voluit = windows::maakVoluit(pad);
    while (voluit.ends_with(L'\\')) {
        voluit.pop_back();
    }
    return maakVolledig(voluit);
}

std::error_code maakDirectory(const std::string& pad, std::filesystem::perms /*rechten*/) {
    return maakDirectories(pad);
}

std::error_code keurSchrijfbaar(const std::string& directory) {
    Kenmerken kenmerken;
    return leesKenmerken(directory, kenmerken);
}

}  // namespace kern
