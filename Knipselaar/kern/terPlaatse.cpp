#include "Knipselaar/kern/terPlaatse.h"

#include <sys/stat.h>
#include <unistd.h>
#include <wx/file.h>
#include <wx/log.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <string>

#include "Knipselaar/kern/buurbestand.h"
#include "Knipselaar/kern/reden.h"

namespace kern {

namespace {

constexpr std::size_t blokGrootte = 128 * 1024;
constexpr mode_t alleRechten = 07777;

bool schrijf(int kanaal, const char* bytes, std::size_t aantal) {
    while (aantal > 0) {
        const ssize_t geschreven = write(kanaal, bytes, aantal);
        if (geschreven < 0 && errno != EINTR) {
            return false;
        }
        const std::size_t stap = geschreven < 0 ? 0 : static_cast<std::size_t>(geschreven);
        bytes += stap;
        aantal -= stap;
    }
    return true;
}

bool isZelfdeEigenaar(const struct stat& een, const struct stat& ander) {
    return een.st_uid == ander.st_uid && een.st_gid == ander.st_gid;
}

bool kopieerInhoud(wxFile& bron, int kanaal) {
    std::array<char, blokGrootte> blok;  // NOLINT(cppcoreguidelines-pro-type-member-init): Read vult hem
    for (;;) {
        const ssize_t gelezen = bron.Read(blok.data(), blok.size());
        if (gelezen <= 0) {
            return gelezen == 0;
        }
        if (!schrijf(kanaal, blok.data(), static_cast<std::size_t>(gelezen))) {
            return false;
        }
    }
}

}  // namespace

TerPlaatse::TerPlaatse() {
    const wxLogNull geenMeldingen;
    tijdelijk_.AssignTempFileName("Knipselaar");
    onthoudReden(tijdelijk_.IsOk());
}

TerPlaatse::~TerPlaatse() {
    if (tijdelijk_.IsOk()) {
        unlink(tijdelijk_.GetFullPath().fn_str());
    }
}

bool TerPlaatse::vervang(const std::string& echt) {
    const wxLogNull geenMeldingen;
    struct stat oud {};
    if (!onthoudReden(stat(echt.c_str(), &oud) == 0)) {
        return false;
    }
    if (!S_ISREG(oud.st_mode)) {
        reden_ = "is geen gewoon bestand";
        return false;
    }
    wxFile knipsel(tijdelijk_.GetFullPath(), wxFile::read);
    return onthoudReden(knipsel.IsOpened()) &&
           (hernoem(knipsel.fd(), oud, echt) || kopieer(knipsel, oud, echt));
}

/// De reden staat in errno zolang er na de fout niets meer gedaan is.
bool TerPlaatse::onthoudReden(bool gelukt) {
    if (!gelukt) {
        reden_ = noemReden(errno);
    }
    return gelukt;
}

/// Verhuist het tijdelijke bestand zelf. Dat gaat niet naar een ander bestandssysteem, en wie eigenaar en
/// groep niet kan overnemen laat ze beter door de directory van de bestemming kiezen.
bool TerPlaatse::hernoem(int knipsel, const struct stat& oud, const std::string& echt) {
    struct stat nieuw {};
    const bool gelukt = fstat(knipsel, &nieuw) == 0 && nieuw.st_dev == oud.st_dev &&
                        (isZelfdeEigenaar(nieuw, oud) || neemEigenaarOver(knipsel, oud)) &&
                        fchmod(knipsel, oud.st_mode & alleRechten) == 0 &&
                        rename(tijdelijk_.GetFullPath().fn_str(), echt.c_str()) == 0;
    if (gelukt) {
        tijdelijk_.Clear();
    }
    return gelukt;
}

bool TerPlaatse::kopieer(wxFile& knipsel, const struct stat& oud, const std::string& echt) {
    Buurbestand nieuw(echt);
    return onthoudReden(nieuw.isOpen() && kopieerInhoud(knipsel, nieuw.geefKanaal()) &&
                        nieuw.neemRechtenOver(oud) && nieuw.neemPlaatsIn());
}

}  // namespace kern
