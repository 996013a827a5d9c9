#include "Knipselaar/kern/stroomKnipper.h"

#include "Knipselaar/kern/tekstLezer.h"
#include "Knipselaar/kern/tekstSchrijver.h"

namespace kern {

KnipUitslag knipStroom(wxInputStream& bron, wxOutputStream& doel, const KnipTeksten& teksten) {
    TekstLezer lezer(bron);
    TekstSchrijver schrijver(doel);
    Knipper knipper(teksten, "\n");
    const auto schrijf = [&schrijver](std::string_view stuk) { schrijver.schrijf(stuk); };
    for (auto regels = lezer.leesRegels(); !regels.empty(); regels = lezer.leesRegels()) {
        knipper.knip(regels, schrijf);
    }
    return {.bronHeelGelezen = lezer.isHeelGelezen(), .doelHeelGeschreven = schrijver.maakAf()};
}

}  // namespace kern
