#pragma once

// Wat de tests van bestandKnipper delen: knippen van bestand naar bestand, en wat de uitslag dan zegt.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Knipselaar/kern/bestandKnipper.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/beweringen.h"
#include "tests/kern/voorbeeld.h"

namespace proef {

namespace fs = std::filesystem;

inline const std::vector<hulp::Bewering> bronNietOpen{{"origStroom.IsOk()", ""}};
inline const std::vector<hulp::Bewering> doelNietOpen{{"uitStroom.IsOk()", ""}};

inline wxFileName naarNaam(const fs::path& pad) {
    return wxFileName(wxString::FromUTF8(pad.string()));
}

class BestandKnipper : public testing::Test {
  protected:
    kern::KnipUitslag knip(const fs::path& bron, const fs::path& doel) {
        return kern::knipBestand(naarNaam(bron), naarNaam(doel), teksten);
    }

    void verwachtBronNietOpen(const fs::path& bron, const fs::path& doel) {
        const auto uitslag = knip(bron, doel);
        EXPECT_FALSE(uitslag.bronHeelGelezen);
        EXPECT_FALSE(uitslag.isGelukt());
        EXPECT_EQ(bronNietOpen, hulp::neemBeweringen());
        EXPECT_EQ("", hulp::leesBestand(doel));
    }

    void verwachtDoelNietOpen(const fs::path& bron, const fs::path& doel) {
        const auto uitslag = knip(bron, doel);
        EXPECT_TRUE(uitslag.bronHeelGelezen);
        EXPECT_FALSE(uitslag.doelHeelGeschreven);
        EXPECT_EQ(doelNietOpen, hulp::neemBeweringen());
    }

    /// De reden die een bron geeft, met of er een gewoon bestand staat.
    std::string geefBronReden(const fs::path& bron) {
        const auto uitslag = knip(bron, uit_);
        EXPECT_FALSE(uitslag.bronHeelGelezen) << bron;
        EXPECT_EQ("", uitslag.doelReden) << bron;
        hulp::neemBeweringen();
        return uitslag.bronReden + (uitslag.bronBestaat ? " (bestaat)" : "");
    }

    /// De reden die een doel geeft.
    std::string geefDoelReden(const fs::path& doel) {
        hulp::schrijfBestand(in_, origineel);
        const auto uitslag = knip(in_, doel);
        EXPECT_TRUE(uitslag.bronHeelGelezen) << doel;
        EXPECT_TRUE(uitslag.bronBestaat) << doel;
        EXPECT_EQ("", uitslag.bronReden) << doel;
        EXPECT_FALSE(uitslag.doelHeelGeschreven) << doel;
        hulp::neemBeweringen();
        return uitslag.doelReden;
    }

    hulp::TijdelijkeMap map_;
    fs::path in_ = map_ / "in.c";
    fs::path uit_ = map_ / "uit.c";
};

}  // namespace proef
