// De batches met links en pijpen, zoals die op POSIX te maken zijn.

#include <sys/stat.h>
#include <wx/dir.h>

#include "Knipselaar/kern/batch.h"
#include "Knipselaar/kern/systeem/paden.h"
#include "tests/kern/batchProef.h"

namespace fs = std::filesystem;

using proef::geknipt;
using proef::naarWx;
using proef::Opdracht;
using proef::origineel;

namespace {

using LinkLijst = proef::Batch;
using VlakMetLinks = proef::Batch;
using BoomMetLinks = proef::Batch;

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

TEST_F(LinkLijst, NoemtAlleenZichtbareBestandenVanDeDirectory) {
    hulp::maakBoom(boom_,
                   {{"a.c", ""}, {"b", ""}, {".verborgen.c", ""}, {"sub/c.c", ""}, {"link.c", "-> a.c"}});
    auto namen = kern::lijstDirectory(naarWx(boom_));
    std::sort(namen.begin(), namen.end());
    EXPECT_EQ((std::vector<wxString>{"a.c", "b", "link.c"}), namen);
}

TEST_F(LinkLijst, GaatNietDoorLinksNaarDirectories) {
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

TEST_F(LinkLijst, NoemtWatDeToolkitNoemt) {
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

TEST_F(VlakMetLinks, SpaartEenOrigineelWaarDeBestemmingHeenWijst) {
    hulp::maakBoom(boom_, {{"a.c", origineel}, {"b.c", origineel}, {"c.c", origineel}});
    hulp::maakBoom(map_ / "doel", {{"a.c", "-> ../boom/a.c"}});
    fs::create_hard_link(boom_ / "b.c", map_ / "doel/b.c");
    Opdracht opdracht;
    kern::knipDirectory(naarWx(boom_), naarWx(map_ / "doel"), {"a.c", "b.c", "c.c"}, opdracht);
    EXPECT_EQ((std::vector<std::string>{"over 1 a.c", "over 1 b.c", "knip 1 c.c"}), opdracht.gemeld);
    EXPECT_EQ((hulp::Boom{{"a.c", origineel}, {"b.c", origineel}, {"c.c", origineel}}),
              hulp::leesBoom(boom_));
}

TEST_F(VlakMetLinks, LaatBijzondereBestandenMetRust) {
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

TEST_F(BoomMetLinks, KniptElkEchtBestandEenmaal) {
    hulp::maakBoom(boom_, {{"a.c", origineel}, {"link.c", "-> a.c"}, {"sub/keten.c", "-> ../link.c"}});
    const auto gemeld = knipBoom();
    EXPECT_EQ(
        1, std::count_if(gemeld.begin(), gemeld.end(), [](const auto& m) { return m.starts_with("knip"); }));
    EXPECT_EQ(
        (hulp::Boom{{"a.c", geknipt}, {"link.c", "-> a.c"}, {"sub", "/"}, {"sub/keten.c", "-> ../link.c"}}),
        hulp::leesBoom(boom_));
}

TEST_F(BoomMetLinks, BlijftBinnenDeBoom) {
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

TEST_F(BoomMetLinks, BlijftBinnenDeBoomAlsEenDirectoryErIntussenUitWijst) {
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

TEST_F(BoomMetLinks, KentDeBoomOokDoorEenLink) {
    hulp::maakBoom(boom_, {{"a.c", origineel}});
    fs::create_symlink("boom", map_ / "via");
    Opdracht opdracht;
    const wxString via = naarWx(map_ / "via");
    kern::knipBoom(via, kern::lijstBoom(via), opdracht);
    EXPECT_EQ(geknipt, hulp::leesBestand(boom_ / "a.c"));
}

TEST_F(BoomMetLinks, LaatBijzondereBestandenMetRust) {
    ASSERT_EQ(0, mkfifo((boom_ / "pijp.c").c_str(), 0600));
    hulp::maakBoom(boom_, {{"los.c", "-> nergens"}, {"a.c", origineel}});
    knipBoom();
    EXPECT_EQ((hulp::Boom{{"pijp.c", "bijzonder"}, {"los.c", "-> nergens"}, {"a.c", geknipt}}),
              hulp::leesBoom(boom_));
}

TEST_F(BoomMetLinks, MeldtEenLinkDieNergensHeenWijstAlsVerwerkt) {
    const hulp::Boom links{{"een/los.c", "-> nergens"}, {"een/rond.c", "-> rond.c"}, {"een", "/"}};
    hulp::maakBoom(boom_, links);
    const auto gemeld = knipBoom();
    ASSERT_EQ(2U, gemeld.size());
    const bool losEerst = gemeld[0] == "knip 1 los.c";
    EXPECT_EQ(losEerst ? "knip 1 los.c" : "knip 1 rond.c", gemeld[0]);
    EXPECT_EQ(losEerst ? "knip 2 rond.c" : "knip 2 los.c", gemeld[1]);
    EXPECT_EQ(links, hulp::leesBoom(boom_));
}

TEST_F(VlakMetLinks, ZegtHoeHetMetElkBestandGing) {
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

TEST_F(VlakMetLinks, SlaatEenBestandDatNietGekozenIsOmDieRedenOver) {
    hulp::maakBoom(boom_, {{"x.txt", origineel}});
    hulp::maakBoom(map_ / "doel", {{"x.txt", "-> ../boom/x.txt"}});
    Opdracht opdracht;
    kern::knipDirectory(naarWx(boom_), naarWx(map_ / "doel"), {"x.txt"}, opdracht);
    EXPECT_EQ((std::map<std::string, std::string>{{"x.txt", "over: niet gekozen"}}), opdracht.loop);
}

TEST_F(BoomMetLinks, ZegtHoeHetMetElkBestandGing) {
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

TEST_F(BoomMetLinks, ZegtDatEenAndereNaamAlGekniptIs) {
    hulp::maakBoom(boom_, {{"a.c", origineel}, {"link.c", "-> a.c"}});
    Opdracht opdracht;
    const wxString boom = naarWx(boom_);
    kern::knipBoom(boom, {boom + "/link.c", boom + "/a.c"}, opdracht);
    EXPECT_EQ((std::map<std::string, std::string>{{"link.c", "gelukt ter plaatse, 1 blok"},
                                                  {"a.c", "over: al geweest"}}),
              opdracht.loop);
}

TEST_F(BoomMetLinks, NoemtNietGekniptWatEerstNietTeVindenWas) {
    hulp::maakBoom(boom_, {{"los.c", "-> ../later.c"}});
    Opdracht opdracht;
    opdracht.voorElkeKnip = [this] { hulp::schrijfBestand(map_ / "later.c", origineel); };
    knipBoom(opdracht);
    EXPECT_EQ((std::map<std::string, std::string>{
                  {"los.c", "mislukt ter plaatse, 1 blok, vervangen: was eerst niet te vinden"}}),
              opdracht.loop);
    EXPECT_EQ(origineel, hulp::leesBestand(map_ / "later.c"));
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
