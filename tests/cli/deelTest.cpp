// De onderdelen tegen de kern, op duizenden toevallige teksten: dezelfde regels, dezelfde blokken, hetzelfde
// knipsel.

#include <gtest/gtest.h>
#include <wx/mstream.h>

#include <csignal>
#include <cstdlib>
#include <random>

#include "Knipselaar/kern/stroomKnipper.h"
#include "Knipselaar/kern/systeem/onderbreking.h"
#include "Knipselaar/kern/tekstLezer.h"
#include "KnipselaarCli/boom.h"
#include "KnipselaarCli/knipsel.h"
#include "KnipselaarCli/verslag.h"
#include "tests/hulp/bestanden.h"

using namespace std::string_literals;
using namespace std::string_view_literals;

using cli::Brontekst;
using cli::Lezing;
using cli::Manier;
using kern::Bytes;

namespace {

std::string leesMetKern(const std::string& inhoud) {
    wxMemoryInputStream stroom(inhoud.data(), inhoud.size());
    kern::TekstLezer lezer(stroom);
    std::string tekst;
    for (auto regels = lezer.leesRegels(); !regels.empty(); regels = lezer.leesRegels()) {
        tekst += regels;
    }
    return tekst;
}

std::string knipMetKern(const std::string& inhoud, const kern::KnipTeksten& teksten) {
    wxMemoryInputStream stroom(inhoud.data(), inhoud.size());
    wxMemoryOutputStream uit;
    kern::knipStroom(stroom, uit, kern::KnipMal(teksten));
    std::string resultaat(uit.GetSize(), '\0');
    uit.CopyTo(resultaat.data(), resultaat.size());
    return resultaat;
}

/// Teksten van stukjes waar het op aankomt: regeleinden, markers, merktekens, beschadigde tekens.
class Tekstmaker {
  public:
    std::string maak() {
        static const std::vector<std::string> begin{
            "", "", "", "\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF", "\xFF\xFE\0\0"s, "\0\0\xFE\xFF"s, "\0"s};
        static const std::vector<std::string> stukjes{
            "\n",           "\n",           "\r\n",     "\r",     "\0"s,   "B{",
            "B{",           "B}",           "B}",       "abc",    "é",     "\xE9",
            "\xE2\x82",     "\xE2\x82\xAC", "\xF4",     "  ",     "\0\n"s, "\n\0"s,
            "\xE0\x80\x8A", "\xE0\x82\xA9", "\xC3\x8A", "\0\xD8"s};
        std::string tekst = begin[toeval_() % begin.size()];
        for (auto aantal = toeval_() % 30; aantal > 0; --aantal) {
            tekst += stukjes[toeval_() % stukjes.size()];
        }
        return tekst;
    }

    /// Een tekst waarin bijna elke regel een hele marker of gewone tekst is.
    std::string maakRegels(const std::string& einde) {
        static const std::vector<std::string> regels{"B{", "B}", "a", "é", "b", "\xE9", "", "x B{ y", "  B}"};
        std::string tekst;
        for (auto aantal = toeval_() % 12; aantal > 0; --aantal) {
            tekst += regels[toeval_() % regels.size()] + (aantal == 1 && toeval_() % 2 == 0 ? "" : einde);
        }
        return tekst;
    }

  private:
    std::mt19937 toeval_{7};  // NOLINT(cert-msc51-cpp): elke loop van de test maakt dezelfde teksten
};

kern::MarkerReeks maakMarkers() {
    return kern::MarkerReeks({{.begin = kern::MarkerMasker("B{"), .eind = kern::MarkerMasker("B}")}});
}

}  // namespace

TEST(CliDeel, LeestDeRegelsZoalsDeKern) {
    Tekstmaker maker;
    for (int i = 0; i < 50'000; ++i) {
        const std::string inhoud = maker.maak();
        const std::string verwacht = leesMetKern(inhoud);
        ASSERT_EQ(verwacht, Brontekst(Bytes(inhoud), Lezing::tekst).geefTekst()) << hulp::toonBytes(inhoud);
        const Brontekst bron(Bytes(inhoud), Lezing::volledig);
        ASSERT_EQ(verwacht, bron.geefTekst()) << hulp::toonBytes(inhoud);
        ASSERT_EQ(inhoud, bron.geefRuw());
    }
}

TEST(CliDeel, WijstElkeRegelHaarEigenBytesToe) {
    Tekstmaker maker;
    for (int i = 0; i < 20'000; ++i) {
        const std::string inhoud = maker.maak();
        const Brontekst bron(Bytes(inhoud), Lezing::volledig);
        const std::string_view tekst = bron.geefTekst();
        ASSERT_EQ(inhoud.size(), bron.naarRuw(tekst.size()));
        std::size_t vorige = bron.naarRuw(0);
        for (std::size_t plek = 0; plek < tekst.size();) {
            const std::size_t volgende = tekst.find('\n', plek) + 1;
            const std::size_t ruw = bron.naarRuw(volgende);
            ASSERT_LE(vorige, ruw) << hulp::toonBytes(inhoud);
            // De bytes van een regel zijn zelf ook weer te lezen, en geven dan dezelfde tekst. Alleen van een
            // te lang geschreven LF na een CR is niet te zien bij welke regel hij hoort.
            if (bron.geefCodering() == cli::Codering::utf8 && inhoud.find("\xE0\x80") == std::string::npos) {
                const Brontekst regel(Bytes(bron.geefRuw().substr(vorige, ruw - vorige)), Lezing::volledig);
                ASSERT_TRUE(regel.geefTekst().starts_with(tekst.substr(plek, volgende - plek)) ||
                            tekst.substr(plek, volgende - plek) == "\n")
                    << hulp::toonBytes(inhoud);
            }
            vorige = ruw;
            plek = volgende;
        }
    }
}

TEST(CliDeel, LeestZuinigDezelfdeBlokken) {
    Tekstmaker maker;
    const auto markers = maakMarkers();
    for (int i = 0; i < 50'000; ++i) {
        const std::string inhoud = maker.maak();
        const Brontekst zuinig(Bytes(inhoud), Lezing::zuinig);
        const Brontekst volledig(Bytes(inhoud), Lezing::volledig);
        const cli::Ontleding een = cli::ontleed(zuinig.geefTekst(), markers);
        const cli::Ontleding ander = cli::ontleed(volledig.geefTekst(), markers);
        ASSERT_EQ(ander.meldingen, een.meldingen) << hulp::toonBytes(inhoud);
        const cli::KnipWens wens{.inspringen = true, .vervanging = "X\nY"};
        ASSERT_EQ(cli::Knipsel(volledig, ander, wens).geefInhoud(),
                  cli::Knipsel(zuinig, een, wens).geefInhoud())
            << hulp::toonBytes(inhoud);
    }
}

TEST(CliDeel, KniptZoalsDeKern) {
    Tekstmaker maker;
    const auto markers = maakMarkers();
    int geknipt = 0;
    for (int i = 0; i < 50'000; ++i) {
        const std::string inhoud = maker.maakRegels(i % 3 == 0 ? "\n" : i % 3 == 1 ? "\r\n" : "\r");
        // Uit de ruwe bytes wordt pas bij het schrijven wat de kern ervan maakt.
        const Brontekst bron(Bytes(inhoud), i % 2 == 0 ? Lezing::tekst : Lezing::zuinig);
        const cli::Ontleding ontleding = cli::ontleed(bron.geefTekst(), markers);
        if (ontleding.heeftFout()) {
            continue;
        }
        geknipt += ontleding.blokken.empty() ? 0 : 1;
        const cli::KnipWens wens{.manier = Manier::venster, .vervanging = "X"};
        ASSERT_EQ(knipMetKern(inhoud, {"B{", "B}", "X"}), cli::Knipsel(bron, ontleding, wens).geefInhoud())
            << hulp::toonBytes(inhoud);
    }
    EXPECT_LT(1000, geknipt);
}

TEST(CliDeel, GetrouwLeestAlsHetVenster) {
    Tekstmaker maker;
    const auto markers = maakMarkers();
    int geknipt = 0;
    for (int i = 0; i < 50'000; ++i) {
        const std::string inhoud = maker.maakRegels(i % 3 == 0 ? "\n" : i % 3 == 1 ? "\r\n" : "\r");
        const Brontekst bron(Bytes(inhoud), Lezing::zuinig);
        const cli::Ontleding ontleding = cli::ontleed(bron.geefTekst(), markers);
        // Valt de enige byte weg die geen UTF-8 is, dan leest wat overblijft anders dan het hele bestand.
        const bool gemengd =
            inhoud.find('\xE9') != std::string::npos && inhoud.find("é") != std::string::npos;
        if (gemengd || ontleding.heeftFout() || ontleding.blokken.empty() ||
            ontleding.blokken.back().isLeeg()) {
            continue;
        }
        ++geknipt;
        const cli::KnipWens wens{.vervanging = "X"};
        const std::string venster = knipMetKern(inhoud, {"B{", "B}", "X"});
        const std::string getrouw = cli::Knipsel(bron, ontleding, wens).geefInhoud();
        ASSERT_TRUE(venster == leesMetKern(getrouw) || (venster + getrouw).empty())
            << hulp::toonBytes(inhoud);
    }
    EXPECT_LT(500, geknipt);
}

TEST(CliDeel, LooptNietVerderAlsErOmStoppenGevraagdIs) {
    const hulp::TijdelijkeMap map;
    const auto stopEnLoop = [&map] {
        kern::vangOnderbreking();
        std::raise(SIGINT);
        try {
            cli::loopAf(map.pad().string(), {});
        } catch (const cli::Fout& fout) {
            std::_Exit(std::string(fout.what()) == "onderbroken" ? 7 : 8);
        }
    };
    EXPECT_EXIT(stopEnLoop(), testing::ExitedWithCode(7), "");
}

TEST(CliDeel, SchrijftElkeNaamInJson) {
    EXPECT_EQ(R"("a\"b\\c\u0009\u000a\u007f é")", cli::naarJson("a\"b\\c\t\n\x7F é"));
    EXPECT_EQ(R"("\udce9n\udced\udca0\udc80")", cli::naarJson("\xE9n\xED\xA0\x80"));
    EXPECT_EQ("\"\U0001F600\"", cli::naarJson("\U0001F600"));
}

TEST(CliDeel, BytesGroeienMetBehoudVanWatErStond) {
    Bytes bytes("abc"sv);
    bytes.voegToe('d');
    bytes.maakRuimte(std::size_t{5} * 1024 * 1024);
    EXPECT_EQ("abcd", bytes.geef());
    EXPECT_EQ("", Bytes().geef());
    Bytes leeg;
    leeg.voegToe('x');
    EXPECT_EQ("x", leeg.geef());
}
