#include "tests/hulp/handleiding.h"

#include <algorithm>
#include <sstream>

#include "tests/hulp/bestanden.h"

namespace hulp {

namespace {

constexpr std::string_view hek = "```";

/// Maakt van een blok met "\n", "\r" en "\xHH" de bytes die er staan.
std::string leesBytes(const std::string& tekst) {
    std::string bytes;
    for (std::size_t i = 0; i < tekst.size(); ++i) {
        if (tekst.compare(i, 2, "\\n") == 0 || tekst.compare(i, 2, "\\r") == 0) {
            bytes += tekst[++i] == 'n' ? '\n' : '\r';
        } else if (tekst.compare(i, 2, "\\x") == 0) {
            bytes += static_cast<char>(std::stoi(tekst.substr(i + 2, 2), nullptr, 16));
            i += 3;
        } else if (tekst[i] != '\n') {
            bytes += tekst[i];
        }
    }
    return bytes;
}

std::vector<std::string> leesSoort(const std::string& regel) {
    std::istringstream woorden(regel.substr(hek.size()));
    std::string woord;
    woorden >> woord;  // de taal
    std::vector<std::string> soort;
    while (woorden >> woord) {
        soort.push_back(woord);
    }
    return soort;
}

}  // namespace

bool HandleidingBlok::is(const std::string& woord) const {
    return std::find(soort.begin(), soort.end(), woord) != soort.end();
}

std::vector<HandleidingBlok> leesBlokken(const std::filesystem::path& handleiding) {
    std::istringstream tekst(leesBestand(handleiding));
    std::vector<HandleidingBlok> blokken;
    std::string regel;
    for (int nummer = 1; std::getline(tekst, regel); ++nummer) {
        if (!regel.starts_with(hek)) {
            continue;
        }
        HandleidingBlok blok{nummer + 1, leesSoort(regel), ""};
        while (++nummer, std::getline(tekst, regel) && !regel.starts_with(hek)) {
            blok.inhoud += regel + "\n";
        }
        if (blok.is("bytes")) {
            blok.inhoud = leesBytes(blok.inhoud);
        }
        if (!blok.soort.empty()) {
            blokken.push_back(blok);
        }
    }
    return blokken;
}

}  // namespace hulp
