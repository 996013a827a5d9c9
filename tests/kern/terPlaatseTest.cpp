#include "Knipselaar/kern/terPlaatse.h"

#include "tests/kern/batchProef.h"

namespace fs = std::filesystem;

using proef::geknipt;
using proef::naarWx;
using proef::Opdracht;
using proef::origineel;

namespace {

using Veilig = proef::Batch;

}  // namespace

TEST_F(Veilig, LaatHetOrigineelHeelZolangHetKnippenDuurt) {
    hulp::maakBoom(boom_, {{"a.c", origineel}});
    Opdracht opdracht;
    opdracht.voorElkeKnip = [this] { EXPECT_EQ(origineel, hulp::leesBestand(boom_ / "a.c")); };
    knipBoom(opdracht);
    EXPECT_EQ((hulp::Boom{{"a.c", geknipt}}), hulp::leesBoom(boom_));
}

TEST_F(Veilig, NeemtAlleenEenGewoonBestandAlsPlaats) {
    hulp::maakBoom(boom_, {{"map.c", "/"}});
    kern::TerPlaatse terPlaatse;
    hulp::schrijfBestand(terPlaatse.geefTijdelijk().GetFullPath().utf8_string(), geknipt);
    EXPECT_FALSE(terPlaatse.vervang((boom_ / "map.c").string()));
    EXPECT_FALSE(terPlaatse.vervang((boom_ / "bestaat-niet.c").string()));
    EXPECT_EQ((hulp::Boom{{"map.c", "/"}}), hulp::leesBoom(boom_));
}

TEST_F(Veilig, MaaktHetTijdelijkeBestandInDeTijdelijkeDirectory) {
    const kern::TerPlaatse terPlaatse;
    const fs::path pad = terPlaatse.geefTijdelijk().GetFullPath().utf8_string();
    EXPECT_EQ(tijdelijk_, pad.parent_path());
    // Windows neemt er drie letters van.
    EXPECT_TRUE(pad.filename().string().starts_with("Kni"));
    EXPECT_TRUE(fs::exists(pad));
}

TEST_F(Veilig, RuimtNietsOpDatIntussenDeTijdelijkeNaamKreeg) {
    hulp::maakBoom(boom_, {{"a.c", origineel}});
    std::string tijdelijk;
    {
        kern::TerPlaatse terPlaatse;
        tijdelijk = terPlaatse.geefTijdelijk().GetFullPath().utf8_string();
        hulp::schrijfBestand(tijdelijk, geknipt);
        EXPECT_TRUE(terPlaatse.vervang((boom_ / "a.c").string()));
        EXPECT_FALSE(fs::exists(tijdelijk));
        EXPECT_FALSE(terPlaatse.vervang((boom_ / "a.c").string())) << "het knipsel is al weg";
        hulp::schrijfBestand(tijdelijk, "van een ander");
    }
    EXPECT_EQ("van een ander", hulp::leesBestand(tijdelijk));
    EXPECT_EQ(geknipt, hulp::leesBestand(boom_ / "a.c"));
}

TEST_F(Veilig, ZegtNietsZolangAllesLukt) {
    hulp::maakBoom(boom_, {{"a.c", origineel}});
    kern::TerPlaatse terPlaatse;
    EXPECT_EQ("", terPlaatse.geefReden());
    hulp::schrijfBestand(terPlaatse.geefTijdelijk().GetFullPath().utf8_string(), geknipt);
    EXPECT_TRUE(terPlaatse.vervang((boom_ / "a.c").string()));
    EXPECT_EQ("", terPlaatse.geefReden());
}

TEST_F(Veilig, ZegtWaaromEenBestandNietVervangenIs) {
    hulp::maakBoom(boom_, {{"map.c", "/"}, {"a.c", origineel}});
    kern::TerPlaatse terPlaatse;
    EXPECT_FALSE(terPlaatse.vervang((boom_ / "map.c").string()));
    EXPECT_EQ("is geen gewoon bestand", terPlaatse.geefReden());
    EXPECT_FALSE(terPlaatse.vervang((boom_ / "bestaat-niet.c").string()));
    EXPECT_EQ("bestaat niet", terPlaatse.geefReden());
    fs::remove(terPlaatse.geefTijdelijk().GetFullPath().utf8_string());
    EXPECT_FALSE(terPlaatse.vervang((boom_ / "a.c").string())) << "het knipsel is weg";
    EXPECT_EQ("bestaat niet", terPlaatse.geefReden());
}

TEST_F(Veilig, LaatEenNieuweVersieVanEenAnderStaan) {
    hulp::maakBoom(boom_, {{"a.c", origineel}});
    Opdracht opdracht;
    opdracht.naElkeKnip = [this] {
        hulp::schrijfBestand(map_ / "nieuw.c", "nieuwe versie\n");
        fs::rename(map_ / "nieuw.c", boom_ / "a.c");
    };
    knipBoom(opdracht);
    EXPECT_EQ(
        (std::map<std::string, std::string>{
            {"a.c", "mislukt ter plaatse, 1 blok, vervangen: is intussen door een ander bestand vervangen"}}),
        opdracht.loop);
    EXPECT_EQ((hulp::Boom{{"a.c", "nieuwe versie\n"}}), hulp::leesBoom(boom_));
}

TEST_F(Veilig, ZegtDatEenBestandIntussenVerdweenOfEenDirectoryWerd) {
    for (const bool wordtDirectory : {false, true}) {
        hulp::maakBoom(boom_, {{"a.c", origineel}});
        Opdracht opdracht;
        const wxString pad = naarWx(boom_ / "a.c");
        opdracht.naElkeKnip = [&] {
            fs::remove(boom_ / "a.c");
            if (wordtDirectory) {
                fs::create_directory(boom_ / "a.c");
            }
        };
        kern::knipBoom(naarWx(boom_), {pad}, opdracht);
        EXPECT_EQ((std::map<std::string, std::string>{
                      {"a.c", std::string("mislukt ter plaatse, 1 blok, vervangen: ") +
                                  (wordtDirectory ? "is geen gewoon bestand" : "bestaat niet")}}),
                  opdracht.loop);
        fs::remove(boom_ / "a.c");
    }
}
