#include "Knipselaar/kern/herkomst.h"

namespace kern {

wxString noemVeroudering(const Herkomst& herkomst, const wxString& pad, const KnipTeksten& teksten,
                         std::string_view origineel) {
    wxString oorzaak;
    const auto voegToe = [&oorzaak](bool veranderd, const char* wat) {
        if (veranderd) {
            oorzaak += (oorzaak.empty() ? "" : ", ") + wxString(wat);
        }
    };
    if (pad != herkomst.pad) {
        oorzaak = "er is een ander bestand geopend of toegevoegd";
    } else {
        voegToe(origineel != herkomst.origineel, "het origineel is veranderd");
        voegToe(teksten.beginMarker != herkomst.teksten.beginMarker ||
                    teksten.eindMarker != herkomst.teksten.eindMarker,
                "een marker is veranderd");
        voegToe(teksten.vervangtekst != herkomst.teksten.vervangtekst, "de vervangingstekst is veranderd");
    }
    return oorzaak.empty() ? wxString()
                           : "dit resultaat hoort bij " + herkomst.naam + "; sinds het knippen: " + oorzaak;
}

}  // namespace kern
