#include "Knipselaar/kern/tekstSchrijver.h"

#include "Knipselaar/kern/blokgrootte.h"
#include "Knipselaar/kern/regeleinden.h"

namespace kern {

TekstSchrijver::TekstSchrijver(wxOutputStream& uitvoer) : uitvoer_(uitvoer), gelukt_(uitvoer.IsOk()) {}

void TekstSchrijver::schrijf(std::string_view tekst) {
    geefMetEigenRegeleinden(tekst, [this](std::string_view stuk) { zetKlaar(stuk); });
}

void TekstSchrijver::zetKlaar(std::string_view stuk) {
    if (blok_.size() + stuk.size() > blokGrootte) {
        schrijfNaarStroom(blok_);
        blok_.clear();
    }
    if (stuk.size() > blokGrootte) {
        schrijfNaarStroom(stuk);
    } else {
        blok_ += stuk;
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
