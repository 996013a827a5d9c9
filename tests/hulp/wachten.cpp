#include "tests/hulp/wachten.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace hulp {

long klokMs() {
    using namespace std::chrono;
    return static_cast<long>(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

void wachtEven(long blikMs) {
    constexpr long minstensMs = 10;
    constexpr long hoogstensMs = 50;
    std::this_thread::sleep_for(std::chrono::milliseconds(std::clamp(blikMs, minstensMs, hoogstensMs)));
}

}  // namespace hulp
