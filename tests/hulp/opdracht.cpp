#include "tests/hulp/opdracht.h"

#include <array>
#include <cstdio>

namespace hulp {

std::string voerUit(const std::vector<std::string>& opdracht) {
    std::string regel;
    for (const std::string& woord : opdracht) {
        regel += "'";
        for (const char teken : woord) {
            regel += teken == '\'' ? std::string("'\\''") : std::string(1, teken);
        }
        regel += "' ";
    }
    FILE* pijp = popen((regel + "2>/dev/null").c_str(), "r");
    std::string uitvoer;
    std::array<char, 4096> blok{};
    std::size_t gelezen = 0;
    while ((gelezen = fread(blok.data(), 1, blok.size(), pijp)) > 0) {
        uitvoer.append(blok.data(), gelezen);
    }
    return pclose(pijp) == 0 ? uitvoer : std::string();
}

}  // namespace hulp
