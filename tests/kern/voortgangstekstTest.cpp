#include "Knipselaar/kern/voortgangstekst.h"

#include <gtest/gtest.h>

#include <vector>

using std::chrono::milliseconds;

namespace {

class Voortgangstekst : public testing::Test {
  protected:
    kern::Voortgangstekst::Tijd nu_{milliseconds(123456)};
    kern::Voortgangstekst tekst_{"Bezig...", [this] { return nu_; }};
};

}  // namespace

TEST_F(Voortgangstekst, ZwijgtDeEersteSeconde) {
    EXPECT_EQ(std::nullopt, tekst_.vernieuw(0, 7));
    nu_ += milliseconds(999);
    EXPECT_EQ(std::nullopt, tekst_.vernieuw(5, 7));
    nu_ += milliseconds(1);
    EXPECT_EQ("Bezig...\n6 van 7 bestanden", tekst_.vernieuw(6, 7));
}

TEST_F(Voortgangstekst, KomtEnkeleKerenPerSeconde) {
    constexpr int seconden = 10;
    int keren = 0;
    wxString laatste;
    for (int ms = 0; ms < seconden * 1000; ++ms) {
        if (const auto tekst = tekst_.vernieuw(static_cast<std::size_t>(ms), 21930)) {
            ++keren;
            EXPECT_NE(laatste, *tekst);
            laatste = *tekst;
        }
        nu_ += milliseconds(1);
    }
    EXPECT_GE(keren, 2 * (seconden - 1));
    EXPECT_LE(keren, 4 * (seconden - 1));
}

TEST_F(Voortgangstekst, TeltVanafZijnBegin) {
    nu_ += milliseconds(5000);
    kern::Voortgangstekst later("", [this] { return nu_; });
    EXPECT_EQ(std::nullopt, later.vernieuw(1, 2));
    EXPECT_EQ("Bezig...\n1 van 2 bestanden", tekst_.vernieuw(1, 2));
}
