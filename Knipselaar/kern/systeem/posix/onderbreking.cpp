#include "Knipselaar/kern/systeem/onderbreking.h"

#include <array>
#include <atomic>
#include <csignal>

namespace kern {

namespace {

std::atomic<int> gevangen{0};
static_assert(std::atomic<int>::is_always_lock_free, "een signaal mag nergens op wachten");

void onthoud(int signaal) {
    gevangen = signaal;
}

}  // namespace

void vangOnderbreking() {
    for (const int signaal : std::array{SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction nieuw {};
        struct sigaction oud {};
        nieuw.sa_handler = onthoud;  // zonder SA_RESTART: een aanroep die wacht, komt terug
        // Wie op de achtergrond gestart is met een genegeerd signaal (nohup), blijft het negeren.
        if (sigaction(signaal, nullptr, &oud) == 0 && oud.sa_handler != SIG_IGN) {
            sigaction(signaal, &nieuw, nullptr);
        }
    }
    std::signal(SIGPIPE, SIG_IGN);
}

bool isOnderbroken() {
    return gevangen != 0;
}

void sterfAanOnderbreking() {
    if (gevangen != 0) {
        std::signal(gevangen, SIG_DFL);
        std::raise(gevangen);
    }
}

}  // namespace kern
