// De voorbeelden zijn echt lesmateriaal: de hele versies vertalen en doen het, de geknipte versies stoppen op
// de vervangtekst.

#include <gtest/gtest.h>

#include "Knipselaar/kern/bestandKnipper.h"
#include "Knipselaar/kern/parserInstellingen.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/opdracht.h"

namespace fs = std::filesystem;

namespace {

class Voorbeelden : public testing::Test {
  protected:
    Voorbeelden() {
        for (const auto& bestand : fs::directory_iterator(VOORBEELDEN)) {
            if (bestand.is_regular_file()) {
                fs::copy_file(bestand.path(), map_ / bestand.path().filename().string());
            }
        }
    }

    /// Voert een opdracht uit in de map met voorbeelden.
    hulp::Afloop voerUit(const std::string& opdracht) const { return hulp::voerUitIn(map_.pad(), opdracht); }

    void verwachtGoed(const std::string& opdracht) const {
        const hulp::Afloop afloop = voerUit(opdracht);
        EXPECT_EQ(0, afloop.status) << opdracht << "\n" << afloop.uitvoer;
    }

    void verwachtStop(const std::string& opdracht) const {
        const hulp::Afloop afloop = voerUit("LC_ALL=C " + opdracht);
        EXPECT_NE(0, afloop.status);
        EXPECT_NE(std::string::npos, afloop.uitvoer.find("#error \"Dit stuk software ontbreekt.\""))
            << afloop.uitvoer;
    }

    void knip(const std::string& naam) const {
        const wxFileName doel((map_ / "geknipt").string());
        ASSERT_TRUE(kern::knipBestand(wxFileName((map_ / naam).string()), doel,
                                      {kern::standaardBeginMarker(), kern::standaardEindMarker(),
                                       kern::standaardVervangtekst()})
                        .isGelukt());
        EXPECT_EQ(std::string::npos, hulp::leesBestand(map_ / "geknipt").find("Student Begin"));
        fs::rename(map_ / "geknipt", map_ / naam);
    }

    hulp::TijdelijkeMap map_;
};

}  // namespace

TEST_F(Voorbeelden, CProgrammaWerkt) {
    verwachtGoed("gcc -std=c11 -Wall -Wextra -Wpedantic -Werror ringbuffer.c -o ringbuffer && ./ringbuffer");
}

TEST_F(Voorbeelden, CppKlasseWerkt) {
    verwachtGoed(
        "g++ -std=c++17 -Wall -Wextra -Wpedantic -Werror matrix.cpp matrixdemo.cpp -o matrix && ./matrix");
}

TEST_F(Voorbeelden, VhdlEntiteitWerkt) {
    verwachtGoed(
        "ghdl -a --std=08 teller.vhdl teller_tb.vhdl && ghdl -e --std=08 teller_tb && "
        "ghdl -r --std=08 teller_tb --assert-level=error");
}

TEST_F(Voorbeelden, GeknipteCStoptOpDeVervangtekst) {
    knip("ringbuffer.c");
    verwachtStop("gcc -std=c11 -c ringbuffer.c");
}

TEST_F(Voorbeelden, GeknipteCppStoptOpDeVervangtekst) {
    knip("matrix.cpp");
    verwachtStop("g++ -std=c++17 -c matrix.cpp");
}

TEST_F(Voorbeelden, GeknipteHeaderStoptOpDeVervangtekst) {
    knip("matrix.h");
    verwachtStop("g++ -std=c++17 -c matrix.cpp");
}

TEST_F(Voorbeelden, GeknipteVhdlVertaaltNiet) {
    knip("teller.vhdl");
    EXPECT_NE(0, voerUit("ghdl -a --std=08 teller.vhdl").status);
}
