// De batches op het gebouwde programma, met de muis in de keuzerondjes en toetsen in de kiezers.

#include <algorithm>

#include "tests/eind/bediening.h"
#include "tests/hulp/bestandsboom.h"

namespace fs = std::filesystem;

namespace {

const std::string origineel = "a\n//**** Student Begin ****//\nb\n//**** Student Eind ****//\nc\n";
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

    /// Kiest een modus en wacht tot daarmee een kiezer bruikbaar is.
    static void kiesModus(int y, int kiezerY) {
        const std::string tekstveld = "80x16+668+" + std::to_string(kiezerY - 8);
        wachtOpBeginmodus();
        klik(60, y);
        EXPECT_TRUE(hulp::wachtTot([&] { return isBruikbaar(tekstveld); })) << "geen andere modus";
    }

    /// Vult het tekstveld van een kiezer.
    static void vulKiezer(int y, const fs::path& pad) {
        klik(700, y);
        druk("ctrl+a");
        voerUit({"xdotool", "type", "--delay", "20", pad.string()});
    }

    /// Knipt zodra dat kan.
    static void knip() {
        EXPECT_TRUE(hulp::wachtTot([] { return isBruikbaar("150x16+205+555"); })) << "knippen kan niet";
        druk("ctrl+f");
    }

    void sluitAf() {
        druk("ctrl+q");
        EXPECT_EQ(0, wachtOpEinde());
        EXPECT_EQ("", fouten());
    }

    static constexpr int directoryY = 453;  ///< "Alle bestanden in een directory"
    static constexpr int boomY = 475;       ///< "Alle bestanden recursief in een directory"
    static constexpr int bronY = 435;
    static constexpr int doelY = 474;
    fs::path bron_ = omgeving_.werk() / "bron";
    fs::path doel_ = omgeving_.werk() / "doel";
};

}  // namespace

TEST_F(Batch, KniptEenDirectory) {
    hulp::maakBoom(bron_, {{"a.c", origineel}, {"b.vhd", origineel}, {"x.txt", origineel}});
    start();
    kiesModus(directoryY, bronY);
    vulKiezer(bronY, bron_);
    vulKiezer(doelY, doel_);
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
    kiesModus(directoryY, bronY);
    vulKiezer(bronY, bron_);
    vulKiezer(doelY, bron_);
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
    kiesModus(directoryY, bronY);
    vulKiezer(bronY, bron_);
    vulKiezer(doelY, bron_);
    knip();
    wachtOpVenster(vraag);
    druk("Escape");
    wachtTotWeg(vraag);
    wachtOpVenster(hoofdvenster);
    EXPECT_TRUE(hulp::isBoom(bron_, vooraf));
    knip();
    wachtOpVenster(vraag);
    EXPECT_TRUE(sluitTot([&vraag] { return !isZichtbaar(vraag); }));
    wachtOpVenster(hoofdvenster);
    EXPECT_TRUE(hulp::isBoom(bron_, vooraf));
    sluitAf();
}

TEST_F(Batch, MeldtEenLegeDirectory) {
    start();
    kiesModus(directoryY, bronY);
    vulKiezer(bronY, bron_);
    vulKiezer(doelY, doel_);
    knip();
    const std::string melding = "^Knipselaar (Fout|Error)$";
    wachtOpVenster(melding);
    druk("Return");
    wachtTotWeg(melding);
    wachtOpVenster(hoofdvenster);
    sluitAf();
}

TEST_F(Batch, KniptEenBoomEnBewaartHetLogboek) {
    hulp::maakBoom(doel_, {{"sub/a.c", origineel}, {"x.txt", origineel}});
    start();
    kiesModus(boomY, doelY);
    vulKiezer(doelY, doel_);
    knip();
    const hulp::Boom verwacht{{"sub", "/"}, {"sub/a.c", geknipt}, {"x.txt", origineel}};
    EXPECT_TRUE(hulp::wachtTot([&] { return hulp::isBoom(doel_, verwacht); }));
    wachtOpVenster(hoofdvenster);
    druk("ctrl+s");
    const fs::path log = omgeving_.werk() / "log";
    kiesPad(opslaanDialoog, log);
    EXPECT_EQ("Student bestand 1:" + (doel_ / "sub/a.c").string() + "\n", hulp::leesBestand(log));
    sluitAf();
    EXPECT_EQ("2", leesSleutel("Configuratie", "Verwerkingkeuze"));
    EXPECT_EQ(omgeving_.thuis(), leesSleutel("Configuratie", "OrigineelPad"));
}
