#include "Knipselaar/kern/utf8.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

/// Hoeveel bytes aan het begin aan een voorwaarde voldoen, op de eenvoudige manier.
template <typename Past>
std::size_t telEenvoudig(const std::string& bytes, const Past& past) {
    return static_cast<std::size_t>(std::find_if_not(bytes.begin(), bytes.end(), past) - bytes.begin());
}

/// Zonder CR waar een LF op volgt; die telt mee als gewone byte.
std::string maakGewoon(std::string bytes) {
    for (std::size_t plek = bytes.find("\r\n"); plek != std::string::npos; plek = bytes.find("\r\n")) {
        bytes[plek] = ' ';
    }
    return bytes;
}

bool isZonderEinde(char byte) {
    return byte != '\0' && byte != '\r';
}

bool isGewoneAscii(char byte) {
    return isZonderEinde(byte) && static_cast<unsigned char>(byte) < 0x80;
}

}  // namespace

// Elke byte op elke plaats van een stuk dat langer is dan wat er in één stap bekeken wordt.
TEST(Utf8, TeltTotDeEersteAndereByte) {
    constexpr std::size_t lengte = 75;
    for (std::size_t plek = 0; plek < lengte; ++plek) {
        for (int waarde = 0; waarde < 256; ++waarde) {
            std::string bytes(lengte, 'a');
            bytes[plek] = static_cast<char>(waarde);
            ASSERT_EQ(telEenvoudig(bytes, isGewoneAscii), kern::telGewoneAscii(bytes))
                << plek << " " << waarde;
            ASSERT_EQ(telEenvoudig(bytes, isZonderEinde), kern::telZonderEinden(bytes))
                << plek << " " << waarde;
        }
    }
}

TEST(Utf8, TeltDeEersteVanTweeAndereBytes) {
    for (const char eerste : {'\0', '\r', '\x80', '\x01', '\xFF', '\x0E', '\x0C'}) {
        for (const char tweede : {'\0', '\r', '\x80', '\x01', '\x7F'}) {
            for (std::size_t plek = 0; plek < 40; ++plek) {
                for (std::size_t later = plek + 1; later < 42; ++later) {
                    std::string bytes(42, ' ');
                    bytes[plek] = eerste;
                    bytes[later] = tweede;
                    ASSERT_EQ(telEenvoudig(bytes, isGewoneAscii), kern::telGewoneAscii(bytes));
                    ASSERT_EQ(telEenvoudig(bytes, isZonderEinde), kern::telZonderEinden(bytes));
                }
            }
        }
    }
}

// Elk paar bytes op elke plaats, met de LF van een CR LF in hetzelfde stuk, in het volgende en voorbij het
// einde.
TEST(Utf8, TeltEenCrLfAlleenMeeAlsDatGevraagdIs) {
    constexpr std::size_t lengte = 40;
    for (const char eerste : {'\r', '\n', '\0', '\x80', 'a'}) {
        for (const char tweede : {'\n', '\r', '\0', '\xFF', 'b'}) {
            for (std::size_t plek = 0; plek < lengte; ++plek) {
                std::string bytes(lengte, ' ');
                bytes[plek] = eerste;
                if (plek + 1 < lengte) {
                    bytes[plek + 1] = tweede;
                }
                const std::string gewoon = maakGewoon(bytes);
                ASSERT_EQ(telEenvoudig(gewoon, isGewoneAscii),
                          kern::telGewoneAscii(bytes, kern::CrLf::teltMee))
                    << plek;
                ASSERT_EQ(telEenvoudig(gewoon, isZonderEinde),
                          kern::telZonderEinden(bytes, kern::CrLf::teltMee))
                    << plek;
                ASSERT_EQ(telEenvoudig(bytes, isGewoneAscii),
                          kern::telGewoneAscii(bytes, kern::CrLf::eindigt))
                    << plek;
            }
        }
    }
}
