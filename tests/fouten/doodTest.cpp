// Doodt een batch over een boom midden in het werk, op telkens een ander moment. Er mag een tijdelijk bestand
// achterblijven, want niets kan het nog opruimen; elk origineel is heel, zoals het was of geknipt.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <iostream>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "tests/fouten/proces.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/orakel.h"
#include "tests/kern/voorbeeld.h"

namespace fs = std::filesystem;

namespace {

using Klok = std::chrono::steady_clock;
using std::chrono::microseconds;

std::string maakBronVan(int soort) {
    constexpr std::size_t bytes = 20'000;
    std::string bron;
    for (int regel = 0; bron.size() < bytes; ++regel) {
        bron += "soort " + std::to_string(soort) + ", regel " + std::to_string(regel) + "\n";
        bron += regel % 20 == soort ? "// BEGIN\ngeheim\n// EIND\n" : "";
    }
    return bron;
}

struct Origineel {
    fs::path pad;
    const std::string* voor;
    const std::string* na;
};

class Dood : public testing::Test {
  protected:
    Dood() {
        fs::create_directory(tijdelijk_);
        for (std::size_t soort = 0; soort < voor_.size(); ++soort) {
            voor_[soort] = maakBronVan(static_cast<int>(soort));
            hulp::schrijfBestand(map_ / "bron", voor_[soort]);
            na_[soort] = orakel::knipBestand(map_ / "bron", proef::teksten);
        }
        for (std::size_t i = 0; i < aantalBestanden; ++i) {
            const fs::path directory = boom_ / std::to_string(i % 7) / std::to_string(i % 3);
            fs::create_directories(directory);
            const std::size_t soort = i % voor_.size();
            originelen_.push_back({directory / (std::to_string(i) + ".c"), &voor_[soort], &na_[soort]});
            hulp::schrijfBestand(originelen_.back().pad, voor_[soort]);
        }
    }

    /// Start een batch en doodt haar na deze tijd. Geeft of zij toen nog bezig was. Wie sterft terwijl hij de
    /// tellers van de dekking bijwerkt, laat een half bestand na waarover elke volgende klaagt, en wie sterft
    /// terwijl hij naar lekken zoekt, klaagt zelf nog na; daarom doet zij geen van beide.
    bool dood(microseconds na) {
        fouten::Proces proces(
            {AANDRIJVER, "boom", boom_, "BEGIN", "EIND", "WERK"},
            {{"TMPDIR", tijdelijk_}, {"LLVM_PROFILE_FILE", "/dev/null"}, {"ASAN_OPTIONS", "detect_leaks=0"}},
            map_ / "verslag");
        std::this_thread::sleep_for(na);
        proces.dood();
        const int status = proces.wacht();
        EXPECT_TRUE(status == 0 || status == 128 + SIGKILL) << status;
        EXPECT_EQ("", hulp::leesBestand(map_ / "verslag"));
        return status != 0;
    }

    /// Hoe lang een batch duurt die niemand stoort.
    microseconds meet() {
        const auto begin = Klok::now();
        fouten::Proces proces({AANDRIJVER, "boom", boom_, "BEGIN", "EIND", "WERK"}, {{"TMPDIR", tijdelijk_}},
                              map_ / "verslag");
        EXPECT_EQ(0, proces.wacht());
        return std::chrono::duration_cast<microseconds>(Klok::now() - begin);
    }

    /// Zet alles terug en geeft hoeveel originelen er geknipt waren. Eén dat niet heel is, laat de test
    /// falen.
    std::size_t herstel() {
        std::size_t geknipt = 0;
        for (const Origineel& origineel : originelen_) {
            const std::string nu = hulp::leesBestand(origineel.pad);
            if (nu != *origineel.voor) {
                EXPECT_TRUE(nu == *origineel.na)
                    << origineel.pad << " is niet heel: " << nu.size() << " bytes";
                ++geknipt;
                hulp::schrijfBestand(origineel.pad, *origineel.voor);
            }
        }
        for (const fs::path& plaats : {tijdelijk_, boom_}) {
            ruimOp(plaats);
        }
        return geknipt;
    }

    static constexpr std::size_t aantalBestanden = 300;

  private:
    /// Haalt weg wat een gedode batch achterliet. Iets anders dan haar tijdelijke bestanden hoort er niet.
    static void ruimOp(const fs::path& plaats) {
        std::vector<fs::path> rest;
        for (const auto& deel : fs::recursive_directory_iterator(plaats)) {
            if (!deel.is_directory() && deel.path().extension() != ".c") {
                rest.push_back(deel.path());
            }
        }
        for (const fs::path& pad : rest) {
            EXPECT_NE(std::string::npos, pad.filename().string().find("Knipselaar")) << pad;
            fs::remove(pad);
        }
    }

    hulp::TijdelijkeMap map_{fouten::geefSnellePlaats()};
    fs::path boom_ = map_ / "boom";
    fs::path tijdelijk_ = map_ / "tijdelijk";
    std::array<std::string, 10> voor_;
    std::array<std::string, 10> na_;
    std::vector<Origineel> originelen_;
};

}  // namespace

TEST_F(Dood, LaatElkOrigineelHeel) {
    // Met sanitizers duurt elke batch veel langer; dan tellen minder pogingen ook, als er maar één raak is.
    constexpr int pogingen = 200;
    constexpr std::chrono::minutes genoeg(1);
    std::array<microseconds, 3> metingen{};
    for (microseconds& meting : metingen) {
        meting = meet();
        ASSERT_EQ(aantalBestanden, herstel());
    }
    std::sort(metingen.begin(), metingen.end());
    std::mt19937 toeval(20);  // NOLINT(cert-msc51-cpp): elke loop van de test kiest dezelfde momenten
    std::uniform_int_distribution<microseconds::rep> momenten(0, metingen[1].count());
    const auto begin = Klok::now();
    int gedood = 0;
    int tijdens = 0;
    int halverwege = 0;
    const auto gaDoor = [&] { return Klok::now() - begin < genoeg || halverwege == 0; };
    for (; gedood < pogingen && gaDoor() && !HasFailure(); ++gedood) {
        tijdens += dood(microseconds(momenten(toeval))) ? 1 : 0;
        const std::size_t geknipt = herstel();
        halverwege += geknipt > 0 && geknipt < aantalBestanden ? 1 : 0;
    }
    std::cout << gedood << " keer gedood, " << tijdens << " keer tijdens de batch, " << halverwege
              << " keer met een deel van de boom geknipt; een hele batch duurt " << metingen[1].count() / 1000
              << " ms\n";
    RecordProperty("tijdens", tijdens);
    RecordProperty("halverwege", halverwege);
    EXPECT_LT(0, halverwege) << "geen enkel moment viel midden in het werk";
}
