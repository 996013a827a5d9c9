// De batches op het gebouwde programma, met de muis in de keuzerondjes en toetsen in de kiezers.

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <set>
#include <sstream>

#include "tests/eind/bediening.h"
#include "tests/eind/langeRun.h"
#include "tests/hulp/bestandsboom.h"

namespace fs = std::filesystem;

namespace {

const std::string geknipt =
    "a\n#error \"Dit stuk software ontbreekt.\"\n/* Beste student,\n    Dit stuk ontbreekt. Werk dit uit om "
    "de "
    "opdracht uit te voeren.  */\n\nc\n\n";

class Batch : public Bediening {
  protected:
    Batch() {
        fs::create_directory(bron_);
        fs::create_directory(doel_);
    }

    /// Kiest een modus en wacht tot daarmee de kiezer van de bestemming bruikbaar is.
    void kiesModus(const std::string& modus) const {
        wachtOpBeginmodus();
        klik(zoek(modus));
        wachtOpBruikbaar(doelVeld);
    }

    /// Vult het tekstveld van een kiezer.
    void vulKiezer(const std::string& veld, const fs::path& pad) const {
        gaMetKlikNaar(veld);
        vervang(veld, pad);
    }

    /// Knipt zodra dat kan.
    void knip() const {
        wachtOpBruikbaar(knipKnop);
        druk("ctrl+f");
    }

    /// Begint een lange run van bron_ naar doel_; het programma staat dan stil.
    void begin(LangeRun& run) {
        start();
        kiesModus(directoryModus);
        vulKiezer(bronVeld, bron_);
        vulKiezer(doelVeld, doel_);
        knipPlek_ = zoek(knipKnop);
        anderePlek_ = zoek("radio button \"Enkel bestand\"");
        knip();
        run.houdStil(*programma_);
    }

    /// Het nummer van het bezigvenster; leeg als het er niet is.
    static std::string zoekBezigvenster() {
        const std::string hoofd = voerUit({"xdotool", "search", "--onlyvisible", "--name", hoofdvenster});
        std::istringstream alle(voerUit({"xdotool", "search", "--onlyvisible", "--class", "knipselaar"}));
        std::string nummer;
        while (std::getline(alle, nummer)) {
            if (nummer + "\n" != hoofd) {
                return nummer;
            }
        }
        return "";
    }

    /// Laat een bestand of directory niet aan de gebruiker van het programma, ook als dat root is. Te doen na
    /// het starten, want dan krijgt hij alles.
    static void weiger(const fs::path& pad, fs::perms rechten) {
        fs::permissions(pad, rechten);
        if (geteuid() == 0) {
            EXPECT_EQ(0, chown(pad.c_str(), 0, 0));
        }
    }

    /// Slaat het logboek op; daarna is de batch zeker klaar.
    std::string bewaarLogboek() {
        wachtOpVenster(hoofdvenster);
        vraagOpslaan("ctrl+s");
        const fs::path log = omgeving_.werk() / "log";
        kiesPad(opslaanDialoog, log);
        return hulp::leesBestand(log);
    }

    void sluitAf() {
        EXPECT_TRUE(drukTot("ctrl+q", [this] { return programma_->isAf(); }));
        EXPECT_EQ(0, wachtOpEinde());
        EXPECT_EQ("", fouten());
    }

    /// Te lezen voor iedereen, te veranderen door niemand.
    static constexpr fs::perms alleenLezen =
        fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read | fs::perms::others_exec;
    static constexpr const char* directoryModus = "radio button \"Alle bestanden in een directory\"";
    static constexpr const char* boomModus = "radio button \"Alle bestanden recursief in een directory\"";
    fs::path bron_ = omgeving_.werk() / "bron";
    fs::path doel_ = omgeving_.werk() / "doel";
    Vlak knipPlek_;    ///< van een lange run, als het programma op zulke vragen traag antwoordt
    Vlak anderePlek_;  ///< van een andere modus, dan
};

}  // namespace

TEST_F(Batch, KniptEenDirectory) {
    hulp::maakBoom(bron_, {{"a.c", origineel}, {"b.vhd", origineel}, {"x.txt", origineel}});
    start();
    kiesModus(directoryModus);
    vulKiezer(bronVeld, bron_);
    vulKiezer(doelVeld, doel_);
    knip();
    const hulp::Boom verwacht{{"a.c", geknipt}, {"b.vhd", geknipt}};
    EXPECT_TRUE(hulp::wachtTot([&] { return hulp::isBoom(doel_, verwacht); }));
    sluitAf();
    EXPECT_EQ("1", leesSleutel("Configuratie", "Verwerkingkeuze"));
    EXPECT_EQ(bron_, leesSleutel("Configuratie", "OrigineelPad"));
    EXPECT_EQ(doel_, leesSleutel("Configuratie", "AangepastPad"));
}

TEST_F(Batch, VraagtBijGelijkeDirectoriesEnSpaartZeBijNee) {
    hulp::maakBoom(bron_, {{"a.c", origineel}});
    start();
    kiesModus(directoryModus);
    vulKiezer(bronVeld, bron_);
    vulKiezer(doelVeld, bron_);
    knip();
    wachtOpVenster("^Bevestig$");
    druk("alt+n");
    wachtTotWeg("^Bevestig$");
    wachtOpVenster(hoofdvenster);
    EXPECT_EQ(origineel, hulp::leesBestand(bron_ / "a.c"));
    sluitAf();
}

TEST_F(Batch, SpaartGelijkeDirectoriesAlsDeVraagWeggedaanWordt) {
    const std::string vraag = "^Bevestig$";
    const hulp::Boom vooraf{{"a.c", origineel}, {"b.vhd", "x\n"}};
    hulp::maakBoom(bron_, vooraf);
    start();
    kiesModus(directoryModus);
    vulKiezer(bronVeld, bron_);
    vulKiezer(doelVeld, bron_);
    knip();
    wachtOpVenster(vraag);
    druk("Escape");
    wachtTotWeg(vraag);
    wachtOpVenster(hoofdvenster);
    EXPECT_TRUE(hulp::isBoom(bron_, vooraf));
    knip();
    wachtOpVenster(vraag);
    EXPECT_TRUE(sluitTot([&] { return !isZichtbaar(vraag); }));
    wachtOpVenster(hoofdvenster);
    EXPECT_TRUE(hulp::isBoom(bron_, vooraf));
    sluitAf();
}

TEST_F(Batch, MeldtEenLegeDirectory) {
    start();
    kiesModus(directoryModus);
    vulKiezer(bronVeld, bron_);
    vulKiezer(doelVeld, doel_);
    knip();
    const std::string melding = "^Knipselaar (Fout|Error)$";
    wachtOpVenster(melding);
    druk("Return");
    wachtTotWeg(melding);
    wachtOpVenster(hoofdvenster);
    sluitAf();
}

TEST_F(Batch, LaatZienHoeVerHijIs) {
    LangeRun run(bron_, doel_);
    begin(run);
    const std::string bezig = zoekBezigvenster();
    ASSERT_NE("", bezig);
    std::set<std::string> kiekjes;
    EXPECT_TRUE(hulp::wachtTot([&] {
        run.gaEvenDoor();
        kiekjes.insert(kiekje(bezig));
        return kiekjes.size() == 3;
    })) << "de tekst van het begin, en twee keer een stand";
    ASSERT_LT(run.tel(), LangeRun::bestanden) << "de run moet nog bezig zijn";
    for (const std::string& kleuren : kiekjes) {
        EXPECT_NE(std::string::npos, kleuren.find_first_not_of(kleuren.front())) << "leeg";
    }
    run.gaDoor();
    EXPECT_TRUE(hulp::wachtTot([] { return zoekBezigvenster().empty(); }));
    EXPECT_EQ(LangeRun::bestanden, run.tel());
    sluitAf();
}

TEST_F(Batch, LaatVervallenWatErTijdensEenRunGedruktWordt) {
    LangeRun run(bron_, doel_);
    begin(run);
    // Alleen een tweede run brengt dit bestand terug.
    const fs::path eerste = fs::directory_iterator(bron_)->path().filename();
    run.gaEvenDoor();
    ASSERT_TRUE(fs::remove(doel_ / eerste)) << "de run gaat in de volgorde van de directory";
    const std::string nummer = voerUit({"xdotool", "search", "--onlyvisible", "--name", hoofdvenster});
    druk("ctrl+f");
    for (const Vlak& plek : {knipPlek_, anderePlek_}) {
        voerUit({"xdotool", "mousemove", "--window", nummer.substr(0, nummer.find('\n')),
                 std::to_string(plek.links + plek.breedte / 2), std::to_string(plek.boven + plek.hoogte / 2),
                 "click", "1"});
    }
    typ("x");
    druk("ctrl+q");
    druk("alt+F4");
    EXPECT_LT(run.tel(), LangeRun::bestanden - 1) << "de run moet nog bezig zijn";
    run.gaDoor();
    EXPECT_TRUE(hulp::wachtTot([] { return zoekBezigvenster().empty(); }));
    EXPECT_FALSE(programma_->isAf());
    sluitAf();
    EXPECT_EQ(LangeRun::bestanden - 1, run.tel());
    EXPECT_EQ("1", leesSleutel("Configuratie", "Verwerkingkeuze"));
    EXPECT_EQ(doel_, leesSleutel("Configuratie", "AangepastPad"));
}

TEST_F(Batch, KniptEenBoomEnBewaartHetLogboek) {
    hulp::maakBoom(doel_, {{"sub/a.c", origineel}, {"x.txt", origineel}});
    start();
    kiesModus(boomModus);
    vulKiezer(doelVeld, doel_);
    knip();
    const hulp::Boom verwacht{{"sub", "/"}, {"sub/a.c", geknipt}, {"x.txt", origineel}};
    EXPECT_TRUE(hulp::wachtTot([&] { return hulp::isBoom(doel_, verwacht); }));
    EXPECT_EQ("Student bestand 1:" + (doel_ / "sub/a.c").string() + "\n", bewaarLogboek());
    sluitAf();
    EXPECT_EQ("2", leesSleutel("Configuratie", "Verwerkingkeuze"));
    EXPECT_EQ(omgeving_.thuis(), leesSleutel("Configuratie", "OrigineelPad"));
}

TEST_F(Batch, LaatEenGewoneGebruikerEenDirectoryKnippenWaarHijNietOveralBijMag) {
    hulp::maakBoom(bron_, {{"a.c", origineel}, {"b.c", origineel}, {"dicht.c", origineel}});
    hulp::maakBoom(doel_, {{"a.c", "was er al"}});
    startAlsGewoneGebruiker();
    weiger(bron_ / "dicht.c", fs::perms::none);
    weiger(doel_, alleenLezen);
    kiesModus(directoryModus);
    vulKiezer(bronVeld, bron_);
    vulKiezer(doelVeld, doel_);
    knip();
    EXPECT_TRUE(hulp::wachtTot([this] { return hulp::leesBestand(doel_ / "a.c") == geknipt; }));
    std::string log = "Student dir : " + doel_.string() + "\n";
    int nummer = 1;
    for (const std::string& naam : hulp::somOp(bron_)) {
        log += "Student bestand " + std::to_string(nummer++) + ":" + naam + "\n";
    }
    EXPECT_EQ(log, bewaarLogboek());
    sluitAf();
    EXPECT_EQ((hulp::Boom{{"a.c", geknipt}}), hulp::leesBoom(doel_));
    fs::permissions(bron_ / "dicht.c", fs::perms::owner_all);
    fs::permissions(doel_, fs::perms::owner_all);
    EXPECT_EQ((hulp::Boom{{"a.c", origineel}, {"b.c", origineel}, {"dicht.c", origineel}}),
              hulp::leesBoom(bron_));
}

TEST_F(Batch, LaatTerPlaatseStaanWaarEenGewoneGebruikerNietBijMag) {
    hulp::maakBoom(doel_, {{"open.c", origineel}, {"dicht.c", origineel}, {"vast/c.c", origineel}});
    startAlsGewoneGebruiker();
    weiger(doel_ / "dicht.c", fs::perms::none);
    weiger(doel_ / "vast", alleenLezen);
    kiesModus(boomModus);
    vulKiezer(doelVeld, doel_);
    knip();
    EXPECT_TRUE(hulp::wachtTot([this] { return hulp::leesBestand(doel_ / "open.c") == geknipt; }));
    std::string log = "Student bestand 1:" + (doel_ / "vast/c.c").string() + "\n";
    int nummer = 2;
    for (const std::string& naam : hulp::somOp(doel_)) {
        if (naam != "vast") {
            log += "Student bestand " + std::to_string(nummer++) + ":" + (doel_ / naam).string() + "\n";
        }
    }
    EXPECT_EQ(log, bewaarLogboek());
    sluitAf();
    fs::permissions(doel_ / "dicht.c", fs::perms::owner_all);
    fs::permissions(doel_ / "vast", fs::perms::owner_all);
    EXPECT_EQ(
        (hulp::Boom{{"open.c", geknipt}, {"dicht.c", origineel}, {"vast", "/"}, {"vast/c.c", origineel}}),
        hulp::leesBoom(doel_));
    EXPECT_TRUE(fs::is_empty(std::getenv("TMPDIR")));
}
