#include <gtest/gtest.h>

#include "tests/hulp/schermomgeving.h"
#include "tests/venster/hoofdlus.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) {
        return RUN_ALL_TESTS();  // om ze op te sommen is geen beeldscherm nodig
    }
    const hulp::Schermomgeving omgeving(hulp::Beeldscherm::kaal);
    return draaiInHoofdlus(argc, argv, omgeving);
}
