#include "tests/kern/bestandKnipperProef.h"

namespace fs = std::filesystem;

using proef::geknipt;
using proef::origineel;

namespace {

using BestandKnipper = proef::BestandKnipper;

}  // namespace

TEST_F(BestandKnipper, KniptHetEneBestandNaarHetAndere) {
    hulp::schrijfBestand(in_, origineel);
    EXPECT_TRUE(knip(in_, uit_).isGelukt());
    EXPECT_EQ(geknipt, hulp::leesBestand(uit_));
    EXPECT_EQ(origineel, hulp::leesBestand(in_));
}

TEST_F(BestandKnipper, SchrijftOverEenLangerBestandHeen) {
    hulp::schrijfBestand(in_, origineel);
    hulp::schrijfBestand(uit_, std::string(5000, 'x'));
    EXPECT_TRUE(knip(in_, uit_).isGelukt());
    EXPECT_EQ(geknipt, hulp::leesBestand(uit_));
}

TEST_F(BestandKnipper, MaaktHetDoelLeegZonderBron) {
    hulp::schrijfBestand(uit_, "was er al");
    verwachtBronNietOpen(in_, uit_);
    EXPECT_FALSE(fs::exists(in_));
}

TEST_F(BestandKnipper, LaatEenBestandDatNaarZichzelfGaatMetEenRegeleindeAchter) {
    hulp::schrijfBestand(in_, origineel);
    knip(in_, in_);
    EXPECT_EQ(hulp::zetInBestand("\n"), hulp::leesBestand(in_));
}

TEST_F(BestandKnipper, LeestDeBronOokAlsHetDoelNietOpengaat) {
    hulp::schrijfBestand(in_, origineel);
    verwachtDoelNietOpen(in_, map_ / "bestaat-niet" / "uit.c");
    EXPECT_FALSE(fs::exists(map_ / "bestaat-niet"));
}

TEST_F(BestandKnipper, NeemtGeenDirectoryAlsBronOfDoel) {
    fs::create_directory(in_);
    verwachtBronNietOpen(in_, uit_);
    hulp::schrijfBestand(map_ / "bron", origineel);
    verwachtDoelNietOpen(map_ / "bron", in_);
    EXPECT_TRUE(fs::is_directory(in_));
}

TEST_F(BestandKnipper, ZegtVanBeideWatErMisging) {
    fs::create_directory(uit_);
    const auto uitslag = knip(in_, uit_);
    hulp::neemBeweringen();
    EXPECT_FALSE(uitslag.bronBestaat);
    EXPECT_EQ("bestaat niet", uitslag.bronReden);
    EXPECT_EQ("is een directory", uitslag.doelReden);
}

TEST_F(BestandKnipper, GeeftGeenRedenAlsAllesLukt) {
    hulp::schrijfBestand(in_, origineel);
    const auto uitslag = knip(in_, uit_);
    EXPECT_TRUE(uitslag.isGelukt());
    EXPECT_TRUE(uitslag.bronBestaat);
    EXPECT_EQ("", uitslag.bronReden);
    EXPECT_EQ("", uitslag.doelReden);
    EXPECT_EQ(0U, uitslag.bevindingen.blokken) << "daar is niet naar gekeken";
    EXPECT_TRUE(uitslag.bevindingen.lijst.empty());
}
