#include "Knipselaar/venster/systeem/invoergreep.h"

#include <windows.h>

#include <set>

namespace {

bool isInvoer(UINT bericht) {
    return (bericht >= WM_KEYFIRST && bericht <= WM_KEYLAST) ||
           (bericht >= WM_MOUSEFIRST && bericht <= WM_MOUSELAST) ||
           (bericht >= WM_NCMOUSEMOVE && bericht <= WM_NCXBUTTONDBLCLK);
}

}  // namespace

/// Maakt van elke toets en elke klik een bericht dat niets doet, voordat een venster haar ziet. Alleen voor
/// de vensters die er al zijn: een vraag die er later bij komt, is gewoon te beantwoorden.
struct Invoergreep::Greep {
    Greep() : vorige(laatste) {
        EnumThreadWindows(GetCurrentThreadId(), onthoud, reinterpret_cast<LPARAM>(&vensters));
        laatste = this;
        haak = SetWindowsHookExW(WH_GETMESSAGE, weeg, nullptr, GetCurrentThreadId());
    }
    Greep(const Greep&) = delete;
    Greep& operator=(const Greep&) = delete;
    ~Greep() {
        UnhookWindowsHookEx(haak);
        laatste = vorige;
    }

    static BOOL CALLBACK onthoud(HWND venster, LPARAM vensters) {
        reinterpret_cast<std::set<HWND>*>(vensters)->insert(venster);
        return TRUE;
    }

    static LRESULT CALLBACK weeg(int code, WPARAM wijze, LPARAM gegevens) {
        auto* bericht = reinterpret_cast<MSG*>(gegevens);
        if (code == HC_ACTION && isInvoer(bericht->message) &&
            laatste->vensters.contains(GetAncestor(bericht->hwnd, GA_ROOT))) {
            bericht->message = WM_NULL;
        }
        return CallNextHookEx(nullptr, code, wijze, gegevens);
    }

    static inline Greep* laatste = nullptr;

    Greep* vorige;
    std::set<HWND> vensters;
    HHOOK haak;
};

Invoergreep::Invoergreep() : greep_(std::make_unique<Greep>()) {}

Invoergreep::~Invoergreep() = default;
