// De vaste gevallen: elke directory onder gevallen/ is één regel van het knippen. Elk geval loopt langs beide
// wegen. "bestand" is wat de bestandsvariant ervan maakt, "editor" wat de editorvariant ervan maakt; waarom
// ze verschillen staat in "waarom". "begin", "eind" en "vervang" ontbreken als de standaardtekst geldt.

#include <gtest/gtest.h>

#include <algorithm>

#include "Knipselaar/kern/bestandKnipper.h"
#include "Knipselaar/kern/parserInstellingen.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/orakel.h"

namespace fs = std::filesystem;

namespace {

wxString leesOf(const fs::path& pad, const wxString& anders) {
    return fs::exists(pad) ? wxString::FromUTF8(hulp::leesBestand(pad)) : anders;
}

class Gevallen : public testing::TestWithParam<std::string> {
  protected:
    fs::path map_ = fs::path(TESTGEVALLEN) / GetParam();
    kern::KnipTeksten teksten_{leesOf(map_ / "begin", kern::standaardBeginMarker()),
                               leesOf(map_ / "eind", kern::standaardEindMarker()),
                               leesOf(map_ / "vervang", kern::standaardVervangtekst())};
};

/// Wat de editor met alle regeleinden op LF laat zien.
std::string zetRegeleindenOm(const std::string& tekst) {
    std::string uit;
    for (std::size_t i = 0; i < tekst.size(); ++i) {
        if (tekst[i] == '\r') {
            uit += '\n';
            i += i + 1 < tekst.size() && tekst[i + 1] == '\n' ? 1 : 0;
        } else {
            uit += tekst[i];
        }
    }
    return uit;
}

}  // namespace

TEST_P(Gevallen, Bestand) {
    const hulp::TijdelijkeMap tijdelijk;
    const auto uitslag = kern::knipBestand(wxFileName((map_ / "in").string()),
                                           wxFileName((tijdelijk / "uit").string()), teksten_);
    EXPECT_TRUE(uitslag.isGelukt());
    const std::string verwacht = hulp::zetInBestand(hulp::leesBestand(map_ / "bestand"));
    EXPECT_EQ(verwacht, hulp::leesBestand(tijdelijk / "uit"));
    EXPECT_EQ(verwacht, orakel::knipBestand(map_ / "in", teksten_));
}

TEST_P(Gevallen, Editor) {
    const std::string tekst = zetRegeleindenOm(hulp::leesBestand(map_ / "in"));
    EXPECT_EQ(hulp::leesBestand(map_ / "editor"), kern::knipTekst(tekst, teksten_));
    EXPECT_EQ(hulp::leesBestand(map_ / "editor"), orakel::knipTekst(tekst, teksten_));
}

TEST_P(Gevallen, ZegtWaaromDeVariantenVerschillen) {
    EXPECT_EQ(hulp::leesBestand(map_ / "bestand") != hulp::leesBestand(map_ / "editor"),
              fs::exists(map_ / "waarom"));
}

INSTANTIATE_TEST_SUITE_P(Knippen, Gevallen, testing::ValuesIn(hulp::somOp(TESTGEVALLEN)),
                         [](const auto& info) {
                             std::string naam = info.param;
                             std::replace(naam.begin(), naam.end(), '-', '_');
                             return naam;
                         });
