// De twee manieren. Getrouw: elke byte buiten de blokken blijft. Als het venster: byte voor byte wat de kern
// ervan maakt, op alle vaste gevallen.

#include <algorithm>

#include "Knipselaar/kern/parserInstellingen.h"
#include "tests/cli/proef.h"

namespace fs = std::filesystem;

using namespace std::string_literals;

using proef::alsVenster;
using proef::goed;
using proef::Uitkomst;
using proef::zonderBlok;

namespace {

class CliGetrouw : public proef::Cli {
  protected:
    /// Knipt met deze vervangtekst en verwacht precies deze bytes.
    void verwacht(const std::string& uit, const std::string& in, const std::string& vervang = "X") const {
        EXPECT_EQ(goed(uit), draai({"-b", "BEGIN", "-e", "EIND", "-v", vervang, "-"}, {.invoer = in}));
    }
};

std::string naarUtf16(const std::u16string& tekst, bool grootEerst) {
    std::string bytes;
    for (const char16_t eenheid : u'\xFEFF' + tekst) {
        const char hoog = static_cast<char>(eenheid >> 8U);
        const char laag = static_cast<char>(eenheid & 0xFFU);
        bytes += grootEerst ? std::string{hoog, laag} : std::string{laag, hoog};
    }
    return bytes;
}

std::string naarUtf32(const std::u32string& tekst, bool grootEerst) {
    std::string bytes;
    for (const char32_t teken : U'\xFEFF' + tekst) {
        std::string eenheid;
        for (unsigned plaats = 0; plaats < 4; ++plaats) {
            eenheid += static_cast<char>((teken >> (8U * plaats)) & 0xFFU);
        }
        if (grootEerst) {
            std::reverse(eenheid.begin(), eenheid.end());
        }
        bytes += eenheid;
    }
    return bytes;
}

class CliGevallen : public proef::Cli, public testing::WithParamInterface<std::string> {};

}  // namespace

TEST_F(CliGetrouw, HoudtElkRegeleindeEnGeeftHetAanDeVervangtekst) {
    verwacht("a\nX\nY\nb\n", "a\nBEGIN\nx\nEIND\nb\n", "X\nY");
    verwacht("a\r\nX\r\nY\r\nb\r\n", "a\r\nBEGIN\r\nx\r\nEIND\r\nb\r\n", "X\nY\n");
    verwacht("a\rX\rb\r", "a\rBEGIN\rx\rEIND\rb\r");
    verwacht("a\nX\r\nb\rc\n", "a\nBEGIN\r\nx\nEIND\nb\rc\n");
    verwacht("a\0X\nb"s, "a\0BEGIN\0x\0EIND\0b"s);
    verwacht("a\r\0X\rb"s, "a\r\0BEGIN\rx\r\0EIND\rb"s);
}

TEST_F(CliGetrouw, HoudtEenOntbrekendLaatsteRegeleinde) {
    verwacht("a\nX\nb", "a\nBEGIN\nx\nEIND\nb");
    verwacht("a\nX", "a\nBEGIN\nx\nEIND");
    verwacht("a\r\nX", "a\r\nBEGIN\r\nx\r\nEIND");
    verwacht("X\nY", "BEGIN\nx\nEIND", "X\nY\n");
    verwacht("a\n", "a\nBEGIN\nx\nEIND", "");
    verwacht("a\nX\n", "a\nBEGIN\nx\nEIND\n");
}

TEST_F(CliGetrouw, HoudtDeCoderingEnGeeftHaarAanDeVervangtekst) {
    verwacht("\xE9\xE9n\n\xE9\n\xFF\n", "\xE9\xE9n\nBEGIN\nx\nEIND\n\xFF\n", "é");
    verwacht("\xE9\r\n\xE9\r\n", "\xE9\r\nBEGIN\r\nx\r\nEIND\r\n", "é");
    verwacht("één\né→\n", "één\nBEGIN\nx\nEIND\n", "é→");
    verwacht("\xEF\xBB\xBFX\nb\n",
             "\xEF\xBB\xBF"
             "BEGIN\nx\nEIND\nb\n");
    for (const bool grootEerst : {false, true}) {
        verwacht(naarUtf16(u"a\r\né→\U0001F600\r\nb", grootEerst),
                 naarUtf16(u"a\r\nBEGIN\r\nx\r\nEIND\r\nb", grootEerst), "é→\U0001F600");
        verwacht(naarUtf16(u"X\nä", grootEerst), naarUtf16(u"BEGIN\nx\nEIND\nä", grootEerst));
        verwacht(naarUtf32(U"a\ré\U0001F600\rb", grootEerst), naarUtf32(U"a\rBEGIN\rx\rEIND\rb", grootEerst),
                 "é\U0001F600");
    }
    const std::string beschadigd = naarUtf16(u"a\nBEGIN\nx\nEIND\n\xD800z", false) + "q";
    verwacht(naarUtf16(u"a\nX\n\xD800z", false) + "q", beschadigd);
}

TEST_F(CliGetrouw, WeigertEenVervangtekstDieNietInDeCoderingPast) {
    schrijf("a.c", "\xE9\nBEGIN\nx\nEIND\n");
    EXPECT_EQ(
        (Uitkomst{
            .status = 1,
            .uit = {},
            .fout = "a.c:2: fout: de vervangtekst heeft het teken '€', dat niet in ISO 8859-1 past; kies een "
                    "andere tekst of zet het bestand om\n"}),
        draai({"-b", "BEGIN", "-e", "EIND", "-v", "10 €", "a.c"}));
    EXPECT_EQ(1, draai({"-b", "BEGIN", "-e", "EIND", "-v", "10 €", "-t", "a.c"}).status);
    EXPECT_EQ("\xE9\nBEGIN\nx\nEIND\n", lees("a.c"));
    // Ook van een groot bestand is dan nog niets geschreven.
    schrijf("groot.c", std::string(1'000'000, '\xE9') + "\nBEGIN\nEIND\nBEGIN\nx\nEIND\n");
    const Uitkomst groot = draai({"-b", "BEGIN", "-e", "EIND", "-v", "10 €", "groot.c"});
    EXPECT_EQ(1, groot.status);
    EXPECT_EQ("", groot.uit);
}

TEST_F(CliGetrouw, VindtMarkersBuitenAsciiInElkeCodering) {
    const proef::Woorden woorden{"-b", "début", "-e", "fin é", "-v", "X", "-"};
    EXPECT_EQ(goed("X\n"), draai(woorden, {.invoer = "début\nx\nfin é\n"}));
    EXPECT_EQ(goed("\xE9\nX\n"), draai(woorden, {.invoer = "\xE9\nd\xE9"
                                                           "but\nx\nfin \xE9\n"}));
    EXPECT_EQ(goed(naarUtf16(u"X\n", true)),
              draai(woorden, {.invoer = naarUtf16(u"début\nx\nfin é\n", true)}));
    const proef::Woorden vraag{"-b", "BEGI?", "-e", "EIN?", "-v", "X", "-"};
    EXPECT_EQ(goed("\xE9\r\nX\r\n"), draai(vraag, {.invoer = "\xE9\r\nBEGIN\r\nx\r\nEIND\r\n"}));
    EXPECT_EQ(zonderBlok("BEGI\r\n"), draai(vraag, {.invoer = "BEGI\r\n"})) << "een regeleinde is geen teken";
}

TEST_F(CliGetrouw, LaatEenBestandZonderBlokPreciesZoals) {
    std::string alles;
    for (int byte = 0; byte < 256; ++byte) {
        alles += static_cast<char>(byte);
    }
    for (const std::string& inhoud :
         {""s, "\n"s, "a"s, alles, "\xEF\xBB\xBF"s, "\xFF\xFE"s, "\xFF\xFE\0\0"s, "\0"s, "\0\0"s, "a\r"s,
          std::string(9000, 'x'), "\xFF\xFE\0\xD8x"s, "\xE0\x80\x8A"s}) {
        EXPECT_EQ(zonderBlok(inhoud), draai({"-b", "BEGIN", "-e", "EIND", "-"}, {.invoer = inhoud}));
    }
}

TEST_F(CliGetrouw, SpringtInZoalsDeBeginmarker) {
    const proef::Woorden woorden{"-i", "-b", "BEGIN", "-e", "EIND", "-v", "X\n\n  Y", "-"};
    EXPECT_EQ(goed("\t  X\n\n\t    Y\nb\nX\n\n  Y\n"),
              draai(woorden, {.invoer = "\t  // BEGIN\nx\nEIND\nb\nBEGIN\ny\n  EIND\n"}));
    EXPECT_EQ(goed(naarUtf16(u"  X\r\n\r\n    Y\r\n", false)),
              draai(woorden, {.invoer = naarUtf16(u"  BEGIN\r\nx\r\nEIND\r\n", false)}));
}

TEST_F(CliGetrouw, AlsVensterZetOmZoalsDeKern) {
    const proef::Woorden woorden{"-a", "-b", "BEGIN", "-e", "EIND", "-v", "X", "-"};
    EXPECT_EQ(goed(alsVenster("\xC2\xA9\nX\n\n")),
              draai(woorden, {.invoer = "\xE0\x82\xA9\nBEGIN\nx\nEIND\n"}))
        << "te lange vorm";
    EXPECT_EQ(goed(alsVenster("é\nX\nÃ©\n\n")), draai(woorden, {.invoer = "é\nBEGIN\n\xE9\nEIND\né\n"}))
        << "vanaf de eerste byte die geen UTF-8 is";
    EXPECT_EQ(goed(alsVenster("a\nX\n")), draai(woorden, {.invoer = "a\r\nBEGIN\r\nx\r\nEIND"}));
    std::string lang;
    std::string verwacht;
    for (int i = 0; i < 100'000; ++i) {
        lang += "regel \xE9\r\n";
        verwacht += "regel é\n";
    }
    EXPECT_TRUE(zonderBlok(alsVenster(verwacht + "\n")) == draai(woorden, {.invoer = lang}));
}

TEST_F(CliGetrouw, KniptTweeKeerHetzelfde) {
    schrijf("a.c", proef::bron);
    ASSERT_EQ(0, draai({"-t", "a.c"}).status);
    ASSERT_EQ(0, draai({"-t", "a.c"}).status);
    EXPECT_EQ(proef::knipsel, lees("a.c"));
}

TEST_P(CliGevallen, AlsVensterIsWatDeKernErvanMaakt) {
    const fs::path geval = fs::path(TESTGEVALLEN) / GetParam();
    const auto leesOf = [&](const char* naam, const wxString& anders) {
        return fs::exists(geval / naam) ? hulp::leesBestand(geval / naam) : anders.utf8_string();
    };
    const std::string begin = leesOf("begin", kern::standaardBeginMarker());
    const std::string eind = leesOf("eind", kern::standaardEindMarker());
    const Uitkomst uitkomst =
        draai({"--als-venster", "-b", begin, "-e", eind, "-v",
               leesOf("vervang", kern::standaardVervangtekst()), (geval / "in").string()});
    const std::string verwacht = alsVenster(hulp::leesBestand(geval / "bestand"));
    if (begin.empty() || eind.empty()) {
        EXPECT_EQ(2, uitkomst.status) << "een lege marker past overal";
    } else if (uitkomst.status == 1) {
        EXPECT_EQ("", uitkomst.uit) << uitkomst.fout;
        EXPECT_NE("", uitkomst.fout);
    } else {
        EXPECT_EQ(verwacht, uitkomst.uit) << uitkomst.fout;
        EXPECT_EQ(0, uitkomst.status);
    }
}

INSTANTIATE_TEST_SUITE_P(Gevallen, CliGevallen, testing::ValuesIn(hulp::somOp(TESTGEVALLEN)),
                         [](const auto& info) {
                             std::string naam = info.param;
                             std::replace(naam.begin(), naam.end(), '-', '_');
                             return naam;
                         });
