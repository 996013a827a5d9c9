#include "Knipselaar/kern/herkomst.h"

#include <gtest/gtest.h>

namespace {

const kern::KnipTeksten korteTeksten{"B", "E", "V"};
const kern::Herkomst herkomst{
    .pad = "/les/ringbuffer.c", .naam = "ringbuffer.c", .teksten = korteTeksten, .origineel = "a\nB\nE\n"};

wxString noem(const wxString& pad, const kern::KnipTeksten& nu, std::string_view origineel) {
    return kern::noemVeroudering(herkomst, pad, nu, origineel);
}

constexpr const char* kop = "dit resultaat hoort bij ringbuffer.c; sinds het knippen: ";

}  // namespace

TEST(Herkomst, ZegtNietsZolangOpnieuwKnippenHetzelfdeGeeft) {
    EXPECT_EQ("", noem("/les/ringbuffer.c", korteTeksten, "a\nB\nE\n"));
}

TEST(Herkomst, NoemtHetBestandEnWatErVeranderde) {
    const wxString pad = "/les/ringbuffer.c";
    EXPECT_EQ(wxString(kop) + "het origineel is veranderd", noem(pad, korteTeksten, "a\n"));
    EXPECT_EQ(wxString(kop) + "een marker is veranderd", noem(pad, {"X", "E", "V"}, "a\nB\nE\n"));
    EXPECT_EQ(wxString(kop) + "een marker is veranderd", noem(pad, {"B", "X", "V"}, "a\nB\nE\n"));
    EXPECT_EQ(wxString(kop) + "de vervangingstekst is veranderd", noem(pad, {"B", "E", "X"}, "a\nB\nE\n"));
    EXPECT_EQ(wxString(kop) +
                  "het origineel is veranderd, een marker is veranderd, de vervangingstekst is veranderd",
              noem(pad, {"X", "X", "X"}, ""));
}

TEST(Herkomst, ZegtBijEenAnderBestandAlleenDat) {
    for (const char* pad : {"/les/matrix.c", "/les2/ringbuffer.c"}) {
        EXPECT_EQ(wxString(kop) + "er is een ander bestand geopend of toegevoegd",
                  noem(pad, {"X", "E", "V"}, "anders"));
        EXPECT_EQ(wxString(kop) + "er is een ander bestand geopend of toegevoegd",
                  noem(pad, korteTeksten, "a\nB\nE\n"))
            << "ook met dezelfde inhoud";
    }
}
