#include "Knipselaar/kern/systeem/buurbestand.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "Knipselaar/kern/systeem/posix/fout.h"
#include "Knipselaar/kern/systeem/posix/rechten.h"

namespace kern {

namespace {

using std::filesystem::perms;

/// Wat de gebruiker zijn nieuwe bestanden nooit geeft. Alleen te lezen door het te zetten; dat mag maar één
/// draad doen.
perms geefMasker() {
    static const perms masker = [] {
        const mode_t oud = umask(0);
        umask(oud);
        return static_cast<perms>(oud);
    }();
    return masker;
}

}  // namespace

Buurbestand::Buurbestand(std::string bestemming)
    : bestemming_(std::move(bestemming)),
      naam_(bestemming_.substr(0, bestemming_.rfind('/') + 1) + ".KnipselaarXXXXXX"),
      bestand_(mkostemp(naam_.data(), O_CLOEXEC)),
      bestaat_(isOpen()) {
    if (!isOpen()) {
        fout_ = posix::geefFout();
    }
}

Buurbestand::~Buurbestand() {
    bestand_ = Bestand();
    if (bestaat_) {
        unlink(naam_.c_str());
    }
}

std::error_code Buurbestand::vervang(const Kenmerken& oud) {
    // Neemt het de plaats van een ander in, dan schrijft ext4 de inhoud hoe dan ook naar de schijf, maar
    // zonder deze wenk pas bij de hernoeming, en dan wacht iedereen die iets in dezelfde directory doet.
    sync_file_range(geefKanaal(), 0, 0, SYNC_FILE_RANGE_WRITE);
    const auto fout = maakKlaar(oud);
    return fout ? fout : hernoem();
}

std::error_code Buurbestand::maakKlaar(const Kenmerken& oud) {
    Kenmerken nu;
    if (const auto fout = leesKenmerken(geefKanaal(), nu)) {
        return fout;
    }
    if (const auto fout = posix::neemAllesOver(geefKanaal(), nu, bestemming_, oud, verlies_)) {
        return fout;
    }
    return bestand_.sluit();
}

// Ruilt van naam met de bestemming en haalt haar dan weg, of hernoemt waar niets te ruilen valt. ext4
// schrijft wat bij een hernoeming een ander vervangt eerst naar de schijf, bij een ruil niet. Dat scheelt bij
// een groot bestand een derde van de tijd.
std::error_code Buurbestand::ruil(perms rechten) {
    if (const auto fout = posix::zetRechten(geefKanaal(), rechten & perms::all & ~geefMasker())) {
        return fout;
    }
    if (const auto fout = bestand_.sluit()) {
        return fout;
    }
    if (!wisselNamen()) {
        return hernoem();
    }
    const auto fout = posix::keur(unlink(naam_.c_str()));
    bestaat_ = static_cast<bool>(fout);
    if (bestaat_) {
        // Een directory laat zich wel ruilen, maar niet weghalen.
        wisselNamen();
    }
    return fout;
}

std::error_code Buurbestand::hernoem() {
    const auto fout = posix::keur(std::rename(naam_.c_str(), bestemming_.c_str()));
    bestaat_ = static_cast<bool>(fout);
    return fout;
}

bool Buurbestand::wisselNamen() const {
    return renameat2(AT_FDCWD, naam_.c_str(), AT_FDCWD, bestemming_.c_str(), RENAME_EXCHANGE) == 0;
}

}  // namespace kern
