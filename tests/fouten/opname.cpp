// Gaat met LD_PRELOAD tussen een programma en het systeem in staan en schrijft op wat er met bestanden
// gebeurt, in de volgorde waarin het gebeurde. Alleen wat onder de directory OPNAME_VAN ligt telt. Het
// bestand OPNAME krijgt van elke aanroep die lukte een regel; achter "schrijf" volgen de bytes zelf.

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "tests/fouten/tussen.h"

namespace {

using fouten::zoek;

// Zonder constructor en destructor: de aanroepen beginnen voor en eindigen na die van dit bestand.
constinit int opname = -1;
constinit std::array<std::array<char, 512>, 1024> namen{};

[[gnu::constructor]] void begin() {
    const char* pad = std::getenv("OPNAME");
    if (pad != nullptr) {
        opname = static_cast<int>(syscall(SYS_openat, AT_FDCWD, pad, O_WRONLY | O_APPEND | O_CREAT, 0600));
    }
}

bool isGevolgd(std::string_view pad) {
    const char* directory = std::getenv("OPNAME_VAN");
    return opname >= 0 && directory != nullptr && pad.starts_with(directory);
}

/// In één aanroep, zodat twee draden elkaars regels niet breken.
void schrijfOp(const std::string& regel) {
    syscall(SYS_write, opname, regel.data(), regel.size());
}

/// Onthoudt hoe een open bestand heet; leeg als het niet gevolgd wordt.
int onthoud(int bestand, std::string_view pad) {
    if (bestand >= 0 && static_cast<std::size_t>(bestand) < namen.size()) {
        auto& naam = namen[static_cast<std::size_t>(bestand)];
        naam[isGevolgd(pad) ? pad.copy(naam.data(), naam.size() - 1) : 0] = '\0';
    }
    return bestand;
}

std::string geefNaam(int bestand) {
    return bestand >= 0 && static_cast<std::size_t>(bestand) < namen.size()
               ? namen[static_cast<std::size_t>(bestand)].data()
               : "";
}

int doeMkostemp(const char* naam, char* sjabloon, int vlaggen) {
    const int bestand = zoek<int(char*, int)>(naam)(sjabloon, vlaggen);
    onthoud(bestand, sjabloon);
    if (bestand >= 0 && isGevolgd(sjabloon)) {
        schrijfOp("maak\t" + std::string(sjabloon) + "\n");
    }
    return bestand;
}

}  // namespace

namespace fouten {

int doeOpen(const char* naam, const char* pad, int vlaggen, mode_t rechten) {
    const int bestand = onthoud(openEcht(naam, pad, vlaggen, rechten), pad);
    if (bestand >= 0 && isGevolgd(pad) && (vlaggen & O_ACCMODE) != O_RDONLY) {
        schrijfOp("open\t" + std::string(pad) + "\n");
    }
    return bestand;
}

}  // namespace fouten

extern "C" {

int mkostemp(char* sjabloon, int vlaggen) {
    return doeMkostemp("mkostemp", sjabloon, vlaggen);
}

int mkostemp64(char* sjabloon, int vlaggen) {
    return doeMkostemp("mkostemp64", sjabloon, vlaggen);
}

ssize_t write(int bestand, const void* bytes, size_t aantal) {
    const ssize_t geschreven = zoek<ssize_t(int, const void*, size_t)>("write")(bestand, bytes, aantal);
    const std::string naam = geefNaam(bestand);
    if (geschreven > 0 && !naam.empty()) {
        schrijfOp("schrijf\t" + naam + "\t" + std::to_string(geschreven) + "\n" +
                  std::string(static_cast<const char*>(bytes), static_cast<std::size_t>(geschreven)));
    }
    return geschreven;
}

int close(int bestand) {
    onthoud(bestand, "");
    return zoek<int(int)>("close")(bestand);
}

int rename(const char* oud, const char* nieuw) noexcept {
    const int uitkomst = zoek<int(const char*, const char*)>("rename")(oud, nieuw);
    if (uitkomst == 0 && isGevolgd(nieuw)) {
        schrijfOp("hernoem\t" + std::string(oud) + "\t" + nieuw + "\n");
    }
    return uitkomst;
}

int unlink(const char* pad) noexcept {
    const int uitkomst = zoek<int(const char*)>("unlink")(pad);
    if (uitkomst == 0 && isGevolgd(pad)) {
        schrijfOp("haalweg\t" + std::string(pad) + "\n");
    }
    return uitkomst;
}

/// Met BEWAART in de omgeving bewaart iemand dat bestand net voor het vastzetten.
int syncfs(int bestand) noexcept {
    if (const char* bewaard = std::getenv("BEWAART")) {
        const int kanaal = static_cast<int>(syscall(SYS_openat, AT_FDCWD, bewaard, O_WRONLY | O_APPEND));
        syscall(SYS_write, kanaal, "erbij\n", 6);
        zoek<int(int)>("close")(kanaal);
    }
    const int uitkomst = zoek<int(int)>("syncfs")(bestand);
    if (uitkomst == 0) {
        schrijfOp("vast\t\n");
    }
    return uitkomst;
}

}  // extern "C"
