#include "Knipselaar/kern/systeem/masker.h"

#include <fnmatch.h>

namespace kern {

bool pastOp(const std::string& masker, const std::string& naam, bool heelPad) {
    return fnmatch(masker.c_str(), naam.c_str(), heelPad ? FNM_PATHNAME : 0) == 0;
}

}  // namespace kern
