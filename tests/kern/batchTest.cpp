#include "Knipselaar/kern/batch.h"

#include <sys/stat.h>
#include <wx/dir.h>

#include "Knipselaar/kern/systeem/paden.h"
#include "tests/kern/batchProef.h"

namespace fs = std::filesystem;

using proef::geknipt;
using proef::naarWx;
using proef::Opdracht;
using proef::origineel;

namespace {

using Lijst = proef::Batch;
using Vlak = proef::Batch;
using Boomloop = proef::Batch;

/// Hoe de toolkit zelf een boom afloopt, op links naar directories na.
class ToolkitLijst : public wxDirTraverser {
  public:
    wxDirTraverseResult OnFile(const wxString& pad) override {
        paden.push_back(pad);
        return wxDIR_CONTINUE;
    }
    wxDirTraverseResult OnDir(const wxString& pad) override {
        return kern::isLink(kern::naarPad(pad)) ? wxDIR_IGNORE : wxDIR_CONTINUE;
    }

    std::vector<wxString> paden;
};

}  // namespace

TEST_F(Lijst, NoemtAlleenZichtbareBestandenVanDeDirectory) {
    hulp::maakBoom(boom_,
                   {{"a.c", ""}, {"b", ""}, {".verborgen.c", ""}, {"sub/c.c", ""}, {"link.c", "-> a.c"}});
    auto namen = kern::lijstDirectory(naarWx(boom_));
    std::sort(namen.begin(), namen.end());
    EXPECT_EQ((std::vector<wxString>{"a.c", "b", "link.c"}), namen);
}

TEST_F(Lijst, HoudtDeVolgordeVanDeDirectory) {
    for (int i = 0; i < 50; ++i) {
        hulp::schrijfBestand(boom_ / (std::to_string(i * 7919 % 100) + ".c"), "");
    }
    std::vector<std::string> namen;
    for (const wxString& naam : kern::lijstDirectory(naarWx(boom_))) {
        namen.push_back(naam.utf8_string());
    }
    EXPECT_EQ(hulp::somOp(boom_), namen);
}

TEST_F(Lijst, IsLeegZonderDirectory) {
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

TEST_F(Lijst, GaatNietDoorLinksNaarDirectories) {
    hulp::maakBoom(map_ / "elders", {{"x.c", ""}});
    hulp::maakBoom(boom_, {{"a/b.c", ""},
                           {"a/terug", "-> ../a"},
                           {"a/nogeens", "-> ../a"},
                           {"elders", "-> ../elders"},
                           {".verborgen/y.c", ""},
                           {"a.c", ""}});
    auto paden = kern::lijstBoom(naarWx(boom_));
    std::sort(paden.begin(), paden.end());
    EXPECT_EQ((std::vector<wxString>{naarWx(boom_ / "a.c"), naarWx(boom_ / "a/b.c")}), paden);
}

TEST_F(Lijst, NoemtSubdirectoriesVoorDeBestandenZelf) {
    hulp::maakBoom(boom_, {{"a.c", ""}, {"sub/b.c", ""}, {"sub/diep/c.c", ""}});
    EXPECT_EQ((std::vector<wxString>{naarWx(boom_ / "sub/diep/c.c"), naarWx(boom_ / "sub/b.c"),
                                     naarWx(boom_ / "a.c")}),
              kern::lijstBoom(naarWx(boom_)));
}

TEST_F(Lijst, NoemtWatDeToolkitNoemt) {
    hulp::maakBoom(map_ / "elders", {{"x.c", ""}});
    hulp::maakBoom(boom_, {{"b/diep/a.c", ""},
                           {"b/\xE9\xE9n.c", ""},
                           {"caf\xE9/nergens.c", ""},
                           {"\u00e9\u00e9n/d.c", ""},
                           {"leeg", "/"},
                           {"elders", "-> ../elders"},
                           {"los.c", "-> nergens"},
                           {"link.c", "-> b/diep/a.c"},
                           {".git/e.c", ""},
                           {".f.c", ""},
                           {"g", ""}});
    ASSERT_EQ(0, mkfifo((boom_ / "pijp.c").c_str(), 0600));
    for (const wxString& boom : {naarWx(boom_), naarWx(boom_) + "/", naarWx(boom_) + "//"}) {
        ToolkitLijst lijst;
        wxDir(boom).Traverse(lijst, wxEmptyString, wxDIR_FILES | wxDIR_DIRS);
        EXPECT_EQ(lijst.paden, kern::lijstBoom(boom)) << boom;
    }
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
    EXPECT_EQ("\n", hulp::leesBestand(boom_ / "a.c"));
}

TEST_F(Vlak, SpaartEenOrigineelWaarDeBestemmingHeenWijst) {
    hulp::maakBoom(boom_, {{"a.c", origineel}, {"b.c", origineel}, {"c.c", origineel}});
    hulp::maakBoom(map_ / "doel", {{"a.c", "-> ../boom/a.c"}});
    fs::create_hard_link(boom_ / "b.c", map_ / "doel/b.c");
    Opdracht opdracht;
    kern::knipDirectory(naarWx(boom_), naarWx(map_ / "doel"), {"a.c", "b.c", "c.c"}, opdracht);
    EXPECT_EQ((std::vector<std::string>{"over 1 a.c", "over 1 b.c", "knip 1 c.c"}), opdracht.gemeld);
    EXPECT_EQ((hulp::Boom{{"a.c", origineel}, {"b.c", origineel}, {"c.c", origineel}}),
              hulp::leesBoom(boom_));
}

TEST_F(Vlak, LaatBijzondereBestandenMetRust) {
    ASSERT_EQ(0, mkfifo((boom_ / "pijp.c").c_str(), 0600));
    hulp::maakBoom(boom_,
                   {{"los.c", "-> nergens"}, {"a.c", origineel}, {"b.c", origineel}, {"c.c", origineel}});
    const fs::path doel = map_ / "doel";
    hulp::maakBoom(doel, {{"a.c", "-> nergens"}});
    ASSERT_EQ(0, mkfifo((doel / "b.c").c_str(), 0600));
    Opdracht opdracht;
    kern::knipDirectory(naarWx(boom_), naarWx(doel), {"pijp.c", "los.c", "a.c", "b.c", "c.c"}, opdracht);
    EXPECT_EQ(
        (hulp::Boom{
            {"pijp.c", ""}, {"los.c", ""}, {"a.c", "-> nergens"}, {"b.c", "bijzonder"}, {"c.c", geknipt}}),
        hulp::leesBoom(doel));
    EXPECT_TRUE(fs::is_fifo(boom_ / "pijp.c"));
    EXPECT_TRUE(fs::is_symlink(boom_ / "los.c"));
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

TEST_F(Boomloop, KniptElkEchtBestandEenmaal) {
    hulp::maakBoom(boom_, {{"a.c", origineel}, {"link.c", "-> a.c"}, {"sub/keten.c", "-> ../link.c"}});
    const auto gemeld = knipBoom();
    EXPECT_EQ(
        1, std::count_if(gemeld.begin(), gemeld.end(), [](const auto& m) { return m.starts_with("knip"); }));
    EXPECT_EQ(
        (hulp::Boom{{"a.c", geknipt}, {"link.c", "-> a.c"}, {"sub", "/"}, {"sub/keten.c", "-> ../link.c"}}),
        hulp::leesBoom(boom_));
}

TEST_F(Boomloop, BlijftBinnenDeBoom) {
    hulp::maakBoom(map_ / "boom-ernaast", {{"b.c", origineel}});
    hulp::schrijfBestand(map_ / "buiten.c", origineel);
    hulp::maakBoom(
        boom_, {{"een.c", "-> ../buiten.c"}, {"twee.c", "-> ../boom-ernaast/b.c"}, {"drie.c", origineel}});
    const auto gemeld = knipBoom();
    EXPECT_EQ(
        1, std::count_if(gemeld.begin(), gemeld.end(), [](const auto& m) { return m.starts_with("knip"); }));
    EXPECT_EQ(origineel, hulp::leesBestand(map_ / "buiten.c"));
    EXPECT_EQ(origineel, hulp::leesBestand(map_ / "boom-ernaast/b.c"));
    EXPECT_EQ(geknipt, hulp::leesBestand(boom_ / "drie.c"));
}

TEST_F(Boomloop, BlijftBinnenDeBoomAlsEenDirectoryErIntussenUitWijst) {
    hulp::maakBoom(map_ / "elders", {{"a.c", origineel}, {"b.c", origineel}});
    hulp::maakBoom(boom_, {{"sub/a.c", origineel}, {"sub/b.c", origineel}});
    Opdracht opdracht;
    opdracht.voorElkBestand = [this](std::size_t gedaan) {
        if (gedaan == 1) {
            fs::rename(boom_ / "sub", map_ / "was");
            fs::create_symlink("../elders", boom_ / "sub");
        }
    };
    kern::knipBoom(naarWx(boom_), {naarWx(boom_ / "sub/a.c"), naarWx(boom_ / "sub/b.c")}, opdracht);
    EXPECT_EQ((std::map<std::string, std::string>{{"a.c", "gelukt ter plaatse, 1 blok"},
                                                  {"b.c", "over: buiten de boom"}}),
              opdracht.loop);
    EXPECT_EQ((hulp::Boom{{"a.c", origineel}, {"b.c", origineel}}), hulp::leesBoom(map_ / "elders"));
}

TEST_F(Boomloop, KentDeBoomOokDoorEenLink) {
    hulp::maakBoom(boom_, {{"a.c", origineel}});
    fs::create_symlink("boom", map_ / "via");
    Opdracht opdracht;
    const wxString via = naarWx(map_ / "via");
    kern::knipBoom(via, kern::lijstBoom(via), opdracht);
    EXPECT_EQ(geknipt, hulp::leesBestand(boom_ / "a.c"));
}

TEST_F(Boomloop, LaatBijzondereBestandenMetRust) {
    ASSERT_EQ(0, mkfifo((boom_ / "pijp.c").c_str(), 0600));
    hulp::maakBoom(boom_, {{"los.c", "-> nergens"}, {"a.c", origineel}});
    knipBoom();
    EXPECT_EQ((hulp::Boom{{"pijp.c", "bijzonder"}, {"los.c", "-> nergens"}, {"a.c", geknipt}}),
              hulp::leesBoom(boom_));
}

TEST_F(Boomloop, MeldtEenLinkDieNergensHeenWijstAlsVerwerkt) {
    const hulp::Boom links{{"een/los.c", "-> nergens"}, {"een/rond.c", "-> rond.c"}, {"een", "/"}};
    hulp::maakBoom(boom_, links);
    const auto gemeld = knipBoom();
    ASSERT_EQ(2U, gemeld.size());
    const bool losEerst = gemeld[0] == "knip 1 los.c";
    EXPECT_EQ(losEerst ? "knip 1 los.c" : "knip 1 rond.c", gemeld[0]);
    EXPECT_EQ(losEerst ? "knip 2 rond.c" : "knip 2 los.c", gemeld[1]);
    EXPECT_EQ(links, hulp::leesBoom(boom_));
}

TEST_F(Vlak, ZegtHoeHetMetElkBestandGing) {
    ASSERT_EQ(0, mkfifo((boom_ / "pijp.c").c_str(), 0600));
    hulp::maakBoom(boom_, {{"a.c", origineel + origineel},
                           {"b.c", "niets te knippen\n"},
                           {"c.c", origineel},
                           {"d.c", origineel},
                           {"e.c", origineel},
                           {"los.c", "-> nergens"},
                           {"x.txt", origineel}});
    const fs::path doel = map_ / "doel";
    hulp::maakBoom(doel, {{"c.c", "/"}, {"d.c", "-> ../boom/d.c"}, {"e.c", "-> nergens"}, {"los.c", "/"}});
    Opdracht opdracht;
    kern::knipDirectory(naarWx(boom_), naarWx(doel),
                        {"a.c", "b.c", "c.c", "d.c", "e.c", "los.c", "pijp.c", "x.txt"}, opdracht);
    EXPECT_EQ(
        (std::map<std::string, std::string>{
            {"a.c", "gelukt vlak, 2 blok"},
            {"b.c", "gelukt vlak, 0 blok"},
            {"c.c", "mislukt vlak, 1 blok, doel: is een directory"},
            {"d.c", "over: de bron zelf"},
            {"e.c", "mislukt vlak, 1 blok, doel: is een link die nergens heen wijst"},
            {"los.c", "mislukt vlak, 0 blok, bron bestaat niet, bron: bestaat niet, doel: is een directory"},
            {"pijp.c", "mislukt vlak, 0 blok, bron bestaat niet, bron: is geen gewoon bestand"},
            {"x.txt", "over: niet gekozen"}}),
        opdracht.loop);
}

TEST_F(Vlak, SlaatEenBestandDatNietGekozenIsOmDieRedenOver) {
    hulp::maakBoom(boom_, {{"x.txt", origineel}});
    hulp::maakBoom(map_ / "doel", {{"x.txt", "-> ../boom/x.txt"}});
    Opdracht opdracht;
    kern::knipDirectory(naarWx(boom_), naarWx(map_ / "doel"), {"x.txt"}, opdracht);
    EXPECT_EQ((std::map<std::string, std::string>{{"x.txt", "over: niet gekozen"}}), opdracht.loop);
}

TEST_F(Vlak, ZegtWaaromErNietsKomtInEenBestemmingDieErNietIs) {
    hulp::maakBoom(boom_, {{"a.c", origineel}});
    Opdracht opdracht;
    kern::knipDirectory(naarWx(boom_), naarWx(map_ / "nieuw"), {"a.c"}, opdracht);
    EXPECT_EQ((std::map<std::string, std::string>{{"a.c", "mislukt vlak, 1 blok, doel: bestaat niet"}}),
              opdracht.loop);
}

TEST_F(Boomloop, ZegtHoeHetMetElkBestandGing) {
    ASSERT_EQ(0, mkfifo((boom_ / "pijp.c").c_str(), 0600));
    hulp::schrijfBestand(map_ / "buiten.c", origineel);
    hulp::maakBoom(boom_, {{"a.c", origineel},
                           {"b.c", "niets te knippen\n"},
                           {"buiten.c", "-> ../buiten.c"},
                           {"los.c", "-> nergens"},
                           {"rond.c", "-> rond.c"},
                           {"x.txt", origineel}});
    Opdracht opdracht;
    knipBoom(opdracht);
    EXPECT_EQ(
        (std::map<std::string, std::string>{
            {"a.c", "gelukt ter plaatse, 1 blok"},
            {"b.c", "gelukt ter plaatse, 0 blok"},
            {"buiten.c", "over: buiten de boom"},
            {"los.c", "mislukt ter plaatse, 0 blok, bron bestaat niet, bron: bestaat niet"},
            {"pijp.c", "mislukt ter plaatse, 0 blok, bron bestaat niet, bron: is geen gewoon bestand"},
            {"rond.c", "mislukt ter plaatse, 0 blok, bron bestaat niet, bron: de links lopen in een kring"},
            {"x.txt", "over: niet gekozen"}}),
        opdracht.loop);
}

TEST_F(Boomloop, ZegtDatEenAndereNaamAlGekniptIs) {
    hulp::maakBoom(boom_, {{"a.c", origineel}, {"link.c", "-> a.c"}});
    Opdracht opdracht;
    const wxString boom = naarWx(boom_);
    kern::knipBoom(boom, {boom + "/link.c", boom + "/a.c"}, opdracht);
    EXPECT_EQ((std::map<std::string, std::string>{{"link.c", "gelukt ter plaatse, 1 blok"},
                                                  {"a.c", "over: al geweest"}}),
              opdracht.loop);
}

TEST_F(Boomloop, NoemtNietGekniptWatEerstNietTeVindenWas) {
    hulp::maakBoom(boom_, {{"los.c", "-> ../later.c"}});
    Opdracht opdracht;
    opdracht.voorElkeKnip = [this] { hulp::schrijfBestand(map_ / "later.c", origineel); };
    knipBoom(opdracht);
    EXPECT_EQ((std::map<std::string, std::string>{
                  {"los.c", "mislukt ter plaatse, 1 blok, vervangen: was eerst niet te vinden"}}),
              opdracht.loop);
    EXPECT_EQ(origineel, hulp::leesBestand(map_ / "later.c"));
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

TEST(Paden, ZijnDezelfdePlaatsHoeZeOokGeschrevenZijn) {
    const hulp::TijdelijkeMap map;
    fs::create_directory(map / "a");
    fs::create_directory(map / "b");
    fs::create_directory_symlink("a", map / "link");
    const std::string a = map / "a";
    for (const std::string& ander : {a, a + "/", a + "/.", a + "//", a + "/../a", (map / "link").string()}) {
        EXPECT_TRUE(kern::isZelfdePlaats(a, ander)) << ander;
    }
    EXPECT_FALSE(kern::isZelfdePlaats(a, map / "b"));
    EXPECT_FALSE(kern::isZelfdePlaats(a, map / "bestaat-niet"));
    EXPECT_TRUE(kern::isZelfdePlaats("/bestaat/niet", "/bestaat/niet"));
    EXPECT_FALSE(kern::isZelfdePlaats("/bestaat/niet", "/bestaat/ook/niet"));
}
