// De batches uit het venster, op wat er op POSIX nog meer in een directory kan staan: links en pijpen.

#include <sys/stat.h>
#include <wx/log.h>

#include "tests/venster/batchVenster.h"

namespace fs = std::filesystem;

namespace {

using VlakkeBatch = BatchTest;
using RecursieveBatch = BatchTest;

}  // namespace

TEST_F(VlakkeBatch, VraagtOokBijEenLinkNaarDeBron) {
    hulp::maakBoom(bron_, {{"a.c", metBlok}});
    const fs::path via = geefOmgeving().werk() / "via";
    fs::create_directory_symlink("bron", via);
    verwachtVraag(via);
}

TEST_F(RecursieveBatch, MeldtNietDatEenBestandNietLukt) {
    ASSERT_EQ(0, mkfifo((doel_ / "pijp.c").c_str(), 0600));
    zonderDialoog([this] {
        knipBoom();
        wxLog::FlushActive();
    });
    EXPECT_EQ("In totaal 1 bestanden en directories gevonden in " + doelPad() +
                  "\nOrig bestand 1:" + doelPad() + "/pijp.c\n",
              tekstVan(origineel()));
    hulp::neemBeweringen();
}

TEST_F(RecursieveBatch, SchrijftEenLinkDieNergensHeenWijstAlsVerwerktOp) {
    hulp::maakBoom(doel_, {{"sub/los.c", "-> nergens"}, {"a.c", metBlok}});
    zonderDialoog([this] {
        knipBoom();
        wxLog::FlushActive();
    });
    EXPECT_EQ("In totaal 2 bestanden en directories gevonden in " + doelPad() +
                  "\nOrig bestand 1:" + doelPad() + "/sub/los.c\nOrig bestand 2:" + doelPad() + "/a.c\n",
              tekstVan(origineel()));
    EXPECT_EQ("Student bestand 1:" + doelPad() + "/sub/los.c\nStudent bestand 2:" + doelPad() + "/a.c\n",
              tekstVan(aangepast()));
    EXPECT_EQ((hulp::Boom{{"sub", "/"}, {"sub/los.c", "-> nergens"}, {"a.c", zonderBlok}}),
              hulp::leesBoom(doel_));
    hulp::neemBeweringen();
}
