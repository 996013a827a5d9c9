#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "tests/venster/hoofdlus.h"

namespace {

/// Waar het programma zijn instellingen heeft: onder Windows bij de gebruiker, en niet te verplaatsen.
std::filesystem::path geefOpslag() {
    const wchar_t* gegevens = _wgetenv(L"APPDATA");
    return std::filesystem::path(gegevens == nullptr ? L"" : gegevens) / "Knipselaar.ini";
}

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) {
        return RUN_ALL_TESTS();
    }
    if (std::filesystem::exists(geefOpslag())) {
        std::cerr << geefOpslag() << " is van een gebruiker; die overschrijven deze tests niet\n";
        return 2;
    }
    const hulp::Omgeving omgeving;
    const int uitkomst = draaiInHoofdlus(argc, argv, omgeving);
    std::filesystem::remove(geefOpslag());
    return uitkomst;
}
