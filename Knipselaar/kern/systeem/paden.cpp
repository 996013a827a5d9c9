#include "Knipselaar/kern/systeem/paden.h"

#include "Knipselaar/kern/systeem/kenmerken.h"

namespace kern {

bool isLink(const std::string& pad) {
    Kenmerken kenmerken;
    return !leesEigenKenmerken(pad, kenmerken) && kenmerken.soort == Bestandssoort::link;
}

bool isZelfdePlaats(const std::string& een, const std::string& ander) {
    Kenmerken eerste;
    Kenmerken tweede;
    return een == ander ||
           (!leesKenmerken(ander, tweede) && !leesKenmerken(een, eerste) && eerste.isZelfdePlaats(tweede));
}

std::string geefEchtPad(const std::string& pad) {
    std::error_code fout;
    return geefEchtPad(pad, fout);
}

bool isScheiding(char teken) {
    return geefScheidingstekens().find(teken) != std::string_view::npos;
}

std::string_view geefNaam(std::string_view pad) {
    const std::size_t plek = pad.find_last_of(geefScheidingstekens());
    return plek == std::string_view::npos ? pad : pad.substr(plek + 1);
}

std::string plak(std::string_view directory, std::string_view pad) {
    if (directory.empty() || pad.empty()) {
        return std::string(directory.empty() ? pad : directory);
    }
    std::string uit(directory);
    if (!isScheiding(uit.back())) {
        uit += '/';
    }
    return uit += pad;
}

}  // namespace kern
