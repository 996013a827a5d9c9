#include "Knipselaar/kern/systeem/onderbreking.h"

#include <windows.h>

#include <atomic>
#include <cstdlib>

namespace kern {

namespace {

std::atomic<bool> gevangen{false};
/// De draad die het werk doet; het verzoek komt op een andere binnen.
std::atomic<HANDLE> werker{nullptr};

BOOL WINAPI onthoud(DWORD verzoek) {
    gevangen = true;
    // Wie op een pijp wacht merkt anders niets van het verzoek.
    CancelSynchronousIo(werker);
    if (verzoek != CTRL_C_EVENT && verzoek != CTRL_BREAK_EVENT) {
        // Bij het sluiten van de console of het afmelden eindigt het programma zodra dit terugkeert; zo lang
        // krijgt het werk om op te ruimen. Het eindigt dan zelf.
        Sleep(INFINITE);
    }
    return TRUE;
}

}  // namespace

void vangOnderbreking() {
    HANDLE draad = nullptr;
    DuplicateHandle(GetCurrentProcess(), GetCurrentThread(), GetCurrentProcess(), &draad, 0, FALSE,
                    DUPLICATE_SAME_ACCESS);
    werker = draad;
    SetConsoleCtrlHandler(onthoud, TRUE);
}

bool isOnderbroken() {
    return gevangen;
}

void sterfAanOnderbreking() {
    if (gevangen) {
        std::exit(static_cast<int>(STATUS_CONTROL_C_EXIT));
    }
}

}  // namespace kern
