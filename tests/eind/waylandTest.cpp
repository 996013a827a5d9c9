// Wat op Wayland anders gaat dan bij X: een programma legt er zijn vensters niet zelf neer en ziet niets van
// wat er buiten gebeurt. Hier een lange run, en de vragen die een run kan stellen.

#include <algorithm>
#include <cstdio>
#include <set>

#include "tests/eind/langeRun.h"
#include "tests/eind/toegang.h"
#include "tests/hulp/bestandsboom.h"

namespace fs = std::filesystem;

namespace {

class Wayland : public Toegang {
  protected:
    Wayland() : Toegang(hulp::Beeldscherm::wayland) {
        fs::create_directory(bron_);
        fs::create_directory(doel_);
    }

    /// Zet de bediening klaar voor een batch van bron_ naar een directory, en begint haar.
    void beginBatch(const fs::path& doel) {
        start();
        kiesModus("Alle bestanden in een directory");
        vul(bronVeld, bron_);
        vul(doelVeld, doel);
        wachtOpBruikbaar(knipKnop);
        druk("ctrl+f");
    }

    /// Wacht tot een venster er is, beantwoordt het met toetsen en wacht tot het hoofdvenster ze weer krijgt.
    void beantwoord(const std::string& vraag, const std::string& toetsen) {
        wachtOpVenster(vraag);
        EXPECT_GT(telKleuren(kiekje()), 16U) << "letters op een achtergrond";
        druk(toetsen);
        wachtTotWeg(vraag);
        wachtTotWeg(bezigvenster);
        wachtOpVenster(hoofdvenster);
        wachtOpAntwoord();
    }

    /// De kleuren van het venster dat de toetsen krijgt, drie bytes per punt. Leeg als er geen is.
    static std::string kiekje() {
        // Het vlak staat achter het kenmerk, in de punten waarmee grim rekent.
        const std::string boom = voerUit({"swaymsg", "--raw", "--type", "get_tree"});
        const std::size_t plek = boom.find("\"rect\"", boom.find("\"focused\": true"));
        int links = 0;
        int boven = 0;
        int breedte = 0;
        int hoogte = 0;
        if (plek == std::string::npos ||
            std::sscanf(boom.c_str() + plek,
                        "\"rect\": { \"x\": %d, \"y\": %d, \"width\": %d, \"height\": %d", &links, &boven,
                        &breedte, &hoogte) != 4) {
            return "";
        }
        const std::string vlak = std::to_string(links) + "," + std::to_string(boven) + " " +
                                 std::to_string(breedte) + "x" + std::to_string(hoogte);
        const std::string beeld = voerUit({"grim", "-t", "ppm", "-g", vlak, "-"});
        // Ervoor staat een kop met de maat.
        const std::size_t bytes = static_cast<std::size_t>(breedte * hoogte) * 3;
        return beeld.size() < bytes ? "" : beeld.substr(beeld.size() - bytes);
    }

    static std::size_t telKleuren(const std::string& kleuren) {
        std::set<std::string> punten;
        for (std::size_t plaats = 0; plaats + 3 <= kleuren.size(); plaats += 3) {
            punten.insert(kleuren.substr(plaats, 3));
        }
        return punten.size();
    }

    void sluitAf() {
        EXPECT_TRUE(drukTot("ctrl+q", [this] { return programma_->isAf(); }));
        EXPECT_EQ(0, wachtOpEinde());
        EXPECT_EQ("", fouten());
    }

    static constexpr const char* bezigvenster = "^$";  ///< heeft geen titel
    static constexpr const char* vraag = "^Bevestig$";
    fs::path bron_ = omgeving_.werk() / "bron";
    fs::path doel_ = omgeving_.werk() / "doel";
};

}  // namespace

TEST_F(Wayland, SteltDeVraagBijGelijkeDirectoriesEnSpaartZeBijNee) {
    hulp::maakBoom(bron_, {{"a.c", origineel}});
    // Wie meteen na het antwoord drukt, drukt nog tijdens de run.
    const auto isGesteld = [this] { return isZichtbaar(vraag); };
    beginBatch(bron_);
    beantwoord(vraag, "alt+n");
    EXPECT_EQ(origineel, hulp::leesBestand(bron_ / "a.c"));
    EXPECT_TRUE(drukTot("ctrl+f", isGesteld));
    wachtOpVenster(vraag);
    EXPECT_TRUE(isZichtbaar(bezigvenster)) << "de run wacht op het antwoord";
    beantwoord(vraag, "Escape");
    EXPECT_EQ(origineel, hulp::leesBestand(bron_ / "a.c"));
    EXPECT_TRUE(drukTot("ctrl+f", isGesteld));
    beantwoord(vraag, "alt+F4");
    EXPECT_EQ(origineel, hulp::leesBestand(bron_ / "a.c"));
    sluitAf();
}

TEST_F(Wayland, KniptGelijkeDirectoriesBijJa) {
    hulp::maakBoom(bron_, {{"a.c", origineel}});
    beginBatch(bron_);
    beantwoord(vraag, "alt+j");
    EXPECT_NE(origineel, hulp::leesBestand(bron_ / "a.c"));
    sluitAf();
}

TEST_F(Wayland, MeldtEenLegeDirectory) {
    beginBatch(doel_);
    beantwoord("^Knipselaar (Fout|Error)$", "Return");
    sluitAf();
}

TEST_F(Wayland, LaatZienHoeVerEenLangeRunIs) {
    LangeRun run(bron_, doel_);
    beginBatch(doel_);
    run.houdStil(*programma_);
    std::set<std::string> kiekjes;
    wachtOpVenster(bezigvenster);
    EXPECT_TRUE(hulp::wachtTot([&] {
        run.gaEvenDoor();
        kiekjes.insert(kiekje());
        return kiekjes.size() == 3;
    })) << "de tekst van het begin, en twee keer een stand";
    // Alleen een tweede run brengt dit bestand terug.
    const fs::path eerste = fs::directory_iterator(bron_)->path().filename();
    ASSERT_TRUE(fs::remove(doel_ / eerste)) << "de run gaat in de volgorde van de directory";
    for (const std::string venster : {bezigvenster, hoofdvenster}) {
        voerUit({"swaymsg", "[title=\"" + venster + "\"] focus"});
        for (const char* toetsen : {"ctrl+f", "x", "ctrl+q", "alt+F4"}) {
            druk(toetsen);
        }
    }
    EXPECT_LT(run.tel(), LangeRun::bestanden - 1) << "de run moet nog bezig zijn";
    run.gaDoor();
    for (const std::string& kleuren : kiekjes) {
        EXPECT_GT(telKleuren(kleuren), 16U) << "letters op een achtergrond";
    }
    wachtTotWeg(bezigvenster);
    wachtOpVenster(hoofdvenster);
    EXPECT_FALSE(programma_->isAf());
    EXPECT_EQ(LangeRun::bestanden - 1, run.tel());
    sluitAf();
    EXPECT_EQ(LangeRun::bestanden - 1, run.tel());
    EXPECT_EQ(doel_, leesSleutel("Configuratie", "AangepastPad"));
}

TEST_F(Wayland, ToontHetOverVensterTotEscape) {
    const std::string overVenster = "Knipselaar.|.Knipselaar";
    start();
    druk("ctrl+k");
    wachtOpVenster(overVenster);
    EXPECT_TRUE(hulp::wachtTot([] { return telKleuren(kiekje()) > 16; })) << "letters op een achtergrond";
    druk("Escape");
    wachtTotWeg(overVenster);
    wachtOpVenster(hoofdvenster);
    sluitAf();
}

TEST_F(Wayland, BewaartOokBijHetSluitkruis) {
    start();
    EXPECT_TRUE(sluitTot([this] { return programma_->isAf(); }));
    EXPECT_EQ(0, wachtOpEinde());
    EXPECT_EQ("", fouten());
    EXPECT_NE("(ontbreekt)", leesSleutel("Statistiek", "StopTijd"));
}
