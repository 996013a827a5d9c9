#include "Knipselaar/kern/systeem/eigenReden.h"

#include <cerrno>

namespace kern {

std::error_code maakAlgemeen(const std::error_code& fout) {
    // Wie zijn quotum op heeft, merkt hetzelfde als bij een volle schijf.
    return {fout.value() == EDQUOT ? ENOSPC : fout.value(), std::generic_category()};
}

std::string noemEigenReden(const std::error_code& fout) {
    return "fout " + std::to_string(fout.value()) + " van het systeem";
}

}  // namespace kern
