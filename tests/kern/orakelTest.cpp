// De kern tegen het orakel: duizenden gemaakte bestanden, met een vaste reeks zodat een fout te herhalen is.

#include <gtest/gtest.h>
#include <wx/log.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <random>

#include "Knipselaar/kern/bestandKnipper.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/orakel.h"

using namespace std::string_literals;

namespace {

class Maker {
  public:
    explicit Maker(unsigned zaad) : toeval_(zaad) {}

    std::size_t kies(std::size_t aantal) { return toeval_() % aantal; }

    template <typename T, std::size_t n>
    const T& kies(const std::array<T, n>& keuzes) {
        return keuzes[kies(n)];
    }

    kern::KnipTeksten maakTeksten() {
        static const std::array markers{"//**** Student Begin ****//"s,
                                        "//**** Student Eind ****//"s,
                                        "B"s,
                                        "E"s,
                                        ""s,
                                        "*"s,
                                        "?"s,
                                        "a?"s,
                                        "?b"s,
                                        "a*b"s,
                                        "b?a*"s,
                                        "é"s,
                                        "a?é"s,
                                        "BB"s,
                                        "*B*E*"s};
        static const std::array vervangingen{""s, "X"s, "X\n"s, "#error \"é\"\n/* twee */\n"s, "B\nE\n"s};
        return {.beginMarker = wxString::FromUTF8(kies(markers)),
                .eindMarker = wxString::FromUTF8(kies(markers)),
                .vervangtekst = wxString::FromUTF8(kies(vervangingen))};
    }

    std::string maakTekst(std::size_t stukken) {
        static const std::array woorden{"a"s,
                                        "b"s,
                                        "B"s,
                                        "E"s,
                                        "ab"s,
                                        "aXb"s,
                                        "é"s,
                                        "€"s,
                                        "\U0001F600"s,
                                        " "s,
                                        "// Student Begin //"s,
                                        "//**** Student Eind ****//"s,
                                        "int x = 1;"s,
                                        "\t"s};
        static const std::array regeleinden{"\n"s, "\n"s, "\n"s, "\r\n"s, "\r"s, "\0"s};
        std::string tekst;
        for (std::size_t i = kies(stukken); i > 0; --i) {
            tekst += kies(2) == 0 ? kies(woorden) : kies(regeleinden);
        }
        return tekst;
    }

    /// Zet op een paar plaatsen een willekeurige byte.
    void beschadig(std::string& tekst) {
        for (std::size_t i = kies(4); i > 0 && !tekst.empty(); --i) {
            tekst[kies(tekst.size())] = static_cast<char>(kies(256));
        }
    }

  private:
    std::mt19937 toeval_;
};

std::string toon(const kern::KnipTeksten& teksten) {
    return ("begin \"" + teksten.beginMarker + "\", eind \"" + teksten.eindMarker + "\"").utf8_string();
}

/// De plaats waar twee uitkomsten uiteengaan, met wat er aan beide kanten volgt; hele bestanden zijn
/// onleesbaar.
std::string toonVerschil(const std::string& verwacht, const std::string& gekregen) {
    const auto plek = static_cast<std::size_t>(
        std::mismatch(verwacht.begin(), verwacht.end(), gekregen.begin(), gekregen.end()).first -
        verwacht.begin());
    return "vanaf byte " + std::to_string(plek) + ": verwacht " +
           hulp::toonBytes(std::string_view(verwacht).substr(plek, 80)) + ", gekregen " +
           hulp::toonBytes(std::string_view(gekregen).substr(std::min(plek, gekregen.size()), 80));
}

class Vergelijker {
  public:
    /// Houdt de bestandsvariant tegen het orakel.
    void vergelijk(const std::string& inhoud, const kern::KnipTeksten& teksten) {
        // Wat een afgekapt bestand vult, schrijft ext4 bij het sluiten meteen naar de schijf; een nieuw niet.
        std::filesystem::remove(map_ / "in");
        std::filesystem::remove(map_ / "uit");
        hulp::schrijfBestand(map_ / "in", inhoud);
        const auto uitslag = kern::knipBestand(wxFileName((map_ / "in").string()),
                                               wxFileName((map_ / "uit").string()), teksten);
        EXPECT_TRUE(uitslag.isGelukt());
        const wxLogNull stil;
        const std::string verwacht = orakel::knipInhoud(orakel::herstel(inhoud), teksten);
        const std::string gekregen = hulp::leesBestand(map_ / "uit");
        EXPECT_TRUE(verwacht == gekregen) << toonVerschil(verwacht, gekregen) << "\ninhoud "
                                          << hulp::toonBytes(inhoud.substr(0, 500)) << "\n"
                                          << toon(teksten);
    }

  private:
    hulp::TijdelijkeMap map_;
};

/// Een gemaakte tekst in UTF-16 of UTF-32, met merkteken.
std::string maakBredeTekst(Maker& maker) {
    // Niet met een NUL voorop: FF FE 00 00 is het merkteken van UTF-32.
    const wxString tekst = "v" + wxString::FromUTF8(maker.maakTekst(30));
    const auto zetOm = [&tekst](const wxMBConv& omzetter, const std::string& merkteken) {
        std::size_t lengte = 0;
        const wxCharBuffer bytes = omzetter.cWC2MB(tekst.wc_str(), tekst.length(), &lengte);
        return merkteken + std::string(bytes.data(), lengte);
    };
    switch (maker.kies(4)) {
        case 0:
            return zetOm(wxMBConvUTF16LE(), "\xFF\xFE"s);
        case 1:
            return zetOm(wxMBConvUTF16BE(), "\xFE\xFF"s);
        case 2:
            return zetOm(wxMBConvUTF32LE(), "\xFF\xFE\0\0"s);
        default:
            return zetOm(wxMBConvUTF32BE(), "\0\0\xFE\xFF"s);
    }
}

}  // namespace

TEST(Orakel, KniptGeldigeBestandenGelijk) {
    Maker maker(1);
    Vergelijker vergelijker;
    for (int i = 0; i < 4000 && !HasFailure(); ++i) {
        std::string inhoud = maker.maakTekst(40);
        if (maker.kies(4) == 0) {
            inhoud.insert(0, "\xEF\xBB\xBF");
        }
        EXPECT_EQ(inhoud, orakel::herstel(inhoud));
        vergelijker.vergelijk(inhoud, maker.maakTeksten());
    }
}

TEST(Orakel, KniptBeschadigdeBestandenGelijk) {
    Maker maker(2);
    Vergelijker vergelijker;
    for (int i = 0; i < 4000 && !HasFailure(); ++i) {
        std::string inhoud = maker.maakTekst(40);
        maker.beschadig(inhoud);
        vergelijker.vergelijk(inhoud, maker.maakTeksten());
    }
}

// Elke eerste byte met elke tweede die ertoe doet, en wat vervolgbytes ervan maken.
TEST(Orakel, LeestElkBeginVanEenReeksGelijk) {
    Vergelijker vergelijker;
    const kern::KnipTeksten teksten{"Z", "Z", "V"};
    static const std::array vervolgen{"abcdef"s, "\x80zabcd"s, "\x8A\x8Azabcd"s, "\n\r\nabcd"s};
    for (unsigned eerste = 0x80; eerste < 0x100 && !HasFailure(); ++eerste) {
        for (const unsigned tweede :
             {0x00U, 0x0AU, 0x0DU, 0x41U, 0x80U, 0x81U, 0x8FU, 0x90U, 0x9FU, 0xA0U, 0xBFU, 0xC0U, 0xFFU}) {
            for (const std::string& vervolg : vervolgen) {
                const std::string reeks{static_cast<char>(eerste), static_cast<char>(tweede)};
                vergelijker.vergelijk("v\n" + reeks + vervolg, teksten);
            }
        }
    }
}

TEST(Orakel, KniptBredeBestandenGelijk) {
    Maker maker(3);
    Vergelijker vergelijker;
    for (int i = 0; i < 1500 && !HasFailure(); ++i) {
        const std::string inhoud = maakBredeTekst(maker);
        EXPECT_EQ(inhoud, orakel::herstel(inhoud));
        vergelijker.vergelijk(inhoud, maker.maakTeksten());
    }
}

TEST(Orakel, KniptBeschadigdeBredeBestandenGelijk) {
    Maker maker(6);
    Vergelijker vergelijker;
    for (int i = 0; i < 1500 && !HasFailure(); ++i) {
        std::string inhoud = maakBredeTekst(maker);
        maker.beschadig(inhoud);
        vergelijker.vergelijk(inhoud, maker.maakTeksten());
    }
}

TEST(Orakel, LeestEenSurrogaatInUtf32Gelijk) {
    Vergelijker().vergelijk("\xFF\xFE\0\0a\0\0\0\0\xD8\0\0\x00\xDC\0\0"s, {"Z", "Z", "V"});
}

TEST(Orakel, KniptGroteBestandenGelijk) {
    Maker maker(4);
    Vergelijker vergelijker;
    for (int i = 0; i < 4 && !HasFailure(); ++i) {
        std::string inhoud;
        while (inhoud.size() < 400'000) {
            inhoud += maker.maakTekst(2000);
        }
        if (i % 2 == 1) {
            inhoud += "\xE9 latijn ";
            inhoud += maker.maakTekst(2000) + "slot";
        }
        vergelijker.vergelijk(inhoud, maker.maakTeksten());
    }
}

TEST(Orakel, KniptEditortekstenGelijk) {
    Maker maker(5);
    for (int i = 0; i < 10000 && !HasFailure(); ++i) {
        std::string tekst = maker.maakTekst(40);
        std::erase_if(tekst, [](char c) { return c == '\r' || c == '\0'; });
        const kern::KnipTeksten teksten = maker.maakTeksten();
        EXPECT_EQ(hulp::toonBytes(orakel::knipTekst(tekst, teksten)),
                  hulp::toonBytes(kern::knipTekst(tekst, teksten)))
            << "tekst " << hulp::toonBytes(tekst) << ", " << toon(teksten);
    }
}
