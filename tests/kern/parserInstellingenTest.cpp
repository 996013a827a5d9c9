#include "Knipselaar/kern/parserInstellingen.h"

#include <gtest/gtest.h>
#include <wx/fileconf.h>
#include <wx/log.h>
#include <wx/sstream.h>
#include <wx/utils.h>

#include <memory>

#include "tests/hulp/bestanden.h"
#include "tests/hulp/beweringen.h"

using kern::ParserInstellingen;

namespace {

std::unique_ptr<wxFileConfig> maakOpslag(const wxString& inhoud) {
    wxStringInputStream stroom(inhoud);
    auto opslag = std::make_unique<wxFileConfig>(stroom);
    opslag->SetExpandEnvVars(false);
    return opslag;
}

wxString toonOpslag(wxFileConfig& opslag) {
    wxStringOutputStream stroom;
    opslag.Save(stroom);
    return stroom.GetString();
}

void verwachtGelijk(const ParserInstellingen& a, const ParserInstellingen& b) {
    EXPECT_EQ(a.origineelPad, b.origineelPad);
    EXPECT_EQ(a.aangepastPad, b.aangepastPad);
    EXPECT_EQ(a.verwerkingkeuze, b.verwerkingkeuze);
    EXPECT_EQ(a.beginMarker, b.beginMarker);
    EXPECT_EQ(a.eindMarker, b.eindMarker);
    EXPECT_EQ(a.vervangtekst, b.vervangtekst);
}

}  // namespace

TEST(ParserInstellingen, GeeftStandaardwaardenUitEenLegeOpslag) {
    wxSetEnv("HOME", "/thuis/van/de/test");
    const auto opslag = maakOpslag("");
    const ParserInstellingen verwacht{
        .origineelPad = "/thuis/van/de/test",
        .aangepastPad = "/thuis/van/de/test",
        .verwerkingkeuze = 0,
        .beginMarker = "//**** Student Begin ****//",
        .eindMarker = "//**** Student Eind ****//",
        .vervangtekst =
            "#error \"Dit stuk software ontbreekt.\"\n/* Beste student,\n    Dit stuk ontbreekt. "
            "Werk dit uit om de opdracht uit te voeren.  */\n"};
    verwachtGelijk(verwacht, ParserInstellingen::lees(*opslag));
    EXPECT_EQ(127U, verwacht.vervangtekst.length());
    EXPECT_EQ("/Configuratie", opslag->GetPath());
}

TEST(ParserInstellingen, SchrijftDeZesSleutelsOpVolgorde) {
    const auto opslag = maakOpslag("");
    const ParserInstellingen record{"/een", "/twee", 2, "BB", "EE", "regel 1\nregel 2\n"};
    record.schrijf(*opslag);
    EXPECT_EQ(hulp::zetInBestand("[Configuratie]\n"
                                 "OrigineelPad=/een\n"
                                 "AangepastPad=/twee\n"
                                 "Verwerkingkeuze=2\n"
                                 "BeginMarker=BB\n"
                                 "EindMarker=EE\n"
                                 "Vervangtekst=regel 1\\nregel 2\\n\n"),
              toonOpslag(*opslag));
}

TEST(ParserInstellingen, KomenOngewijzigdTerug) {
    const ParserInstellingen records[] = {
        {"/een", "/twee", 1, "", "", ""},
        {"/met spatie", "/één €", 2, "$HOME ${PATH} \\$x", "a=b;c#d", "\n\nregel\\n\t  \n  "},
        {" voor", "achter ", -3, "\"aanhaling\"", "[groep]", "\"begint en eindigt\""},
        {"/", "", 99, "/**/", "\\", "!"},
    };
    for (const auto& record : records) {
        const auto opslag = maakOpslag("");
        record.schrijf(*opslag);
        const auto herlezen = maakOpslag(toonOpslag(*opslag));
        verwachtGelijk(record, ParserInstellingen::lees(*herlezen));
    }
}

TEST(ParserInstellingen, HangenNietVanHetHuidigePadAf) {
    const auto opslag = maakOpslag("[Configuratie]\nBeginMarker=hier\n[elders]\nBeginMarker=daar\n");
    opslag->SetPath("/elders");
    EXPECT_EQ("hier", ParserInstellingen::lees(*opslag).beginMarker);
}

TEST(ParserInstellingen, OverlevenOnzinInDeOpslag) {
    const wxLogNull stil;
    const auto opslag =
        maakOpslag("[Configuratie]\nVerwerkingkeuze=geen getal\nonzin\n]]]\n=\nEindMarker=e\n");
    hulp::neemBeweringen();  // de toolkit beweert bij het inlezen dat een sleutel een naam heeft
    const auto record = ParserInstellingen::lees(*opslag);
    EXPECT_EQ(0, record.verwerkingkeuze);
    EXPECT_EQ("e", record.eindMarker);
    EXPECT_EQ("//**** Student Begin ****//", record.beginMarker);
}
