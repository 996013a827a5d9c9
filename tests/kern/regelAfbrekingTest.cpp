#include "Knipselaar/kern/regelAfbreking.h"

#include <gtest/gtest.h>

#include "Knipselaar/kern/regeleinden.h"

namespace {

wxString breek(const wxString& regel, std::size_t breedte) {
    return kern::breekAf(regel, [breedte](const wxString& deel) { return deel.length() <= breedte; });
}

}  // namespace

TEST(RegelAfbreking, BreektAfOpSpatiesEnSpringtIn) {
    EXPECT_EQ("een twee drie", breek("een twee drie", 13));
    EXPECT_EQ("een twee\n  drie", breek("een twee drie", 12));
    EXPECT_EQ("een\n  twee\n  drie", breek("een twee drie", 7));
    EXPECT_EQ("een twee\n  drie\n  vier", breek("een twee drie vier", 10)) << "de inspringing telt mee";
    EXPECT_EQ("een twee\n  drie vier", breek("een twee drie vier", 11));
    EXPECT_EQ("een\n  langwoord\n  x", breek("een langwoord x", 5)) << "een woord blijft heel";
    EXPECT_EQ("", breek("", 3));
}

TEST(RegelAfbreking, MaaktWeerHeel) {
    EXPECT_TRUE(kern::maakHeel("").empty());
    const wxString lang = wxString::FromUTF8("één lange zin met é en nog wat");
    for (std::size_t breedte = 1; breedte < 40; ++breedte) {
        const wxString eerste = breek(lang, breedte);
        const wxString tweede = breek("en een tweede", breedte);
        EXPECT_EQ(
            (std::vector<kern::HeleRegel>{{lang, 0}, {"en een tweede", eerste.utf8_str().length() + 1}}),
            kern::maakHeel(eerste + "\n" + tweede))
            << breedte;
    }
}

TEST(Regeleinden, WordenAlleLF) {
    EXPECT_EQ("", kern::zetRegeleindenOm(""));
    EXPECT_EQ("a\nb", kern::zetRegeleindenOm("a\nb"));
    EXPECT_EQ("a\nb\n\nc\n", kern::zetRegeleindenOm("a\r\nb\r\rc\n"));
    EXPECT_EQ("\n\n", kern::zetRegeleindenOm("\n\r"));
    EXPECT_EQ("\n\n", kern::zetRegeleindenOm("\r\r\n"));
}
