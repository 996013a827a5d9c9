#include "Knipselaar/kern/systeem/buurbestand.h"

#include <fcntl.h>
#include <io.h>

#include <random>
#include <utility>

#include "Knipselaar/kern/systeem/windows/breed.h"
#include "Knipselaar/kern/systeem/windows/fout.h"
#include "Knipselaar/kern/systeem/windows/handvat.h"
#include "Knipselaar/kern/systeem/windows/plaats.h"

namespace kern {

namespace {

using std::filesystem::perms;

std::string verzinNaam() {
    constexpr std::string_view tekens = "abcdefghijklmnopqrstuvwxyz0123456789";
    constexpr std::size_t lengte = 6;
    thread_local std::mt19937 toeval{std::random_device()()};
    std::uniform_int_distribution<std::size_t> kies(0, tekens.size() - 1);
    std::string naam = ".Knipselaar";
    for (std::size_t i = 0; i < lengte; ++i) {
        naam += tekens[kies(toeval)];
    }
    return naam;
}

/// Een punt vooraan verbergt onder Windows niets.
HANDLE maak(const std::string& pad) {
    return CreateFileW(windows::maakVoluit(pad).c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ,
                       nullptr, CREATE_NEW, FILE_ATTRIBUTE_HIDDEN, nullptr);
}

}  // namespace

Buurbestand::Buurbestand(std::string bestemming) : bestemming_(std::move(bestemming)) {
    const std::string directory = bestemming_.substr(0, bestemming_.find_last_of("/\\:") + 1);
    do {
        naam_ = directory + verzinNaam();
        windows::Handvat handvat(maak(naam_));
        fout_ = handvat.isOpen() ? std::error_code() : windows::geefFout();
        if (handvat.isOpen()) {
            bestand_ = Bestand(_open_osfhandle(reinterpret_cast<intptr_t>(handvat.geefUitHanden()),
                                               _O_RDWR | _O_BINARY | _O_NOINHERIT));
        }
    } while (fout_ == windows::maakFout(ERROR_FILE_EXISTS));
    bestaat_ = isOpen();
}

Buurbestand::~Buurbestand() {
    bestand_ = Bestand();
    if (bestaat_) {
        DeleteFileW(windows::maakVoluit(naam_).c_str());
    }
}

std::error_code Buurbestand::vervang(const Kenmerken& oud) {
    const auto fout = maakKlaar(oud);
    return fout ? fout : hernoem();
}

// Een heel bestandssysteem vastzetten mag alleen een beheerder; één bestand mag ieder.
std::error_code Buurbestand::maakKlaar(const Kenmerken& /*oud*/) {
    FlushFileBuffers(windows::geefHandvat(geefKanaal()));
    if (const auto fout = bestand_.sluit()) {
        return fout;
    }
    return windows::neemAllesOver(windows::maakVoluit(naam_), windows::maakVoluit(bestemming_));
}

std::error_code Buurbestand::ruil(perms rechten) {
    if (const auto fout = bestand_.sluit()) {
        return fout;
    }
    const bool alleenLezen = (rechten & perms::owner_write) == perms::none;
    const std::wstring bestemming = windows::maakVoluit(bestemming_);
    const DWORD stond = GetFileAttributesW(bestemming.c_str());
    // Eerdere uitvoer van een bron die alleen te lezen is, is dat ook.
    if (stond != INVALID_FILE_ATTRIBUTES && (stond & FILE_ATTRIBUTE_READONLY) != 0) {
        SetFileAttributesW(bestemming.c_str(), stond & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
    }
    const auto fout = windows::keur(SetFileAttributesW(
        windows::maakVoluit(naam_).c_str(), alleenLezen ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL));
    return fout ? fout : hernoem();
}

std::error_code Buurbestand::hernoem() {
    const auto fout = windows::zetOpPlaats(windows::maakVoluit(naam_), windows::maakVoluit(bestemming_));
    bestaat_ = static_cast<bool>(fout);
    return fout;
}

}  // namespace kern
