#include "tests/hulp/omgeving.h"

#include "tests/hulp/variabelen.h"

namespace hulp {

namespace {

/// Wat de tijdelijke directory aanwijst: het eerste op POSIX, de andere onder Windows.
constexpr auto tijdelijkeNamen = {"TMPDIR", "TMP", "TEMP"};

}  // namespace

Omgeving::Omgeving() {
    for (const std::filesystem::path& map : {thuis(), tijdelijk(), werk()}) {
        std::filesystem::create_directory(map);
    }
    zetVariabele("HOME", thuis());
    for (const char* naam : tijdelijkeNamen) {
        zetVariabele(naam, tijdelijk());
    }
}

Omgeving::~Omgeving() {
    for (const char* naam : tijdelijkeNamen) {
        wisVariabele(naam);  // die directory verdwijnt nu
    }
}

}  // namespace hulp
