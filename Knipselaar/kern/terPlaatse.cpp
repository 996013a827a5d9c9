#include "Knipselaar/kern/terPlaatse.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <wx/file.h>
#include <wx/log.h>

#include <array>
#include <cstdio>
#include <string>

#include "Knipselaar/kern/paden.h"

namespace kern {

namespace {

constexpr std::size_t blokGrootte = 128 * 1024;

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

    /// Neemt eigenaar, groep en rechten over. Een vreemde eigenaar kan alleen root houden; de rechten zijn
    /// wat de klas nodig heeft. Eerst de eigenaar, want die wissel kan rechten afnemen.
    bool neemRechtenOver(const struct stat& van) const {
        const bool eigenaarGelijk = fchown(bestand_.fd(), van.st_uid, van.st_gid) == 0;
        const mode_t rechten = van.st_mode & (eigenaarGelijk ? 07777U : 0777U);
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

bool TerPlaatse::vervang(const wxFileName& bestand) const {
    const wxLogNull geenMeldingen;
    const std::string echt = geefEchtPad(bestand.GetFullPath());
    struct stat gegevens {};
    if (echt.empty() || stat(echt.c_str(), &gegevens) != 0 || !S_ISREG(gegevens.st_mode)) {
        return false;
    }
    wxFile bron(tijdelijk_.GetFullPath(), wxFile::read);
    Buurbestand nieuw(echt);
    return bron.IsOpened() && nieuw.isOpen() && nieuw.kopieer(bron) && nieuw.neemRechtenOver(gegevens) &&
           nieuw.hernoem(echt);
}

}  // namespace kern
