#include "Knipselaar/kern/systeem/bestand.h"

#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <cerrno>

#include "Knipselaar/kern/systeem/onderbreking.h"
#include "Knipselaar/kern/systeem/windows/breed.h"
#include "Knipselaar/kern/systeem/windows/fout.h"
#include "Knipselaar/kern/systeem/windows/handvat.h"

namespace kern {

namespace {

using windows::Handvat;

constexpr std::size_t perKeer = std::size_t{1} << 30;

/// Een pijp op een andere machine mag niet zien wie er klopt, en een directory gaat niet zonder
/// BACKUP_SEMANTICS open; dan is te zien dat het er een is.
constexpr DWORD altijd =
    FILE_ATTRIBUTE_NORMAL | FILE_FLAG_BACKUP_SEMANTICS | SECURITY_SQOS_PRESENT | SECURITY_ANONYMOUS;

/// Geeft een handvat aan de C-bibliotheek, die er bytes mee schrijft zoals ze zijn.
Bestand maakKanaal(Handvat& handvat, int wijze) {
    const int kanaal =
        _open_osfhandle(reinterpret_cast<intptr_t>(handvat.geef()), wijze | _O_BINARY | _O_NOINHERIT);
    if (kanaal >= 0) {
        handvat.geefUitHanden();
    }
    return Bestand(kanaal);
}

/// Houdt alleen een gewoon bestand open; al het andere gaat meteen weer dicht.
Opening houdGewoonBestand(Handvat& handvat, int wijze) {
    Opening opening;
    if (!handvat.isOpen()) {
        opening.fout = windows::geefFout();
        return opening;
    }
    opening.bestand = maakKanaal(handvat, wijze);
    if (!opening.bestand.isOpen()) {
        opening.fout = windows::maakFout(ERROR_TOO_MANY_OPEN_FILES);
        return opening;
    }
    opening.fout = leesKenmerken(opening.bestand.geefKanaal(), opening.kenmerken);
    if (opening.kenmerken.soort != Bestandssoort::bestand) {
        opening.bestand = Bestand();
    }
    return opening;
}

/// Een apparaat of een pijp gaat niet eens open.
Opening weiger() {
    Opening opening;
    opening.kenmerken.soort = Bestandssoort::anders;
    return opening;
}

/// Maakt een bestand waar er geen is. Door een link die nergens heen wijst zou er elders een ontstaan.
Opening maakNieuw(const std::string& pad, const std::wstring& voluit) {
    Kenmerken eigen;
    if (!leesEigenKenmerken(pad, eigen)) {
        Opening opening;
        opening.kenmerken.soort = eigen.soort;
        opening.fout = windows::maakFout(ERROR_FILE_EXISTS);
        return opening;
    }
    Handvat handvat(CreateFileW(voluit.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                                CREATE_NEW, altijd, nullptr));
    return houdGewoonBestand(handvat, _O_WRONLY);
}

}  // namespace

Bestand::~Bestand() {
    if (isOpen()) {
        _close(kanaal_);
    }
}

std::error_code Bestand::sluit() {
    return _close(geefUitHanden()) == 0 ? std::error_code() : std::error_code(errno, std::generic_category());
}

Opening openBron(const std::string& pad) {
    const std::wstring voluit = windows::maakVoluit(pad);
    if (windows::isApparaat(voluit)) {
        return weiger();
    }
    Handvat handvat(CreateFileW(voluit.c_str(), GENERIC_READ, windows::deelAlles, nullptr, OPEN_EXISTING,
                                altijd, nullptr));
    return houdGewoonBestand(handvat, _O_RDONLY);
}

Opening openStroom(const std::string& pad) {
    return openBron(pad);
}

Opening openDoel(const std::string& pad) {
    const std::wstring voluit = windows::maakVoluit(pad);
    if (windows::isApparaat(voluit)) {
        return weiger();
    }
    // Wie er intussen leest mag dat blijven doen: bij een bestand dat naar zichzelf geknipt wordt zijn wij
    // dat zelf. Een ander die er in schrijft houdt ons tegen.
    Handvat handvat(CreateFileW(voluit.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, altijd, nullptr));
    Opening opening = houdGewoonBestand(handvat, _O_WRONLY);
    if (opening.fout == std::errc::no_such_file_or_directory) {
        return maakNieuw(pad, voluit);
    }
    if (opening.kenmerken.soort == Bestandssoort::directory) {
        opening.fout = std::make_error_code(std::errc::is_a_directory);
    }
    if (opening.bestand.isOpen() && opening.kenmerken.lengte > 0 &&
        SetEndOfFile(windows::geefHandvat(opening.bestand.geefKanaal())) == 0) {
        opening.fout = windows::geefFout();
        opening.bestand = Bestand();
    }
    return opening;
}

Gelezen lees(int kanaal, std::span<char> plaats) {
    const auto hoogstens = static_cast<DWORD>(std::min(plaats.size(), perKeer));
    for (;;) {
        DWORD aantal = 0;
        const bool gelukt =
            ReadFile(windows::geefHandvat(kanaal), plaats.data(), hoogstens, &aantal, nullptr) != 0;
        const DWORD nummer = gelukt ? ERROR_SUCCESS : GetLastError();
        if (isOnderbroken() && aantal == 0) {
            return {.aantal = 0, .fout = std::make_error_code(std::errc::interrupted)};
        }
        if (gelukt || nummer == ERROR_BROKEN_PIPE || nummer == ERROR_HANDLE_EOF) {
            return {.aantal = aantal, .fout = {}};
        }
        // Ctrl+C breekt een aanroep af; was het iets anders, dan gaat het lezen door.
        if (nummer != ERROR_OPERATION_ABORTED) {
            return {.aantal = 0, .fout = windows::maakFout(nummer)};
        }
    }
}

std::error_code schrijf(int kanaal, std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD aantal = 0;
        const auto hoogstens = static_cast<DWORD>(std::min(bytes.size(), perKeer));
        const bool gelukt =
            WriteFile(windows::geefHandvat(kanaal), bytes.data(), hoogstens, &aantal, nullptr) != 0;
        const DWORD nummer = gelukt ? ERROR_SUCCESS : GetLastError();
        if (isOnderbroken()) {
            return std::make_error_code(std::errc::interrupted);
        }
        if (!gelukt && nummer != ERROR_OPERATION_ABORTED) {
            return windows::maakFout(nummer);
        }
        bytes.remove_prefix(aantal);
    }
    return {};
}

bool isTerminal(int kanaal) {
    DWORD stand = 0;
    return GetConsoleMode(windows::geefHandvat(kanaal), &stand) != 0;
}

}  // namespace kern
