#include "Knipselaar/kern/tekstLezer.h"

#include <gtest/gtest.h>
#include <wx/mstream.h>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "tests/hulp/bestanden.h"

using namespace std::string_view_literals;

namespace {

/// Geeft een tekst in stukjes van hoogstens zoveel bytes en meldt daarna een leesfout of het einde. Voorbij
/// die fout is er nog meer te lezen.
class HaperendeStroom : public wxInputStream {
  public:
    HaperendeStroom(std::string_view inhoud, std::size_t stukje, wxStreamError slot,
                    std::string_view voorbij = {})
        : rest_(inhoud), voorbij_(voorbij), stukje_(stukje), slot_(slot) {}

  protected:
    size_t OnSysRead(void* buffer, size_t lengte) override {
        const std::size_t aantal = std::min({lengte, stukje_, rest_.size()});
        std::copy_n(rest_.begin(), aantal, static_cast<char*>(buffer));
        rest_.remove_prefix(aantal);
        if (aantal == 0) {
            m_lasterror = slot_;
            rest_ = std::exchange(voorbij_, {});
        }
        return aantal;
    }

  private:
    std::string_view rest_;
    std::string_view voorbij_;
    std::size_t stukje_;
    wxStreamError slot_;
};

struct Uitkomst {
    std::string tekst;
    bool heelGelezen;
};

Uitkomst leesAlles(wxInputStream& stroom) {
    kern::TekstLezer lezer(stroom);
    std::string tekst;
    for (auto regels = lezer.leesRegels(); !regels.empty(); regels = lezer.leesRegels()) {
        EXPECT_EQ('\n', regels.back());
        tekst += regels;
    }
    return {tekst, lezer.isHeelGelezen()};
}

std::string lees(std::string_view inhoud) {
    wxMemoryInputStream stroom(inhoud.data(), inhoud.size());
    const Uitkomst uitkomst = leesAlles(stroom);
    EXPECT_TRUE(uitkomst.heelGelezen);
    return uitkomst.tekst;
}

struct Leesgeval {
    const char* naam;
    std::string_view inhoud;
    std::string_view tekst;
};

void PrintTo(const Leesgeval& geval, std::ostream* uit) {
    *uit << geval.naam;
}

std::string noemGeval(const testing::TestParamInfo<Leesgeval>& info) {
    return info.param.naam;
}

class TekstLezerTabel : public testing::TestWithParam<Leesgeval> {};
class TekstLezerGrens : public testing::TestWithParam<Leesgeval> {};

// Elk geval is met de tekststroom van de toolkit gemeten, behalve waar "anders" bij staat: daar laat zij
// bytes verdwijnen of houdt zij niet op.
constexpr Leesgeval leesgevallen[] = {
    {"Leeg", ""sv, "\n"sv},
    {"ZonderRegeleinde", "abc"sv, "abc\n"sv},
    {"LF", "a\n"sv, "a\n\n"sv},
    {"CRLF", "a\r\n"sv, "a\n\n"sv},
    {"CRAanHetEinde", "a\r"sv, "a\n"sv},
    {"CRMidden", "a\rb"sv, "a\nb\n"sv},
    {"CRCR", "a\r\rb"sv, "a\n\nb\n"sv},
    {"LFCR", "a\n\rb"sv, "a\n\nb\n"sv},
    {"Nul", "a\0b"sv, "a\nb\n"sv},
    {"NulAanHetEinde", "a\0"sv, "a\n\n"sv},
    {"CRNul", "a\r\0b"sv, "a\nb\n"sv},
    {"AlleenNul", "\0"sv, "\n"sv},
    {"AlleenTweeNul", "\0\0"sv, "\n"sv},
    {"DrieNul", "\0\0\0"sv, "\n\n\n\n"sv},
    {"Utf8", "\u00e9\u20ac\U0001F600\n"sv, "\u00e9\u20ac\U0001F600\n\n"sv},
    {"Utf8Merkteken",
     "\xEF\xBB\xBF"
     "abc\n"sv,
     "abc\n\n"sv},
    {"AlleenUtf8Merkteken", "\xEF\xBB\xBF"sv, "\n"sv},
    {"TweeMerktekens",
     "\xEF\xBB\xBF\xEF\xBB\xBF"
     "a"sv,
     "\xEF\xBB\xBF"
     "a\n"sv},
    {"MerktekenMidden",
     "a\xEF\xBB\xBF"
     "b"sv,
     "a\xEF\xBB\xBF"
     "b\n"sv},
    {"Latijn1", "caf\xE9 is open\n"sv, "caf\u00e9 is open\n\n"sv},
    {"Latijn1VoorRegeleinde", "\xC3\nbcdef"sv, "\u00c3\nbcdef\n"sv},
    {"Latijn1VanafDeFout", "\xC3\xA9 \xE9 \xC3\xA9 einde"sv, "\u00e9 \u00e9 \u00c3\u00a9 einde\n"sv},
    {"Latijn1MetRegeleinden",
     "\xE9"
     "abc\r\nd\re\0f"sv,
     "\u00e9abc\nd\ne\nf\n"sv},
    {"AfgebrokenReeks",
     "\xE2\x82"
     "Abcdef"sv,
     "\u00e2\u0082Abcdef\n"sv},
    {"TeLangeVormVanTwee",
     "\xC0\x80"
     "abcdef"sv,
     "\u00c0\u0080abcdef\n"sv},
    {"TeLangeVormVanDrie",
     "\xE0\x80\x8A"
     "ab\xE0\x81\x81"sv,
     "\nabA\n"sv},
    {"TeLangeVormVanVier",
     "\xF0\x80\x80\x8D"
     "\nab"sv,
     "\nab\n"sv},
    {"Surrogaat",
     "\xED\xA0\x80"
     "abc"sv,
     "\xED\xA0\x80"
     "abc\n"sv},
    {"TeHogeStartbyte",
     "\xF5"
     "abcdef"sv,
     "\u00f5abcdef\n"sv},
    {"AndersHalfTekenAanHetEinde", "abc\xC3"sv, "abc\u00c3\n"sv},
    {"AndersHalfTekenNaRegeleinde", "abc\n\xE2\x82"sv, "abc\n\u00e2\u0082\n"sv},
    {"AndersHalfTekenNaCR", "abc\r\xC3"sv, "abc\n\u00c3\n"sv},
    {"AndersOngeldigVlakVoorHetEinde", "ab\x80"sv, "ab\u0080\n"sv},
    {"AndersOngeldigNaMerkteken",
     "\xEF\xBB\xBF"
     "ab\x80"
     "cd\xC3\xA9 efgh"sv,
     "ab\u0080cd\u00c3\u00a9 efgh\n"sv},
    {"AndersVoorbijHetLaatsteTeken",
     "a\xF4\x90\x80\x80"
     "b"sv,
     "a\u00f4\u0090\u0080\u0080b\n"sv},
    {"AndersHalfMerkteken", "\xEF\xBB"sv, "\u00ef\u00bb\n"sv},
    {"Utf16LE",
     "\xFF\xFE"
     "a\0\n\0b\0"sv,
     "a\nb\n"sv},
    {"Utf16BE", "\xFE\xFF\0a\0\r\0\n\0b"sv, "a\nb\n"sv},
    {"Utf16LeegLE", "\xFF\xFE"sv, "\n"sv},
    {"Utf16LeegBE", "\xFE\xFF"sv, "\n"sv},
    {"Utf16Paar",
     "\xFF\xFE\x3D\xD8\x00\xDE"
     "b\0"sv,
     "\U0001F600"
     "b\n"sv},
    {"Utf16PaarNaCR",
     "\xFF\xFE"
     "a\0\r\0\x3D\xD8\x00\xDE"
     "b\0\n\0"
     "c\0"sv,
     "a\n\U0001F600"
     "b\nc\n"sv},
    {"Utf16Einden", "\xFE\xFF\0a\0\r\0\0\0b\0\0\0c\0\r\0\r\0\n"sv, "a\nb\nc\n\n\n"sv},
    {"Utf32PaarNaCR", "\0\0\xFE\xFF\0\0\0\r\0\1\xF6\0\0\0\0b"sv,
     "\n\U0001F600"
     "b\n"sv},
    {"Utf32Surrogaat", "\0\0\xFE\xFF\0\0\0a\0\0\xD8\0"sv, "a\xED\xA0\x80\n"sv},
    {"Utf32LE", "\xFF\xFE\0\0a\0\0\0\n\0\0\0"sv, "a\n\n"sv},
    {"Utf32BE", "\0\0\xFE\xFF\0\0\0a"sv, "a\n"sv},
    {"AndersLosHoogSurrogaat",
     "\xFF\xFE\x3D\xD8"
     "b\0c\0"sv,
     "\uFFFD"
     "bc\n"sv},
    {"AndersLosLaagSurrogaat", "\xFE\xFF\xDE\0\0b"sv,
     "\uFFFD"
     "b\n"sv},
    {"AndersTweeHogeSurrogaten", "\xFF\xFE\x3D\xD8\x3D\xD8\x00\xDE"sv, "\uFFFD\U0001F600\n"sv},
    {"AndersHoogSurrogaatAanHetEinde",
     "\xFF\xFE"
     "a\0\x3D\xD8"sv,
     "a\uFFFD\n"sv},
    {"AndersHalveEenheid",
     "\xFF\xFE"
     "a\0b"sv,
     "a\uFFFD\n"sv},
    {"AndersUtf32TeHoog", "\xFF\xFE\0\0a\0\0\0\0\0\x11\0b\0\0\0"sv,
     "a\uFFFD"
     "b\n"sv},
};

/// De gevallen die niet aan het begin van de tekst hoeven te staan; een merkteken moet dat wel.
std::vector<Leesgeval> zonderBegin() {
    std::vector<Leesgeval> gevallen;
    std::copy_if(std::begin(leesgevallen), std::end(leesgevallen), std::back_inserter(gevallen),
                 [](const Leesgeval& geval) {
                     return !geval.inhoud.starts_with("\xEF\xBB") && !geval.inhoud.starts_with("\xFF\xFE") &&
                            !geval.inhoud.starts_with("\xFE\xFF") && !geval.inhoud.starts_with('\0') &&
                            !geval.inhoud.empty();
                 });
    return gevallen;
}

}  // namespace

TEST_P(TekstLezerTabel, GeeftDeRegels) {
    EXPECT_EQ(hulp::toonBytes(GetParam().tekst), hulp::toonBytes(lees(GetParam().inhoud)));
}

// Waar een blok ophoudt mag niets uitmaken: dezelfde inhoud achter een vulling die elke byte van het geval
// een keer op de grens van een blok legt.
TEST_P(TekstLezerGrens, MerktGeenBlokgrens) {
    constexpr std::size_t blok = kern::TekstLezer::eersteBlok;
    const Leesgeval& geval = GetParam();
    for (std::size_t terug = 0; terug <= geval.inhoud.size() + 1; ++terug) {
        const std::string vulling(blok - terug, 'v');
        EXPECT_EQ(hulp::toonBytes(geval.tekst),
                  hulp::toonBytes(lees(vulling + std::string(geval.inhoud)).substr(vulling.size())))
            << terug << " bytes voor de grens";
    }
}

INSTANTIATE_TEST_SUITE_P(Lezen, TekstLezerGrens, testing::ValuesIn(zonderBegin()), noemGeval);
INSTANTIATE_TEST_SUITE_P(Lezen, TekstLezerTabel, testing::ValuesIn(leesgevallen), noemGeval);

TEST(TekstLezer, LeestUitEenStroomDieHapert) {
    const std::string tekst = "e\u00e9n\r\ntwee\rdrie\n";
    for (std::size_t stukje = 1; stukje < 5; ++stukje) {
        HaperendeStroom stroom(tekst, stukje, wxSTREAM_EOF);
        const Uitkomst uitkomst = leesAlles(stroom);
        EXPECT_EQ("e\u00e9n\ntwee\ndrie\n\n", uitkomst.tekst);
        EXPECT_TRUE(uitkomst.heelGelezen);
    }
}

// Blokken zonder en met iets dat om te zetten is, in elke volgorde. Een regel loopt steeds door in het
// volgende blok.
TEST(TekstLezer, LeestElkeAfwisselingVanBlokken) {
    constexpr unsigned blokken = 4;
    for (unsigned volgorde = 0; volgorde < 1U << blokken; ++volgorde) {
        std::string inhoud;
        std::string verwacht;
        for (unsigned blok = 0; blok < blokken; ++blok) {
            const bool omTeZetten = ((volgorde >> blok) & 1U) != 0;
            const std::string begin = "blok " + std::to_string(blok);
            const std::string_view einde = omTeZetten ? "\r\n" : "\n";
            const std::size_t lengte = kern::TekstLezer::eersteBlok << blok;
            const std::string rest(lengte - begin.size() - einde.size(), 'r');
            inhoud.append(begin).append(einde).append(rest);
            verwacht.append(begin).append("\n").append(rest);
        }
        ASSERT_TRUE(verwacht + "\n" == lees(inhoud)) << volgorde;
    }
}

TEST(TekstLezer, HoudtOpNaEenLeesfoutEnMeldtDie) {
    HaperendeStroom stroom("een\ntwee", 3, wxSTREAM_READ_ERROR);
    const Uitkomst uitkomst = leesAlles(stroom);
    EXPECT_EQ("een\ntwee\n", uitkomst.tekst);
    EXPECT_FALSE(uitkomst.heelGelezen);
}

TEST(TekstLezer, HoudtOpNaEenLeesfoutInEenBredeTekst) {
    HaperendeStroom stroom(
        "\xFF\xFE"
        "a\0b\0"sv,
        2, wxSTREAM_READ_ERROR);
    const Uitkomst uitkomst = leesAlles(stroom);
    EXPECT_EQ("ab\n", uitkomst.tekst);
    EXPECT_FALSE(uitkomst.heelGelezen);
}

TEST(TekstLezer, LeestNooitVoorbijEenLeesfout) {
    for (const std::string_view begin : {"een"sv, "\xFF"sv, "\xFF\xFE"sv, "\xFF\xFE\x41\0"sv}) {
        HaperendeStroom stroom(begin, 1, wxSTREAM_READ_ERROR, "b\0\n\0"sv);
        const Uitkomst uitkomst = leesAlles(stroom);
        EXPECT_EQ(std::string::npos, uitkomst.tekst.find('b')) << uitkomst.tekst;
        EXPECT_FALSE(uitkomst.heelGelezen) << hulp::toonBytes(begin);
    }
}

TEST(TekstLezer, GeeftEenRegelVanTienMegabyteHeel) {
    const std::string regel(10'000'000, 'r');
    EXPECT_EQ("kort\n" + regel + "\nkort\n", lees("kort\n" + regel + "\r\nkort"));
}

// Na het merkteken van twee bytes begint elk paar op een even plaats die geen viervoud is; elke blokgrens
// valt daardoor midden in een paar.
TEST(TekstLezer, HoudtEenSurrogaatpaarOpEenBlokgrensHeel) {
    std::string inhoud("\xFF\xFE", 2);
    std::string verwacht;
    for (int i = 0; i < 200000; ++i) {
        inhoud += "\x3D\xD8\x00\xDE"sv;
        verwacht += "\U0001F600";
    }
    EXPECT_EQ(verwacht + "\n", lees(inhoud));
}

TEST(TekstLezer, GeeftEenGroteBredeTekstHeel) {
    std::string inhoud("\xFF\xFE", 2);
    std::string verwacht;
    for (int i = 0; i < 100000; ++i) {
        inhoud += "r\0e\0g\0\xE9\0l\0\n\0"sv;
        verwacht += "reg\u00e9l\n";
    }
    EXPECT_EQ(verwacht + "\n", lees(inhoud));
}
