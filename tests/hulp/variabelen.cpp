#include "tests/hulp/variabelen.h"

#include <cstdlib>

namespace hulp {

void zetVariabele(const char* naam, const std::filesystem::path& pad) {
    setenv(naam, pad.c_str(), 1);
}

void wisVariabele(const char* naam) {
    unsetenv(naam);
}

}  // namespace hulp
