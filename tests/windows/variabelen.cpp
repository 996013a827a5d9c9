#include "tests/hulp/variabelen.h"

#include <cstdlib>

namespace hulp {

void zetVariabele(const char* naam, const std::filesystem::path& pad) {
    _wputenv_s(std::filesystem::path(naam).c_str(), pad.c_str());
}

void wisVariabele(const char* naam) {
    zetVariabele(naam, "");
}

}  // namespace hulp
