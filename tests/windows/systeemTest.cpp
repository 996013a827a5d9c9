// Wat Windows anders doet dan POSIX: apparaten, delen, kenmerken, lange paden, hoofdletters.

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>

#include "Knipselaar/kern/systeem/aantekening.h"
#include "Knipselaar/kern/systeem/buurbestand.h"
#include "Knipselaar/kern/systeem/directory.h"
#include "Knipselaar/kern/systeem/masker.h"
#include "Knipselaar/kern/systeem/paden.h"
#include "Knipselaar/kern/systeem/reden.h"
#include "Knipselaar/kern/systeem/vervanging.h"
#include "Knipselaar/kern/systeem/windows/breed.h"
#include "Knipselaar/kern/systeem/windows/handvat.h"
#include "tests/hulp/bestanden.h"

namespace fs = std::filesystem;

using kern::Bestandssoort;

namespace {

class Systeem : public testing::Test {
  protected:
    std::string geefPad(const char* naam) const { return (map_ / naam).string(); }

    /// Zet een bestand ter plaatse op de plaats van een ander en geeft de reden als dat niet lukt.
    std::string verhuis() const {
        kern::Kenmerken oud;
        EXPECT_FALSE(kern::leesKenmerken(oud_, oud));
        const auto fout = kern::verhuis(nieuw_, oud_, oud);
        return fout ? kern::noemReden(fout) : std::string();
    }

    void schrijfBeide() const {
        hulp::schrijfBestand(oud_, "oud");
        hulp::schrijfBestand(nieuw_, "nieuw");
    }

    const hulp::TijdelijkeMap map_;
    const std::string oud_ = geefPad("oud.c");
    const std::string nieuw_ = geefPad("nieuw.c");
};

std::vector<std::string> noemDelen(const std::string& pad) {
    std::vector<kern::Deel> delen;
    EXPECT_FALSE(kern::leesDirectory(pad, delen));
    std::vector<std::string> namen;
    for (const kern::Deel& deel : delen) {
        namen.push_back(deel.naam + (deel.verborgen ? " verborgen" : ""));
    }
    std::sort(namen.begin(), namen.end());
    return namen;
}

}  // namespace

TEST_F(Systeem, OpentGeenApparaat) {
    for (const char* naam : {"NUL", "CON", "COM1", "lessen\\nul", "\\\\.\\pipe\\knipseltest"}) {
        for (const kern::Opening& opening : {kern::openBron(naam), kern::openDoel(naam)}) {
            EXPECT_FALSE(opening.bestand.isOpen()) << naam;
            EXPECT_FALSE(opening.fout) << naam;
            EXPECT_EQ(Bestandssoort::anders, opening.kenmerken.soort) << naam;
        }
    }
    EXPECT_FALSE(kern::isZelfdePlaats("NUL", "CON"));
}

TEST_F(Systeem, HoudtVanEenDirectoryNietsOpen) {
    const kern::Opening opening = kern::openBron(map_.pad().string());
    EXPECT_FALSE(opening.bestand.isOpen());
    EXPECT_EQ(Bestandssoort::directory, opening.kenmerken.soort);
}

TEST_F(Systeem, LeestEnSchrijftVoorbij260Tekens) {
    std::string diep = map_.pad().string();
    for (int i = 0; i < 10; ++i) {
        diep += "\\" + std::string(60, 'd');
        ASSERT_NE(0, CreateDirectoryW(kern::windows::maakVoluit(diep).c_str(), nullptr));
    }
    const std::string pad = kern::plak(diep, "opgave.c");
    kern::Opening doel = kern::openDoel(pad);
    ASSERT_TRUE(doel.bestand.isOpen());
    EXPECT_FALSE(kern::schrijf(doel.bestand.geefKanaal(), "inhoud"));
    EXPECT_FALSE(doel.bestand.sluit());
    EXPECT_EQ(std::vector<std::string>{"opgave.c"}, noemDelen(diep));
    kern::Buurbestand buur(pad);
    ASSERT_TRUE(buur.isOpen());
    EXPECT_FALSE(kern::schrijf(buur.geefKanaal(), "nieuwer"));
    EXPECT_FALSE(buur.ruil(fs::perms::all));
    kern::Kenmerken kenmerken;
    EXPECT_FALSE(kern::leesKenmerken(pad, kenmerken));
    EXPECT_EQ(7U, kenmerken.lengte);
    EXPECT_NE("", kern::geefEchtPad(pad));
    // remove_all komt niet zo diep.
    DeleteFileW(kern::windows::maakVoluit(pad).c_str());
    for (int i = 0; i < 10; ++i) {
        RemoveDirectoryW(kern::windows::maakVoluit(diep).c_str());
        diep.resize(diep.size() - 61);
    }
}

TEST_F(Systeem, NeemtNamenBuitenDeTekensetVanWindows) {
    const std::string naam = "\xCE\xA9\xE2\x82\xAC\xF0\x9F\x98\x80.c";
    const kern::Opening doel = kern::openDoel(kern::plak(map_.pad().string(), naam));
    EXPECT_TRUE(doel.bestand.isOpen());
    EXPECT_EQ(std::vector<std::string>{naam}, noemDelen(map_.pad().string()));
    EXPECT_EQ(naam, kern::naarPad(kern::naarTekst(naam)));
}

TEST_F(Systeem, VervangtEnHoudtKenmerkenEnToegangslijst) {
    schrijfBeide();
    const std::wstring breed = kern::windows::maakVoluit(oud_);
    ASSERT_NE(0, SetFileAttributesW(breed.c_str(), FILE_ATTRIBUTE_HIDDEN));
    EXPECT_EQ("", verhuis());
    EXPECT_EQ("nieuw", hulp::leesBestand(oud_));
    EXPECT_FALSE(fs::exists(nieuw_));
    EXPECT_EQ(static_cast<DWORD>(FILE_ATTRIBUTE_HIDDEN),
              GetFileAttributesW(breed.c_str()) & ~static_cast<DWORD>(FILE_ATTRIBUTE_ARCHIVE));
}

TEST_F(Systeem, LaatWatAlleenTeLezenIsStaan) {
    schrijfBeide();
    ASSERT_NE(0, SetFileAttributesW(kern::windows::maakVoluit(oud_).c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ("het bestand is alleen-lezen; haal dat kenmerk eraf", verhuis());
    kern::Buurbestand buur(oud_);
    EXPECT_EQ("het bestand is alleen-lezen; haal dat kenmerk eraf", kern::noemReden(buur.vervang({})));
    EXPECT_EQ("oud", hulp::leesBestand(oud_));
    SetFileAttributesW(kern::windows::maakVoluit(oud_).c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Systeem, LaatWatEenAnderOpenHeeftStaan) {
    schrijfBeide();
    const kern::windows::Handvat ander(CreateFileW(kern::windows::maakVoluit(oud_).c_str(), GENERIC_READ,
                                                   FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(ander.isOpen());
    EXPECT_EQ("een ander programma heeft het open; sluit het daar", verhuis());
    EXPECT_EQ("oud", hulp::leesBestand(oud_));
    EXPECT_EQ("nieuw", hulp::leesBestand(nieuw_));
}

TEST_F(Systeem, VernieuwtUitvoerDieAlleenTeLezenIs) {
    for (const char* inhoud : {"eerst", "daarna"}) {
        kern::Buurbestand buur(oud_);
        EXPECT_FALSE(kern::schrijf(buur.geefKanaal(), inhoud));
        EXPECT_FALSE(buur.ruil(fs::perms::owner_read));
        EXPECT_EQ(inhoud, hulp::leesBestand(oud_));
        EXPECT_EQ(static_cast<DWORD>(FILE_ATTRIBUTE_READONLY),
                  GetFileAttributesW(kern::windows::maakVoluit(oud_).c_str()) & FILE_ATTRIBUTE_READONLY);
    }
    EXPECT_EQ(std::vector<std::string>{"oud.c"}, noemDelen(map_.pad().string()));
    SetFileAttributesW(kern::windows::maakVoluit(oud_).c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Systeem, KentEenPlaatsOokMetAndereHoofdletters) {
    schrijfBeide();
    const std::string anders = geefPad("OUD.C");
    EXPECT_TRUE(kern::isZelfdePlaats(oud_, anders));
    EXPECT_FALSE(kern::isZelfdePlaats(oud_, nieuw_));
    EXPECT_EQ(kern::geefEchtPad(oud_), kern::geefEchtPad(anders));
    EXPECT_TRUE(kern::ligtIn("C:\\Les\\a.c", "c:/les"));
    EXPECT_TRUE(kern::ligtIn("c:\\les", "C:\\les"));
    EXPECT_TRUE(kern::ligtIn("C:\\a.c", "C:\\"));
    EXPECT_FALSE(kern::ligtIn("C:\\lessen\\a.c", "C:\\les"));
}

TEST_F(Systeem, NoemtVerborgenWatWindowsZoNoemtEnWatMetEenPuntBegint) {
    hulp::schrijfBestand(map_ / "a.c", "");
    hulp::schrijfBestand(map_ / ".b.c", "");
    hulp::schrijfBestand(map_ / "c.c", "");
    ASSERT_NE(0,
              SetFileAttributesW(kern::windows::maakVoluit(geefPad("c.c")).c_str(), FILE_ATTRIBUTE_HIDDEN));
    EXPECT_EQ((std::vector<std::string>{".b.c verborgen", "a.c", "c.c verborgen"}),
              noemDelen(map_.pad().string()));
}

TEST_F(Systeem, KiestOpEenMaskerZoalsEenShell) {
    struct Geval {
        const char* masker;
        const char* naam;
        bool past;
    };
    for (const Geval& geval :
         {Geval{"*.c", "a.c", true}, Geval{"*.c", "a.cpp", false}, Geval{"*.C", "a.c", true},
          Geval{"?.c", "ab.c", false}, Geval{"[a-c]*.c", "bal.c", true}, Geval{"[!a-c]*.c", "bal.c", false},
          Geval{"[.c", "[.c", true}, Geval{"a*b*c", "axxbyyc", true}, Geval{"", "", true}}) {
        EXPECT_EQ(geval.past, kern::pastOp(geval.masker, geval.naam, false))
            << geval.masker << " " << geval.naam;
    }
    EXPECT_TRUE(kern::pastOp("sub/*.c", "sub\\a.c", true));
    EXPECT_FALSE(kern::pastOp("*.c", "sub/a.c", true));
    EXPECT_TRUE(kern::pastOp("*.c", "sub/a.c", false));
}
