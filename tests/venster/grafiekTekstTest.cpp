// De twee teksten op het veld: hun kleur en hun plaats. Letters zijn gladgestreken, dus een rand ligt tussen
// de kleur van de letter en wit; alleen de kern van een letter heeft precies haar kleur.

#include "tests/venster/grafiekTest.h"

namespace {

class GrafiekTekstTest : public GrafiekTest {
  protected:
    enum class Soort { normaal, groot };

    /// Of elk beeldpunt op de rechte tussen wit en deze kleur ligt, en de kleur zelf voorkomt.
    static void verwachtKleur(const Beeld& beeld, const wxColour& kleur) {
        int zuiver = 0;
        int vreemd = 0;
        for (int y = 0; y < 400; ++y) {
            for (int x = 0; x < 600; ++x) {
                const wxColour punt = beeld.kleur(x, y);
                zuiver += punt == kleur ? 1 : 0;
                vreemd += (kleur.Red() == 255 && punt.Red() != 255) ||
                                  (kleur.Green() == 255 && punt.Green() != 255) ||
                                  (kleur.Blue() == 255 && punt.Blue() != 255)
                              ? 1
                              : 0;
            }
        }
        EXPECT_GT(zuiver, 50);
        EXPECT_EQ(0, vreemd);
    }

    /// Schrijft een letter en geeft het gebied dat hij inneemt.
    wxRect schrijf(Soort soort, const wxString& tekst, const wxPoint& plaats) {
        paneel_->maakSchoon();
        if (soort == Soort::groot) {
            paneel_->zetGroteText(tekst, plaats);
        } else {
            paneel_->zetNormaleText(tekst, plaats);
        }
        return beeld().gebied();
    }

    /// De letter hoort met de linkerbovenhoek van zijn vak op het punt te staan. Hoeveel lucht er in dat vak
    /// zit is aan de letter, dus ook de maat van het vak wordt aan de tekencontext gevraagd.
    void verwachtPlaats(Soort soort, const wxFont& font, const wxPoint& plaats) {
        const wxRect gebied = schrijf(soort, "H", plaats);
        const wxPoint hoek = paneel_->transCoord(plaats);
        const wxSize vak = wxSize(lid(&GrafiekInzage::tekeningDC).GetTextExtent("H"));
        EXPECT_EQ(font, lid(&GrafiekInzage::tekeningDC).GetFont());
        const int overhang = vak.GetHeight() / 8;  // een cursieve letter mag opzij uit zijn vak hangen
        EXPECT_TRUE(wxRect(hoek, vak).Inflate(overhang, 0).Contains(gebied))
            << testing::PrintToString(gebied) << " om " << hoek.x << "," << hoek.y;
        EXPECT_NEAR(hoek.x, gebied.x, overhang);
        EXPECT_GT(gebied.height, vak.GetHeight() / 2);
    }
};

}  // namespace

TEST_F(GrafiekTekstTest, SchrijftNormaleTekstInBlauw) {
    paneel_->zetNormaleText("Knipselaar", wxPoint(50, 300));
    verwachtKleur(beeld(), wxColour(0, 0, 255));
    EXPECT_EQ(wxColour(0, 0, 255), lid(&GrafiekInzage::tekeningDC).GetTextForeground());
}

TEST_F(GrafiekTekstTest, SchrijftGroteTekstInCyaan) {
    paneel_->zetGroteText("Hij", wxPoint(50, 300));
    verwachtKleur(beeld(), wxColour(0, 255, 255));
    EXPECT_EQ(wxColour(0, 255, 255), lid(&GrafiekInzage::tekeningDC).GetTextForeground());
}

TEST_F(GrafiekTekstTest, ZetTekstMetZijnHoekOpHetPunt) {
    verwachtPlaats(Soort::normaal, lid(&GrafiekInzage::normaleFont), wxPoint(100, 300));
    verwachtPlaats(Soort::groot, lid(&GrafiekInzage::groteFont), wxPoint(100, 300));
    paneel_->zetOorsprongMidden();
    verwachtPlaats(Soort::normaal, lid(&GrafiekInzage::normaleFont), wxPoint(-70, 20));
    verwachtPlaats(Soort::groot, lid(&GrafiekInzage::groteFont), wxPoint(-70, 150));
}

TEST_F(GrafiekTekstTest, VerplaatstTekstMetHetPuntMee) {
    for (const Soort soort : {Soort::normaal, Soort::groot}) {
        wxRect gebied = schrijf(soort, "H", wxPoint(100, 300));
        gebied.Offset(50, -30);
        EXPECT_EQ(gebied, schrijf(soort, "H", wxPoint(150, 330)));
    }
}

TEST_F(GrafiekTekstTest, SchrijftGrootVijfmaalZoGroot) {
    const wxRect normaal = schrijf(Soort::normaal, "H", wxPoint(100, 300));
    const wxRect groot = schrijf(Soort::groot, "H", wxPoint(100, 300));
    EXPECT_NEAR(5.0, static_cast<double>(groot.height) / normaal.height, 0.3);
}

TEST_F(GrafiekTekstTest, WisseltLetterEnKleurPerTekst) {
    const wxRect eerst = schrijf(Soort::normaal, "H", wxPoint(100, 300));
    schrijf(Soort::groot, "H", wxPoint(100, 300));
    EXPECT_EQ(eerst, schrijf(Soort::normaal, "H", wxPoint(100, 300)));
    verwachtKleur(beeld(), wxColour(0, 0, 255));
    paneel_->zetNormaleText("", wxPoint(0, 100));
    EXPECT_EQ(eerst, beeld().gebied()) << "een lege tekst tekent niets";
}
