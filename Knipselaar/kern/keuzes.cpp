#include "Knipselaar/kern/keuzes.h"

namespace kern {

Brontaal kiesBrontaal(const wxString& extensie) {
    if (extensie == "cpp" || extensie == "h") {
        return Brontaal::cpp;
    }
    if (extensie == "c") {
        return Brontaal::c;
    }
    if (extensie == "vhdl" || extensie == "vhd") {
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
