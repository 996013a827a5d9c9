// De batches op het gebouwde programma, met de muis in de keuzerondjes en toetsen in de kiezers.

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

    /// Vult het tekstveld van een kiezer.
    static void vulKiezer(int y, const fs::path& pad) {
        klik(700, y);
        druk("ctrl+a");
        voerUit({"xdotool", "type", "--delay", "20", pad.string()});
    }

    /// Of een boom er nu zo uitziet. Het programma kan er nog mee bezig zijn.
    static bool isBoom(const fs::path& wortel, const hulp::Boom& verwacht) {
        try {
            return hulp::leesBoom(wortel) == verwacht;
        } catch (const std::exception&) {
            return false;
        }
    }

    void sluitAf() {
        druk("ctrl+q");
        EXPECT_EQ(0, wachtOpEinde());
        EXPECT_EQ("", fouten());
    }

    static constexpr int bronY = 435;
    static constexpr int doelY = 474;
    fs::path bron_ = omgeving_.werk() / "bron";
    fs::path doel_ = omgeving_.werk() / "doel";
};

}  // namespace

TEST_F(Batch, KniptEenDirectory) {
    hulp::maakBoom(bron_, {{"a.c", origineel}, {"b.vhd", origineel}, {"x.txt", origineel}});
    start();
    klik(60, 453);  // "Alle bestanden in een directory"
    vulKiezer(bronY, bron_);
    vulKiezer(doelY, doel_);
    druk("ctrl+f");
    const hulp::Boom verwacht{{"a.c", geknipt}, {"b.vhd", geknipt}};
    EXPECT_TRUE(hulp::wachtTot([&] { return isBoom(doel_, verwacht); }));
    sluitAf();
    EXPECT_EQ("1", leesSleutel("Configuratie", "Verwerkingkeuze"));
    EXPECT_EQ(bron_, leesSleutel("Configuratie", "OrigineelPad"));
    EXPECT_EQ(doel_, leesSleutel("Configuratie", "AangepastPad"));
}

TEST_F(Batch, VraagtBijGelijkeDirectoriesEnSpaartZeBijNee) {
    hulp::maakBoom(bron_, {{"a.c", origineel}});
    start();
    klik(60, 453);
    vulKiezer(bronY, bron_);
    vulKiezer(doelY, bron_);
    druk("ctrl+f");
    wachtOpVenster("^Bevestig$");
    druk("alt+n");
    wachtTotWeg("^Bevestig$");
    wachtOpVenster(hoofdvenster);
    EXPECT_EQ(origineel, hulp::leesBestand(bron_ / "a.c"));
    sluitAf();
}

TEST_F(Batch, MeldtEenLegeDirectory) {
    start();
    klik(60, 453);
    vulKiezer(bronY, bron_);
    vulKiezer(doelY, doel_);
    druk("ctrl+f");
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
    klik(60, 475);  // "Alle bestanden recursief in een directory"
    vulKiezer(doelY, doel_);
    druk("ctrl+f");
    const hulp::Boom verwacht{{"sub", "/"}, {"sub/a.c", geknipt}, {"x.txt", origineel}};
    EXPECT_TRUE(hulp::wachtTot([&] { return isBoom(doel_, verwacht); }));
    wachtOpVenster(hoofdvenster);
    druk("ctrl+s");
    const fs::path log = omgeving_.werk() / "log";
    kiesPad(opslaanDialoog, log);
    EXPECT_EQ("Student bestand 1:" + (doel_ / "sub/a.c").string() + "\n", hulp::leesBestand(log));
    sluitAf();
    EXPECT_EQ("2", leesSleutel("Configuratie", "Verwerkingkeuze"));
    EXPECT_EQ(omgeving_.thuis(), leesSleutel("Configuratie", "OrigineelPad"));
}
