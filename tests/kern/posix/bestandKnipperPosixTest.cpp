// bestandKnipper waar er meer is dan gewone bestanden: pijpen, sockets, apparaten, links, rechten, grenzen.

#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#include <wx/log.h>

#include <csignal>

#include "tests/hulp/bestandsboom.h"
#include "tests/hulp/gewoneGebruiker.h"
#include "tests/hulp/kleineSchijf.h"
#include "tests/kern/bestandKnipperProef.h"

namespace fs = std::filesystem;

using proef::geknipt;
using proef::origineel;

namespace {

using BestandKnipperPosix = proef::BestandKnipper;

/// Een socket op schijf; te sluiten.
int maakSocket(const fs::path& pad) {
    const int luisteraar = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un adres{};
    adres.sun_family = AF_UNIX;
    pad.string().copy(adres.sun_path, sizeof adres.sun_path - 1);
    EXPECT_EQ(0, bind(luisteraar, reinterpret_cast<const sockaddr*>(&adres), sizeof adres));
    return luisteraar;
}

}  // namespace

TEST_F(BestandKnipperPosix, WachtNietOpEenPijp) {
    hulp::schrijfBestand(map_ / "bron", origineel);
    ASSERT_EQ(0, mkfifo(in_.c_str(), 0600));
    verwachtBronNietOpen(in_, uit_);
    verwachtDoelNietOpen(map_ / "bron", in_);
    EXPECT_TRUE(fs::is_fifo(in_));
}

TEST_F(BestandKnipperPosix, LaatEenSocketMetRust) {
    const int luisteraar = maakSocket(in_);
    verwachtBronNietOpen(in_, uit_);
    hulp::schrijfBestand(map_ / "bron", origineel);
    verwachtDoelNietOpen(map_ / "bron", in_);
    EXPECT_TRUE(fs::is_socket(in_));
    close(luisteraar);
}

TEST_F(BestandKnipperPosix, SchrijftNietNaarEenApparaat) {
    hulp::schrijfBestand(in_, origineel);
    verwachtDoelNietOpen(in_, "/dev/null");
    verwachtBronNietOpen("/dev/zero", uit_);
}

TEST_F(BestandKnipperPosix, MaaktNietsDoorEenLinkDieNergensHeenWijst) {
    hulp::schrijfBestand(in_, origineel);
    fs::create_symlink("elders.c", uit_);
    verwachtDoelNietOpen(in_, uit_);
    EXPECT_FALSE(fs::exists(map_ / "elders.c"));
    EXPECT_TRUE(fs::is_symlink(uit_));
    verwachtBronNietOpen(uit_, map_ / "nieuw.c");
}

TEST_F(BestandKnipperPosix, KniptDoorEenLinkNaarEenBestand) {
    hulp::schrijfBestand(map_ / "echt.c", origineel);
    fs::create_symlink("echt.c", in_);
    EXPECT_TRUE(knip(in_, uit_).isGelukt());
    EXPECT_EQ(geknipt, hulp::leesBestand(uit_));
}

TEST_F(BestandKnipperPosix, KentNamenMetVreemdeTekens) {
    for (const char* deel : {"met spatie", "met \"aanhaling' $HOME", "één €"}) {
        const std::string naam = deel;
        const fs::path bron = map_.pad() / (naam + ".c");
        const fs::path doel = map_.pad() / (naam + " uit.c");
        hulp::schrijfBestand(bron, origineel);
        EXPECT_TRUE(knip(bron, doel).isGelukt()) << hulp::toonBytes(naam);
        EXPECT_EQ(geknipt, hulp::leesBestand(doel)) << naam;
    }
}

TEST_F(BestandKnipperPosix, MerktDatNietAllesGeschrevenIs) {
    hulp::schrijfBestand(in_, std::string(300'000, 'x'));
    rlimit oud{};
    ASSERT_EQ(0, getrlimit(RLIMIT_FSIZE, &oud));
    const rlimit krap{.rlim_cur = 100'000, .rlim_max = oud.rlim_max};
    const auto oudSignaal = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(0, setrlimit(RLIMIT_FSIZE, &krap));
    wxLogBuffer meldingen;
    wxLog* oudDoel = wxLog::SetActiveTarget(&meldingen);
    const auto uitslag = knip(in_, uit_);
    const wxString gemeld = meldingen.GetBuffer();
    wxLog::SetActiveTarget(oudDoel);
    ASSERT_EQ(0, setrlimit(RLIMIT_FSIZE, &oud));
    EXPECT_EQ("", gemeld) << "de uitslag zegt het, en verder niemand";
    std::signal(SIGXFSZ, oudSignaal);
    EXPECT_TRUE(uitslag.bronHeelGelezen);
    EXPECT_FALSE(uitslag.doelHeelGeschreven);
    EXPECT_EQ("", uitslag.bronReden);
    EXPECT_EQ("het bestand wordt groter dan mag", uitslag.doelReden);
    EXPECT_EQ(std::string(300'000, 'x'), hulp::leesBestand(in_));
}

TEST_F(BestandKnipperPosix, GeeftEenNieuwBestandDeGewoneRechten) {
    hulp::schrijfBestand(in_, origineel);
    const mode_t masker = umask(022);
    knip(in_, uit_);
    umask(masker);
    EXPECT_EQ(0644, static_cast<int>(fs::status(uit_).permissions()));
}

TEST_F(BestandKnipperPosix, ZegtWaaromDeBronNietTeLezenIs) {
    hulp::maakBoom(map_.pad(), {{"map", "/"}, {"los", "-> nergens"}, {"rond", "-> rond"}, {"bestand", "x"}});
    ASSERT_EQ(0, mkfifo((map_ / "pijp").c_str(), 0600));
    const int luisteraar = maakSocket(map_ / "socket");
    EXPECT_EQ("bestaat niet", geefBronReden(map_ / "bestaat-niet"));
    EXPECT_EQ("bestaat niet", geefBronReden(map_ / "los"));
    EXPECT_EQ("de links lopen in een kring", geefBronReden(map_ / "rond"));
    EXPECT_EQ("een deel van het pad is geen directory", geefBronReden(map_ / "bestand/x"));
    EXPECT_EQ("de naam is te lang", geefBronReden(map_ / std::string(300, 'n')));
    for (const fs::path& bijzonder : {map_ / "map", map_ / "pijp", map_ / "socket", fs::path("/dev/zero")}) {
        EXPECT_EQ("is geen gewoon bestand", geefBronReden(bijzonder)) << bijzonder;
    }
    close(luisteraar);
}

TEST_F(BestandKnipperPosix, ZegtWaaromDeBronNietVerderTeLezenIs) {
    // Het geheugen van een proces is een gewoon bestand dat vanaf het begin niet te lezen is.
    EXPECT_EQ("de schijf of het netwerk geeft een fout (bestaat)", geefBronReden("/proc/self/mem"));
}

TEST_F(BestandKnipperPosix, ZegtDatDeBronNietVoorDezeGebruikerIs) {
    fs::permissions(map_.pad(), fs::perms::all);
    hulp::maakBoom(map_.pad(), {{"dicht", origineel}, {"map/x", origineel}});
    ASSERT_EQ(0, mkfifo((map_ / "pijp").c_str(), 0000));
    for (const char* naam : {"dicht", "map"}) {
        chmod((map_ / naam).c_str(), 0000);
        if (geteuid() == 0) {
            ASSERT_EQ(0, chown((map_ / naam).c_str(), 1, 1));
        }
    }
    EXPECT_TRUE(hulp::doeAlsGewoneGebruiker([this] {
        const std::string geenToegang = "geen toegang; geef rechten of kies een andere plaats";
        EXPECT_EQ(geenToegang + " (bestaat)", geefBronReden(map_ / "dicht"));
        EXPECT_EQ(geenToegang + " (bestaat)", geefBronReden(map_ / "map/x")) << "het kan er staan";
        EXPECT_EQ(geenToegang, geefBronReden(map_ / "pijp"));
        EXPECT_EQ(geenToegang, geefBronReden(map_ / "map"));
    }));
    chmod((map_ / "map").c_str(), 0700);
}

TEST_F(BestandKnipperPosix, ZegtWaaromHetDoelNietTeSchrijvenIs) {
    hulp::maakBoom(map_.pad(), {{"map", "/"}, {"los", "-> nergens"}, {"rond", "-> rond"}, {"bestand", "x"}});
    ASSERT_EQ(0, mkfifo((map_ / "pijp").c_str(), 0600));
    const int luisteraar = maakSocket(map_ / "socket");
    EXPECT_EQ("bestaat niet", geefDoelReden(map_ / "bestaat-niet/uit"));
    EXPECT_EQ("is een directory", geefDoelReden(map_ / "map"));
    EXPECT_EQ("is een link die nergens heen wijst", geefDoelReden(map_ / "los"));
    EXPECT_EQ("de links lopen in een kring", geefDoelReden(map_ / "rond"));
    EXPECT_EQ("een deel van het pad is geen directory", geefDoelReden(map_ / "bestand/x"));
    for (const fs::path& bijzonder : {map_ / "pijp", map_ / "socket", fs::path("/dev/null")}) {
        EXPECT_EQ("is geen gewoon bestand", geefDoelReden(bijzonder)) << bijzonder;
    }
    close(luisteraar);
}

TEST_F(BestandKnipperPosix, ZegtDatDeSchijfVolIs) {
    const hulp::KleineSchijf schijf(map_ / "schijf");
    if (!schijf.isEr()) {
        GTEST_SKIP() << "alleen root kan een bestandssysteem aankoppelen";
    }
    hulp::schrijfBestand(in_, std::string(600'000, 'x') + "\n" + origineel);
    const auto uitslag = knip(in_, map_ / "schijf/uit.c");
    EXPECT_TRUE(uitslag.bronHeelGelezen);
    EXPECT_FALSE(uitslag.doelHeelGeschreven);
    EXPECT_EQ("", uitslag.bronReden);
    EXPECT_EQ("de schijf is vol; maak ruimte en probeer het opnieuw", uitslag.doelReden);
}
