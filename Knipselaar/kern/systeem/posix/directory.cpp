#include "Knipselaar/kern/systeem/directory.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <memory>
#include <string_view>

#include "Knipselaar/kern/systeem/paden.h"
#include "Knipselaar/kern/systeem/posix/fout.h"

namespace kern {

namespace {

struct Sluiter {
    void operator()(DIR* directory) const { closedir(directory); }
};

/// De directory zegt het meestal zelf al; alleen anders wordt er naar het bestand gekeken.
Bestandssoort bepaalSoort(const std::string& directory, const dirent& deel) {
    switch (deel.d_type) {
        case DT_REG:
            return Bestandssoort::bestand;
        case DT_DIR:
            return Bestandssoort::directory;
        case DT_LNK:
            return Bestandssoort::link;
        case DT_UNKNOWN: {
            Kenmerken kenmerken;
            leesEigenKenmerken(plak(directory, deel.d_name), kenmerken);
            return kenmerken.soort;
        }
        default:
            return Bestandssoort::anders;
    }
}

}  // namespace

std::error_code leesDirectory(const std::string& pad, std::vector<Deel>& uit) {
    const std::unique_ptr<DIR, Sluiter> directory(opendir(pad.c_str()));
    if (directory == nullptr) {
        return posix::geefFout();
    }
    for (;;) {
        errno = 0;
        const dirent* deel = readdir(directory.get());
        if (deel == nullptr) {
            return posix::keur(errno);
        }
        const std::string_view naam(deel->d_name);
        if (naam != "." && naam != "..") {
            uit.push_back({.naam = std::string(naam),
                           .soort = bepaalSoort(pad, *deel),
                           .verborgen = naam.starts_with('.')});
        }
    }
}

std::error_code maakDirectories(const std::string& pad) {
    std::error_code fout;
    std::filesystem::create_directories(pad, fout);
    return fout;
}

std::error_code maakDirectory(const std::string& pad, std::filesystem::perms rechten) {
    using std::filesystem::perms;
    const auto fout =
        posix::keur(mkdir(pad.c_str(), static_cast<mode_t>((rechten & perms::all) | perms::owner_all)));
    return fout == std::errc::file_exists ? std::error_code() : fout;
}

std::error_code keurSchrijfbaar(const std::string& directory) {
    return posix::keur(access(directory.c_str(), W_OK | X_OK));
}

}  // namespace kern
