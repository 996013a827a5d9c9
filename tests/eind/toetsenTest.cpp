// Het programma zonder muis, met X en met Wayland: waar de tabtoets langs komt, en elke modus van begin tot
// eind met alleen toetsen.

#include <algorithm>
#include <csignal>

#include "tests/eind/toegang.h"
#include "tests/hulp/bestandsboom.h"

namespace fs = std::filesystem;

namespace {

using Dingen = std::vector<std::string>;

class Toetsen : public Toegang, public testing::WithParamInterface<hulp::Beeldscherm> {
  protected:
    Toetsen() : Toegang(GetParam()) {}

    /// Een stap verder of terug. In een editor is de tabtoets een tab; met Ctrl erbij verlaat zij hem.
    std::string stap(bool terug = false) const {
        const std::string hier = volgorde().back();
        const bool inEditor = hier == linkereditor || hier == rechtereditor;
        return ga(std::string(inEditor ? "ctrl+" : "") + (terug ? "shift+Tab" : "Tab"));
    }

    /// Waar de tabtoets langs komt tot zij weer in de linkereditor is.
    Dingen rondgang(bool terug = false) const {
        gaNaar(linkereditor);
        Dingen dingen;
        do {
            dingen.push_back(stap(terug));
        } while (dingen.back() != linkereditor && dingen.size() < 20);
        return dingen;
    }

    void vulTeksten() const {
        vul(beginVeld, "BEGIN");
        vul(eindVeld, "EIND");
        vul(vervangVeld, "Werk dit uit.");
    }

    /// Opent en knipt een bestand, zodat elke opdracht voor een enkel bestand kan.
    void openEnKnip() const {
        hulp::schrijfBestand(bron_, origineel);
        druk("ctrl+o");
        kiesPad(openDialoog, bron_, linkereditor);
        druk("ctrl+f");
        wachtOpBruikbaar(opslaanKnop);
    }

    void sluitAf() {
        drukOp(afsluitKnop);
        EXPECT_EQ(0, wachtOpEinde());
        EXPECT_EQ("", fouten());
    }

    static constexpr const char* beginVeld = "text \"Parse begin\"";
    static constexpr const char* eindVeld = "text \"Parse einde\"";
    static constexpr const char* vervangVeld = "text \"Vervangingstekst\"";
    static constexpr const char* bronKnop = "push button \"Bladeren\" (Bron directory)";
    static constexpr const char* doelKnop = "push button \"Bladeren\" (Bestemming directory)";
    static constexpr const char* soortKeuze = "toggle button \"Soort bestanden\"";
    static constexpr const char* afsluitKnop = "push button \"Afsluiten\"";
    static constexpr const char* origineel = "a\nBEGIN\nb\nEIND\nc\n";
    fs::path bron_ = omgeving_.werk() / "bron";
    fs::path doel_ = omgeving_.werk() / "doel";
};

}  // namespace

INSTANTIATE_TEST_SUITE_P(Beeldschermen, Toetsen,
                         testing::Values(hulp::Beeldscherm::vensterbeheer, hulp::Beeldscherm::wayland),
                         testing::PrintToStringParamName());

TEST_P(Toetsen, LopenBijEnkelBestandLangsAllesWatAanStaat) {
    start();
    openEnKnip();
    Dingen verwacht{beginVeld,
                    eindVeld,
                    rechtereditor,
                    vervangVeld,
                    "radio button \"Enkel bestand\"",
                    openKnop,
                    "push button \"Toevoegen\"",
                    opslaanKnop,
                    knipKnop,
                    afsluitKnop,
                    linkereditor};
    EXPECT_EQ(verwacht, rondgang());
    std::reverse(verwacht.begin(), verwacht.end() - 1);
    EXPECT_EQ(verwacht, rondgang(true));
}

TEST_P(Toetsen, LopenBijEenDirectoryLangsBeideKiezers) {
    start();
    kiesModus("Alle bestanden in een directory");
    EXPECT_EQ((Dingen{beginVeld, eindVeld, rechtereditor, vervangVeld,
                      "radio button \"Alle bestanden in een directory\"", bronVeld, bronKnop, doelVeld,
                      doelKnop, soortKeuze, afsluitKnop, linkereditor}),
              rondgang());
}

TEST_P(Toetsen, LopenBijEenBoomLangsEenKiezer) {
    start();
    kiesModus("Alle bestanden recursief in een directory");
    EXPECT_EQ((Dingen{beginVeld, eindVeld, rechtereditor, vervangVeld,
                      "radio button \"Alle bestanden recursief in een directory\"", doelVeld, doelKnop,
                      soortKeuze, afsluitKnop, linkereditor}),
              rondgang());
}

TEST_P(Toetsen, LopenDoorHetMenu) {
    start();
    openEnKnip();
    Dingen dingen{ga("F10")};
    while (dingen.size() < 7) {
        dingen.push_back(ga("Down"));
    }
    EXPECT_EQ((Dingen{"menu \"Bestand\"", "menu item \"About\"", "menu item \"Open File\"",
                      "menu item \"Add File\"", "menu item \"Save\"", "menu item \"Find and Replace\"",
                      "menu item \"Exit\""}),
              dingen);
    gaNaar("menu item \"Add File\"", "Up");
    druk("Return");
    kiesPad(openDialoog, bron_, linkereditor);
    druk("ctrl+f");
    vraagOpslaan("ctrl+s");
    kiesPad(opslaanDialoog, doel_, linkereditor);
    EXPECT_EQ(std::string(origineel) + origineel + "\n", hulp::leesBestand(doel_));
    sluitAf();
}

TEST_P(Toetsen, KomenAanOokAlsHetProgrammaEvenNietLuistert) {
    start();
    gaNaar(beginVeld);
    programma_->stuur(SIGSTOP);
    for (const char* tekst : {"Eerst dit", "EN DAN dat"}) {
        druk("ctrl+a");
        typ(tekst);
    }
    druk("Home");
    druk("shift+End");
    typ("BEGIN");
    programma_->stuur(SIGCONT);
    EXPECT_TRUE(hulp::wachtTot([this] { return staatIn(beginVeld, "BEGIN"); })) << volgorde().back();
    sluitAf();
}

TEST_P(Toetsen, KnippenEenBestand) {
    hulp::schrijfBestand(bron_, origineel);
    start();
    vulTeksten();
    druk("Return");
    drukOp(openKnop);
    kiesPad(openDialoog, bron_, openKnop);
    gaNaar(linkereditor);
    druk("ctrl+Home");
    druk("Tab");  // ook een tab is te typen
    drukOp(knipKnop);
    drukOp(opslaanKnop);
    kiesPad(opslaanDialoog, doel_, opslaanKnop);
    EXPECT_EQ("\ta\nWerk dit uit.\nc\n", hulp::leesBestand(doel_));
    sluitAf();
}

TEST_P(Toetsen, KnippenEenDirectory) {
    hulp::maakBoom(bron_, {{"a.c", origineel}, {"b.txt", origineel}});
    fs::create_directory(doel_);
    start();
    vulTeksten();
    kiesModus("Alle bestanden in een directory");
    vul(bronVeld, bron_);
    drukOp(doelKnop);
    kiesPad("^Select a directory$", doel_, doelKnop);
    gaNaar(soortKeuze);
    druk("End");
    drukOp(knipKnop);
    const std::string geknipt = "a\nWerk dit uit.\nc\n\n";
    const hulp::Boom verwacht{{"a.c", geknipt}, {"b.txt", geknipt}};
    EXPECT_TRUE(hulp::wachtTot([&] { return hulp::isBoom(doel_, verwacht); }));
    sluitAf();
}

TEST_P(Toetsen, KnippenEenBoom) {
    hulp::maakBoom(doel_, {{"sub/a.c", origineel}, {"b.txt", origineel}});
    start();
    vulTeksten();
    kiesModus("Alle bestanden recursief in een directory");
    vul(doelVeld, doel_);
    drukOp(knipKnop);
    const hulp::Boom verwacht{{"sub", "/"}, {"sub/a.c", "a\nWerk dit uit.\nc\n\n"}, {"b.txt", origineel}};
    EXPECT_TRUE(hulp::wachtTot([&] { return hulp::isBoom(doel_, verwacht); }));
    sluitAf();
}
