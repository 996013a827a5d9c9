// De diensten van het systeem waar de andere tests alleen langs omwegen bij komen.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include "Knipselaar/kern/systeem/aantekening.h"
#include "Knipselaar/kern/systeem/bestand.h"
#include "Knipselaar/kern/systeem/directory.h"
#include "Knipselaar/kern/systeem/masker.h"
#include "Knipselaar/kern/systeem/paden.h"
#include "Knipselaar/kern/systeem/vervanging.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/bestandsboom.h"

namespace fs = std::filesystem;

using kern::Bestandssoort;

namespace {

class Systeem : public testing::Test {
  protected:
    Systeem() {
        hulp::maakBoom(map_.pad(), {{"a.c", "inhoud"},
                                    {"link", "-> a.c"},
                                    {"los", "-> nergens"},
                                    {"naarSub", "-> sub"},
                                    {".verborgen", ""},
                                    {"sub/b.c", ""}});
        EXPECT_EQ(0, mkfifo((map_ / "pijp").c_str(), 0600));
    }

    std::string geef(const std::string& naam) const { return map_ / naam; }

    hulp::TijdelijkeMap map_;
};

}  // namespace

TEST(Kenmerken, ZienElkeVeranderingVanEenBestand) {
    using kern::Kenmerken;
    const Kenmerken voor{.schijf = 1, .nummer = 2, .lengte = 3, .seconden = 4, .nanoseconden = 5};
    EXPECT_TRUE(voor.isOngewijzigd(voor));
    Kenmerken na = voor;
    na.rechten = fs::perms::all;
    EXPECT_TRUE(na.isOngewijzigd(voor)) << "de inhoud is dezelfde";
    na = voor;
    na.nummer = 9;
    EXPECT_FALSE(na.isOngewijzigd(voor));
    na = voor;
    na.lengte = 9;
    EXPECT_FALSE(na.isOngewijzigd(voor));
    na = voor;
    na.seconden = 9;
    EXPECT_FALSE(na.isOngewijzigd(voor));
    na = voor;
    na.nanoseconden = 9;
    EXPECT_FALSE(na.isOngewijzigd(voor));
}

TEST_F(Systeem, KentDeKenmerkenVanWatErStaat) {
    kern::Kenmerken bestand;
    EXPECT_FALSE(kern::leesKenmerken(geef("a.c"), bestand));
    EXPECT_EQ(Bestandssoort::bestand, bestand.soort);
    EXPECT_EQ(6U, bestand.lengte);
    EXPECT_EQ(fs::status(geef("a.c")).permissions(), bestand.rechten);
    kern::Kenmerken link;
    EXPECT_FALSE(kern::leesKenmerken(geef("link"), link));
    EXPECT_EQ(Bestandssoort::bestand, link.soort);
    EXPECT_TRUE(link.isZelfdePlaats(bestand));
    EXPECT_FALSE(kern::leesEigenKenmerken(geef("link"), link));
    EXPECT_EQ(Bestandssoort::link, link.soort);
    EXPECT_FALSE(link.isZelfdePlaats(bestand));
    EXPECT_EQ(std::errc::no_such_file_or_directory, kern::leesKenmerken(geef("los"), link));
    EXPECT_FALSE(kern::leesEigenKenmerken(geef("los"), link));
}

TEST_F(Systeem, OpentAlleenGewoneBestandenOmTeLezen) {
    for (const auto& [naam, soort, fout] :
         {std::tuple{"a.c", Bestandssoort::bestand, std::errc()},
          std::tuple{"link", Bestandssoort::bestand, std::errc()},
          std::tuple{"sub", Bestandssoort::directory, std::errc()},
          std::tuple{"pijp", Bestandssoort::anders, std::errc()},
          std::tuple{"los", Bestandssoort::onbekend, std::errc::no_such_file_or_directory}}) {
        const kern::Opening opening = kern::openBron(geef(naam));
        EXPECT_EQ(soort == Bestandssoort::bestand, opening.bestand.isOpen()) << naam;
        EXPECT_EQ(opening.bestand.isOpen(), !opening.keur()) << naam;
        EXPECT_EQ(soort, opening.kenmerken.soort) << naam;
        EXPECT_EQ(fout, opening.fout) << naam;
    }
}

TEST_F(Systeem, ZegtVanElkeOpeningOfZijLukte) {
    EXPECT_FALSE(kern::openBron(geef("a.c")).keur());
    EXPECT_EQ(std::errc::no_such_file_or_directory, kern::openBron(geef("los")).keur());
    EXPECT_EQ(std::errc::invalid_argument, kern::openBron(geef("pijp")).keur()) << "kon wel open";
}

TEST_F(Systeem, GeeftEenKanaalDoor) {
    kern::Bestand eerst = kern::openBron(geef("a.c")).bestand;
    const int kanaal = eerst.geefKanaal();
    kern::Bestand daarna(std::move(eerst));
    EXPECT_EQ(kanaal, daarna.geefKanaal());
    std::array<char, 6> inhoud{};
    EXPECT_EQ(6U, kern::lees(daarna.geefKanaal(), inhoud).aantal);
    EXPECT_FALSE(daarna.sluit());
    EXPECT_FALSE(daarna.isOpen());
}

TEST_F(Systeem, OpentAlleenGewoneBestandenOmTeSchrijven) {
    for (const auto& [naam, soort] :
         {std::pair{"link", Bestandssoort::bestand}, std::pair{"nieuw", Bestandssoort::bestand},
          std::pair{"sub", Bestandssoort::directory}, std::pair{"pijp", Bestandssoort::anders},
          std::pair{"los", Bestandssoort::link}}) {
        const kern::Opening opening = kern::openDoel(geef(naam));
        EXPECT_EQ(soort == Bestandssoort::bestand, opening.bestand.isOpen()) << naam;
        EXPECT_EQ(soort == Bestandssoort::bestand, !opening.fout) << naam;
        EXPECT_EQ(opening.bestand.isOpen(), !opening.keur()) << naam;
        EXPECT_EQ(soort, opening.kenmerken.soort) << naam;
    }
    EXPECT_EQ((hulp::Boom{{"a.c", ""},
                          {"nieuw", ""},
                          {"link", "-> a.c"},
                          {"los", "-> nergens"},
                          {"naarSub", "-> sub"},
                          {".verborgen", ""},
                          {"pijp", "bijzonder"},
                          {"sub", "/"},
                          {"sub/b.c", ""}}),
              hulp::leesBoom(map_.pad()));
}

TEST_F(Systeem, SchrijftEnLeest) {
    {
        const kern::Opening doel = kern::openDoel(geef("nieuw"));
        EXPECT_FALSE(kern::schrijf(doel.bestand.geefKanaal(), "een"));
        EXPECT_FALSE(kern::schrijf(doel.bestand.geefKanaal(), ""));
        EXPECT_FALSE(kern::schrijf(doel.bestand.geefKanaal(), " en twee"));
        std::array<char, 4> plaats{};
        EXPECT_EQ(std::errc::bad_file_descriptor, kern::lees(doel.bestand.geefKanaal(), plaats).fout);
    }
    EXPECT_EQ("een en twee", hulp::leesBestand(geef("nieuw")));
    kern::Opening opening = kern::openBron(geef("nieuw"));
    kern::Bestand bron = std::move(opening.bestand);
    EXPECT_EQ(std::errc::bad_file_descriptor, kern::schrijf(bron.geefKanaal(), "x"));
    std::string gelezen;
    std::array<char, 4> plaats{};
    for (kern::Gelezen stuk = kern::lees(bron.geefKanaal(), plaats); stuk.aantal > 0;
         stuk = kern::lees(bron.geefKanaal(), plaats)) {
        EXPECT_FALSE(stuk.fout);
        gelezen.append(plaats.data(), stuk.aantal);
    }
    EXPECT_EQ("een en twee", gelezen);
    EXPECT_FALSE(bron.sluit());
    EXPECT_FALSE(bron.isOpen());
}

TEST_F(Systeem, NoemtWatErInEenDirectoryStaat) {
    std::vector<kern::Deel> delen;
    EXPECT_FALSE(kern::leesDirectory(map_.pad(), delen));
    std::map<std::string, std::pair<Bestandssoort, bool>> gevonden;
    for (const kern::Deel& deel : delen) {
        gevonden[deel.naam] = {deel.soort, deel.verborgen};
    }
    EXPECT_EQ(
        (std::map<std::string, std::pair<Bestandssoort, bool>>{{".verborgen", {Bestandssoort::bestand, true}},
                                                               {"a.c", {Bestandssoort::bestand, false}},
                                                               {"link", {Bestandssoort::link, false}},
                                                               {"los", {Bestandssoort::link, false}},
                                                               {"naarSub", {Bestandssoort::link, false}},
                                                               {"pijp", {Bestandssoort::anders, false}},
                                                               {"sub", {Bestandssoort::directory, false}}}),
        gevonden);
    EXPECT_EQ(delen.size(), gevonden.size());
    EXPECT_EQ(std::errc::not_a_directory, kern::leesDirectory(geef("a.c"), delen));
    EXPECT_EQ(delen.size(), gevonden.size());
}

TEST_F(Systeem, VerhuistMetDeRechtenVanWatErStond) {
    hulp::schrijfBestand(map_ / "nieuw", "nieuw");
    fs::permissions(geef("a.c"), static_cast<fs::perms>(0640));
    kern::Kenmerken oud;
    ASSERT_FALSE(kern::leesKenmerken(geef("a.c"), oud));
    EXPECT_FALSE(kern::verhuis(geef("nieuw"), geef("a.c"), oud));
    EXPECT_EQ("nieuw", hulp::leesBestand(geef("a.c")));
    EXPECT_EQ(static_cast<fs::perms>(0640), fs::status(geef("a.c")).permissions());
    EXPECT_FALSE(fs::exists(geef("nieuw")));
    EXPECT_EQ(std::errc::no_such_file_or_directory, kern::verhuis(geef("nieuw"), geef("a.c"), oud));
    EXPECT_EQ(std::errc::invalid_argument, kern::verhuis(geef("sub"), geef("a.c"), oud));
    ++oud.schijf;
    EXPECT_EQ(std::errc::cross_device_link, kern::verhuis(geef(".verborgen"), geef("a.c"), oud));
    EXPECT_EQ("nieuw", hulp::leesBestand(geef("a.c")));
}

TEST_F(Systeem, BewaartEenAantekeningNaastDeInhoud) {
    EXPECT_EQ("", kern::leesAantekening(geef("a.c")));
    const fs::file_time_type tijd = fs::last_write_time(geef("a.c"));
    kern::tekenAan(kern::openBron(geef("a.c")).bestand.geefKanaal(), "een");
    kern::tekenAan(kern::openBron(geef("a.c")).bestand.geefKanaal(), "twee");
    EXPECT_EQ("twee", kern::leesAantekening(geef("a.c")));
    EXPECT_EQ("", kern::leesAantekening(geef("link")));
    EXPECT_EQ("inhoud", hulp::leesBestand(geef("a.c")));
    EXPECT_EQ(tijd, fs::last_write_time(geef("a.c")));
}

TEST(Maskers, PassenZoalsInEenShell) {
    EXPECT_TRUE(kern::pastOp("*.c", "a.c", false));
    EXPECT_FALSE(kern::pastOp("*.c", "a.cpp", false));
    EXPECT_TRUE(kern::pastOp("[ab]?c", "b.c", false));
    EXPECT_TRUE(kern::pastOp("sub/*.c", "sub/diep/a.c", false));
    EXPECT_FALSE(kern::pastOp("sub/*.c", "sub/diep/a.c", true));
    EXPECT_TRUE(kern::pastOp("sub/*.c", "sub/a.c", true));
}

TEST(Paden, LiggenInEenDirectory) {
    EXPECT_TRUE(kern::ligtIn("/a/b", "/a"));
    EXPECT_TRUE(kern::ligtIn("/a", "/a"));
    EXPECT_TRUE(kern::ligtIn("/a", "/"));
    EXPECT_FALSE(kern::ligtIn("/ab", "/a"));
    EXPECT_FALSE(kern::ligtIn("/a", "/a/b"));
}

TEST(Paden, HebbenEenLaatsteNaam) {
    EXPECT_EQ("c.d", kern::geefNaam("/a/b/c.d"));
    EXPECT_EQ("c.d", kern::geefNaam("c.d"));
    EXPECT_EQ("", kern::geefNaam("/a/"));
}

TEST(Paden, LatenZichPlakken) {
    EXPECT_EQ("a/b", kern::plak("a", "b"));
    EXPECT_EQ("a/b", kern::plak("a/", "b"));
    EXPECT_EQ("/b", kern::plak("/", "b"));
    EXPECT_EQ("a", kern::plak("a", ""));
    EXPECT_EQ("b", kern::plak("", "b"));
}
