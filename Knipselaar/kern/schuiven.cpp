#include "Knipselaar/kern/schuiven.h"

namespace kern {

bool magLeiden(const Schuifstand& zelf, const Schuifstand& partner) {
    const bool partnerIsVerder = zelf.bovenste < partner.bovenste;
    return zelf.verschoven ? !(partnerIsVerder && zelf.aanEinde) : !partner.verschoven && !partnerIsVerder;
}

}  // namespace kern
