#include "Knipselaar/kern/systeem/console.h"

#include <clocale>

namespace kern {

std::vector<std::string> beginConsole(int aantal, char** woorden) {
    std::setlocale(LC_CTYPE, "");
    return {woorden + (aantal > 0 ? 1 : 0), woorden + aantal};
}

}  // namespace kern
