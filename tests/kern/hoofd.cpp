// De kerntests hebben de basis van de toolkit nodig (omzetters, vertaling), maar geen beeldscherm.

#include <gtest/gtest.h>
#include <wx/init.h>

#include "tests/hulp/beweringen.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const wxInitializer toolkit;
    hulp::vangBeweringen();
    return toolkit.IsOk() ? RUN_ALL_TESTS() : 1;
}
