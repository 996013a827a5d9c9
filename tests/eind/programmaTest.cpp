#include <sys/stat.h>
#include <unistd.h>
#include <wx/utils.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <utility>

#include "Knipselaar/kern/knipper.h"
#include "tests/eind/bediening.h"

namespace fs = std::filesystem;

namespace {

class Programma : public Bediening {
  protected:
    /// Een kopie van een voorbeeld in de werkdirectory.
    fs::path neemVoorbeeld(const std::string& naam) const {
        const fs::path doel = omgeving_.werk() / naam;
        fs::copy_file(fs::path(VOORBEELDEN) / naam, doel);
        return doel;
    }

    /// Wat het programma met zijn standaardteksten van een voorbeeld hoort te maken.
    static std::string verwachtKnipsel(const std::string& tekst) {
        return kern::knipTekst(tekst,
                               {"//**** Student Begin ****//", "//**** Student Eind ****//",
                                "#error \"Dit stuk software ontbreekt.\"\n/* Beste student,\n    Dit stuk "
                                "ontbreekt. Werk dit uit om de opdracht uit te voeren.  */\n"});
    }

    void knipEnBewaar(const std::string& naam) {
        const fs::path bron = neemVoorbeeld(naam);
        const std::string origineel = hulp::leesBestand(bron);
        druk("ctrl+o");
        kiesPad(openDialoog, bron);
        druk("ctrl+f");
        vraagOpslaan("ctrl+s");
        const fs::path doel = omgeving_.thuis() / naam;
        wachtOpVenster(opslaanDialoog);
        druk("Return");  // de voorgestelde naam in de voorgestelde directory
        wachtTotWeg(opslaanDialoog);
        wachtOpVenster(hoofdvenster);
        ASSERT_TRUE(hulp::wachtTot([&doel] { return fs::exists(doel) && fs::file_size(doel) > 0; })) << doel;
        EXPECT_EQ(verwachtKnipsel(origineel), hulp::leesBestand(doel));
        EXPECT_NE(origineel, hulp::leesBestand(doel));
        EXPECT_EQ(origineel, hulp::leesBestand(bron)) << "het origineel blijft";
    }

    /// Het stuk van een editor waar alleen regelnummers staan, zonder de rand en zonder wat lager is dan de
    /// kleinste van beide editors.
    static Vlak nummerStrook(const Vlak& editor) {
        constexpr int rand = 4;
        return {editor.links + rand, editor.boven + rand, editor.breedte / 12, editor.breedte / 3};
    }

    void verwachtRustigEinde() {
        EXPECT_EQ(0, wachtOpEinde());
        EXPECT_EQ("", fouten());
        EXPECT_EQ("", hulp::leesBestand(omgeving_.werk() / "uitvoer"));
    }
};

using Slot = Programma;

}  // namespace

TEST_F(Programma, KniptEenCBestandMetToetsen) {
    start();
    knipEnBewaar("ringbuffer.c");
    druk("ctrl+q");
    verwachtRustigEinde();
    EXPECT_EQ(omgeving_.werk(), leesSleutel("Configuratie", "OrigineelPad"));
    EXPECT_EQ(omgeving_.thuis(), leesSleutel("Configuratie", "AangepastPad"));
}

TEST_F(Programma, KniptCppEnHeaderNaElkaar) {
    start();
    knipEnBewaar("matrix.cpp");
    knipEnBewaar("matrix.h");
    druk("ctrl+q");
    verwachtRustigEinde();
}

TEST_F(Programma, KniptVhdl) {
    start();
    knipEnBewaar("teller.vhdl");
    druk("ctrl+q");
    verwachtRustigEinde();
}

TEST_F(Programma, BewaartBijAfsluitenEerstHetResultaat) {
    start();
    const fs::path bron = neemVoorbeeld("ringbuffer.c");
    druk("ctrl+o");
    kiesPad(openDialoog, bron);
    druk("ctrl+f");
    vraagOpslaan("ctrl+q");
    const fs::path doel = omgeving_.werk() / "uit.c";
    typPad(opslaanDialoog, doel);
    verwachtRustigEinde();
    EXPECT_EQ(verwachtKnipsel(hulp::leesBestand(bron)), hulp::leesBestand(doel));
    EXPECT_EQ(omgeving_.werk(), leesSleutel("Configuratie", "AangepastPad"));
}

TEST_F(Programma, SchrijftBijDeEersteStartZijnHeleOpslag) {
    EXPECT_FALSE(fs::exists(omgeving_.opslag()));
    start();
    druk("ctrl+q");
    verwachtRustigEinde();
    const std::string thuis = omgeving_.thuis();
    EXPECT_EQ(thuis, leesSleutel("Configuratie", "OrigineelPad"));
    EXPECT_EQ(thuis, leesSleutel("Configuratie", "AangepastPad"));
    EXPECT_EQ("0", leesSleutel("Configuratie", "Verwerkingkeuze"));
    EXPECT_EQ("//**** Student Begin ****//", leesSleutel("Configuratie", "BeginMarker"));
    EXPECT_EQ("//**** Student Eind ****//", leesSleutel("Configuratie", "EindMarker"));
    EXPECT_EQ(
        "#error \"Dit stuk software ontbreekt.\"\\n/* Beste student,\\n    Dit stuk ontbreekt. Werk dit uit "
        "om "
        "de opdracht uit te voeren.  */\\n",
        leesSleutel("Configuratie", "Vervangtekst"));
    EXPECT_EQ("161", leesSleutel("Basisconfiguratie", "Taal"));
    for (const char* sleutel : {"StartDatum", "StopDatum"}) {
        EXPECT_EQ(10U, leesSleutel("Statistiek", sleutel).size()) << sleutel;
    }
    for (const char* sleutel : {"StartTijd", "StopTijd"}) {
        EXPECT_EQ(8U, leesSleutel("Statistiek", sleutel).size()) << sleutel;
    }
}

TEST_F(Programma, BewaartOokBijHetSluitkruis) {
    start();
    EXPECT_TRUE(sluitTot([this] { return programma_->isAf(); }));
    verwachtRustigEinde();
    EXPECT_NE("(ontbreekt)", leesSleutel("Statistiek", "StopTijd"));
    EXPECT_EQ("0", leesSleutel("Configuratie", "Verwerkingkeuze"));
}

TEST_F(Programma, VindtZijnInstellingenTerug) {
    hulp::schrijfBestand(
        omgeving_.opslag(),
        "[Configuratie]\nOrigineelPad=/usr\nAangepastPad=/usr/share\nVerwerkingkeuze=2\n"
        "BeginMarker=$HOME ${PATH}\nEindMarker=\nVervangtekst=een\\n\\\\twee \\\"drie\\\"\\n\n"
        "[Basisconfiguratie]\nTaal=161\n");
    const auto sleutels = [this] {
        std::string alle;
        for (const char* sleutel : {"OrigineelPad", "AangepastPad", "Verwerkingkeuze", "BeginMarker",
                                    "EindMarker", "Vervangtekst"}) {
            alle += leesSleutel("Configuratie", sleutel) + "|";
        }
        return alle;
    };
    const std::string verwacht = sleutels();
    for (int ronde = 0; ronde < 2; ++ronde) {
        start();
        druk("ctrl+q");
        verwachtRustigEinde();
        EXPECT_EQ(verwacht, sleutels()) << ronde;
    }
}

TEST_F(Programma, NegeertArgumenten) {
    start({"--help", "bestaat-niet.c", "-x"});
    druk("ctrl+q");
    verwachtRustigEinde();
}

TEST_F(Programma, StartEenTweedeKeerNaastDeEerste) {
    start();
    hulp::Kindproces tweede({programmaPad()}, omgeving_.werk() / "uitvoer2", omgeving_.werk() / "fouten2");
    ASSERT_TRUE(hulp::wachtTot([] {
        const std::string gevonden = voerUit({"xdotool", "search", "--onlyvisible", "--name", hoofdvenster});
        return std::count(gevonden.begin(), gevonden.end(), '\n') == 2;
    }));
    ASSERT_TRUE(sluitTot([&tweede, this] { return tweede.isAf() && programma_->isAf(); }));
    EXPECT_EQ(0, tweede.status());
    EXPECT_EQ("", hulp::leesBestand(omgeving_.werk() / "fouten2"));
    verwachtRustigEinde();
}

TEST_F(Programma, SchrijftGeenStopAlsHetGedoodWordt) {
    start();
    programma_->stuur(SIGKILL);
    EXPECT_EQ(128 + SIGKILL, wachtOpEinde());
    EXPECT_FALSE(fs::exists(omgeving_.opslag()) &&
                 hulp::leesBestand(omgeving_.opslag()).find("Stop") != std::string::npos);
    start();
    druk("ctrl+q");
    verwachtRustigEinde();
}

TEST_F(Programma, MeldtEenOnbekendeTaalEnBewaartHaar) {
    for (const char* taal : {"99999", "-7"}) {
        hulp::schrijfBestand(omgeving_.opslag(), std::string("[Basisconfiguratie]\nTaal=") + taal + "\n");
        start();
        druk("ctrl+q");
        EXPECT_EQ(0, wachtOpEinde());
        EXPECT_NE(std::string::npos, fouten().find("Could not initialise the Locale for \n")) << fouten();
        EXPECT_EQ(taal, leesSleutel("Basisconfiguratie", "Taal"));
    }
}

TEST_F(Programma, OverleeftEenOpslagVolOnzin) {
    std::string onzin = "[[[\n=\nTaal\n[Configuratie]\nVerwerkingkeuze=veel\n\\x\n";
    for (int i = 1; i < 256; ++i) {
        onzin += static_cast<char>(i);
    }
    hulp::schrijfBestand(omgeving_.opslag(), onzin);
    programma_ = std::make_unique<hulp::Kindproces>(
        std::vector<std::string>{programmaPad()}, omgeving_.werk() / "uitvoer", omgeving_.werk() / "fouten");
    ASSERT_TRUE(hulp::wachtTot([this] { return isZichtbaar(hoofdvenster); }));
    EXPECT_TRUE(sluitTot([this] { return programma_->isAf(); }));
    EXPECT_EQ(0, wachtOpEinde());
}

TEST_F(Programma, OverleeftEenThuisdirectoryDieNietTeBeschrijvenIs) {
    // Root mag overal schrijven; een directory met de naam van de opslag houdt ook root tegen.
    fs::create_directory(omgeving_.opslag());
    start();
    druk("ctrl+q");
    EXPECT_EQ(0, wachtOpEinde());
    EXPECT_TRUE(fs::is_directory(omgeving_.opslag()));
}

TEST_F(Programma, SchuiftBeideEditorsMetHetWielVanElkVanBeide) {
    start();
    const fs::path bron = neemVoorbeeld("ringbuffer.c");
    druk("ctrl+o");
    kiesPad(openDialoog, bron);
    druk("ctrl+f");
    wachtOpBruikbaar(opslaanKnop);
    const Vlak links = zoek(linkereditor);
    Vlak rechts = zoek(rechtereditor);
    rechts.breedte = links.breedte;  // even grote stroken
    // Links en rechts staan dezelfde regelnummers: de strook met nummers hoort overal gelijk te zijn.
    const auto strook = [this](const Vlak& editor) {
        return kiekje(vensterNummer(hoofdvenster), nummerStrook(editor));
    };
    const auto isGelijk = [&] { return strook(links) == strook(rechts); };
    ASSERT_TRUE(hulp::wachtTot(isGelijk));
    for (const auto& [editor, knop] : {std::pair(rechts, 5), std::pair(links, 4), std::pair(rechts, 5)}) {
        const std::string vooraf = strook(links);
        klik(editor, knop, 4);
        EXPECT_TRUE(hulp::wachtTot([&] { return strook(links) != vooraf && isGelijk(); }))
            << "wiel op " << editor.links;
    }
}

TEST_F(Programma, BereiktHetEindeVanEenOrigineelDatLangerIsDanZijnResultaat) {
    std::string tekst = "//**** Student Begin ****//\n";
    for (int regel = 0; regel < 180; ++regel) {
        tekst += regel == 90 ? "//**** Student Eind ****//\n" : "x\n";
    }
    for (int regel = 0; regel < 8; ++regel) {
        tekst += "\n" + std::string(40, 'm');
    }
    const fs::path bron = omgeving_.werk() / "lang.c";
    hulp::schrijfBestand(bron, tekst);
    start();
    druk("ctrl+o");
    kiesPad(openDialoog, bron);
    druk("ctrl+f");
    wachtOpBruikbaar(opslaanKnop);
    // Alleen de laatste regels zijn zo lang dat ze tot in dit stuk van de linkereditor komen.
    const Vlak editor = zoek(linkereditor);
    const Vlak eindeInBeeld{editor.links + editor.breedte * 2 / 5, editor.boven, editor.breedte / 5,
                            editor.hoogte};
    // Wie teruggeduwd wordt, is er maar even.
    const auto blijft = [&](bool inBeeld) {
        return hulp::wachtTot([&] {
            int keren = 0;
            while (keren < 10 && heeftTekst(eindeInBeeld) == inBeeld) {
                ++keren;
            }
            return keren == 10;
        });
    };
    gaMetKlikNaar(linkereditor);
    druk("ctrl+Home");
    EXPECT_TRUE(blijft(false)) << "aan het begin";
    druk("ctrl+End");
    EXPECT_TRUE(blijft(true)) << "met de toetsen";
    druk("ctrl+Home");
    EXPECT_TRUE(blijft(false)) << "weer aan het begin";
    klik(editor, 5, 80);
    EXPECT_TRUE(blijft(true)) << "met het wiel";
    druk("ctrl+q");
    typPad(opslaanDialoog, omgeving_.werk() / "uit.c");
    verwachtRustigEinde();
}

TEST_F(Programma, HoudtEenKlikOpDezelfdeModusVoorNiets) {
    start();
    const fs::path bron = neemVoorbeeld("ringbuffer.c");
    druk("ctrl+o");
    kiesPad(openDialoog, bron);
    druk("ctrl+f");
    wachtOpBruikbaar(opslaanKnop);
    klik(zoek("radio button \"Enkel bestand\""));  // de keuze die er al staat
    vraagOpslaan("ctrl+s");
    kiesPad(opslaanDialoog, omgeving_.werk() / "uit.c");
    EXPECT_EQ(verwachtKnipsel(hulp::leesBestand(bron)), hulp::leesBestand(omgeving_.werk() / "uit.c"));
    druk("ctrl+q");
    verwachtRustigEinde();
}

TEST_F(Programma, HoudtRegelnummersLeesbaarInEenDonkerThema) {
    ASSERT_EQ(0, setenv("GTK_THEME", "Adwaita:dark", 1));
    start();
    druk("ctrl+o");
    kiesPad(openDialoog, neemVoorbeeld("ringbuffer.c"));
    const Vlak nummers = nummerStrook(zoek(linkereditor));
    const auto heeftContrast = [&] {
        const std::string marge = kiekje(vensterNummer(hoofdvenster), nummers);
        const auto [donkerste, lichtste] = std::minmax_element(
            marge.begin(), marge.end(), [](unsigned char een, unsigned char ander) { return een < ander; });
        return static_cast<unsigned char>(*donkerste) < 80 && static_cast<unsigned char>(*lichtste) > 180;
    };
    EXPECT_TRUE(hulp::wachtTot(heeftContrast));
    druk("ctrl+q");
    verwachtRustigEinde();
}

// Het bestand van het slot is van elke run van deze gebruiker: deze test loopt alleen.
TEST_F(Slot, ZwijgtOverEenSlotDatNetGemaaktWordt) {
    const fs::path slot = "/tmp/Knipselaar-" + wxGetUserId().utf8_string();
    const auto startEnSluit = [this] {
        start();
        EXPECT_TRUE(drukTot("ctrl+q", [this] { return programma_->isAf(); }));
        verwachtRustigEinde();
    };
    startEnSluit();  // ruimt op wat een gedode run liet liggen
    if (fs::exists(slot)) {
        GTEST_SKIP() << "er loopt al een Knipselaar van deze gebruiker";
    }
    hulp::schrijfBestand(slot, "");
    fs::permissions(slot, fs::perms::owner_read | fs::perms::owner_write);
    startEnSluit();
    fs::remove(slot);
}
