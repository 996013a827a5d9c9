#include "Knipselaar/kern/batch.h"

#include "tests/kern/batchProef.h"

namespace fs = std::filesystem;

using proef::geknipt;
using proef::naarWx;
using proef::Opdracht;
using proef::origineel;

namespace {

using Directorylijst = proef::Batch;
using Vlak = proef::Batch;
using Boomloop = proef::Batch;

}  // namespace

TEST_F(Directorylijst, HoudtDeVolgordeVanDeDirectory) {
    for (int i = 0; i < 50; ++i) {
        hulp::schrijfBestand(boom_ / (std::to_string(i * 7919 % 100) + ".c"), "");
    }
    std::vector<std::string> namen;
    for (const wxString& naam : kern::lijstDirectory(naarWx(boom_))) {
        namen.push_back(naam.utf8_string());
    }
    EXPECT_EQ(hulp::somOp(boom_), namen);
}

TEST_F(Directorylijst, IsLeegZonderDirectory) {
    EXPECT_TRUE(kern::lijstDirectory(naarWx(map_ / "bestaat-niet")).empty());
    EXPECT_TRUE(kern::lijstBoom(naarWx(map_ / "bestaat-niet")).empty());
    EXPECT_EQ((std::vector<hulp::Bewering>{{"origDir.IsOpened()", ""}, {"recurDir.IsOpened()", ""}}),
              hulp::neemBeweringen());
}

TEST_F(Vlak, MeldtVoorElkBestandHoeVerHijIs) {
    hulp::maakBoom(boom_, {{"a.c", origineel}, {"b.txt", origineel}, {"c.c", origineel}});
    const wxString doel = naarWx(tijdelijk_);
    Opdracht opdracht;
    kern::knipDirectory(naarWx(boom_), doel, {"a.c", "b.txt", "c.c"}, opdracht);
    EXPECT_EQ("0/3 1/3 2/3 ", opdracht.voortgang);
}

TEST_F(Boomloop, MeldtVoorElkBestandHoeVerHijIs) {
    hulp::maakBoom(boom_, {{"a.c", origineel}, {"b.txt", origineel}, {"sub/c.c", origineel}});
    Opdracht opdracht;
    knipBoom(opdracht);
    EXPECT_EQ("0/3 1/3 2/3 ", opdracht.voortgang);
}

TEST_F(Directorylijst, NoemtSubdirectoriesVoorDeBestandenZelf) {
    hulp::maakBoom(boom_, {{"a.c", ""}, {"sub/b.c", ""}, {"sub/diep/c.c", ""}});
    // Als paden: welke schuine strepen erin staan maakt niet uit.
    std::vector<fs::path> paden;
    for (const wxString& pad : kern::lijstBoom(naarWx(boom_))) {
        paden.emplace_back(pad.utf8_string());
    }
    EXPECT_EQ((std::vector<fs::path>{boom_ / "sub/diep/c.c", boom_ / "sub/b.c", boom_ / "a.c"}), paden);
}

TEST_F(Vlak, KniptElkGekozenBestandEnTeltAlleenDie) {
    hulp::maakBoom(boom_,
                   {{"x.txt", origineel}, {"a.c", origineel}, {"b.vhd", origineel}, {"C.C", origineel}});
    const fs::path doel = map_ / "doel";
    fs::create_directory(doel);
    hulp::schrijfBestand(doel / "a.c", std::string(5000, 'o'));
    Opdracht opdracht;
    kern::knipDirectory(naarWx(boom_), naarWx(doel), {"x.txt", "a.c", "C.C", "b.vhd", "x.txt"}, opdracht);
    EXPECT_EQ((std::vector<std::string>{"over 1 x.txt", "knip 1 a.c", "over 2 C.C", "knip 2 b.vhd",
                                        "over 3 x.txt"}),
              opdracht.gemeld);
    EXPECT_EQ((hulp::Boom{{"a.c", geknipt}, {"b.vhd", geknipt}}), hulp::leesBoom(doel));
    EXPECT_EQ(origineel, hulp::leesBestand(boom_ / "a.c"));
}

TEST_F(Vlak, SchrijftNietsInEenBestemmingDieErNietIs) {
    hulp::maakBoom(boom_, {{"a.c", origineel}});
    Opdracht opdracht;
    kern::knipDirectory(naarWx(boom_), naarWx(map_ / "nieuw"), {"a.c"}, opdracht);
    EXPECT_EQ((std::vector<std::string>{"knip 1 a.c"}), opdracht.gemeld);
    EXPECT_FALSE(fs::exists(map_ / "nieuw"));
}

TEST_F(Vlak, LegtInDezelfdeDirectoryElkBestandLeeg) {
    hulp::maakBoom(boom_, {{"a.c", origineel}});
    Opdracht opdracht;
    kern::knipDirectory(naarWx(boom_), naarWx(boom_), {"a.c"}, opdracht);
    EXPECT_EQ(hulp::zetInBestand("\n"), hulp::leesBestand(boom_ / "a.c"));
}

TEST_F(Boomloop, KniptTerPlaatseEnTeltAlles) {
    hulp::maakBoom(boom_,
                   {{"x.txt", origineel}, {"sub/a.c", origineel}, {"sub/b.vhdl", origineel}, {"leeg", "/"}});
    const auto gemeld = knipBoom();
    ASSERT_EQ(3U, gemeld.size());
    EXPECT_EQ((hulp::Boom{{"x.txt", origineel},
                          {"sub", "/"},
                          {"sub/a.c", geknipt},
                          {"sub/b.vhdl", geknipt},
                          {"leeg", "/"}}),
              hulp::leesBoom(boom_));
    EXPECT_EQ("over 3 x.txt", gemeld.back()) << "de bestanden van de boom zelf komen als laatste";
}

TEST_F(Boomloop, VolgtDeKeuzeVanHetBestandstype) {
    const hulp::Boom vooraf{{"a.c", origineel}, {"b.vhd", origineel}, {"c.txt", origineel}};
    hulp::maakBoom(boom_, vooraf);
    EXPECT_EQ(3U, knipBoom(1).size());
    EXPECT_EQ(vooraf, hulp::leesBoom(boom_));
    knipBoom(2);
    EXPECT_EQ((hulp::Boom{{"a.c", geknipt}, {"b.vhd", geknipt}, {"c.txt", geknipt}}), hulp::leesBoom(boom_));
}

TEST_F(Vlak, ZegtWaaromErNietsKomtInEenBestemmingDieErNietIs) {
    hulp::maakBoom(boom_, {{"a.c", origineel}});
    Opdracht opdracht;
    kern::knipDirectory(naarWx(boom_), naarWx(map_ / "nieuw"), {"a.c"}, opdracht);
    EXPECT_EQ((std::map<std::string, std::string>{{"a.c", "mislukt vlak, 1 blok, doel: bestaat niet"}}),
              opdracht.loop);
}

TEST_F(Boomloop, NoemtNietGekniptWatErPasLaterKwam) {
    Opdracht opdracht;
    opdracht.voorElkeKnip = [this] { hulp::schrijfBestand(boom_ / "later.c", origineel); };
    kern::knipBoom(naarWx(boom_), {naarWx(boom_ / "later.c")}, opdracht);
    EXPECT_EQ((std::map<std::string, std::string>{
                  {"later.c", "mislukt ter plaatse, 1 blok, vervangen: was eerst niet te vinden"}}),
              opdracht.loop);
    EXPECT_EQ(origineel, hulp::leesBestand(boom_ / "later.c"));
}
