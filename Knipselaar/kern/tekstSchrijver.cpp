#include "Knipselaar/kern/tekstSchrijver.h"

namespace kern {

namespace {
constexpr std::size_t blokGrootte = 256 * 1024;
}

TekstSchrijver::TekstSchrijver(wxOutputStream& uitvoer) : uitvoer_(uitvoer), gelukt_(uitvoer.IsOk()) {}

void TekstSchrijver::schrijf(std::string_view tekst) {
    if (blok_.size() + tekst.size() > blokGrootte) {
        schrijfNaarStroom(blok_);
        blok_.clear();
    }
    if (tekst.size() > blokGrootte) {
        schrijfNaarStroom(tekst);
    } else {
        blok_ += tekst;
    }
}

bool TekstSchrijver::maakAf() {
    schrijfNaarStroom(blok_);
    blok_.clear();
    return gelukt_;
}

void TekstSchrijver::schrijfNaarStroom(std::string_view tekst) {
    while (gelukt_ && !tekst.empty()) {
        const std::size_t geschreven = uitvoer_.Write(tekst.data(), tekst.size()).LastWrite();
        gelukt_ = uitvoer_.IsOk() && geschreven > 0;
        tekst.remove_prefix(geschreven);
    }
}

}  // namespace kern
