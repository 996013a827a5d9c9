// Het venster zoals het bij een eerste start verschijnt, en zoals een opslag het terugbrengt.

#include <wx/config.h>
#include <wx/fileconf.h>
#include <wx/sstream.h>

#include "tests/venster/vensterTest.h"

namespace {

constexpr const char* vervangtekst =
    "#error \"Dit stuk software ontbreekt.\"\n/* Beste student,\n    Dit stuk ontbreekt. Werk dit uit om de "
    "opdracht uit te voeren.  */\n";

using BeginToestand = VensterTest;

class Herstel : public VensterTest {
  protected:
    void schrijfOpslag(const char* sleutel, const wxString& waarde) const {
        wxGetApp().configuratie->Write(wxString("/Configuratie/") + sleutel, waarde);
    }

    /// De groep "/Configuratie" als tekst, op alfabet.
    static std::string toonGroep() {
        auto* opslag = wxGetApp().configuratie;
        std::string tekst;
        opslag->SetPath("/Configuratie");
        wxString sleutel;
        long teller = 0;
        for (bool verder = opslag->GetFirstEntry(sleutel, teller); verder;
             verder = opslag->GetNextEntry(sleutel, teller)) {
            tekst += (sleutel + "=" + opslag->Read(sleutel) + "\n").utf8_string();
        }
        return tekst;
    }
};

}  // namespace

TEST_F(BeginToestand, ToontDeStandaardwaarden) {
    const wxString thuis = naarWx(geefOmgeving().thuis());
    EXPECT_EQ("Knipselaar", venster_->GetTitle());
    EXPECT_EQ(thuis, lid(&Inzage::bronDirKiezer)->GetPath());
    EXPECT_EQ(thuis, lid(&Inzage::bestemmingDirKiezer)->GetPath());
    EXPECT_EQ(thuis, lid(&Inzage::bronDirKiezer)->GetTextCtrl()->GetToolTipText());
    EXPECT_EQ(thuis, lid(&Inzage::bestemmingDirKiezer)->GetTextCtrl()->GetToolTipText());
    EXPECT_EQ(thuis, lid(&Inzage::origineelPad));
    EXPECT_EQ(thuis, lid(&Inzage::aangepastPad));
    EXPECT_EQ(0, modus()->GetSelection());
    EXPECT_EQ("//**** Student Begin ****//", lid(&Inzage::beginMarkerTekst)->GetValue());
    EXPECT_EQ("//**** Student Eind ****//", lid(&Inzage::eindMarkerTekst)->GetValue());
    EXPECT_EQ(vervangtekst, lid(&Inzage::vervangTekst)->GetValue());
    EXPECT_EQ("", tekstVan(origineel()));
    EXPECT_EQ("", tekstVan(aangepast()));
    EXPECT_EQ(0, lid(&Inzage::bestandTypeKeuze)->GetSelection());
    EXPECT_FALSE(lid(&Inzage::huidigBestand).IsOk());
    EXPECT_FALSE(lid(&Inzage::origineelGeladen));
    EXPECT_FALSE(lid(&Inzage::bronGekozen));
    EXPECT_FALSE(lid(&Inzage::bestemmingGekozen));
    EXPECT_FALSE(lid(&Inzage::bezigMetScrollen));
    EXPECT_EQ(wxGetApp().configuratie, lid(&Inzage::config));
    EXPECT_EQ("/Configuratie", wxGetApp().configuratie->GetPath());
}

TEST_F(BeginToestand, SchakeltAlleenOpenenEnAfsluitenIn) {
    laatLopen();
    EXPECT_TRUE(lid(&Inzage::openKnop)->IsEnabled());
    EXPECT_TRUE(lid(&Inzage::eindeKnop)->IsEnabled());
    EXPECT_FALSE(lid(&Inzage::voegToeKnop)->IsEnabled());
    EXPECT_FALSE(lid(&Inzage::opslaanKnop)->IsEnabled());
    EXPECT_FALSE(lid(&Inzage::pasAanKnop)->IsEnabled());
}

TEST_F(BeginToestand, IsMeteenUitgeschakeldNogVoorDeHoofdlusKijkt) {
    ParserVenster* ander = maakVenster();
    EXPECT_FALSE((ander->*&Inzage::opslaanKnop)->IsEnabled());
    EXPECT_FALSE((ander->*&Inzage::pasAanKnop)->IsEnabled());
    sluitVenster(ander);
}

TEST_F(Herstel, BrengtAlleWaardenTerug) {
    schrijfOpslag("OrigineelPad", "/usr/include");
    schrijfOpslag("AangepastPad", "/usr/share");
    schrijfOpslag("Verwerkingkeuze", "1");
    schrijfOpslag("BeginMarker", "$HOME ${PATH} begin");
    schrijfOpslag("EindMarker", "");
    schrijfOpslag("Vervangtekst", "één\n\n  twee\n");
    ParserVenster* ander = maakVenster();
    EXPECT_EQ("/usr/include", ander->*&Inzage::origineelPad);
    EXPECT_EQ("/usr/share", ander->*&Inzage::aangepastPad);
    EXPECT_EQ("/usr/include", (ander->*&Inzage::bronDirKiezer)->GetPath());
    EXPECT_EQ("/usr/share", (ander->*&Inzage::bestemmingDirKiezer)->GetPath());
    EXPECT_EQ("/usr/include", (ander->*&Inzage::bronDirKiezer)->GetTextCtrl()->GetToolTipText());
    EXPECT_EQ("/usr/share", (ander->*&Inzage::bestemmingDirKiezer)->GetTextCtrl()->GetToolTipText());
    EXPECT_EQ(1, (ander->*&Inzage::parserModeKeuze)->GetSelection());
    EXPECT_FALSE(ander->*&Inzage::bronGekozen)
        << "in een directory telt een pad uit de opslag niet als keuze";
    EXPECT_FALSE(ander->*&Inzage::bestemmingGekozen);
    EXPECT_EQ("$HOME ${PATH} begin", (ander->*&Inzage::beginMarkerTekst)->GetValue());
    EXPECT_EQ("", (ander->*&Inzage::eindMarkerTekst)->GetValue());
    EXPECT_EQ(wxString::FromUTF8("één\n\n  twee\n"), (ander->*&Inzage::vervangTekst)->GetValue());
    EXPECT_EQ(0, (ander->*&Inzage::bestandTypeKeuze)->GetSelection());
    sluitVenster(ander);
}

TEST_F(Herstel, TeltDeBronAlsGekozenInDeRecursieveModus) {
    schrijfOpslag("Verwerkingkeuze", "2");
    ParserVenster* ander = maakVenster();
    EXPECT_EQ(2, (ander->*&Inzage::parserModeKeuze)->GetSelection());
    EXPECT_TRUE(ander->*&Inzage::bronGekozen);
    EXPECT_FALSE(ander->*&Inzage::bestemmingGekozen);
    sluitVenster(ander);
}

TEST_F(Herstel, NegeertEenModusDieNietBestaat) {
    for (const char* waarde : {"3", "-1", "99999999999", "onzin"}) {
        schrijfOpslag("Verwerkingkeuze", waarde);
        ParserVenster* ander = maakVenster();
        EXPECT_EQ(0, (ander->*&Inzage::parserModeKeuze)->GetSelection()) << waarde;
        EXPECT_FALSE(ander->*&Inzage::bronGekozen) << waarde;
        sluitVenster(ander);
        EXPECT_EQ("0", wxGetApp().configuratie->Read("/Configuratie/Verwerkingkeuze"));
    }
}

TEST_F(Herstel, SchrijftDeWaardenBijHetSluiten) {
    ParserVenster* ander = maakVenster();
    ander->*& Inzage::origineelPad = "/een/bron";
    ander->*& Inzage::aangepastPad = "/een/bestemming";
    (ander->*&Inzage::parserModeKeuze)->SetSelection(2);
    (ander->*&Inzage::bestandTypeKeuze)->SetSelection(2);
    (ander->*&Inzage::beginMarkerTekst)->SetValue("$HOME");
    (ander->*&Inzage::eindMarkerTekst)->SetValue("");
    (ander->*&Inzage::vervangTekst)->SetValue("een\ntwee\n");
    wxGetApp().configuratie->SetPath("/elders");
    sluitVenster(ander);
    EXPECT_EQ(
        "AangepastPad=/een/bestemming\nBeginMarker=$HOME\nEindMarker=\nOrigineelPad=/een/bron\n"
        "Vervangtekst=een\ntwee\n\nVerwerkingkeuze=2\n",
        toonGroep());
}
