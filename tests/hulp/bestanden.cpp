#include "tests/hulp/bestanden.h"

#include <wx/textbuf.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>

namespace hulp {

namespace fs = std::filesystem;

TijdelijkeMap::TijdelijkeMap(const fs::path& plaats) {
    std::random_device toeval;
    do {
        pad_ = plaats / ("knipseltest-" + std::to_string(toeval()));
    } while (!fs::create_directory(pad_));
    fs::permissions(pad_, fs::perms::owner_all);
}

TijdelijkeMap::~TijdelijkeMap() {
    std::error_code fout;
    fs::remove_all(pad_, fout);
}

std::string leesBestand(const fs::path& pad) {
    const std::ifstream invoer(pad, std::ios::binary);
    if (!invoer) {
        throw std::runtime_error("niet te lezen: " + pad.string());
    }
    std::ostringstream inhoud;
    inhoud << invoer.rdbuf();
    return inhoud.str();
}

void schrijfBestand(const fs::path& pad, std::string_view inhoud) {
    std::ofstream uitvoer(pad, std::ios::binary | std::ios::trunc);
    uitvoer.write(inhoud.data(), static_cast<std::streamsize>(inhoud.size()));
    if (!uitvoer.flush()) {
        throw std::runtime_error("niet te schrijven: " + pad.string());
    }
}

std::string zetInBestand(std::string_view tekst) {
    std::string uit;
    for (const char teken : tekst) {
        uit += teken == '\n' ? wxString(wxTextBuffer::GetEOL()).utf8_string() : std::string(1, teken);
    }
    return uit;
}

std::vector<std::string> somOp(const fs::path& map) {
    std::vector<std::string> namen;
    for (const auto& deel : fs::directory_iterator(map)) {
        namen.push_back(deel.path().filename().string());
    }
    return namen;
}

std::string toonBytes(std::string_view bytes) {
    std::string tekst;
    for (const char teken : bytes) {
        if (teken >= 0x20 && teken < 0x7F && teken != '\\') {
            tekst += teken;
            continue;
        }
        std::array<char, 5> hex{};
        std::snprintf(hex.data(), hex.size(), "\\x%02X", static_cast<unsigned char>(teken));
        tekst += hex.data();
    }
    return tekst;
}

}  // namespace hulp
