// De handleiding en de man-pagina's. De voorbeelden komen uit de handleiding zelf en worden gedraaid zoals
// een docent ze zou overnemen.

#include "tests/cli/shell.h"

namespace fs = std::filesystem;

using hulp::Boom;
using proef::bron;
using proef::foutBron;
using proef::knipsel;

namespace {

using CliHandleiding = proef::Shell;

}  // namespace

TEST_F(CliHandleiding, DeManPaginasZijnInOrde) {
    for (const std::string pad : {BOOM "/docs/man/knipselaar-cli.1", BOOM "/docs/man/nl/knipselaar-cli.1"}) {
        EXPECT_EQ("in orde\n", hulp::voerUit({"sh", "-c",
                                              "LC_ALL=C.UTF-8 man --warnings -E UTF-8 -l -Tutf8 '" + pad +
                                                  "' 2>&1 >/dev/null && echo in orde"}));
        EXPECT_NE(std::string::npos,
                  hulp::leesBestand(pad).find("Knipselaar " + draai({"-V"}).uit.substr(15, 3)));
    }
}

TEST_F(CliHandleiding, DeMakefileKniptWatVeranderdIs) {
    schrijf("Makefile", leesVoorbeeld("Makefile"));
    schrijf("a.c", bron);
    schrijf("b.h", bron);
    const std::string regel = "knipselaar-cli --zonder-instellingen --overschrijf --uit student/";
    const std::string eerste = voerScriptUit("make student");
    EXPECT_NE(std::string::npos, eerste.find(regel + "a.c a.c\n")) << eerste;
    EXPECT_EQ((Boom{{"a.c", knipsel}, {"b.h", knipsel}}), leesBoom("student"));
    EXPECT_EQ(std::string::npos, voerScriptUit("make student").find("knipselaar-cli"));
    const std::string tweede = voerScriptUit("touch -d '1 hour' b.h; make student");
    EXPECT_NE(std::string::npos, tweede.find(regel + "b.h b.h\n")) << tweede;
    EXPECT_EQ(std::string::npos, tweede.find("a.c")) << tweede;
    schrijf("a.c", foutBron);
    const std::string fout = voerScriptUit("touch -d '1 hour' a.c; make student");
    EXPECT_NE(std::string::npos, fout.find("a.c:1: fout: beginmarker zonder eindmarker\n")) << fout;
    EXPECT_EQ(std::string::npos, fout.find("afloop 0")) << fout;
    EXPECT_EQ(knipsel, lees("student/a.c"));
}

TEST_F(CliHandleiding, DeHookHoudtEenFouteCommitTegen) {
    voerScriptUit("git init --quiet");
    schrijf(".git/hooks/pre-commit", leesVoorbeeld("pre-commit"));
    fs::permissions(map_ / ".git/hooks/pre-commit", fs::perms::all);
    schrijf("met spatie.c", bron);
    schrijf("LEESMIJ", foutBron);
    EXPECT_EQ("afloop 0\n", voerScriptUit("git add -A; git commit --quiet -m goed"));
    schrijf("fout.c", foutBron);
    const std::string melding = "./fout.c:1: fout: beginmarker zonder eindmarker\nafloop 1\n";
    EXPECT_EQ(melding, voerScriptUit("git add -A; git commit --quiet -m fout"));
    schrijf("fout.c", bron);
    EXPECT_EQ(melding, voerScriptUit("git commit --quiet -m fout")) << "alleen in de werkkopie hersteld";
    EXPECT_EQ("afloop 0\n", voerScriptUit("git add -A; git commit --quiet -m hersteld"));
    schrijf("fout.c", foutBron);
    EXPECT_EQ("afloop 0\n", voerScriptUit("git commit --quiet --allow-empty -m nietfout"))
        << "de fout zit niet in de commit";
    EXPECT_EQ("./anders.c:1: fout: beginmarker zonder eindmarker\nafloop 1\n",
              voerScriptUit("git mv fout.c anders.c; git add -A; git commit --quiet -m anders"));
    schrijf("anders.c", "//**** STUDENT BEGIN ****//\n");
    EXPECT_EQ("./anders.c:1: fout: bijna een beginmarker; zo telt hij niet\nafloop 1\n",
              voerScriptUit("git add -A; git commit --quiet -m bijna"));
    EXPECT_EQ("nietfout\nhersteld\ngoed\nafloop 0\n", voerScriptUit("git log --format=%s"));
    EXPECT_EQ("afloop 0\n",
              voerScriptUit("git rm -f --quiet '*.c'; git commit --quiet --allow-empty -m leeg"))
        << "zonder C of VHDL valt er niets na te kijken";
}

TEST_F(CliHandleiding, DeTaakPubliceertDeStudentversie) {
    std::string script;
    for (const std::string& regel : leesRegels(leesVoorbeeld("studentversie"))) {
        script += regel.starts_with("    - ") ? regel.substr(6) + "\n" : "";
    }
    schrijf("opdrachten/lab1/a.c", bron);
    schrijf("opdrachten/lab1/Makefile", "all:\n");
    voerScriptUit(
        "git init --quiet --bare -b hoofd ../student.git; git init --quiet; git add -A; git commit -q -m "
        "een");
    const auto gepubliceerd = [this] {
        return voerScriptUit(
            "git -C ../student.git ls-tree -r --name-only HEAD; git -C ../student.git show "
            "HEAD:lab1/a.c; git -C ../student.git rev-list --count HEAD");
    };
    const auto publiceer = [&] {
        fs::remove_all(map_ / "student");
        return voerScriptUit(script);
    };
    const std::string eerste = publiceer();
    EXPECT_TRUE(eerste.ends_with("1 bestand geknipt, 1 blok, 1 overgenomen, bewezen schoon\nafloop 0\n"))
        << eerste;
    EXPECT_EQ("lab1/Makefile\nlab1/a.c\n" + knipsel + "1\nafloop 0\n", gepubliceerd());
    EXPECT_NE(std::string::npos, publiceer().find("afloop 0")) << "zonder verandering";
    EXPECT_EQ("lab1/Makefile\nlab1/a.c\n" + knipsel + "1\nafloop 0\n", gepubliceerd());
    schrijf("opdrachten/LEESMIJ", "geheime oplossing\n");
    const std::string lek = publiceer();
    EXPECT_NE(std::string::npos,
              lek.find("student/LEESMIJ:1: fout: hier staat de weggelaten regel van opdrachten/lab1/a.c:3\n"))
        << lek;
    EXPECT_TRUE(lek.ends_with("afloop 1\n")) << lek;
    EXPECT_EQ("lab1/Makefile\nlab1/a.c\n" + knipsel + "1\nafloop 0\n", gepubliceerd());
    schrijf("opdrachten/LEESMIJ", "veel plezier\n");
    fs::remove(map_ / "opdrachten/lab1/Makefile");
    publiceer();
    EXPECT_EQ("LEESMIJ\nlab1/a.c\n" + knipsel + "2\nafloop 0\n", gepubliceerd());
    voerScriptUit(
        "rm -rf student; git clone --quiet \"$STUDENTREPO\" student; cd student; mkdir .ci; touch .gitignore "
        ".ci/taak "
        "lab1/.clang-format; git add -A; git commit -q -m punten; git push -q origin HEAD");
    schrijf("opdrachten/LEESMIJ", "heel veel plezier\n");
    publiceer();
    EXPECT_EQ(".ci/taak\n.gitignore\nLEESMIJ\nlab1/.clang-format\nlab1/a.c\n" + knipsel + "4\nafloop 0\n",
              gepubliceerd());
}

TEST_F(CliHandleiding, DeEersteVoorbeeldenWerken) {
    schrijf("ringbuffer.c", bron);
    schrijf("x.h", bron);
    schrijf("lab/a.c", bron);
    schrijf("lab/LEESMIJ", "tekst");
    schrijf("kopie/b.c", bron);
    schrijf("teller.vhd", bron);
    const std::string handleiding = hulp::leesBestand(BOOM "/docs/handleiding-cli.md");
    const std::size_t begin = handleiding.find("```sh\n") + 6;
    const std::string uitvoer =
        voerScriptUit(handleiding.substr(begin, handleiding.find("```", begin) - begin));
    EXPECT_TRUE(uitvoer.ends_with("afloop 0\n")) << uitvoer;
    EXPECT_EQ((Boom{{"LEESMIJ", "tekst"}, {"a.c", knipsel}}), leesBoom("student"));
    EXPECT_EQ((Boom{{"opgave.c", knipsel}, {"ringbuffer.c", knipsel}, {"x.h", knipsel}}),
              leesBoom("opgaven"));
    EXPECT_EQ(knipsel, lees("opgave.c"));
    EXPECT_EQ(knipsel, lees("kopie/b.c"));
}

TEST_F(CliHandleiding, DeInstallatieZetAllesNeer) {
    const fs::path doel = alles_ / "installatie";
    const std::string verslag =
        hulp::voerUit({"sh", "-c", "cmake --install '" BOUWMAP "' --prefix '" + doel.string() + "' 2>&1"});
    for (const char* pad :
         {"bin/knipselaar-cli", "share/man/man1/knipselaar-cli.1", "share/man/nl/man1/knipselaar-cli.1",
          "share/bash-completion/completions/knipselaar-cli", "share/zsh/vendor-completions/_knipselaar-cli",
          "share/fish/vendor_completions.d/knipselaar-cli.fish",
          "lib/cmake/Knipselaar/KnipselaarConfig.cmake",
          "lib/cmake/Knipselaar/KnipselaarConfigVersion.cmake"}) {
        EXPECT_TRUE(fs::is_regular_file(doel / pad)) << pad << "\n" << verslag;
    }
    EXPECT_EQ("knipselaar-cli 1.0\n", draai({"-V"}, {.programma = doel / "bin/knipselaar-cli"}).uit);
}
