#include "KnipselaarCli/uitslag.h"

#include <algorithm>

namespace cli {

Ernst geefErnstVanBijna(const Opties& opties) {
    return opties.bewijs ? Ernst::fout : Ernst::waarschuwing;
}

bool neemMeldingen(std::vector<Melding> meldingen, const Opties& opties, Uitslag& uitslag) {
    if (opties.streng) {
        for (Melding& melding : meldingen) {
            melding.ernst = Ernst::fout;
        }
    }
    const bool mag = std::none_of(meldingen.begin(), meldingen.end(),
                                  [](const Melding& melding) { return melding.ernst == Ernst::fout; });
    uitslag.meldingen = std::move(meldingen);
    if (!mag) {
        uitslag.status = Status::tegengehouden;
    }
    return mag;
}

}  // namespace cli
