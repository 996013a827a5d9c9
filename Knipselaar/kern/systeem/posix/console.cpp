#include "Knipselaar/kern/systeem/console.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <clocale>

#include "Knipselaar/kern/systeem/bestand.h"

namespace kern {

void zorgVoorKanalen() {
    for (const int kanaal : std::array{invoerkanaal, uitvoerkanaal, foutkanaal}) {
        if (fcntl(kanaal, F_GETFD) < 0) {
            // Het laagste nummer dat vrij is; alle lagere zijn nu open.
            open("/dev/null", kanaal == invoerkanaal ? O_WRONLY : O_RDONLY);
        }
    }
}

std::vector<std::string> beginConsole(int aantal, char** woorden) {
    zorgVoorKanalen();
    std::setlocale(LC_CTYPE, "");
    return {woorden + (aantal > 0 ? 1 : 0), woorden + aantal};
}

}  // namespace kern
