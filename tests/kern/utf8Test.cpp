#include "Knipselaar/kern/utf8.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

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

/// Hoeveel bytes het eerste teken heeft als het in zijn kortste vorm staat en geen CR of NUL is, anders 0.
std::size_t meetSchoonTeken(std::string_view bytes) {
    const auto geef = [bytes](std::size_t plek) {
        return plek < bytes.size() ? static_cast<unsigned char>(bytes[plek]) : 0U;
    };
    const auto isVervolg = [geef](std::size_t plek, unsigned vanaf = 0x80, unsigned tot = 0xBF) {
        return geef(plek) >= vanaf && geef(plek) <= tot;
    };
    const unsigned eerste = geef(0);
    if (eerste < 0x80) {
        return eerste == '\0' || eerste == '\r' ? 0 : 1;
    }
    if (eerste >= 0xC2 && eerste <= 0xDF) {
        return isVervolg(1) ? 2 : 0;
    }
    if (eerste >= 0xE0 && eerste <= 0xEF) {
        return isVervolg(1, eerste == 0xE0 ? 0xA0 : 0x80) && isVervolg(2) ? 3 : 0;
    }
    if (eerste >= 0xF0 && eerste <= 0xF4) {
        const bool tweede = isVervolg(1, eerste == 0xF0 ? 0x90 : 0x80, eerste == 0xF4 ? 0x8F : 0xBF);
        return tweede && isVervolg(2) && isVervolg(3) ? 4 : 0;
    }
    return 0;
}

bool isSchoonEenvoudig(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t lengte = meetSchoonTeken(bytes);
        if (lengte == 0) {
            return false;
        }
        bytes.remove_prefix(lengte);
    }
    return true;
}

/// Een tekst zonder accenten, een met, en een met langere tekens; elk langer dan wat er in een stap bekeken
/// wordt.
std::vector<std::string> geefVullingen() {
    std::vector<std::string> vullingen(3);
    for (int i = 0; i < 25; ++i) {
        vullingen[0] += "ab";
        vullingen[1] += i % 3 == 0 ? "a" : "\xC3\xA9";
        vullingen[2] += i % 4 == 0 ? "b" : i % 4 == 1 ? "\xE2\x82\xAC" : "\xF0\x9F\x98\x80";
    }
    return vullingen;
}

/// ISO 8859-1 naar UTF-8, tot een CR of NUL die geen deel van een CR LF is.
std::string zetEenvoudigOm(std::string_view bytes, std::size_t& genomen) {
    std::string uit;
    for (genomen = 0; genomen < bytes.size(); ++genomen) {
        const auto byte = static_cast<unsigned char>(bytes[genomen]);
        if (byte == '\r' && bytes.substr(genomen + 1).starts_with('\n')) {
            continue;
        }
        if (byte == '\0' || byte == '\r') {
            break;
        }
        if (byte < 0x80) {
            uit += static_cast<char>(byte);
        } else {
            uit += static_cast<char>(0xC0U + byte / 64);
            uit += static_cast<char>(0x80U + byte % 64);
        }
    }
    return uit;
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

// Elke byte, met erachter wat een grens kan zijn, op elke plaats van gewone tekst en tussen tekens van twee,
// drie en vier bytes.
TEST(Utf8, HerkentSchoneTekst) {
    constexpr std::string_view grenzen(
        "\0\n\r"
        "a\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xC1\xC2\xDF\xE0\xEF\xF0\xF4\xF5\xFF",
        21);
    for (const std::string& vulling : geefVullingen()) {
        ASSERT_TRUE(kern::isSchoneUtf8(vulling));
        for (std::size_t plek = 0; plek < 20; ++plek) {
            for (int eerste = 0; eerste < 256; ++eerste) {
                for (const char tweede : grenzen) {
                    std::string bytes = vulling;
                    bytes[plek] = static_cast<char>(eerste);
                    bytes[plek + 1] = tweede;
                    ASSERT_EQ(isSchoonEenvoudig(bytes), kern::isSchoneUtf8(bytes))
                        << plek << " " << eerste << " " << static_cast<int>(tweede);
                }
            }
        }
    }
}

TEST(Utf8, HerkentAfgebrokenTekst) {
    for (const std::string& vulling : geefVullingen()) {
        for (std::size_t lengte = 0; lengte <= vulling.size(); ++lengte) {
            const std::string_view begin = std::string_view(vulling).substr(0, lengte);
            ASSERT_EQ(isSchoonEenvoudig(begin), kern::isSchoneUtf8(begin)) << lengte;
        }
    }
}

TEST(Utf8, ZetLatijn1OmTotEenRegeleinde) {
    constexpr std::size_t lengte = 40;
    for (const char eerste : {'\r', '\n', '\0', '\x80', '\xFF', 'a'}) {
        for (const char tweede : {'\n', '\r', '\0', '\xC3', 'b'}) {
            for (std::size_t plek = 0; plek < lengte; ++plek) {
                std::string bytes = "\xE9" + std::string(lengte, ' ');
                bytes[plek] = eerste;
                bytes[plek + 1] = tweede;
                std::size_t verwacht = 0;
                const std::string omgezet = "al " + zetEenvoudigOm(bytes, verwacht);
                std::string uit = "al ";
                ASSERT_EQ(verwacht, kern::neemLatijn1(bytes, uit)) << plek;
                ASSERT_EQ(omgezet, uit) << plek;
            }
        }
    }
}

// Wat langer is gaat in stukken, ook als een CR LF over de grens ligt.
TEST(Utf8, ZetVeelLatijn1InStukkenOm) {
    for (const std::size_t voor : {4092U, 4093U, 4094U, 4095U, 4096U, 4097U}) {
        const std::string bytes = std::string(voor, '\xE9') + "\r\n" + std::string(9000, '\xFC');
        std::size_t verwacht = 0;
        const std::string omgezet = zetEenvoudigOm(bytes, verwacht);
        std::string uit;
        std::size_t genomen = 0;
        while (genomen < bytes.size()) {
            const std::size_t stuk = kern::neemLatijn1(std::string_view(bytes).substr(genomen), uit);
            ASSERT_LT(0U, stuk);
            genomen += stuk;
        }
        EXPECT_EQ(verwacht, genomen);
        EXPECT_EQ(omgezet, uit);
    }
}
