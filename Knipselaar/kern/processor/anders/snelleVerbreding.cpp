#include "Knipselaar/kern/processor/verbreding.h"

namespace kern {

Verbreder zoekSnelleVerbreder() {
    return nullptr;
}

}  // namespace kern
