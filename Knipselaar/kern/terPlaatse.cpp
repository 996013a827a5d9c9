#include "Knipselaar/kern/terPlaatse.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <wx/file.h>
#include <wx/log.h>

#include <array>
#include <cstdio>
#include <string>

namespace kern {

namespace {

constexpr std::size_t blokGrootte = 128 * 1024;
constexpr mode_t gewoneRechten = 0777;
constexpr mode_t alleRechten = 07777;

/// Eerst de eigenaar en dan pas de rechten: deze wissel kan rechten afnemen.
bool neemEigenaarOver(int bestand, const struct stat& van) {
    return fchown(bestand, van.st_uid, van.st_gid) == 0;
}

/// Een bestand onder een tijdelijke, verborgen naam naast een ander; verdwijnt als het geen naam krijgt.
class Buurbestand {
  public:
    explicit Buurbestand(const std::string& naast)
        : naam_(naast.substr(0, naast.rfind('/') + 1) + ".KnipselaarXXXXXX"),
          bestand_(mkostemp(naam_.data(), O_CLOEXEC)) {}
    Buurbestand(const Buurbestand&) = delete;
    Buurbestand& operator=(const Buurbestand&) = delete;

    ~Buurbestand() {
        if (bestaat_) {
            unlink(naam_.c_str());
        }
    }

    bool isOpen() const { return bestand_.IsOpened(); }

    /// Een vreemde eigenaar kan alleen root houden; de rechten zijn wat de klas nodig heeft.
    bool neemRechtenOver(const struct stat& van) const {
        const bool eigenaarGelijk = neemEigenaarOver(bestand_.fd(), van);
        const mode_t rechten = van.st_mode & (eigenaarGelijk ? alleRechten : gewoneRechten);
        return fchmod(bestand_.fd(), rechten) == 0;
    }

    bool kopieer(wxFile& bron) {
        std::array<char, blokGrootte> blok;  // NOLINT(cppcoreguidelines-pro-type-member-init): Read vult hem
        for (;;) {
            const ssize_t gelezen = bron.Read(blok.data(), blok.size());
            if (gelezen <= 0) {
                return gelezen == 0;
            }
            if (!schrijf(blok.data(), static_cast<std::size_t>(gelezen))) {
                return false;
            }
        }
    }

    /// Sluit het bestand en geeft het zijn naam.
    bool hernoem(const std::string& naam) {
        if (!bestand_.Close() || rename(naam_.c_str(), naam.c_str()) != 0) {
            return false;
        }
        bestaat_ = false;
        return true;
    }

  private:
    bool schrijf(const char* bytes, std::size_t aantal) {
        while (aantal > 0) {
            const std::size_t geschreven = bestand_.Write(bytes, aantal);
            if (geschreven == 0) {
                return false;
            }
            bytes += geschreven;
            aantal -= geschreven;
        }
        return true;
    }

    std::string naam_;
    wxFile bestand_;
    bool bestaat_ = bestand_.IsOpened();
};

}  // namespace

TerPlaatse::TerPlaatse() {
    const wxLogNull geenMeldingen;
    tijdelijk_.AssignTempFileName("Knipselaar");
}

TerPlaatse::~TerPlaatse() {
    if (tijdelijk_.IsOk()) {
        unlink(tijdelijk_.GetFullPath().fn_str());
    }
}

bool TerPlaatse::vervang(const std::string& echt) {
    const wxLogNull geenMeldingen;
    struct stat oud {};
    if (stat(echt.c_str(), &oud) != 0 || !S_ISREG(oud.st_mode)) {
        return false;
    }
    wxFile knipsel(tijdelijk_.GetFullPath(), wxFile::read);
    return knipsel.IsOpened() && (hernoem(knipsel.fd(), oud, echt) || kopieer(knipsel, oud, echt));
}

/// Verhuist het tijdelijke bestand zelf. Dat gaat niet naar een ander bestandssysteem, en wie eigenaar en
/// groep niet kan overnemen laat ze beter door de directory van de bestemming kiezen.
bool TerPlaatse::hernoem(int knipsel, const struct stat& oud, const std::string& echt) {
    struct stat nieuw {};
    const bool gelukt = fstat(knipsel, &nieuw) == 0 && nieuw.st_dev == oud.st_dev &&
                        neemEigenaarOver(knipsel, oud) && fchmod(knipsel, oud.st_mode & alleRechten) == 0 &&
                        rename(tijdelijk_.GetFullPath().fn_str(), echt.c_str()) == 0;
    if (gelukt) {
        tijdelijk_.Clear();
    }
    return gelukt;
}

bool TerPlaatse::kopieer(wxFile& knipsel, const struct stat& oud, const std::string& echt) {
    Buurbestand nieuw(echt);
    return nieuw.isOpen() && nieuw.kopieer(knipsel) && nieuw.neemRechtenOver(oud) && nieuw.hernoem(echt);
}

}  // namespace kern
