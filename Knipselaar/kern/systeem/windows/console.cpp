#include "Knipselaar/kern/systeem/console.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>
// Na windows.h.
#include <shellapi.h>

#include <array>
#include <cstdlib>
#include <memory>

#include "Knipselaar/kern/systeem/bestand.h"
#include "Knipselaar/kern/systeem/windows/breed.h"
#include "Knipselaar/kern/systeem/windows/handvat.h"

namespace kern {

namespace {

UINT eerdereTekens = 0;

/// De console blijft na het programma van de gebruiker.
void zetTekensTerug() {
    SetConsoleOutputCP(eerdereTekens);
}

void maakTerminalKlaar(int kanaal) {
    const HANDLE handvat = windows::geefHandvat(kanaal);
    DWORD stand = 0;
    if (GetConsoleMode(handvat, &stand) != 0) {
        SetConsoleMode(handvat, stand | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
    }
}

}  // namespace

void zorgVoorKanalen() {
    for (const int kanaal : std::array{invoerkanaal, uitvoerkanaal, foutkanaal}) {
        if (_get_osfhandle(kanaal) < 0) {
            const int niets = _open("NUL", kanaal == invoerkanaal ? _O_WRONLY : _O_RDONLY);
            if (niets >= 0 && niets != kanaal) {
                _dup2(niets, kanaal);
                _close(niets);
            }
        }
    }
}

std::vector<std::string> beginConsole(int /*aantal*/, char** /*woorden*/) {
    zorgVoorKanalen();
    for (const int kanaal : std::array{invoerkanaal, uitvoerkanaal, foutkanaal}) {
        _setmode(kanaal, _O_BINARY);
        maakTerminalKlaar(kanaal);
    }
    eerdereTekens = GetConsoleOutputCP();
    if (eerdereTekens != 0 && SetConsoleOutputCP(CP_UTF8) != 0) {
        std::atexit(zetTekensTerug);
    }
    // De woorden van main zijn al in de tekens van het systeem gezet, en dat kan tekens kosten.
    int aantal = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> breed(CommandLineToArgvW(GetCommandLineW(), &aantal),
                                                              &LocalFree);
    std::vector<std::string> woorden;
    for (int i = 1; i < aantal; ++i) {
        woorden.push_back(windows::maakSmal(breed.get()[i]));
    }
    return woorden;
}

}  // namespace kern
