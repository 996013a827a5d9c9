#include "tests/hulp/opdracht.h"

#include <array>
#include <cstdio>

namespace hulp {

namespace {

/// Een woord zoals de shell het ongewijzigd doorgeeft.
std::string citeer(const std::string& woord) {
    std::string uit = "'";
    for (const char teken : woord) {
        uit += teken == '\'' ? std::string("'\\''") : std::string(1, teken);
    }
    return uit + "'";
}

Afloop voerShellUit(const std::string& regel) {
    FILE* pijp = popen(regel.c_str(), "r");
    std::string uitvoer;
    std::array<char, 4096> blok{};
    std::size_t gelezen = 0;
    while ((gelezen = fread(blok.data(), 1, blok.size(), pijp)) > 0) {
        uitvoer.append(blok.data(), gelezen);
    }
    return {pclose(pijp), uitvoer};
}

}  // namespace

std::string voerUit(const std::vector<std::string>& opdracht) {
    std::string regel;
    for (const std::string& woord : opdracht) {
        regel += citeer(woord) + " ";
    }
    const Afloop afloop = voerShellUit(regel + "2>/dev/null");
    return afloop.status == 0 ? afloop.uitvoer : std::string();
}

Afloop voerUitIn(const std::filesystem::path& map, const std::string& opdracht) {
    return voerShellUit("cd " + citeer(map.string()) + " && " + opdracht + " 2>&1");
}

}  // namespace hulp
