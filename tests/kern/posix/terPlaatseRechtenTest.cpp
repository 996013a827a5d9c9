// Ter plaatse waar rechten, eigenaars, links en volle schijven van POSIX meespelen.

#include "Knipselaar/kern/terPlaatse.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <utility>
#include <vector>

#include "tests/hulp/gewoneGebruiker.h"
#include "tests/hulp/kleineSchijf.h"
#include "tests/kern/batchProef.h"

namespace fs = std::filesystem;

using proef::geknipt;
using proef::naarWx;
using proef::Opdracht;
using proef::origineel;

namespace {

using VeiligRechten = proef::Batch;
using hulp::doeAlsGewoneGebruiker;

constexpr const char* geenToegang = "geen toegang; geef rechten of kies een andere plaats";
constexpr const char* schijfVol = "de schijf is vol; maak ruimte en probeer het opnieuw";

}  // namespace

TEST_F(VeiligRechten, HoudtDeRechten) {
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

TEST_F(VeiligRechten, HoudtDeEigenaar) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "alleen root kan een bestand weggeven";
    }
    for (const auto& [eigenaar, groep] :
         std::vector<std::pair<uid_t, gid_t>>{{1234, 5678}, {1234, 0}, {0, 5678}, {0, 0}}) {
        hulp::schrijfBestand(boom_ / "a.c", origineel);
        ASSERT_EQ(0, chown((boom_ / "a.c").c_str(), eigenaar, groep));
        knipBoom();
        struct stat gegevens {};
        ASSERT_EQ(0, stat((boom_ / "a.c").c_str(), &gegevens));
        EXPECT_EQ(eigenaar, gegevens.st_uid);
        EXPECT_EQ(groep, gegevens.st_gid);
        EXPECT_EQ(geknipt, hulp::leesBestand(boom_ / "a.c"));
    }
}

TEST_F(VeiligRechten, GeeftEenLezerVanHetOudeBestandHetHeleOrigineel) {
    hulp::maakBoom(boom_, {{"a.c", origineel}});
    std::FILE* lezer = std::fopen((boom_ / "a.c").c_str(), "rb");
    knipBoom();
    std::string gelezen(100, '\0');
    gelezen.resize(std::fread(gelezen.data(), 1, gelezen.size(), lezer));
    std::fclose(lezer);
    EXPECT_EQ(origineel, gelezen) << "het bestand is vervangen, niet overschreven";
}

TEST_F(VeiligRechten, LaatHetBestandStaanAlsHetTijdelijkeNietHeelWordt) {
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

TEST_F(VeiligRechten, LaatHetBestandStaanAlsErNaastGeenPlaatsIs) {
    const hulp::KleineSchijf schijf(boom_);
    if (!schijf.isEr()) {
        GTEST_SKIP() << "alleen root kan een bestandssysteem aankoppelen";
    }
    const std::string groot = std::string(200'000, 'x') + "\n" + origineel;
    hulp::maakBoom(boom_, {{"groot.c", groot}, {"klein.c", origineel}});
    knipBoom();
    EXPECT_EQ((hulp::Boom{{"groot.c", groot}, {"klein.c", geknipt}}), hulp::leesBoom(boom_));
}

TEST_F(VeiligRechten, LaatHetBestandStaanAlsDeTijdelijkeSchijfVolIs) {
    const hulp::KleineSchijf schijf(tijdelijk_);
    if (!schijf.isEr()) {
        GTEST_SKIP() << "alleen root kan een bestandssysteem aankoppelen";
    }
    const std::string groot = std::string(400'000, 'x') + "\n" + origineel;
    hulp::maakBoom(boom_, {{"groot.c", groot}, {"klein.c", origineel}});
    knipBoom();
    EXPECT_EQ((hulp::Boom{{"groot.c", groot}, {"klein.c", geknipt}}), hulp::leesBoom(boom_));
}

TEST_F(VeiligRechten, LaatAllesStaanZonderTijdelijkeNaam) {
    const hulp::Boom vooraf{{"a.c", origineel}, {"b.c", origineel}};
    hulp::maakBoom(boom_, vooraf);
    for (const fs::path& pad : {map_.pad(), boom_, boom_ / "a.c", boom_ / "b.c"}) {
        fs::permissions(pad, fs::perms::all);
    }
    chmod(tijdelijk_.c_str(), 0555);
    EXPECT_TRUE(doeAlsGewoneGebruiker([this] { EXPECT_EQ(2U, knipBoom().size()); }));
    EXPECT_EQ(vooraf, hulp::leesBoom(boom_));
}

TEST_F(VeiligRechten, LaatStaanWatNietTeLezenOfTeVervangenIs) {
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

TEST_F(VeiligRechten, KomtOokTerPlaatseVanEenAnderBestandssysteem) {
    const hulp::KleineSchijf schijf(tijdelijk_);
    if (!schijf.isEr()) {
        GTEST_SKIP() << "alleen root kan een bestandssysteem aankoppelen";
    }
    hulp::maakBoom(boom_, {{"a.c", origineel}});
    chmod((boom_ / "a.c").c_str(), 0640);
    knipBoom();
    EXPECT_EQ((hulp::Boom{{"a.c", geknipt}}), hulp::leesBoom(boom_));
    EXPECT_EQ(0640U, static_cast<unsigned>(fs::status(boom_ / "a.c").permissions()));
    EXPECT_TRUE(fs::is_empty(tijdelijk_));
}

TEST_F(VeiligRechten, ZegtWaaromErGeenTijdelijkBestandIs) {
    hulp::maakBoom(boom_, {{"a.c", origineel}});
    for (const fs::path& pad : {map_.pad(), boom_, boom_ / "a.c"}) {
        fs::permissions(pad, fs::perms::all);
    }
    chmod(tijdelijk_.c_str(), 0555);
    EXPECT_TRUE(doeAlsGewoneGebruiker([this] {
        const kern::TerPlaatse terPlaatse;
        EXPECT_FALSE(terPlaatse.geefTijdelijk().IsOk());
        EXPECT_EQ(geenToegang, terPlaatse.geefReden());
        Opdracht opdracht;
        knipBoom(opdracht);
        EXPECT_EQ((std::map<std::string, std::string>{
                      {"a.c", "mislukt ter plaatse, 1 blok, doel: bestaat niet, tijdelijk: " +
                                  std::string(geenToegang)}}),
                  opdracht.loop);
    }));
}

TEST_F(VeiligRechten, VervangtNooitEenAnderBestandDanHetKnipte) {
    hulp::maakBoom(map_ / "elders", {{"sub/a.c", origineel}, {"sub/b.c", origineel + "van elders\n"}});
    hulp::maakBoom(boom_, {{"sub/a.c", origineel}, {"sub/b.c", origineel}});
    fs::create_symlink(boom_, map_ / "via");
    Opdracht opdracht;
    opdracht.voorElkBestand = [this](std::size_t gedaan) {
        if (gedaan == 1) {
            fs::remove(map_ / "via");
            fs::create_symlink(map_ / "elders", map_ / "via");
        }
    };
    const wxString via = naarWx(map_ / "via");
    kern::knipBoom(via, {via + "/sub/a.c", via + "/sub/b.c"}, opdracht);
    EXPECT_EQ((hulp::Boom{{"sub", "/"}, {"sub/a.c", geknipt}, {"sub/b.c", origineel}}),
              hulp::leesBoom(boom_));
    EXPECT_EQ((hulp::Boom{{"sub", "/"}, {"sub/a.c", origineel}, {"sub/b.c", origineel + "van elders\n"}}),
              hulp::leesBoom(map_ / "elders"));
}

TEST_F(VeiligRechten, ZegtDatErNaastHetBestandGeenPlaatsIs) {
    const hulp::KleineSchijf schijf(boom_);
    if (!schijf.isEr()) {
        GTEST_SKIP() << "alleen root kan een bestandssysteem aankoppelen";
    }
    hulp::maakBoom(boom_, {{"groot.c", std::string(200'000, 'x') + "\n" + origineel}});
    Opdracht opdracht;
    knipBoom(opdracht);
    EXPECT_EQ((std::map<std::string, std::string>{
                  {"groot.c", "mislukt ter plaatse, 1 blok, vervangen: " + std::string(schijfVol)}}),
              opdracht.loop);
}

TEST_F(VeiligRechten, ZegtDatDeTijdelijkeSchijfVolIs) {
    const hulp::KleineSchijf schijf(tijdelijk_);
    if (!schijf.isEr()) {
        GTEST_SKIP() << "alleen root kan een bestandssysteem aankoppelen";
    }
    hulp::maakBoom(boom_, {{"groot.c", std::string(400'000, 'x') + "\n" + origineel}});
    Opdracht opdracht;
    knipBoom(opdracht);
    EXPECT_EQ((std::map<std::string, std::string>{
                  {"groot.c", "mislukt ter plaatse, 1 blok, doel: " + std::string(schijfVol)}}),
              opdracht.loop);
}

TEST_F(VeiligRechten, ZegtDatEenGewoneGebruikerErNietBijMag) {
    hulp::maakBoom(boom_, {{"dicht.c", origineel}, {"open.c", origineel}, {"vast/b.c", origineel}});
    for (const fs::path& pad : {map_.pad(), boom_, tijdelijk_}) {
        fs::permissions(pad, fs::perms::all);
    }
    chmod((boom_ / "dicht.c").c_str(), 0000);
    chmod((boom_ / "vast").c_str(), 0555);
    if (geteuid() == 0) {
        ASSERT_EQ(0, chown((boom_ / "dicht.c").c_str(), 1, 1));
    }
    EXPECT_TRUE(doeAlsGewoneGebruiker([this] {
        Opdracht opdracht;
        knipBoom(opdracht);
        EXPECT_EQ(
            (std::map<std::string, std::string>{
                {"dicht.c", "mislukt ter plaatse, 0 blok, bron bestaat, bron: " + std::string(geenToegang)},
                {"open.c", "gelukt ter plaatse, 1 blok"},
                {"b.c", "mislukt ter plaatse, 1 blok, vervangen: " + std::string(geenToegang)}}),
            opdracht.loop);
    }));
    chmod((boom_ / "vast").c_str(), 0755);
}

TEST_F(VeiligRechten, ZegtDatEenDeelVanHetPadGeenDirectoryIs) {
    hulp::maakBoom(boom_, {{"a.c", origineel}});
    kern::TerPlaatse terPlaatse;
    EXPECT_FALSE(terPlaatse.vervang(boom_ / "a.c/b.c"));
    EXPECT_EQ("een deel van het pad is geen directory", terPlaatse.geefReden());
}
