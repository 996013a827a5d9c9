#include "KnipselaarCli/vervanging.h"

#include <algorithm>
#include <numeric>
#include <set>

#include "Knipselaar/kern/systeem/schijf.h"
#include "KnipselaarCli/fout.h"

namespace cli {

namespace {

bool isMislukt(const Uitslag& uitslag) {
    return uitslag.status == Status::mislukt || uitslag.status == Status::tegengehouden ||
           std::any_of(uitslag.meldingen.begin(), uitslag.meldingen.end(),
                       [](const Melding& melding) { return melding.ernst == Ernst::fout; });
}

std::size_t telBlokken(const std::vector<Uitslag>& uitslagen) {
    return std::accumulate(uitslagen.begin(), uitslagen.end(), std::size_t{0},
                           [](std::size_t som, const Uitslag& uitslag) { return som + uitslag.blokken; });
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

/// Doet iets met wat klaargezet is; lukt dat niet, dan is het daarmee mislukt.
template <typename Doe>
void probeer(Uitslag& uitslag, const Doe& doe) {
    if (!uitslag.klaar) {
        return;
    }
    try {
        doe(*uitslag.klaar);
    } catch (const Fout& fout) {
        uitslag.status = Status::mislukt;
        uitslag.storing = fout.what();
        uitslag.klaar.reset();
    }
}

}  // namespace

std::string vervangAlles(std::vector<Uitslag>& uitslagen, const Opties& opties) {
    if (const auto fout = zetAllesVast(uitslagen)) {
        throw Fout("geen enkel bestand is veranderd: de schijf legt niets vast: " + noemReden(fout));
    }
    if (opties.allesOfNiets) {
        for (Uitslag& uitslag : uitslagen) {
            probeer(uitslag, [](const Klaargezet& klaar) { klaar.keur(); });
        }
        if (telBlokken(uitslagen) < opties.minstens ||
            std::any_of(uitslagen.begin(), uitslagen.end(), isMislukt)) {
            laatAlles(uitslagen);
            return "er ging iets mis; geen enkel bestand is veranderd";
        }
    }
    for (Uitslag& uitslag : uitslagen) {
        probeer(uitslag, [](Klaargezet& klaar) { klaar.vervang(); });
        uitslag.klaar.reset();
    }
    return {};
}

}  // namespace cli
