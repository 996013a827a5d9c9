#include "Knipselaar/kern/buurbestand.h"

#include <fcntl.h>
#include <unistd.h>

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
    bestaat_ = !sluit() || rename(naam_.c_str(), bestemming_.c_str()) != 0;
    return !bestaat_;
}

bool Buurbestand::sluit() {
    return close(std::exchange(kanaal_, gesloten)) == 0;
}

}  // namespace kern
