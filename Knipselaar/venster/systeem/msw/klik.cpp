#include "Knipselaar/venster/klik.h"

// Windows meldt alleen een klik die iets verandert; er is niets tegen te houden.
bool isKlik(const wxRadioBox& /*rondje*/) {
    return false;
}
