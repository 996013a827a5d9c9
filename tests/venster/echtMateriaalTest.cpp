#include <random>

#include "tests/hulp/orakel.h"
#include "tests/venster/batchVenster.h"

namespace fs = std::filesystem;

namespace {

/// De headers van de toolkit als lesmateriaal: honderden echte bestanden, met op toevallige plaatsen markers.
class EchtMateriaal : public BatchTest {
  protected:
    EchtMateriaal() {
        std::mt19937 toeval(2026);  // NOLINT(cert-msc51-cpp): vaste reeks
        std::size_t aantal = 0;
        for (const auto& deel : fs::recursive_directory_iterator(HEADERS)) {
            if (deel.is_regular_file() && deel.path().extension() == ".h") {
                const std::string naam = fs::relative(deel.path(), HEADERS).generic_string();
                hulp::maakBoom(boom_, {{naam, merk(hulp::leesBestand(deel.path()), toeval)}});
                ++aantal;
            }
        }
        EXPECT_GT(aantal, 600U);
    }

    static std::string merk(const std::string& tekst, std::mt19937& toeval) {
        std::string uit;
        bool open = false;
        for (const char teken : tekst) {
            uit += teken;
            if (teken == '\n' && toeval() % 20 == 0) {
                uit += open ? "    // EIND van het blok\n" : "BEGIN\n";
                open = !open;
            }
        }
        return uit;
    }

    std::string orakelVan(const fs::path& pad) const {
        return orakel::knipBestand(pad, {"BEGIN", "EIND", "WERK"});
    }

    fs::path boom_ = geefOmgeving().werk() / "headers";
};

}  // namespace

TEST_F(EchtMateriaal, KniptRecursiefElkBestandGoed) {
    hulp::Boom verwacht = hulp::leesBoom(boom_);
    for (auto& [naam, inhoud] : verwacht) {
        if (inhoud != "/") {
            inhoud = orakelVan(boom_ / naam);
        }
    }
    doel_ = boom_;
    knipBoom();
    EXPECT_TRUE(verwacht == hulp::leesBoom(boom_));
}

TEST_F(EchtMateriaal, KniptDeDirectoryElkBestandGoed) {
    bron_ = boom_ / "wx";
    hulp::Boom verwacht;
    for (const auto& deel : fs::directory_iterator(bron_)) {
        if (deel.is_regular_file()) {
            verwacht[deel.path().filename().string()] = orakelVan(deel.path());
        }
    }
    knipDirectory();
    EXPECT_GT(verwacht.size(), 200U);
    EXPECT_TRUE(verwacht == hulp::leesBoom(doel_));
}
