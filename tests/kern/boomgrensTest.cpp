// Wat er bij een boom hoort, ook als het bestandssysteem daar geen antwoord op geeft.

#include <gtest/gtest.h>

#include "Knipselaar/kern/batch.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/bestandsboom.h"
#include "tests/kern/voorbeeld.h"

namespace fs = std::filesystem;

namespace {

/// Neemt alles en onthoudt alleen hoeveel bestanden overgeslagen werden.
class Teller : public kern::BatchOpdracht {
  public:
    bool isGekozen(const wxFileName& /*bestand*/) override { return true; }
    kern::KnipUitslag knip(const wxFileName& bron, const wxFileName& bestemming) override {
        return kern::knipBestand(bron, bestemming, proef::teksten);
    }
    void meldOvergeslagen(long /*nummer*/, const wxFileName& /*bestand*/, kern::Overslag reden) override {
        EXPECT_EQ(kern::Overslag::buitenBoom, reden);
        ++overgeslagen;
    }
    void meldVerwerkt(long /*nummer*/, const wxFileName& /*bron*/,
                      const wxFileName& /*bestemming*/) override {}
    void meldAfloop(const kern::Afloop& /*afloop*/) override {}

    int overgeslagen = 0;
};

}  // namespace

TEST(Boomgrens, LigtNergensAlsDeBoomNietTeVindenIs) {
    const hulp::TijdelijkeMap map;
    const hulp::Boom vooraf{{"a.c", proef::origineel}};
    hulp::maakBoom(map.pad(), vooraf);
    Teller teller;
    kern::knipBoom(wxString::FromUTF8((map / "weg").string()), {wxString::FromUTF8((map / "a.c").string())},
                   teller);
    EXPECT_EQ(1, teller.overgeslagen);
    EXPECT_EQ(vooraf, hulp::leesBoom(map.pad()));
}
