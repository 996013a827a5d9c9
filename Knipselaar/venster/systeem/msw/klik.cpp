#include "Knipselaar/venster/systeem/klik.h"

// Windows meldt alleen een klik die iets verandert; er is nooit een bij die niets deed.
bool isKlik(const wxRadioBox& /*rondje*/) {
    return false;
}
