#include "KnipselaarCli/vervanging.h"

#include <algorithm>
#include <set>

#include "Knipselaar/kern/systeem/schijf.h"
#include "KnipselaarCli/fout.h"

namespace cli {

namespace {

bool isMislukt(const Uitslag& uitslag) {
    return uitslag.status == Status::mislukt || uitslag.status == Status::tegengehouden;
}

/// De reden als er een bestandssysteem niet vast te zetten is.
std::error_code zetAllesVast(const std::vector<Uitslag>& uitslagen) {
    std::set<std::uint64_t> gedaan;
    for (const Uitslag& uitslag : uitslagen) {
        if (uitslag.klaar && gedaan.insert(uitslag.klaar->geefSchijf()).second) {
            if (const auto fout = kern::zetVast(uitslag.klaar->geefDirectory())) {
                return fout;
            }
        }
    }
    return {};
}

void laatAlles(std::vector<Uitslag>& uitslagen) {
    for (Uitslag& uitslag : uitslagen) {
        if (uitslag.klaar) {
            uitslag.status = Status::gelaten;
            uitslag.klaar.reset();
        }
    }
}

void vervang(Uitslag& uitslag) {
    try {
        uitslag.klaar->vervang();
    } catch (const Fout& fout) {
        uitslag.status = Status::mislukt;
        uitslag.storing = fout.what();
    }
    uitslag.klaar.reset();
}

}  // namespace

std::string vervangAlles(std::vector<Uitslag>& uitslagen, bool allesOfNiets) {
    if (allesOfNiets && std::any_of(uitslagen.begin(), uitslagen.end(), isMislukt)) {
        laatAlles(uitslagen);
        return "er ging iets mis; geen enkel bestand is veranderd";
    }
    if (const auto fout = zetAllesVast(uitslagen)) {
        throw Fout("geen enkel bestand is veranderd: de schijf legt niets vast: " + noemReden(fout));
    }
    for (Uitslag& uitslag : uitslagen) {
        if (uitslag.klaar) {
            vervang(uitslag);
        }
    }
    return {};
}

}  // namespace cli
