#include "Knipselaar/kern/systeem/kenmerken.h"

namespace kern {

bool Kenmerken::isOngewijzigd(const Kenmerken& eerder) const {
    return isZelfdePlaats(eerder) && lengte == eerder.lengte && seconden == eerder.seconden &&
           nanoseconden == eerder.nanoseconden;
}

}  // namespace kern
