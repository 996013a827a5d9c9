#include "Knipselaar/kern/batch.h"

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <functional>

#include "Knipselaar/kern/keuzes.h"
#include "Knipselaar/kern/paden.h"
#include "Knipselaar/kern/terPlaatse.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/bestandsboom.h"
#include "tests/hulp/beweringen.h"

namespace fs = std::filesystem;

namespace {

const kern::KnipTeksten teksten{"BEGIN", "EIND", "WERK"};
const std::string origineel = "a\nBEGIN\nb\nEIND\nc\n";
const std::string geknipt = "a\nWERK\nc\n\n";

/// Een opdracht die onthoudt wat er gemeld werd.
class Opdracht : public kern::BatchOpdracht {
  public:
    explicit Opdracht(int bestandType = 0) : bestandType_(bestandType) {}

    bool isGekozen(const wxFileName& bestand) override {
        return kern::isBestandGekozen(bestand.GetExt(), bestandType_);
    }
    kern::KnipUitslag knip(const wxFileName& bron, const wxFileName& bestemming) override {
        if (voorElkeKnip) {
            voorElkeKnip();
        }
        return kern::knipBestand(bron, bestemming, teksten);
    }
    void meldOvergeslagen(long nummer, const wxFileName& bestand) override { meld("over", nummer, bestand); }
    void meldVerwerkt(long nummer, const wxFileName& bron, const wxFileName& bestemming) override {
        meld("knip", nummer, bron);
        EXPECT_EQ(bron.GetFullName(), bestemming.GetFullName());
    }

    std::vector<std::string> gemeld;
    std::function<void()> voorElkeKnip;

  private:
    void meld(const std::string& wat, long nummer, const wxFileName& bestand) {
        gemeld.push_back(wat + " " + std::to_string(nummer) + " " + bestand.GetFullName().utf8_string());
    }

    int bestandType_;
};

wxString naarWx(const fs::path& pad) {
    return wxString::FromUTF8(pad.string());
}

class Batch : public testing::Test {
  protected:
    Batch() {
        fs::create_directory(tijdelijk_);
        setenv("TMPDIR", tijdelijk_.c_str(), 1);
        fs::create_directory(boom_);
    }
    ~Batch() override {
        unsetenv("TMPDIR");
        // Ook een bestand dat niet te knippen is beweert; dat hoort zo en verschilt per test.
        hulp::neemBeweringen();
    }

    std::vector<std::string> knipBoom(Opdracht& opdracht) {
        const auto paden = kern::lijstBoom(naarWx(boom_));
        kern::knipBoom(naarWx(boom_), paden, opdracht);
        EXPECT_TRUE(fs::is_empty(tijdelijk_)) << "er bleef een tijdelijk bestand achter";
        std::sort(opdracht.gemeld.begin(), opdracht.gemeld.end());
        return opdracht.gemeld;
    }

    std::vector<std::string> knipBoom(int bestandType = 0) {
        Opdracht opdracht(bestandType);
        return knipBoom(opdracht);
    }

    hulp::TijdelijkeMap map_;
    fs::path boom_ = map_ / "boom";
    fs::path tijdelijk_ = map_ / "tijdelijk";
};

using Lijst = Batch;
using Vlak = Batch;
using Boomloop = Batch;
using Veilig = Batch;

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
    std::vector<std::string> verwacht;
    for (const auto& deel : fs::directory_iterator(boom_)) {
        verwacht.push_back(deel.path().filename());
    }
    std::vector<std::string> namen;
    for (const wxString& naam : kern::lijstDirectory(naarWx(boom_))) {
        namen.push_back(naam.utf8_string());
    }
    EXPECT_EQ(verwacht, namen);
}

TEST_F(Lijst, IsLeegZonderDirectory) {
    EXPECT_TRUE(kern::lijstDirectory(naarWx(map_ / "bestaat-niet")).empty());
    EXPECT_TRUE(kern::lijstBoom(naarWx(map_ / "bestaat-niet")).empty());
    EXPECT_EQ((std::vector<hulp::Bewering>{{"origDir.IsOpened()", ""}, {"recurDir.IsOpened()", ""}}),
              hulp::neemBeweringen());
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

TEST_F(Veilig, HoudtDeRechten) {
    for (const mode_t rechten : {0644U, 0755U, 0600U, 0444U, 0664U, 0640U}) {
        hulp::schrijfBestand(boom_ / "a.c", origineel);
        chmod((boom_ / "a.c").c_str(), rechten);
        knipBoom();
        EXPECT_EQ(geknipt, hulp::leesBestand(boom_ / "a.c")) << std::oct << rechten;
        EXPECT_EQ(rechten, static_cast<mode_t>(fs::status(boom_ / "a.c").permissions()))
            << std::oct << rechten;
        fs::remove(boom_ / "a.c");
    }
}

TEST_F(Veilig, HoudtDeEigenaar) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "alleen root kan een bestand weggeven";
    }
    hulp::schrijfBestand(boom_ / "a.c", origineel);
    ASSERT_EQ(0, chown((boom_ / "a.c").c_str(), 1234, 5678));
    knipBoom();
    struct stat gegevens {};
    ASSERT_EQ(0, stat((boom_ / "a.c").c_str(), &gegevens));
    EXPECT_EQ(1234U, gegevens.st_uid);
    EXPECT_EQ(5678U, gegevens.st_gid);
    EXPECT_EQ(geknipt, hulp::leesBestand(boom_ / "a.c"));
}

TEST_F(Veilig, LaatHetOrigineelHeelZolangHetKnippenDuurt) {
    hulp::maakBoom(boom_, {{"a.c", origineel}});
    Opdracht opdracht;
    opdracht.voorElkeKnip = [this] { EXPECT_EQ(origineel, hulp::leesBestand(boom_ / "a.c")); };
    knipBoom(opdracht);
    EXPECT_EQ((hulp::Boom{{"a.c", geknipt}}), hulp::leesBoom(boom_));
}

TEST_F(Veilig, GeeftEenLezerVanHetOudeBestandHetHeleOrigineel) {
    hulp::maakBoom(boom_, {{"a.c", origineel}});
    std::FILE* lezer = std::fopen((boom_ / "a.c").c_str(), "rb");
    knipBoom();
    std::string gelezen(100, '\0');
    gelezen.resize(std::fread(gelezen.data(), 1, gelezen.size(), lezer));
    std::fclose(lezer);
    EXPECT_EQ(origineel, gelezen) << "het bestand is vervangen, niet overschreven";
}

TEST_F(Veilig, LaatHetBestandStaanAlsHetTijdelijkeNietHeelWordt) {
    const std::string groot = std::string(300'000, 'x') + "\n" + origineel;
    hulp::maakBoom(boom_, {{"groot.c", groot}, {"klein.c", origineel}});
    rlimit oud{};
    ASSERT_EQ(0, getrlimit(RLIMIT_FSIZE, &oud));
    const rlimit krap{.rlim_cur = 100'000, .rlim_max = oud.rlim_max};
    const auto oudSignaal = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(0, setrlimit(RLIMIT_FSIZE, &krap));
    knipBoom();
    ASSERT_EQ(0, setrlimit(RLIMIT_FSIZE, &oud));
    std::signal(SIGXFSZ, oudSignaal);
    EXPECT_EQ((hulp::Boom{{"groot.c", groot}, {"klein.c", geknipt}}), hulp::leesBoom(boom_));
}

/// Een bestandssysteem van 300 kB; alleen root mag er een maken.
class Schijf {
  public:
    explicit Schijf(const fs::path& plaats) : plaats_(plaats) {
        fs::create_directories(plaats);
        gelukt_ = mount("knipseltest", plaats.c_str(), "tmpfs", 0, "size=300k") == 0;
    }
    Schijf(const Schijf&) = delete;
    Schijf& operator=(const Schijf&) = delete;
    ~Schijf() {
        if (gelukt_) {
            umount2(plaats_.c_str(), MNT_DETACH);
        }
    }
    bool isEr() const { return gelukt_; }

  private:
    fs::path plaats_;
    bool gelukt_;
};

TEST_F(Veilig, LaatHetBestandStaanAlsErNaastGeenPlaatsIs) {
    const Schijf schijf(boom_);
    if (!schijf.isEr()) {
        GTEST_SKIP() << "alleen root kan een bestandssysteem aankoppelen";
    }
    const std::string groot = std::string(200'000, 'x') + "\n" + origineel;
    hulp::maakBoom(boom_, {{"groot.c", groot}, {"klein.c", origineel}});
    knipBoom();
    EXPECT_EQ((hulp::Boom{{"groot.c", groot}, {"klein.c", geknipt}}), hulp::leesBoom(boom_));
}

TEST_F(Veilig, LaatHetBestandStaanAlsDeTijdelijkeSchijfVolIs) {
    const Schijf schijf(tijdelijk_);
    if (!schijf.isEr()) {
        GTEST_SKIP() << "alleen root kan een bestandssysteem aankoppelen";
    }
    const std::string groot = std::string(400'000, 'x') + "\n" + origineel;
    hulp::maakBoom(boom_, {{"groot.c", groot}, {"klein.c", origineel}});
    knipBoom();
    EXPECT_EQ((hulp::Boom{{"groot.c", groot}, {"klein.c", geknipt}}), hulp::leesBoom(boom_));
}

/// Voert iets uit in een kindproces zonder rechten. True als het daar zonder fout verliep.
bool doeAlsGewoneGebruiker(const std::function<void()>& handeling) {
    const pid_t kind = fork();
    if (kind == 0) {
        constexpr uid_t niemand = 65534;
        if (geteuid() == 0 &&
            (setresgid(niemand, niemand, niemand) != 0 || setresuid(niemand, niemand, niemand) != 0)) {
            _exit(2);
        }
        handeling();
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    waitpid(kind, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST_F(Veilig, LaatAllesStaanZonderTijdelijkeNaam) {
    const hulp::Boom vooraf{{"a.c", origineel}, {"b.c", origineel}};
    hulp::maakBoom(boom_, vooraf);
    for (const fs::path& pad : {map_.pad(), boom_, boom_ / "a.c", boom_ / "b.c"}) {
        fs::permissions(pad, fs::perms::all);
    }
    chmod(tijdelijk_.c_str(), 0555);
    EXPECT_TRUE(doeAlsGewoneGebruiker([this] { EXPECT_EQ(2U, knipBoom().size()); }));
    EXPECT_EQ(vooraf, hulp::leesBoom(boom_));
}

TEST_F(Veilig, LaatStaanWatNietTeLezenOfTeVervangenIs) {
    hulp::maakBoom(boom_, {{"dicht.c", origineel}, {"open.c", origineel}, {"vast/b.c", origineel}});
    for (const fs::path& pad : {map_.pad(), boom_, tijdelijk_}) {
        fs::permissions(pad, fs::perms::all);
    }
    chmod((boom_ / "open.c").c_str(), 0666);
    chmod((boom_ / "dicht.c").c_str(), 0000);
    chmod((boom_ / "vast").c_str(), 0555);
    if (geteuid() == 0) {
        ASSERT_EQ(0, chown((boom_ / "dicht.c").c_str(), 1, 1));
    }
    EXPECT_TRUE(doeAlsGewoneGebruiker([this] { EXPECT_EQ(3U, knipBoom().size()); }));
    chmod((boom_ / "dicht.c").c_str(), 0600);
    chmod((boom_ / "vast").c_str(), 0755);
    EXPECT_EQ(
        (hulp::Boom{{"dicht.c", origineel}, {"open.c", geknipt}, {"vast", "/"}, {"vast/b.c", origineel}}),
        hulp::leesBoom(boom_));
}

TEST_F(Veilig, NeemtAlleenEenGewoonBestandAlsPlaats) {
    hulp::maakBoom(boom_, {{"map.c", "/"}});
    const kern::TerPlaatse terPlaatse;
    hulp::schrijfBestand(terPlaatse.geefTijdelijk().GetFullPath().utf8_string(), geknipt);
    EXPECT_FALSE(terPlaatse.vervang(wxFileName(naarWx(boom_ / "map.c"))));
    EXPECT_FALSE(terPlaatse.vervang(wxFileName(naarWx(boom_ / "bestaat-niet.c"))));
    EXPECT_EQ((hulp::Boom{{"map.c", "/"}}), hulp::leesBoom(boom_));
}

TEST_F(Veilig, MaaktHetTijdelijkeBestandInDeTijdelijkeDirectory) {
    const kern::TerPlaatse terPlaatse;
    const fs::path pad = terPlaatse.geefTijdelijk().GetFullPath().utf8_string();
    EXPECT_EQ(tijdelijk_, pad.parent_path());
    EXPECT_TRUE(pad.filename().string().starts_with("Knipselaar"));
    EXPECT_TRUE(fs::exists(pad));
}

TEST(Paden, ZijnDezelfdePlaatsHoeZeOokGeschrevenZijn) {
    const hulp::TijdelijkeMap map;
    fs::create_directory(map / "a");
    fs::create_directory(map / "b");
    fs::create_directory_symlink("a", map / "link");
    const wxString a = naarWx(map / "a");
    for (const wxString& ander : {a, a + "/", a + "/.", a + "//", a + "/../a", naarWx(map / "link")}) {
        EXPECT_TRUE(kern::isZelfdePlaats(a, ander)) << ander;
    }
    EXPECT_FALSE(kern::isZelfdePlaats(a, naarWx(map / "b")));
    EXPECT_FALSE(kern::isZelfdePlaats(a, naarWx(map / "bestaat-niet")));
    EXPECT_TRUE(kern::isZelfdePlaats("/bestaat/niet", "/bestaat/niet"));
    EXPECT_FALSE(kern::isZelfdePlaats("/bestaat/niet", "/bestaat/ook/niet"));
}
