// In een teken van de toolkit past hier meer dan Unicode heeft; onder Windows is het 16 bits.

#include <gtest/gtest.h>
#include <wx/fileconf.h>
#include <wx/sstream.h>

#include "Knipselaar/kern/parserInstellingen.h"

TEST(InstellingenTeken, NeemtNietsOverVoorbijHetLaatsteCodepunt) {
    wxStringInputStream leeg("");
    wxFileConfig opslag(leeg);
    opslag.Write("/Configuratie/BeginMarker", wxString(wxUniChar(0x11F600)) + "x");
    opslag.Write("/Configuratie/EindMarker", wxString(wxUniChar(0x10FFFF)));
    const auto record = kern::ParserInstellingen::lees(opslag);
    EXPECT_EQ("//**** Student Begin ****//", record.beginMarker);
    EXPECT_EQ(wxString(wxUniChar(0x10FFFF)), record.eindMarker);
}
