// Gaat met LD_PRELOAD tussen een programma en het systeem in staan en laat daar één aanroep mislukken. Alleen
// wat binnen één directory gebeurt telt: paden daaronder, en bestanden die daar geopend zijn. Het opstarten
// van de toolkit valt er dus buiten. Aan het einde komt op de uitvoer hoe vaak de aanroep voorkwam; aan een
// getal onder het gevraagde nummer ziet de test dat er niets meer te storen was.
//
// De omgevingsvariabele STORING zegt wat er gebeurt: "AANROEP NUMMER KEREN KORT FOUT DIRECTORY". Vanaf het
// zoveelste voorkomen gaat het zoveel keren mis. Zonder KORT met errno FOUT, zonder FOUT met hoogstens KORT
// bytes per keer; met allebei is de eerste keer kort en de rest fout, zoals op een schijf die vol raakt.
//
// Met VERWEG in de omgeving doet de directory van TMPDIR alsof zij op een ander bestandssysteem ligt:
// daarvandaan laat niets zich hernoemen. Dat telt niet als storing.

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "tests/fouten/tussen.h"

namespace {

using fouten::zoek;

// Zonder constructor en destructor: de aanroepen beginnen voor en eindigen na die van dit bestand.
struct Stand {
    bool aan;
    std::array<char, 16> aanroep;
    std::array<char, 4096> directory;
    int vanaf;
    int keren;
    int kort;
    int fout;
    int geteld;
    std::array<bool, 1024> gevolgd;
};
constinit Stand stand{};

enum class Ingreep { geen, kort, fout };

[[gnu::constructor]] void begin() {
    const char* opdracht = std::getenv("STORING");
    stand.aan = opdracht != nullptr &&
                std::sscanf(opdracht, "%15s %d %d %d %d %4095[^\n]", stand.aanroep.data(), &stand.vanaf,
                            &stand.keren, &stand.kort, &stand.fout, stand.directory.data()) == 6;
}

[[gnu::destructor]] void meld() {
    dprintf(STDOUT_FILENO, "%d\n", stand.geteld);
}

bool isGevolgd(const char* pad) {
    return stand.aan && pad != nullptr && std::string_view(pad).starts_with(stand.directory.data());
}

bool isGevolgd(int bestand) {
    return bestand >= 0 && static_cast<std::size_t>(bestand) < stand.gevolgd.size() &&
           stand.gevolgd[static_cast<std::size_t>(bestand)];
}

bool isVerweg(const char* pad) {
    const char* tijdelijk = std::getenv("TMPDIR");
    return std::getenv("VERWEG") != nullptr && tijdelijk != nullptr && pad != nullptr &&
           std::string_view(pad).starts_with(tijdelijk);
}

/// Onthoudt een bestand dat in de directory geopend is.
int volg(int bestand) {
    if (bestand >= 0 && static_cast<std::size_t>(bestand) < stand.gevolgd.size()) {
        stand.gevolgd[static_cast<std::size_t>(bestand)] = true;
    }
    return bestand;
}

/// Telt een aanroep en zegt wat ervan terecht moet komen.
Ingreep tel(std::string_view aanroep) {
    if (aanroep != stand.aanroep.data()) {
        return Ingreep::geen;
    }
    const int keer = ++stand.geteld - stand.vanaf;
    if (keer < 0 || keer >= stand.keren) {
        return Ingreep::geen;
    }
    if (stand.kort > 0 && (stand.fout == 0 || keer == 0)) {
        return Ingreep::kort;
    }
    errno = stand.fout;
    return Ingreep::fout;
}

bool moetMislukken(bool gevolgd, std::string_view aanroep) {
    return gevolgd && tel(aanroep) == Ingreep::fout;
}

int doeMkstemp(const char* naam, char* sjabloon) {
    if (moetMislukken(isGevolgd(sjabloon), "mkstemp")) {
        return -1;
    }
    const int bestand = zoek<int(char*)>(naam)(sjabloon);
    return isGevolgd(sjabloon) ? volg(bestand) : bestand;
}

int doeMkostemp(const char* naam, char* sjabloon, int vlaggen) {
    if (moetMislukken(isGevolgd(sjabloon), "mkostemp")) {
        return -1;
    }
    const int bestand = zoek<int(char*, int)>(naam)(sjabloon, vlaggen);
    return isGevolgd(sjabloon) ? volg(bestand) : bestand;
}

/// Lezen en schrijven zijn voor een storing hetzelfde: ze mislukken, of doen minder dan gevraagd.
template <typename Functie, typename Bytes>
ssize_t verplaats(const char* naam, int bestand, Bytes* bytes, std::size_t aantal) {
    const Ingreep ingreep = isGevolgd(bestand) ? tel(naam) : Ingreep::geen;
    if (ingreep == Ingreep::fout) {
        return -1;
    }
    const std::size_t hoogstens =
        ingreep == Ingreep::kort ? std::min(aantal, static_cast<std::size_t>(stand.kort)) : aantal;
    return zoek<Functie>(naam)(bestand, bytes, hoogstens);
}

}  // namespace

namespace fouten {

int doeOpen(const char* naam, const char* pad, int vlaggen, mode_t rechten) {
    if (moetMislukken(isGevolgd(pad), "open")) {
        return -1;
    }
    const int bestand = openEcht(naam, pad, vlaggen, rechten);
    return isGevolgd(pad) ? volg(bestand) : bestand;
}

}  // namespace fouten

extern "C" {

int mkstemp(char* sjabloon) {
    return doeMkstemp("mkstemp", sjabloon);
}

int mkstemp64(char* sjabloon) {
    return doeMkstemp("mkstemp64", sjabloon);
}

int mkostemp(char* sjabloon, int vlaggen) {
    return doeMkostemp("mkostemp", sjabloon, vlaggen);
}

int mkostemp64(char* sjabloon, int vlaggen) {
    return doeMkostemp("mkostemp64", sjabloon, vlaggen);
}

ssize_t read(int bestand, void* bytes, size_t aantal) {
    return verplaats<ssize_t(int, void*, size_t)>("read", bestand, bytes, aantal);
}

ssize_t write(int bestand, const void* bytes, size_t aantal) {
    return verplaats<ssize_t(int, const void*, size_t)>("write", bestand, bytes, aantal);
}

/// Ook een close die een fout geeft, sluit: zo doet het systeem het. Wat er geschreven was is dan verloren,
/// zoals op een schijf elders die pas bij het sluiten meldt dat zij vol is.
int close(int bestand) {
    const bool gevolgd = isGevolgd(bestand);
    if (gevolgd) {
        stand.gevolgd[static_cast<std::size_t>(bestand)] = false;
    }
    const auto echt = zoek<int(int)>("close");
    if (!moetMislukken(gevolgd, "close")) {
        return echt(bestand);
    }
    // Een bestand dat alleen gelezen werd laat zich niet legen.
    zoek<int(int, off_t)>("ftruncate")(bestand, 0);
    echt(bestand);
    errno = stand.fout;
    return -1;
}

int ftruncate(int bestand, off_t lengte) noexcept {
    return moetMislukken(isGevolgd(bestand), "ftruncate")
               ? -1
               : zoek<int(int, off_t)>("ftruncate")(bestand, lengte);
}

int ftruncate64(int bestand, off64_t lengte) noexcept {
    return moetMislukken(isGevolgd(bestand), "ftruncate")
               ? -1
               : zoek<int(int, off64_t)>("ftruncate64")(bestand, lengte);
}

int fchmod(int bestand, mode_t rechten) noexcept {
    return moetMislukken(isGevolgd(bestand), "fchmod") ? -1
                                                       : zoek<int(int, mode_t)>("fchmod")(bestand, rechten);
}

int fchown(int bestand, uid_t eigenaar, gid_t groep) noexcept {
    return moetMislukken(isGevolgd(bestand), "fchown")
               ? -1
               : zoek<int(int, uid_t, gid_t)>("fchown")(bestand, eigenaar, groep);
}

int rename(const char* oud, const char* nieuw) noexcept {
    if (isVerweg(oud)) {
        errno = EXDEV;
        return -1;
    }
    return moetMislukken(isGevolgd(nieuw), "rename")
               ? -1
               : zoek<int(const char*, const char*)>("rename")(oud, nieuw);
}

int unlink(const char* pad) noexcept {
    return moetMislukken(isGevolgd(pad), "unlink") ? -1 : zoek<int(const char*)>("unlink")(pad);
}

char* realpath(const char* pad, char* buffer) noexcept {
    return moetMislukken(isGevolgd(pad), "realpath")
               ? nullptr
               : zoek<char*(const char*, char*)>("realpath")(pad, buffer);
}

DIR* opendir(const char* pad) {
    return moetMislukken(isGevolgd(pad), "opendir") ? nullptr : zoek<DIR*(const char*)>("opendir")(pad);
}

}  // extern "C"
