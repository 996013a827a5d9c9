// Hoe het programma zich gedraagt: afloop, kanalen, verslag, terminal, onderbreken en meer bestanden
// tegelijk.

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

#include "KnipselaarCli/optielijst.h"
#include "tests/cli/proef.h"
#include "tests/hulp/opdracht.h"

namespace fs = std::filesystem;

using hulp::Boom;
using proef::bron;
using proef::goed;
using proef::knipselX;
using proef::storing;
using proef::Uitkomst;
using proef::Woorden;

namespace {

class CliGedrag : public proef::Cli {
  protected:
    void maakBestanden(int aantal) const {
        for (int i = 0; i < aantal; ++i) {
            schrijf("boom/" + std::to_string(i % 7) + "/f" + std::to_string(i) + ".c", bron);
        }
    }
};

const std::string leegBlok = "//**** Student Begin ****//\n//**** Student Eind ****//\n";

}  // namespace

TEST_F(CliGedrag, ToontHulpEnVersie) {
    EXPECT_EQ(goed(cli::maakHulp()), draai({"--help"}));
    EXPECT_EQ(goed(cli::maakHulp()), draai({"-h", "weg.c"}));
    EXPECT_EQ(goed("knipselaar-cli 1.0\n"), draai({"--versie"}));
    EXPECT_EQ(goed("knipselaar-cli 1.0\n"), draai({"-V"}));
}

TEST_F(CliGedrag, KentElkeOptieKortEnLang) {
    for (const cli::Optie& optie : cli::geefAlleOpties()) {
        EXPECT_NE(std::string::npos, cli::maakHulp().find("--" + std::string(optie.lang))) << optie.lang;
        for (std::string naam : {std::string("--") + optie.lang, std::string("-") + optie.kort}) {
            if (naam == "-") {
                continue;
            }
            Woorden woorden{naam};
            if (*optie.waarde != '\0') {
                woorden.emplace_back("1");
            }
            woorden.emplace_back("--help");
            EXPECT_EQ(std::string::npos, draai(woorden).fout.find("onbekend")) << naam;
        }
    }
}

TEST_F(CliGedrag, HeeftGeenBeeldschermNodig) {
    EXPECT_EQ(goed(knipselX), draai({"-vX", "-"}, {.invoer = bron, .omgeving = {{"DISPLAY", ""}}}));
    EXPECT_EQ(std::string::npos, hulp::voerUit({"ldd", KNIPSELAAR_CLI}).find("gtk"));
    EXPECT_EQ(std::string::npos, hulp::voerUit({"ldd", KNIPSELAAR_CLI}).find("_core"));
}

TEST_F(CliGedrag, DroogZegtWatErZouGebeuren) {
    schrijf("bron/a.c", bron + bron);
    schrijf("bron/leeg.c", leegBlok);
    schrijf("bron/fout.c", "//**** Student Eind ****//\n");
    schrijf("bron/los.c", "een\ntwee");
    schrijf("bron/niets.c", "");
    schrijf("bron/Makefile", "all:\n");
    fs::create_symlink("a.c", map_ / "bron/link.c");
    const Boom vooraf = leesBoom("");
    EXPECT_EQ(
        (Uitkomst{.status = 1,
                  .uit = "bron/Makefile -> uit/Makefile: gaat mee\n"
                         "bron/a.c -> uit/a.c: 2 blokken, 10 regels erin, 6 eruit, 0 waarschuwingen\n"
                         "bron/fout.c -> uit/fout.c: wordt niet geknipt, 1 fout\n"
                         "bron/leeg.c -> uit/leeg.c: 1 blok, 2 regels erin, 0 eruit, 1 waarschuwing\n"
                         "bron/link.c -> uit/link.c: gaat als link mee\n"
                         "bron/los.c -> uit/los.c: 0 blokken, 2 regels erin, 2 eruit, 0 waarschuwingen\n"
                         "bron/niets.c -> uit/niets.c: 0 blokken, 0 regels erin, 0 eruit, 0 waarschuwingen\n"
                         "4 bestanden in orde, 3 blokken, 2 overgenomen, 1 met fouten, 1 waarschuwing\n",
                  .fout = "bron/fout.c:1: fout: eindmarker zonder beginmarker\n"
                          "bron/leeg.c:1: waarschuwing: leeg blok; er komt geen vervangtekst\n"}),
        draai({"--droog", "-vX", "-r", "bron", "-n", "uit"}));
    EXPECT_EQ(
        "bron/a.c: 2 blokken, 10 regels erin, 7 eruit, 0 waarschuwingen\n1 bestand in orde, 2 blokken\n",
        draai({"-d", "-a", "-vX", "-t", "bron/a.c"}).uit)
        << "het venster zet achter elke vervangtekst en aan het einde een regeleinde";
    EXPECT_EQ(vooraf, leesBoom(""));
}

TEST_F(CliGedrag, DroogTeltWatErEchtUitKomt) {
    schrijf("a.c", "x\r\n" + leegBlok + bron + "laatste");
    for (const Woorden& opties :
         {Woorden{"-v", "A\nB"}, Woorden{"-v", "A\nB\n"}, Woorden{"-v", ""}, Woorden{"-a"}}) {
        Woorden woorden = opties;
        woorden.emplace_back("a.c");
        const std::string echt = draai(woorden).uit;
        const auto regels = std::count(echt.begin(), echt.end(), '\n') + (echt.ends_with('\n') ? 0 : 1);
        woorden.emplace_back("--droog");
        EXPECT_NE(std::string::npos,
                  draai(woorden).uit.find(", 9 regels erin, " + std::to_string(regels) + " eruit"))
            << draai(woorden).uit << regels;
    }
}

TEST_F(CliGedrag, IsStilAlsDatMoet) {
    schrijf("a.c", leegBlok);
    schrijf("b.c", "//**** Student Eind ****//\n");
    EXPECT_EQ(goed(), draai({"--stil", "-t", "a.c"}));
    EXPECT_EQ((Uitkomst{.status = 1, .uit = {}, .fout = "b.c:1: fout: eindmarker zonder beginmarker\n"}),
              draai({"-q", "-t", "a.c", "b.c"}));
}

TEST_F(CliGedrag, DoetVerslagInJson) {
    schrijf("bron/a.c", bron);
    schrijf("bron/b\xE9\".c", leegBlok);
    schrijf("bron/Makefile", "all:\n");
    schrijf("bron/z.c", "//**** Student Eind ****//\n");
    schrijf("bron/LEESMIJ", "geheime oplossing\n");
    const Uitkomst uitkomst = draai({"--json", "-vX", "-p", "-r", "bron", "-n", "uit"});
    EXPECT_EQ(1, uitkomst.status);
    EXPECT_EQ(
        R"({
  "bestanden": [
    {"bron": "bron/LEESMIJ", "bestemming": "uit/LEESMIJ", "status": "overgenomen", "meldingen": []},
    {"bron": "bron/Makefile", "bestemming": "uit/Makefile", "status": "overgenomen", "meldingen": []},
    {"bron": "bron/a.c", "bestemming": "uit/a.c", "status": "geknipt", "blokken": 1, "regels_erin": 5, "regels_eruit": 3, "meldingen": []},
    {"bron": "bron/b\udce9\".c", "bestemming": "uit/b\udce9\".c", "status": "geknipt", "blokken": 1, "regels_erin": 2, "regels_eruit": 0, "meldingen": [{"regel": 1, "ernst": "waarschuwing", "tekst": "leeg blok; er komt geen vervangtekst"}]},
    {"bron": "bron/z.c", "bestemming": "uit/z.c", "status": "fout", "blokken": 0, "meldingen": [{"regel": 1, "ernst": "fout", "tekst": "eindmarker zonder beginmarker"}]}
  ],
  "bewijs": [
    {"bestand": "uit/LEESMIJ", "regel": 1, "tekst": "hier staat de weggelaten regel van bron/a.c:3"}
  ],
  "opmerkingen": [],
  "totaal": {"geknipt": 2, "ongewijzigd": 0, "overgenomen": 2, "opgeruimd": 0, "blokken": 2, "fouten": 1, "waarschuwingen": 1, "mislukt": 0},
  "afloop": 1
}
)",
        uitkomst.uit);
    EXPECT_EQ(
        "{\n  \"bestanden\": [\n    {\"bron\": \"-\", \"status\": \"in orde\", \"blokken\": 0, "
        "\"regels_erin\": 0, "
        "\"regels_eruit\": 0, \"meldingen\": []}\n  ],\n  \"bewijs\": [],\n  \"opmerkingen\": [\n    \"er is "
        "nergens een blok gevonden; kijk de markers na\"\n  ],\n  "
        "\"totaal\": {\"geknipt\": 1, "
        "\"ongewijzigd\": 0, \"overgenomen\": 0, \"opgeruimd\": 0, \"blokken\": 0, \"fouten\": 0, "
        "\"waarschuwingen\": 0, "
        "\"mislukt\": "
        "0},\n  \"afloop\": 0\n}\n",
        draai({"-j", "-c", "-"}).uit);
}

TEST_F(CliGedrag, GeeftOokEenVerslagInJsonAlsDeRunNietKan) {
    const auto verslag = [](const std::string& reden) {
        return Uitkomst{.status = 2,
                        .uit = "{\n  \"bestanden\": [],\n  \"bewijs\": [],\n  \"opmerkingen\": [\n    \"" +
                               reden +
                               "\"\n  ],\n  \"totaal\": {\"geknipt\": 0, \"ongewijzigd\": 0, "
                               "\"overgenomen\": 0, \"opgeruimd\": 0, "
                               "\"blokken\": 0, \"fouten\": 0, \"waarschuwingen\": 0, \"mislukt\": 0},\n  "
                               "\"afloop\": 2\n}\n",
                        .fout = "knipselaar-cli: fout: " + reden + "\n"};
    };
    const std::string onbekend = "onbekende optie '--nietbekend'; zie knipselaar-cli --help";
    EXPECT_EQ(verslag(onbekend), draai({"--nietbekend", "--json", "a.c"}));
    EXPECT_EQ(verslag(onbekend), draai({"-rj", "--nietbekend", "a.c"}));
    EXPECT_EQ(storing(onbekend), draai({"-v", "j", "-vj", "--nietbekend", "--", "-j"})) << "dat is er geen";
    EXPECT_EQ(verslag("weg: kan niet gelezen worden: bestaat niet; kijk de naam na"),
              draai({"-j", "weg", "-n", "uit"}));
    schrijf("a.c", bron);
    EXPECT_EQ(
        verslag("--json gaat niet samen met een knipsel of verschil op de standaarduitvoer; geef --uit, "
                "--naar, --ter-plaatse, --controle of --droog"),
        draai({"-j", "a.c"}));
}

TEST_F(CliGedrag, ToontGeenBesturingstekensUitNamen) {
    schrijf("boom/a\x1b[2J\nb\xC2\x9B.c", "//**** Student Eind ****//\n");
    schrijf("boom/goed.c", bron);
    EXPECT_EQ(
        (Uitkomst{
            .status = 1,
            .uit = "boom/a\\x1b[2J\\x0ab\\x9b.c -> uit/a\\x1b[2J\\x0ab\\x9b.c: wordt niet geknipt, 1 fout\n"
                   "boom/goed.c -> uit/goed.c: 1 blok, 5 regels erin, 5 eruit, 0 waarschuwingen\n"
                   "1 bestand in orde, 1 blok, 1 met fouten\n",
            .fout = "boom/a\\x1b[2J\\x0ab\\x9b.c:1: fout: eindmarker zonder beginmarker\n"}),
        draai({"--droog", "boom", "-n", "uit"}));
    EXPECT_EQ(storing("w\\x1bg: kan niet gelezen worden: bestaat niet; kijk de naam na"), draai({"w\x1bg"}));
}

TEST_F(CliGedrag, MeldtBijDroogWatErBijSchrijvenMisgaat) {
    schrijf("bron/a.c", bron);
    schrijf("bron/dicht", "x");
    schrijf("vast/oud", "x");
    fs::permissions(map_ / "bron/a.c", fs::perms::all);
    fs::permissions(map_ / "bron/dicht", fs::perms::none);
    fs::permissions(map_ / "vast", fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                                       fs::perms::others_exec);
    const std::string toegang = "geen toegang; geef rechten of kies een andere plaats\n";
    const Uitkomst dicht{.status = 2,
                         .uit =
                             "bron/a.c -> uit/a.c: 1 blok, 5 regels erin, 5 eruit, 0 waarschuwingen\n"
                             "bron/dicht -> uit/dicht: lukt niet\n"
                             "1 bestand in orde, 1 blok, 1 mislukt\n",
                         .fout = "knipselaar-cli: fout: bron/dicht: kan niet gelezen worden: " + toegang};
    const proef::Start gewoon{.gewoneGebruiker = true};
    EXPECT_EQ(dicht, draai({"--droog", "-r", "bron", "-n", "uit"}, gewoon));
    const Uitkomst vast{
        .status = 2,
        .uit = "bron/a.c -> vast/diep/a.c: lukt niet\n0 bestanden in orde, 0 blokken, 1 mislukt\n",
        .fout = "knipselaar-cli: fout: vast/diep/a.c: kan niet geschreven worden: " + toegang};
    EXPECT_EQ(vast, draai({"--droog", "bron", "-n", "vast/diep"}, gewoon));
    EXPECT_EQ(storing("weg/a.c: de directory weg bestaat niet; maak haar eerst"),
              draai({"--droog", "bron/a.c", "-u", "weg/a.c"}));
    fs::permissions(map_ / "bron/dicht", fs::perms::owner_all);
}

TEST_F(CliGedrag, SchrijftGeenMeldingInEenBestandAlsEenKanaalDichtIs) {
    for (int i = 0; i < 200; ++i) {
        schrijf("boom/" + std::to_string(i) + ".c", i % 2 == 0 ? bron : leegBlok + bron);
    }
    const proef::Start shell{.programma = "/bin/sh"};
    EXPECT_EQ(0, draai({"-c", "exec \"$0\" -vX -J4 -r -t boom <&- 2>&-", KNIPSELAAR_CLI}, shell).status);
    hulp::Boom verwacht;
    for (int i = 0; i < 200; ++i) {
        verwacht[std::to_string(i) + ".c"] = proef::knipselX;
    }
    EXPECT_EQ(verwacht, leesBoom("boom"));
    schrijf("a.c", bron);
    EXPECT_EQ(2, draai({"-c", "exec \"$0\" a.c >&-", KNIPSELAAR_CLI}, shell).status)
        << "uitvoer die nergens komt";
    EXPECT_EQ(2, draai({"-c", "exec \"$0\" - <&-", KNIPSELAAR_CLI}, shell).status) << "invoer die er niet is";
}

TEST_F(CliGedrag, JsonIsTeLezen) {
    schrijf("bron/a\n\xE9.c", bron);
    hulp::schrijfBestand(alles_ / "verslag", draai({"-j", "-r", "bron", "-n", "uit"}).uit);
    EXPECT_EQ(
        "bron/a\n\xE9.c geknipt 0\n",
        hulp::voerUit(
            {"python3", "-c",
             "import json,os,sys; v = json.load(open(sys.argv[1])); b = v['bestanden'][0]; "
             "sys.stdout.buffer.write(os.fsencode(b['bron'] + ' ' + b['status'] + ' ' + str(v['afloop']) + "
             "'\\n'))",
             (alles_ / "verslag").string()}));
}

TEST_F(CliGedrag, KleurtAlleenOpEenTerminalDieDatWil) {
    schrijf("a.c", "//**** Student Eind ****//\n" + leegBlok);
    EXPECT_EQ(
        "a.c:1: \x1b[1;31mfout:\x1b[0m eindmarker zonder beginmarker\r\n"
        "a.c:2: \x1b[1;35mwaarschuwing:\x1b[0m leeg blok; er komt geen vervangtekst\r\n",
        draaiOpTerminal({"-c", "a.c"}).fout);
    const std::string kaal =
        "a.c:1: fout: eindmarker zonder beginmarker\r\na.c:2: waarschuwing: leeg blok; er komt geen "
        "vervangtekst\r\n";
    EXPECT_EQ(kaal, draaiOpTerminal({"-c", "a.c"}, {.omgeving = {{"NO_COLOR", "1"}}}).fout);
    EXPECT_EQ(kaal, draaiOpTerminal({"-c", "a.c"}, {.omgeving = {{"TERM", "dumb"}}}).fout);
    EXPECT_EQ(std::string::npos, draai({"-c", "a.c"}).fout.find('\x1b'));
}

TEST_F(CliGedrag, ToontVoortgangAlleenOpEenTerminal) {
    maakBestanden(30);
    const std::string fout = draaiOpTerminal({"-t", "-r", "boom"}).fout;
    EXPECT_TRUE(fout.starts_with("\r1/30 bestanden, nog 0:0")) << hulp::toonBytes(fout);
    EXPECT_TRUE(fout.ends_with("\r\x1b[K")) << hulp::toonBytes(fout);
    EXPECT_EQ("", draaiOpTerminal({"-q", "-t", "-r", "boom"}).fout);
    EXPECT_EQ(proef::geenBlok, draai({"-t", "-r", "boom"}).fout);
}

TEST_F(CliGedrag, DoetMeerBestandenTegelijkMetUitvoerOpVolgorde) {
    for (int i = 100; i < 400; ++i) {
        schrijf("boom/" + std::to_string(i) + ".c", i % 10 == 0   ? leegBlok
                                                    : i % 10 == 1 ? "//**** Student Eind ****//"
                                                                  : bron);
    }
    const Uitkomst een = draai({"--taken", "1", "-d", "boom"});
    EXPECT_EQ(1, een.status);
    EXPECT_EQ(301, std::count(een.uit.begin(), een.uit.end(), '\n'));
    for (const char* taken : {"2", "7", "0"}) {
        EXPECT_EQ(een, draai({"-J", taken, "-d", "boom"})) << taken;
    }
}

TEST_F(CliGedrag, OnderbrekenLaatElkBestandHeelEnRuimtOp) {
    constexpr int aantal = 800;
    maakBestanden(aantal);
    const Boom voor = leesBoom("boom");
    Boom na;
    for (const auto& [naam, inhoud] : voor) {
        na[naam] = inhoud == bron ? knipselX : inhoud;
    }
    const auto isBegonnen = [this] {
        const fs::directory_iterator delen(map_ / "boom/0");
        return std::any_of(begin(delen), end(delen), [](const fs::directory_entry& deel) {
            return deel.path().filename().string().starts_with(".Knipselaar");
        });
    };
    const int niets = open("/dev/null", O_RDWR | O_CLOEXEC);
    int halverwege = 0;
    for (const int signaal : {SIGINT, SIGTERM, SIGHUP}) {
        const pid_t kind = start({"-vX", "-t", "-r", "boom"}, {}, niets, niets, niets);
        EXPECT_TRUE(wachtOp([&] { return isBegonnen() || lees("boom/0/f0.c") == knipselX; }));
        kill(kind, signaal);
        const int status = wacht(kind);
        EXPECT_TRUE(status == 0 || status == 128 + signaal) << status;
        const Boom boom = leesBoom("boom");
        EXPECT_TRUE(boom == voor || boom == na) << "alles of niets, en niets ernaast";
        halverwege += status != 0 && boom == voor ? 1 : 0;
        EXPECT_TRUE(fs::is_empty(tijdelijk_));
        maakBestanden(aantal);
    }
    close(niets);
    EXPECT_LT(0, halverwege) << "geen signaal kwam midden in het werk";
}

TEST_F(CliGedrag, OnderbrekenHelptOokTegenEenVollePijp) {
    schrijf("a.c", std::string(1'000'000, 'x'));
    std::array<int, 2> pijp{};
    ASSERT_EQ(0, pipe2(pijp.data(), O_CLOEXEC));
    const int niets = open("/dev/null", O_RDWR | O_CLOEXEC);
    const pid_t kind = start({"a.c"}, {}, niets, pijp[1], niets);
    const fs::path toestand = "/proc/" + std::to_string(kind) + "/wchan";
    EXPECT_TRUE(wachtOp([&] { return hulp::leesBestand(toestand).find("pipe") != std::string::npos; }));
    kill(kind, SIGINT);
    EXPECT_EQ(128 + SIGINT, wacht(kind));
    for (const int kanaal : {pijp[0], pijp[1], niets}) {
        close(kanaal);
    }
}

namespace {

/// Een run die op invoer wacht en dan een signaal krijgt.
class CliWachtend : public CliGedrag {
  protected:
    explicit CliWachtend(bool negeertOphangen = false) {
        EXPECT_EQ(0, pipe2(pijp_.data(), O_CLOEXEC));
        fout_ = open((alles_ / "fout").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        kind_ =
            start({"-vX", "-", "-u", "uit.c"}, {.negeertOphangen = negeertOphangen}, pijp_[0], fout_, fout_);
        close(pijp_[0]);
        EXPECT_EQ(static_cast<ssize_t>(bron.size()), write(pijp_[1], bron.data(), bron.size()));
        const fs::path toestand = "/proc/" + std::to_string(kind_) + "/wchan";
        EXPECT_TRUE(wachtOp([&] { return hulp::leesBestand(toestand).find("pipe") != std::string::npos; }));
    }
    ~CliWachtend() override { close(fout_); }

    /// De afloop na dit signaal en het einde van de invoer.
    int geefAfloop(int signaal) {
        kill(kind_, signaal);
        close(pijp_[1]);
        const int afloop = wacht(kind_);
        EXPECT_EQ("", hulp::leesBestand(alles_ / "fout"));
        return afloop;
    }

  private:
    std::array<int, 2> pijp_{};
    int fout_ = -1;
    pid_t kind_ = -1;
};

class CliOphangen : public CliWachtend {
  protected:
    CliOphangen() : CliWachtend(true) {}
};

}  // namespace

TEST_F(CliWachtend, OnderbrekenHelptOokTegenWachtenOpInvoer) {
    EXPECT_EQ(128 + SIGINT, geefAfloop(SIGINT));
    EXPECT_EQ((Boom{}), leesBoom(""));
}

TEST_F(CliOphangen, EenGenegeerdSignaalBlijftGenegeerd) {
    EXPECT_EQ(0, geefAfloop(SIGHUP));
    EXPECT_EQ((Boom{{"uit.c", knipselX}}), leesBoom(""));
}
