#include "Knipselaar/kern/stroomKnipper.h"

#include "Knipselaar/kern/tekstLezer.h"
#include "Knipselaar/kern/tekstSchrijver.h"

namespace kern {

KnipUitslag knipStroom(wxInputStream& bron, wxOutputStream& doel, const KnipMal& mal, Nakijken nakijken) {
    TekstLezer lezer(bron);
    TekstSchrijver schrijver(doel);
    Knipper knipper(mal, "\n");
    Ontleder ontleder(
        mal.geefMarkers(), [](const Blok&) {}, grootsteAantalBevindingen);
    const auto schrijf = [&schrijver](std::string_view stuk, Lot) { schrijver.schrijf(stuk); };
    for (auto regels = lezer.leesRegels(); !regels.empty(); regels = lezer.leesRegels()) {
        knipper.knip(regels, schrijf);
        if (nakijken == Nakijken::ja) {
            ontleder.neem(regels);
        }
    }
    KnipUitslag uitslag;
    uitslag.bronHeelGelezen = lezer.isHeelGelezen();
    uitslag.doelHeelGeschreven = schrijver.maakAf();
    uitslag.bevindingen = ontleder.maakAf();
    return uitslag;
}

}  // namespace kern
