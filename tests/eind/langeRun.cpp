#include "tests/eind/langeRun.h"

#include <gtest/gtest.h>

#include <csignal>
#include <string>
#include <utility>

#include "tests/eind/bediening.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/wachten.h"

namespace fs = std::filesystem;

LangeRun::LangeRun(const fs::path& bron, fs::path doel) : doel_(std::move(doel)) {
    for (long nummer = 0; nummer < bestanden; ++nummer) {
        hulp::schrijfBestand(bron / (std::to_string(nummer) + ".c"), origineel);
    }
}

void LangeRun::houdStil(const hulp::Kindproces& programma) {
    programma_ = &programma;
    EXPECT_TRUE(hulp::wachtTot([this] { return !fs::is_empty(doel_); })) << "de run begint niet";
    programma_->stuur(SIGSTOP);
}

void LangeRun::gaEvenDoor() const {
    const long nu = tel();
    programma_->stuur(SIGCONT);
    EXPECT_TRUE(hulp::wachtTot([&] { return tel() > nu; })) << "de run gaat niet verder";
    programma_->stuur(SIGSTOP);
}

void LangeRun::gaDoor() const {
    programma_->stuur(SIGCONT);
}

long LangeRun::tel() const {
    return std::distance(fs::directory_iterator(doel_), fs::directory_iterator());
}
