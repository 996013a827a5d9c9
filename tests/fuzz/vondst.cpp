#include "tests/fuzz/vondst.h"

#include <cstdlib>
#include <iostream>

#include "tests/hulp/bestanden.h"

namespace fuzz {

void meld(std::string_view eigenschap, const std::string& bijzonderheden) {
    std::cerr << "Vondst: " << eigenschap << "\n" << bijzonderheden << std::endl;
    std::abort();
}

void eis(bool geldt, std::string_view eigenschap) {
    if (!geldt) {
        meld(eigenschap, "");
    }
}

void eisGelijk(std::string_view verwacht, std::string_view gekregen, std::string_view eigenschap) {
    if (verwacht != gekregen) {
        meld(eigenschap, "verwacht " + hulp::toonBytes(verwacht) + "\ngekregen " + hulp::toonBytes(gekregen));
    }
}

}  // namespace fuzz
