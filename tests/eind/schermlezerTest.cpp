// Wat een schermlezer van het venster vindt: elk veld, elke lijst en elke knop met een naam, elk label bij
// zijn veld.

#include "tests/eind/toegang.h"

namespace {

using Schermlezer = Toegang;

}  // namespace

TEST_F(Schermlezer, VindtAlleBedieningMetEenNaam) {
    start();
    const std::string verwacht = R"(frame "Knipselaar"
menu bar ""
menu "Bestand"
menu item "About"
menu item "Open File"
menu item "Add File"
menu item "Save"
menu item "Find and Replace"
menu item "Exit"
panel "Parse einde"
label "Parse einde" -> text "Parse einde"
panel "Origineel"
label "Origineel" -> panel "Origineel"
panel "Vervangingstekst"
label "Vervangingstekst" -> text "Vervangingstekst"
panel "Aangepast"
label "Aangepast" -> panel "Aangepast"
panel "Enkel bestand"
label "Enkel bestand"
panel "Batch operatie"
label "Batch operatie"
panel "Parse begin"
label "Parse begin" -> text "Parse begin"
panel "Origineel" <- label "Origineel"
text "Parse begin" <- label "Parse begin"
text "Parse einde" <- label "Parse einde"
panel "Aangepast" <- label "Aangepast"
text "Vervangingstekst" <- label "Vervangingstekst"
panel "Parser Mode"
radio button "Alle bestanden recursief in een directory"
radio button "Alle bestanden in een directory"
radio button "Enkel bestand", gekozen
label "Parser Mode"
push button "Openen"
push button "Toevoegen", uit
push button "Opslaan", uit
label "Bron directory" -> text "Bron directory", uit
text "Bron directory" <- label "Bron directory", uit
push button "Bladeren" (Bron directory), uit
label "Bestemming directory" -> text "Bestemming directory", uit
text "Bestemming directory" <- label "Bestemming directory", uit
push button "Bladeren" (Bestemming directory), uit
combo box "Soort bestanden", uit
menu item "C,C++ en H bestanden"
menu item "VHDL bestanden"
menu item "Alle bestanden"
push button "Zoeken en vervangen", uit
push button "Afsluiten"
)";
    // Vlak na het starten kijkt het programma pas wat er uit hoort te staan.
    hulp::wachtTot([&] { return boom() == verwacht; });
    EXPECT_EQ(verwacht, boom());
    druk("ctrl+q");
    EXPECT_EQ(0, wachtOpEinde());
    EXPECT_EQ("", fouten());
}
