#include <sys/stat.h>

#include "tests/venster/bestandsOpdrachten.h"

TEST_F(BestandsOpdrachten, LatenEenPijpMetRust) {
    const auto pijp = geefOmgeving().werk() / "pijp.c";
    ASSERT_EQ(0, mkfifo(pijp.c_str(), 0600));
    origineel()->SetText("was er al");
    kies(wxID_ADD, pijp);
    EXPECT_EQ("was er al", tekstVan(origineel()));
    kies(wxID_OPEN, pijp);
    EXPECT_EQ("", tekstVan(origineel()));
    aangepast()->SetText("x");
    kies(wxID_SAVE, pijp);
    EXPECT_TRUE(std::filesystem::is_fifo(pijp));
}

TEST_F(BestandsOpdrachten, WerkenMetAanhalingstekensInEenNaam) {
    werktMet("aan\"haling's.c");
}
