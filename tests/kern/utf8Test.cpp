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

/// Een tekst zonder accenten, een met, en een met langere tekens; elk langer dan wat er in twee stappen
/// bekeken wordt.
std::vector<std::string> geefVullingen() {
    std::vector<std::string> vullingen(3);
    for (int i = 0; i < 70; ++i) {
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
                kern::Bytes uit("al ");
                ASSERT_EQ(verwacht, kern::neemLatijn1(bytes, uit)) << plek;
                ASSERT_EQ(omgezet, uit.geef()) << plek;
            }
        }
    }
}

TEST(Utf8, NeemtGewoneAsciiOverTotEenAndereByte) {
    constexpr std::size_t lengte = 40;
    for (const char eerste : {'\r', '\n', '\0', '\x80', '\x7F'}) {
        for (const char tweede : {'\n', '\r', '\0', '\xC3', 'b'}) {
            for (std::size_t plek = 0; plek < lengte; ++plek) {
                std::string bytes = "a\r\n" + std::string(lengte, ' ');
                bytes[plek] = eerste;
                bytes[plek + 1] = tweede;
                std::size_t verwacht = 0;
                const std::string omgezet =
                    zetEenvoudigOm(bytes.substr(0, bytes.find_first_of("\x80\xC3")), verwacht);
                kern::Bytes uit("al ");
                ASSERT_EQ(verwacht, kern::neemGewoneAscii(bytes, uit)) << plek;
                ASSERT_EQ("al " + omgezet, uit.geef()) << plek;
            }
        }
    }
}

// Elke byte tussen gewone tekst, na een accent en als laatste.
TEST(Utf8, ZetElkeByteVanLatijn1Om) {
    for (int waarde = 0; waarde < 256; ++waarde) {
        const auto byte = static_cast<char>(waarde);
        for (const std::string& bytes :
             {std::string(20, 'a') + byte + std::string(20, 'b'), std::string("\xE9") + byte,
              std::string(byte == '\r' ? "" : "\r\n") + byte}) {
            std::size_t verwacht = 0;
            const std::string omgezet = zetEenvoudigOm(bytes, verwacht);
            kern::Bytes uit;
            ASSERT_EQ(verwacht, kern::neemLatijn1(bytes, uit)) << waarde;
            ASSERT_EQ(omgezet, uit.geef()) << waarde;
        }
    }
}

// Tweemaal zo lang wordt het hoogstens; het staat er dan precies in, en een CR LF onderweg houdt niets op.
TEST(Utf8, ZetVeelLatijn1OmInEenKeer) {
    for (const std::size_t voor : {15U, 16U, 17U, 4095U, 4096U, 4097U}) {
        const std::string bytes = std::string(voor, '\xE9') + "\r\n" + std::string(9000, '\xFC');
        std::size_t verwacht = 0;
        const std::string omgezet = zetEenvoudigOm(bytes, verwacht);
        kern::Bytes uit;
        uit.maakRuimte(2 * bytes.size());
        const char* plaats = uit.geefBegin();
        EXPECT_EQ(verwacht, kern::neemLatijn1(bytes, uit));
        EXPECT_EQ(bytes.size(), verwacht);
        EXPECT_EQ(omgezet, uit.geef());
        EXPECT_EQ(plaats, uit.geefBegin());
    }
}

// Wat kort is wordt teken voor teken nagemeten, in elke vulling en tot elk einde, met op elke plaats elke
// byte.
TEST(Utf8, TeltKorteTekens) {
    const auto telEenvoudigKort = [](std::string_view bytes) {
        std::size_t plek = 0;
        for (std::size_t lengte = 1; plek < bytes.size() && lengte > 0; plek += lengte) {
            lengte = meetSchoonTeken(bytes.substr(plek));
            lengte = lengte > 2 ? 0 : lengte;
        }
        return plek;
    };
    for (const std::string& vulling : geefVullingen()) {
        for (std::size_t plek = 0; plek < vulling.size(); ++plek) {
            const std::string_view begin = std::string_view(vulling).substr(0, plek);
            ASSERT_EQ(telEenvoudigKort(begin), kern::telKorteTekens(begin)) << plek;
            for (int waarde = 0; waarde < 256; ++waarde) {
                std::string bytes = vulling;
                bytes[plek] = static_cast<char>(waarde);
                ASSERT_EQ(telEenvoudigKort(bytes), kern::telKorteTekens(bytes)) << plek << " " << waarde;
            }
        }
    }
}

TEST(Utf8, TeltNietVerderDanEenHalfTekenWaarGewoneTekensOpVolgen) {
    // Zo ver na een accent dat er weer gewone tekens verwacht worden.
    for (std::size_t plek = 0; plek < 1500; ++plek) {
        const std::string begin = "a\xC3\xA9" + std::string(plek, 'a');
        const std::string bytes = begin + "\xC3" + std::string(140, 'b');
        ASSERT_EQ(begin.size(), kern::telKorteTekens(bytes));
        ASSERT_EQ(begin.size(), kern::telKorteTekens(bytes, kern::CrLf::teltMee));
        ASSERT_FALSE(kern::isSchoneUtf8(bytes));
    }
    const std::string heel = "a\xC3\xA9" + std::string(2000, 'a') + "\xC3\xA9" + std::string(200, 'a');
    EXPECT_EQ(heel.size(), kern::telKorteTekens(heel));
    EXPECT_EQ(heel.size(), kern::telKorteTekens(heel, kern::CrLf::teltMee));
}

TEST(Utf8, TeltEenCrLfTussenKorteTekensAlleenMeeAlsDatGevraagdIs) {
    for (std::size_t plek = 0; plek < 140; ++plek) {
        const std::string begin = std::string(plek, 'a') + "\xC3\xA9";
        const std::string bytes = begin + "\r\n\xC3\xA9 en verder nog " + std::string(140, 'b') + "\r";
        EXPECT_EQ(begin.size(), kern::telKorteTekens(bytes));
        EXPECT_EQ(bytes.size() - 1, kern::telKorteTekens(bytes, kern::CrLf::teltMee));
    }
}

TEST(Utf8, TeltRegeleinden) {
    for (std::size_t lengte = 0; lengte < 70; ++lengte) {
        std::string bytes(lengte, '\x8A');
        EXPECT_EQ(0U, kern::telRegeleinden(bytes));
        for (std::size_t plek = 0; plek < lengte; plek += 3) {
            bytes[plek] = '\n';
        }
        EXPECT_EQ((lengte + 2) / 3, kern::telRegeleinden(bytes)) << lengte;
    }
}
