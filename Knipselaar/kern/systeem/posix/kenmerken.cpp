#include "Knipselaar/kern/systeem/kenmerken.h"

#include <sys/stat.h>

#include "Knipselaar/kern/systeem/posix/fout.h"

namespace kern {

namespace {

constexpr mode_t alleRechten = 07777;

Bestandssoort geefSoort(mode_t stand) {
    if (S_ISREG(stand)) {
        return Bestandssoort::bestand;
    }
    if (S_ISDIR(stand)) {
        return Bestandssoort::directory;
    }
    return S_ISLNK(stand) ? Bestandssoort::link : Bestandssoort::anders;
}

/// Wat een aanroep van stat of een van zijn broers vond.
std::error_code neemOver(int uitkomst, const struct stat& gegevens, Kenmerken& uit) {
    if (uitkomst != 0) {
        return posix::geefFout();
    }
    uit.soort = geefSoort(gegevens.st_mode);
    uit.schijf = gegevens.st_dev;
    uit.nummer = gegevens.st_ino;
    uit.lengte = static_cast<std::uint64_t>(gegevens.st_size);
    uit.seconden = gegevens.st_mtim.tv_sec;
    uit.nanoseconden = gegevens.st_mtim.tv_nsec;
    uit.rechten = static_cast<std::filesystem::perms>(gegevens.st_mode & alleRechten);
    uit.eigenaar = gegevens.st_uid;
    uit.groep = gegevens.st_gid;
    return {};
}

}  // namespace

std::error_code leesKenmerken(const std::string& pad, Kenmerken& uit) {
    struct stat gegevens {};
    return neemOver(stat(pad.c_str(), &gegevens), gegevens, uit);
}

std::error_code leesEigenKenmerken(const std::string& pad, Kenmerken& uit) {
    struct stat gegevens {};
    return neemOver(lstat(pad.c_str(), &gegevens), gegevens, uit);
}

std::error_code leesKenmerken(int kanaal, Kenmerken& uit) {
    struct stat gegevens {};
    return neemOver(fstat(kanaal, &gegevens), gegevens, uit);
}

}  // namespace kern
