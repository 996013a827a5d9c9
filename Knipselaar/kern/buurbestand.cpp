#include "Knipselaar/kern/buurbestand.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace kern {

namespace {

constexpr mode_t gewoneRechten = 0777;
constexpr mode_t alleRechten = 07777;
constexpr int gesloten = -1;

}  // namespace

bool neemEigenaarOver(int bestand, const struct stat& van) {
    return fchown(bestand, van.st_uid, van.st_gid) == 0;
}

Buurbestand::Buurbestand(std::string bestemming)
    : bestemming_(std::move(bestemming)),
      naam_(bestemming_.substr(0, bestemming_.rfind('/') + 1) + ".KnipselaarXXXXXX"),
      kanaal_(mkostemp(naam_.data(), O_CLOEXEC)),
      bestaat_(isOpen()) {}

Buurbestand::~Buurbestand() {
    if (isOpen()) {
        sluit();
    }
    if (bestaat_) {
        unlink(naam_.c_str());
    }
}

bool Buurbestand::neemRechtenOver(const struct stat& van) const {
    // Eerst de eigenaar en dan pas de rechten: die wissel kan rechten afnemen.
    const bool eigenaarGelijk = neemEigenaarOver(kanaal_, van);
    return fchmod(kanaal_, van.st_mode & (eigenaarGelijk ? alleRechten : gewoneRechten)) == 0;
}

void Buurbestand::beginTeBewaren() const {
    sync_file_range(kanaal_, 0, 0, SYNC_FILE_RANGE_WRITE);
}

bool Buurbestand::neemPlaatsIn() {
    return sluit() && hernoem();
}

bool Buurbestand::ruil() {
    if (!sluit()) {
        return false;
    }
    if (!wisselNamen()) {
        return hernoem();
    }
    bestaat_ = unlink(naam_.c_str()) != 0;
    if (bestaat_) {
        // Een directory laat zich wel ruilen, maar niet weghalen.
        const int reden = errno;
        wisselNamen();
        errno = reden;
    }
    return !bestaat_;
}

bool Buurbestand::hernoem() {
    bestaat_ = rename(naam_.c_str(), bestemming_.c_str()) != 0;
    return !bestaat_;
}

bool Buurbestand::wisselNamen() const {
    return renameat2(AT_FDCWD, naam_.c_str(), AT_FDCWD, bestemming_.c_str(), RENAME_EXCHANGE) == 0;
}

bool Buurbestand::sluit() {
    return close(std::exchange(kanaal_, gesloten)) == 0;
}

}  // namespace kern
