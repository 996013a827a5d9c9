// Wat niet kan: één duidelijke regel die zegt waar het om gaat en wat eraan te doen is, en niets half
// geschreven.

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/cli/proef.h"
#include "tests/hulp/kleineSchijf.h"

namespace fs = std::filesystem;

using hulp::Boom;
using proef::bron;
using proef::goed;
using proef::storing;
using proef::Uitkomst;
using proef::Woorden;

namespace {

class CliSlechteInvoer : public proef::Cli {};

}  // namespace

TEST_F(CliSlechteInvoer, MeldtVerkeerdeOpties) {
    const std::vector<std::pair<Woorden, std::string>> gevallen{
        {{"--nietbekend"}, "onbekende optie '--nietbekend'; zie knipselaar-cli --help"},
        {{"-Q", "a.c"}, "onbekende optie '-Q'; zie knipselaar-cli --help"},
        {{"a.c", "--uit"}, "optie 'uit' heeft een waarde nodig; zie knipselaar-cli --help"},
        {{"a.c", "-u"}, "optie 'u' heeft een waarde nodig; zie knipselaar-cli --help"},
        {{"--stil=ja", "a.c"}, "optie 'stil' heeft geen waarde; zie knipselaar-cli --help"},
        {{"a.c", "--uit="}, "--uit: de naam is leeg; geef een naam"},
        {{}, "er is niets om te knippen; noem een bestand, een directory, of '-'"},
        {{"-k", "pascal", "a.c"}, "--keuze: 'pascal' is geen keuze; kies talen, vhdl of alles"},
        {{"-T", "ada", "a.c"}, "--taal: 'ada' is geen keuze; kies c, vhdl of overig"},
        {{"--taken", "veel", "a.c"}, "--taken: 'veel' is geen getal; geef een geheel getal vanaf 0"},
        {{"-L", "-1", "a.c"}, "--bewijs-lengte: '-1' is geen getal; geef een geheel getal vanaf 0"},
        {{"-u", "x", "-n", "y", "a.c"}, "--uit, --naar en --ter-plaatse gaan niet samen; kies er één"},
        {{"-t", "-n", "y", "a.c"}, "--uit, --naar en --ter-plaatse gaan niet samen; kies er één"},
        {{"a.c", "b.c"}, "er zijn 2 bronnen voor één uitvoer; geef --naar of --ter-plaatse"},
        {{"-", "-t"}, "de standaardinvoer ('-') heeft geen naam; gebruik --uit of de standaarduitvoer"},
        {{"-", "-n", "x"}, "de standaardinvoer ('-') heeft geen naam; gebruik --uit of de standaarduitvoer"},
        {{"-", "a.c", "-c"}, "'-' gaat niet samen met andere bronnen; geef hem alleen"},
        {{"-g", "-a", "a.c"}, "--getrouw en --als-venster gaan niet samen; kies er één"},
        {{"-i", "-a", "a.c"}, "--inspringen gaat niet samen met --als-venster; het venster springt niet in"},
        {{"-c", "-d", "a.c"}, "--controle, --droog en --verschil gaan niet samen; kies er één"},
        {{"-p", "a.c"},
         "--bewijs heeft een bestemming nodig om na te lezen; geef --uit, --naar of --ter-plaatse"},
        {{"-p", "-c", "a.c"},
         "--bewijs heeft een bestemming nodig om na te lezen; geef --uit, --naar of --ter-plaatse"},
        {{"--alles-of-niets", "-n", "x", "a.c"},
         "--alles-of-niets hoort bij --ter-plaatse; alleen daar verandert een origineel"},
        {{"--spiegel", "a.c"}, "--spiegel hoort bij --naar; alleen een directory kan iets over hebben"},
        {{"--spiegel", "-t", "a.c"}, "--spiegel hoort bij --naar; alleen een directory kan iets over hebben"},
        {{"--spiegel", "-c", "a.c", "-n", "uit"},
         "--spiegel gaat niet samen met --controle of --verschil; die veranderen geen bestemming"},
        {{"--spiegel", "-D", "a.c", "-n", "uit"},
         "--spiegel gaat niet samen met --controle of --verschil; die veranderen geen bestemming"},
        {{"-k", "alles", "-m", "*.c", "a.c"},
         "--keuze en --masker gaan niet samen; met --masker kiest u alles zelf"},
        {{"-p", "--versiebeheer", "-n", "x", "a.c"},
         "--bewijs gaat niet samen met --versiebeheer; in de geschiedenis staat elke oplossing"},
        {{"-u", "-", "-t", "a.c"}, "--uit, --naar en --ter-plaatse gaan niet samen; kies er één"},
        {{"--vervang-uit", "-", "-"}, "'-' staat er 2 keer; de standaardinvoer is maar één keer te lezen"},
        {{"--vervang-uit", "-", "--markers-uit", "-", "a.c"},
         "'-' staat er 2 keer; de standaardinvoer is maar één keer te lezen"},
        {{"-b", "A", "--markers-uit", "b.c", "-e", "B", "a.c"},
         "--markers-uit staat tussen een --begin en zijn --eind; zet hem ervoor of erna"},
        {{"-p", "-d", "-n", "x", "a.c"},
         "--bewijs gaat niet samen met --droog of --verschil; die schrijven geen bestemming"},
    };
    schrijf("a.c", bron);
    schrijf("b.c", bron);
    for (const auto& [woorden, melding] : gevallen) {
        EXPECT_EQ(storing(melding), draai(woorden)) << testing::PrintToString(woorden);
    }
    EXPECT_EQ((Boom{{"a.c", bron}, {"b.c", bron}}), leesBoom(""));
}

TEST_F(CliSlechteInvoer, MeldtWatErNietIs) {
    EXPECT_EQ(storing("weg.c: kan niet gelezen worden: bestaat niet; kijk de naam na"), draai({"weg.c"}));
    EXPECT_EQ(storing("weg: kan niet gelezen worden: bestaat niet; kijk de naam na"),
              draai({"weg", "-n", "uit"}));
    schrijf("a.c", bron);
    EXPECT_EQ(
        storing("a.c/b.c: kan niet gelezen worden: een deel van het pad is geen directory; kijk de naam na"),
        draai({"a.c/b.c"}));
    EXPECT_EQ(storing("weg/b.c: de directory weg bestaat niet; maak haar eerst"),
              draai({"a.c", "-u", "weg/b.c"}));
    EXPECT_EQ((Boom{{"a.c", bron}}), leesBoom(""));
}

TEST_F(CliSlechteInvoer, MeldtEenDirectoryWaarEenBestandHoort) {
    schrijf("boom/a.c", bron);
    EXPECT_EQ(storing("boom: is een directory; geef --naar DIR of --ter-plaatse, of noem een bestand"),
              draai({"boom"}));
    EXPECT_EQ(storing("boom: is een directory; geef --naar DIR of --ter-plaatse, of noem een bestand"),
              draai({"boom", "-u", "x"}));
    EXPECT_EQ(storing("boom: is een directory; geef --naar, of noem een bestand"),
              draai({"boom/a.c", "-f", "-u", "boom"}));
    EXPECT_EQ(
        storing("boom/a.c: is geen directory; geef met --naar een directory, of --uit voor één bestand"),
        draai({"boom/a.c", "-n", "boom/a.c"}));
    EXPECT_EQ(2, draai({"--vervang-uit", "boom", "boom/a.c"}).status);
}

TEST_F(CliSlechteInvoer, MeldtEenBestemmingDieInDeWegStaat) {
    schrijf("bron/a.c", bron);
    schrijf("bron/sub/b.c", bron);
    fs::create_directories(map_ / "uit/a.c");
    EXPECT_EQ(storing("uit/a.c: bestaat al en is een directory; haal haar weg"),
              draai({"-f", "bron", "-n", "uit"}));
    fs::remove(map_ / "uit/a.c");
    schrijf("uit/sub", "een bestand");
    EXPECT_EQ(storing("uit/sub: bestaat al en is geen directory; haal het weg"),
              draai({"-f", "-r", "bron", "-n", "uit"}));
    EXPECT_EQ((Boom{{"sub", "een bestand"}}), leesBoom("uit"));
    EXPECT_EQ(storing("/dev/null: bestaat al en is geen gewoon bestand; kies een andere bestemming"),
              draai({"-f", "bron/a.c", "-u", "/dev/null"}));
}

TEST_F(CliSlechteInvoer, LeestGeenPijpOfApparaat) {
    ASSERT_EQ(0, mkfifo((map_ / "pijp.c").c_str(), 0600));
    EXPECT_EQ(storing("pijp.c: is geen gewoon bestand; gebruik '-' voor de standaardinvoer"),
              draai({"pijp.c"}));
    EXPECT_EQ(storing("/dev/null: is geen gewoon bestand; gebruik '-' voor de standaardinvoer"),
              draai({"/dev/null"}));
}

TEST_F(CliSlechteInvoer, MeldtWatNietTeLezenIsEnKniptDeRest) {
    schrijf("boom/a.c", bron);
    schrijf("boom/dicht.c", bron);
    chmod((map_ / "boom/dicht.c").c_str(), 0000);
    const Uitkomst verwacht{.status = 2,
                            .uit = "1 bestand geknipt, 1 blok, 1 mislukt\n",
                            .fout =
                                "knipselaar-cli: fout: boom/dicht.c: kan niet gelezen worden: geen toegang; "
                                "geef rechten of kies een "
                                "andere plaats\n"};
    EXPECT_EQ(verwacht, draai({"boom", "-n", "uit"}, {.gewoneGebruiker = true}));
    EXPECT_EQ(1U, leesBoom("uit").size());
    fs::create_directories(map_ / "boom/sub");
    chmod((map_ / "boom/sub").c_str(), 0000);
    EXPECT_EQ(
        storing("boom/sub: kan niet gelezen worden: geen toegang; geef rechten of kies een andere plaats"),
        draai({"-r", "boom", "-n", "uit2"}, {.gewoneGebruiker = true}));
    EXPECT_FALSE(bestaat("uit2"));
    chmod((map_ / "boom/sub").c_str(), 0700);
    chmod((map_ / "boom/dicht.c").c_str(), 0600);
}

TEST_F(CliSlechteInvoer, MeldtWatNietTeSchrijvenIs) {
    schrijf("a.c", bron);
    chmod((map_ / "a.c").c_str(), 0644);
    schrijf("vast/b.c", bron);
    chmod((map_ / "vast/b.c").c_str(), 0644);
    chmod((map_ / "vast").c_str(), 0555);
    const std::string reden = "geen toegang; geef rechten of kies een andere plaats";
    EXPECT_EQ(storing("vast/a.c: kan niet geschreven worden: " + reden),
              draai({"a.c", "-u", "vast/a.c"}, {.gewoneGebruiker = true}));
    EXPECT_EQ("knipselaar-cli: fout: vast/uit: kan niet gemaakt worden: " + reden +
                  "\nknipselaar-cli: fout: vast/uit/a.c: kan niet geschreven worden: bestaat niet\n",
              draai({"a.c", "-n", "vast/uit"}, {.gewoneGebruiker = true}).fout);
    EXPECT_EQ(
        (Uitkomst{
            .status = 2,
            .uit = "0 bestanden geknipt, 0 blokken, 1 mislukt\n",
            .fout =
                "knipselaar-cli: fout: vast/b.c: blijft zoals het is: ernaast is geen bestand te maken: " +
                reden + "\n"}),
        draai({"-t", "vast/b.c"}, {.gewoneGebruiker = true}));
    EXPECT_EQ(bron, lees("vast/b.c"));
    chmod((map_ / "vast").c_str(), 0755);
    EXPECT_EQ((Boom{{"b.c", bron}}), leesBoom("vast"));
}

TEST_F(CliSlechteInvoer, HeeftGeenTijdelijkeDirectoryNodig) {
    schrijf("a.c", bron);
    EXPECT_EQ(goed("1 bestand geknipt, 1 blok\n"),
              draai({"-vX", "-t", "a.c"}, {.omgeving = {{"TMPDIR", "/proc"}}}));
    EXPECT_EQ((Boom{{"a.c", proef::knipselX}}), leesBoom(""));
}

TEST_F(CliSlechteInvoer, LaatBijEenVolleSchijfNietsHalfsAchter) {
    const std::string groot = std::string(400'000, 'x') + "\n" + bron;
    schrijf("a.c", bron);
    schrijf("groot.c", groot);
    const hulp::KleineSchijf schijf(map_ / "schijf");
    if (!schijf.isEr()) {
        GTEST_SKIP() << "alleen root kan een bestandssysteem aankoppelen";
    }
    const Uitkomst uitkomst = draai({"-vX", "a.c", "groot.c", "-n", "schijf/uit"});
    EXPECT_EQ(
        (Uitkomst{
            .status = 2,
            .uit = "1 bestand geknipt, 1 blok, 1 mislukt\n",
            .fout = "knipselaar-cli: fout: schijf/uit/groot.c: kan niet geschreven worden: de schijf is vol; "
                    "maak ruimte en probeer het opnieuw\n"}),
        uitkomst);
    EXPECT_EQ((Boom{{"a.c", proef::knipselX}}), leesBoom("schijf/uit"));
    const std::string half = std::string(200'000, 'x') + "\n" + bron;
    schrijf("schijf/half.c", half);
    EXPECT_EQ(
        (Uitkomst{.status = 2,
                  .uit = "0 bestanden geknipt, 0 blokken, 1 mislukt\n",
                  .fout = "knipselaar-cli: fout: schijf/half.c: blijft zoals het is: de schijf is vol; maak "
                          "ruimte en probeer het opnieuw\n"}),
        draai({"-vX", "-t", "schijf/half.c"}));
    EXPECT_EQ((Boom{{"half.c", half}, {"uit", "/"}, {"uit/a.c", proef::knipselX}}), leesBoom("schijf"));
}

TEST_F(CliSlechteInvoer, LaatBijEenTeGrootBestandNietsHalfsAchter) {
    for (const std::size_t lengte : {150'000U, 400'000U}) {
        const std::string groot = std::string(lengte, 'x') + "\n" + bron;
        schrijf("groot.c", groot);
        const proef::Start krap{.grootsteBestand = 100'000};
        EXPECT_EQ(storing("uit.c: kan niet geschreven worden: het bestand wordt groter dan mag"),
                  draai({"groot.c", "-u", "uit.c"}, krap));
        EXPECT_EQ(2, draai({"-t", "groot.c"}, krap).status);
        EXPECT_EQ((Boom{{"groot.c", groot}}), leesBoom(""));
        EXPECT_TRUE(fs::is_empty(tijdelijk_));
    }
}

TEST_F(CliSlechteInvoer, MeldtEenGebrokenPijp) {
    schrijf("a.c", std::string(1'000'000, 'x') + "\n" + bron);
    std::array<int, 2> pijp{};
    ASSERT_EQ(0, pipe2(pijp.data(), O_CLOEXEC));
    close(pijp[0]);
    const int niets = open("/dev/null", O_RDWR | O_CLOEXEC);
    const int fout = open((alles_ / "fout").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    for (const Woorden& woorden : {Woorden{"a.c"}, Woorden{"--controle", "a.c"}, Woorden{"--help"}}) {
        ASSERT_EQ(0, ftruncate(fout, 0));
        lseek(fout, 0, SEEK_SET);
        EXPECT_EQ(2, wacht(start(woorden, {}, niets, pijp[1], fout)));
        EXPECT_EQ(
            "knipselaar-cli: fout: standaarduitvoer: kan niet geschreven worden: de lezer van de pijp is "
            "gestopt\n",
            hulp::leesBestand(alles_ / "fout"));
    }
    for (const int kanaal : {pijp[1], niets, fout}) {
        close(kanaal);
    }
}

TEST_F(CliSlechteInvoer, MeldtEenVolleStandaarduitvoer) {
    schrijf("a.c", bron);
    const int vol = open("/dev/full", O_WRONLY | O_CLOEXEC);
    const int niets = open("/dev/null", O_RDWR | O_CLOEXEC);
    EXPECT_EQ(2, wacht(start({"a.c"}, {}, niets, vol, niets)));
    close(vol);
    close(niets);
}
