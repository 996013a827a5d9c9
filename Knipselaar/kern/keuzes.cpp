#include "Knipselaar/kern/keuzes.h"

namespace kern {

// Als brede tekst: de toolkit zou een andere bij elk bestand eerst omzetten.
Brontaal kiesBrontaal(const wxString& extensie) {
    if (extensie == wxS("cpp") || extensie == wxS("h")) {
        return Brontaal::cpp;
    }
    if (extensie == wxS("c")) {
        return Brontaal::c;
    }
    if (extensie == wxS("vhdl") || extensie == wxS("vhd")) {
        return Brontaal::vhdl;
    }
    return Brontaal::geen;
}

bool isBestandGekozen(const wxString& extensie, int bestandType) {
    constexpr int bekendeTalen = 0;
    constexpr int alles = 2;
    return bestandType == alles || (bestandType == bekendeTalen && kiesBrontaal(extensie) != Brontaal::geen);
}

bool magKnippen(const Voortgang& voortgang) {
    return voortgang.origineelGeladen || (voortgang.bronGekozen && voortgang.bestemmingGekozen);
}

Bediening geefBediening(int keuze) {
    switch (keuze) {
        case enkelBestand:
            return {.openen = true, .bron = false, .bestemming = false, .bestandType = false};
        case alleBestandenRecursief:
            return {.openen = false, .bron = false, .bestemming = true, .bestandType = true};
        default:
            return {.openen = false, .bron = true, .bestemming = true, .bestandType = true};
    }
}

}  // namespace kern
