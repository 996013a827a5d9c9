#include "Knipselaar/kern/knipFilter.h"

namespace kern {

Lot KnipFilter::beoordeel(bool draagtMarker) {
    if (!inBlok_) {
        inBlok_ = draagtMarker;
        return draagtMarker ? Lot::weglaten : Lot::houden;
    }
    if (draagtMarker) {
        inBlok_ = false;
        vervangingOpen_ = true;
        return Lot::weglaten;
    }
    if (vervangingOpen_) {
        vervangingOpen_ = false;
        return Lot::vervangen;
    }
    return Lot::weglaten;
}

}  // namespace kern
