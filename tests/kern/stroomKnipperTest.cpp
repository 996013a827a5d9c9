#include "Knipselaar/kern/stroomKnipper.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <wx/mstream.h>
#include <wx/stream.h>

#include <algorithm>

#include "Knipselaar/kern/tekstLezer.h"
#include "tests/kern/voorbeeld.h"

using kern::Bevinding;
using kern::Nakijken;
using kern::Soort;
using proef::teksten;

namespace {

kern::KnipUitslag knip(wxInputStream& bron, Nakijken nakijken = Nakijken::ja) {
    wxCountingOutputStream doel;
    return kern::knipStroom(bron, doel, kern::KnipMal(teksten), nakijken);
}

kern::KnipUitslag knip(const std::string& bron, Nakijken nakijken = Nakijken::ja) {
    wxMemoryInputStream stroom(bron.data(), bron.size());
    return knip(stroom, nakijken);
}

/// Geeft steeds dezelfde regel, tot zoveel keer, zonder ze ooit samen te bewaren.
class Herhaling : public wxInputStream {
  public:
    Herhaling(std::string regel, std::size_t keren)
        : regel_(std::move(regel)), over_(regel_.size() * keren) {}

  protected:
    size_t OnSysRead(void* buffer, size_t lengte) override {
        const std::size_t aantal = std::min(lengte, over_);
        for (std::size_t i = 0; i < aantal; ++i) {
            static_cast<char*>(buffer)[i] = regel_[plek_];
            plek_ = (plek_ + 1) % regel_.size();
        }
        over_ -= aantal;
        m_lasterror = aantal == 0 ? wxSTREAM_EOF : wxSTREAM_NO_ERROR;
        return aantal;
    }

  private:
    std::string regel_;
    std::size_t over_;
    std::size_t plek_ = 0;
};

long geefGrootsteGeheugenKb() {
    rusage gebruik{};
    getrusage(RUSAGE_SELF, &gebruik);
    return gebruik.ru_maxrss;
}

}  // namespace

TEST(StroomKnipper, VindtBlokkenEnRegelnummersOverDeBlokkenVanDeLezerHeen) {
    // Regels van 97 bytes: geen enkel blok van de lezer eindigt steeds op dezelfde plaats in een regel.
    const std::string vulling = std::string(96, 'x') + "\n";
    const std::size_t aantal = 40 * kern::TekstLezer::eersteBlok / vulling.size();
    std::string bron;
    std::vector<Bevinding> verwacht;
    std::size_t regel = 0;
    const auto zet = [&](const std::string& tekst) {
        bron += tekst + "\n";
        return ++regel;
    };
    std::size_t blokken = 0;
    while (regel < aantal) {
        zet("a");
        const std::size_t begin = zet("// BEGIN");
        ++blokken;
        std::vector<std::size_t> binnen;
        // Elk blok is groter dan wat de lezer de eerste keer geeft.
        for (std::size_t i = 0; i * vulling.size() < kern::TekstLezer::eersteBlok; ++i) {
            bron += vulling;
            ++regel;
        }
        const std::size_t nogEens = zet("// BEGIN");
        const std::size_t eind = zet("// EIND");
        verwacht.push_back(
            {.regel = nogEens, .soort = Soort::beginInBlok, .blokBegin = begin, .blokEind = eind});
        verwacht.push_back({.regel = zet("// EIND"), .soort = Soort::zonderBegin});
    }
    const std::size_t open = zet("// BEGIN");
    verwacht.push_back({.regel = open, .soort = Soort::zonderEind});
    ASSERT_GT(blokken, 10U);
    ASSERT_LE(verwacht.size(), kern::grootsteAantalBevindingen);
    const auto uitslag = knip(bron);
    EXPECT_TRUE(uitslag.isGelukt());
    EXPECT_EQ(verwacht, uitslag.bevindingen.lijst);
    EXPECT_EQ(0U, uitslag.bevindingen.verzwegen);
    EXPECT_EQ(0U, uitslag.bevindingen.verzwegenFouten);
    EXPECT_EQ(blokken + 1, uitslag.bevindingen.blokken);
    EXPECT_EQ(open, uitslag.bevindingen.open);
}

TEST(StroomKnipper, KijktAlleenNaAlsDatGevraagdIs) {
    const auto uitslag = knip("EIND\nBEGIN\nx\n", Nakijken::nee);
    EXPECT_TRUE(uitslag.isGelukt());
    EXPECT_EQ((std::vector<Bevinding>{}), uitslag.bevindingen.lijst);
    EXPECT_EQ(0U, uitslag.bevindingen.blokken);
    EXPECT_EQ(0U, uitslag.bevindingen.open);
}

TEST(StroomKnipper, BewaartDeEersteHonderdBevindingenEnTeltDeRest) {
    constexpr std::size_t fouten = 150;
    constexpr std::size_t waarschuwingen = 20;
    std::string bron = "BEGIN\nx\nEIND\n";
    for (std::size_t i = 0; i < fouten; ++i) {
        bron += "EIND\n";
    }
    for (std::size_t i = 0; i < waarschuwingen; ++i) {
        bron += "BEGIN\nEIND\n";
    }
    std::vector<Bevinding> verwacht;
    for (std::size_t i = 0; i < 100; ++i) {
        verwacht.push_back({.regel = 4 + i, .soort = Soort::zonderBegin});
    }
    const auto bevindingen = knip(bron).bevindingen;
    EXPECT_EQ(verwacht, bevindingen.lijst);
    EXPECT_EQ(fouten + waarschuwingen - 100, bevindingen.verzwegen);
    EXPECT_EQ(fouten - 100, bevindingen.verzwegenFouten);
    EXPECT_EQ(1 + waarschuwingen, bevindingen.blokken);
}

TEST(StroomKnipper, VerzwijgtNooitDatErEenEindOntbreekt) {
    std::string bron = "BEGIN\nx\nEIND\n";
    for (int i = 0; i < 150; ++i) {
        bron += "EIND\n";
    }
    const auto bevindingen = knip(bron + "BEGIN\nx\n").bevindingen;
    ASSERT_EQ(101U, bevindingen.lijst.size());
    EXPECT_EQ((Bevinding{.regel = 154, .soort = Soort::zonderEind}), bevindingen.lijst.back());
    EXPECT_EQ(50U, bevindingen.verzwegen);
    EXPECT_EQ(154U, bevindingen.open);
}

TEST(StroomKnipper, OnthoudtNietMeerDanErInDeLijstPast) {
    constexpr std::size_t keren = 4'000'000;
    constexpr long hoogstensKb = 48 * 1024;  // elke regel bewaren zou 128 MB kosten
    knip("EIND\n");
    const long vooraf = geefGrootsteGeheugenKb();
    Herhaling bron("EIND\n", keren);
    const auto uitslag = knip(bron);
    EXPECT_LT(geefGrootsteGeheugenKb() - vooraf, hoogstensKb);
    EXPECT_TRUE(uitslag.isGelukt());
    // Bovenaan staat dat er geen enkel blok is. De lege regel aan het einde is geen eindmarker.
    EXPECT_EQ(keren - 100, uitslag.bevindingen.verzwegen);
    ASSERT_EQ(101U, uitslag.bevindingen.lijst.size());
    EXPECT_EQ((Bevinding{.regel = 1, .soort = Soort::geenBlok}), uitslag.bevindingen.lijst.front());
    EXPECT_EQ((Bevinding{.regel = 100, .soort = Soort::zonderBegin}), uitslag.bevindingen.lijst.back());
}
