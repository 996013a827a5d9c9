#include "Knipselaar/kern/systeem/bestand.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>

#include "Knipselaar/kern/systeem/onderbreking.h"
#include "Knipselaar/kern/systeem/posix/fout.h"

namespace kern {

namespace {

// O_NONBLOCK: op een pijp zonder tegenpartij zou open anders voor altijd wachten. Voor gewone bestanden
// betekent de vlag niets.
constexpr int altijd = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

/// Wat er staat als openen niet mag.
Bestandssoort raadSoort(const std::error_code& fout) {
    switch (fout.value()) {
        case EISDIR:
            return Bestandssoort::directory;
        case ENXIO:  // een pijp waar niemand uit leest, of een socket
            return Bestandssoort::anders;
        case EEXIST:  // openDoel maakt alleen iets waar eerst niets te vinden was
            return Bestandssoort::link;
        default:
            return Bestandssoort::onbekend;
    }
}

/// Houdt alleen een gewoon bestand open; al het andere gaat meteen weer dicht.
Opening houdGewoonBestand(int kanaal) {
    Opening opening{.bestand = Bestand(kanaal), .kenmerken = {}, .fout = {}};
    opening.fout = opening.bestand.isOpen() ? leesKenmerken(kanaal, opening.kenmerken) : posix::geefFout();
    if (opening.fout) {
        opening.kenmerken.soort = raadSoort(opening.fout);
    }
    if (opening.kenmerken.soort != Bestandssoort::bestand) {
        opening.bestand = Bestand();
    }
    return opening;
}

}  // namespace

Bestand::~Bestand() {
    if (isOpen()) {
        close(kanaal_);
    }
}

std::error_code Bestand::sluit() {
    return posix::keur(close(geefUitHanden()));
}

Opening openBron(const std::string& pad) {
    return houdGewoonBestand(open(pad.c_str(), O_RDONLY | altijd));
}

Opening openStroom(const std::string& pad) {
    const int kanaal = open(pad.c_str(), O_RDONLY | O_NOCTTY | O_CLOEXEC);
    Opening opening{.bestand = Bestand(kanaal), .kenmerken = {}, .fout = {}};
    opening.fout = opening.bestand.isOpen() ? leesKenmerken(kanaal, opening.kenmerken) : posix::geefFout();
    return opening;
}

Opening openDoel(const std::string& pad) {
    constexpr mode_t rechten = 0666;
    int kanaal = open(pad.c_str(), O_WRONLY | altijd);
    if (kanaal < 0 && errno == ENOENT) {
        // O_EXCL: door een link die nergens heen wijst zou hier elders een bestand ontstaan.
        kanaal = open(pad.c_str(), O_WRONLY | O_CREAT | O_EXCL | altijd, rechten);
    }
    Opening opening = houdGewoonBestand(kanaal);
    if (opening.bestand.isOpen() && opening.kenmerken.lengte > 0 && ftruncate(kanaal, 0) != 0) {
        opening.fout = posix::geefFout();
        opening.bestand = Bestand();
    }
    return opening;
}

Gelezen lees(int kanaal, std::span<char> plaats) {
    for (;;) {
        const ssize_t aantal = read(kanaal, plaats.data(), plaats.size());
        if (aantal >= 0) {
            return {.aantal = static_cast<std::size_t>(aantal), .fout = {}};
        }
        if (errno != EINTR || isOnderbroken()) {
            return {.aantal = 0, .fout = posix::geefFout()};
        }
    }
}

std::error_code schrijf(int kanaal, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t aantal = write(kanaal, bytes.data(), bytes.size());
        // Een onderbroken aanroep kan al een deel geschreven hebben.
        if (isOnderbroken()) {
            return std::make_error_code(std::errc::interrupted);
        }
        if (aantal < 0 && errno != EINTR) {
            return posix::geefFout();
        }
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(aantal, 0)));
    }
    return {};
}

bool isTerminal(int kanaal) {
    return isatty(kanaal) != 0;
}

}  // namespace kern
