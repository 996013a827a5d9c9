// Knipt wat libFuzzer verzint en houdt de uitkomst tegen het orakel. De invoer is vier velden die elk met een
// NUL eindigen (grootten van stukjes, beginmarker, eindmarker, vervangtekst) en daarna de inhoud van het
// bestand.

#include <wx/mstream.h>

#include <cstdint>

#include "Knipselaar/kern/stroomKnipper.h"
#include "Knipselaar/kern/tekstLezer.h"
#include "Knipselaar/kern/utf8.h"
#include "tests/fuzz/stukjesStroom.h"
#include "tests/fuzz/velden.h"
#include "tests/fuzz/vondst.h"
#include "tests/hulp/orakel.h"

namespace {

std::string leesRegels(std::string_view inhoud) {
    wxMemoryInputStream stroom(inhoud.data(), inhoud.size());
    kern::TekstLezer lezer(stroom);
    std::string tekst;
    for (auto regels = lezer.leesRegels(); !regels.empty(); regels = lezer.leesRegels()) {
        fuzz::eis(regels.back() == '\n', "de lezer geeft hele regels");
        tekst += regels;
    }
    fuzz::eis(lezer.isHeelGelezen(), "de lezer leest de tekst tot haar einde");
    return tekst;
}

std::string knip(wxInputStream& bron, const kern::KnipTeksten& teksten) {
    wxMemoryOutputStream doel;
    fuzz::eis(kern::knipStroom(bron, doel, kern::KnipMal(teksten)).isGelukt(), "knippen lukt");
    std::string resultaat(doel.GetSize(), '\0');
    doel.CopyTo(resultaat.data(), resultaat.size());
    return resultaat;
}

void controleerBestandsvariant(std::string_view inhoud, std::string_view grootten, std::string_view regels,
                               const kern::KnipTeksten& teksten) {
    wxMemoryInputStream bron(inhoud.data(), inhoud.size());
    const std::string uitkomst = knip(bron, teksten);
    fuzz::eisGelijk(orakel::knipRegels(regels, teksten), uitkomst, "knippen gaat regel voor regel");

    fuzz::StukjesStroom stukjes(inhoud, grootten);
    fuzz::eisGelijk(uitkomst, knip(stukjes, teksten), "waar een blok ophoudt maakt niets uit");

    fuzz::eisGelijk(orakel::knipInhoud(orakel::herstel(inhoud), teksten), uitkomst,
                    "de stromen van de toolkit geven dit");
}

void controleerEditorvariant(std::string_view tekst, const kern::KnipTeksten& teksten) {
    fuzz::eisGelijk(orakel::knipTekst(tekst, teksten), kern::knipTekst(tekst, teksten),
                    "de editorvariant doet wat het orakel doet");
}

}  // namespace

// libFuzzer zoekt deze functie onder deze naam.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* gegevens, std::size_t lengte) {
    std::string_view invoer(reinterpret_cast<const char*>(gegevens), lengte);
    const std::string_view grootten = fuzz::neemVeld(invoer);
    const kern::KnipTeksten teksten{.beginMarker = fuzz::alsTekst(fuzz::neemVeld(invoer)),
                                    .eindMarker = fuzz::alsTekst(fuzz::neemVeld(invoer)),
                                    .vervangtekst = fuzz::alsTekst(fuzz::neemVeld(invoer))};

    // Ook een lege tekst heeft een regel, en wat eruit komt is zuivere UTF-8 (op surrogaten na).
    const std::string regels = leesRegels(invoer);
    fuzz::eis(!regels.empty(), "elke tekst heeft een regel");
    fuzz::eis(kern::isSchoneUtf8(regels), "de lezer geeft schone UTF-8");

    controleerBestandsvariant(invoer, grootten, regels, teksten);
    controleerEditorvariant(regels, teksten);
    controleerEditorvariant(std::string_view(regels).substr(0, regels.size() - 1), teksten);
    return 0;
}
