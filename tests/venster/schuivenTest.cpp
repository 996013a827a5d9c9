// Het gelijk opschuiven van twee teksten die niet even lang zijn: elke regel van beide is te bereiken en
// blijft dan in beeld, en een regel die beide hebben staat bij beide bovenaan.

#include <algorithm>
#include <string>
#include <vector>

#include "tests/venster/vensterTest.h"

namespace {

std::string maakRegels(int aantal, const std::string& staart = "") {
    std::string tekst;
    for (int i = 1; i < aantal; ++i) {
        tekst += "regel " + std::to_string(i) + staart + "\n";
    }
    return tekst;
}

class OngelijkSchuiven : public VensterTest {
  protected:
    void zet(const std::string& links, const std::string& rechts) {
        origineel()->SetText(links);
        aangepast()->SetText(rechts);
        rust();
    }

    /// Laat beide editors een paar keer tekenen: wie de ander wil verschuiven heeft dat dan gedaan.
    void rust() {
        constexpr int keren = 3;
        for (int keer = 0; keer < keren; ++keer) {
            int getekend = 0;
            const auto tel = [&getekend](wxPaintEvent& event) {
                ++getekend;
                event.Skip();
            };
            for (auto* editor : {origineel(), aangepast()}) {
                getekend = 0;
                editor->Bind(wxEVT_PAINT, tel);
                editor->Refresh();
                EXPECT_TRUE(laatLopenTot([&getekend] { return getekend > 0; }));
                editor->Unbind(wxEVT_PAINT, tel);
            }
        }
    }

    static int laatsteRegel(wxStyledTextCtrl* editor) {
        return editor->VisibleFromDocLine(editor->GetLineCount()) - 1;
    }

    /// Schuift een editor naar elke regel van een reeks en verwacht dat hij daar blijft.
    void verwachtOveral(wxStyledTextCtrl* leider, wxStyledTextCtrl* volger) {
        const int eind = laatsteRegel(volger);
        std::vector<int> regels{0, 10, eind - 1, eind, eind + 1, laatsteRegel(leider), eind + 2, eind, 3};
        for (const int wens : regels) {
            const int regel = std::clamp(wens, 0, laatsteRegel(leider));
            leider->ScrollToLine(regel);
            rust();
            EXPECT_EQ(regel, leider->GetFirstVisibleLine()) << "de leider naar " << regel;
            EXPECT_EQ(std::min(regel, eind), volger->GetFirstVisibleLine()) << "de volger bij " << regel;
        }
    }

    void verwachtOveral() {
        verwachtOveral(origineel(), aangepast());
        verwachtOveral(aangepast(), origineel());
    }

    static bool isInBeeld(wxStyledTextCtrl* editor) {
        const int regel =
            editor->VisibleFromDocLine(editor->GetCurrentLine()) - editor->GetFirstVisibleLine();
        return regel >= 0 && regel < editor->LinesOnScreen();
    }

    /// Schuift zoals de gebruiker die de schuifbalk vasthoudt.
    static void sleep(wxStyledTextCtrl* editor, int regel) {
        wxScrollWinEvent event(wxEVT_SCROLLWIN_THUMBTRACK, regel, wxVERTICAL);
        event.SetEventObject(editor);
        editor->ProcessWindowEvent(event);
    }
};

}  // namespace

TEST_F(OngelijkSchuiven, BereiktElkeRegelMetHetKortsteResultaatRechts) {
    zet(maakRegels(182), maakRegels(91));
    verwachtOveral();
}

TEST_F(OngelijkSchuiven, BereiktElkeRegelMetHetKortsteLinks) {
    zet(maakRegels(91), maakRegels(182));
    verwachtOveral();
}

TEST_F(OngelijkSchuiven, BereiktElkeRegelVanEenEvenLangeTekst) {
    zet(maakRegels(91), maakRegels(91));
    verwachtOveral();
}

TEST_F(OngelijkSchuiven, BereiktElkeRegelNaastEenTekstDieGeheelInBeeldIs) {
    zet(maakRegels(91), maakRegels(2));
    verwachtOveral();
    zet("", maakRegels(91));
    verwachtOveral();
}

TEST_F(OngelijkSchuiven, TeltAfgebrokenRegels) {
    for (auto* editor : {origineel(), aangepast()}) {
        editor->SetWrapMode(wxSTC_WRAP_WORD);
    }
    const std::string staart = std::string(150, ' ') + "met een lange staart van woorden";
    zet(maakRegels(91, staart), maakRegels(61, staart));
    for (auto* editor : {origineel(), aangepast()}) {
        ASSERT_TRUE(laatLopenTot([editor] { return editor->WrapCount(editor->GetLineCount() - 2) > 1; }));
    }
    verwachtOveral();
}

TEST_F(OngelijkSchuiven, TeltGevouwenRegelsNiet) {
    zet(maakRegels(182), maakRegels(182));
    aangepast()->HideLines(10, 109);
    verwachtOveral();
}

TEST_F(OngelijkSchuiven, TeltOpmerkingenOnderRegels) {
    zet(maakRegels(91), maakRegels(61));
    aangepast()->AnnotationSetVisible(wxSTC_ANNOTATION_STANDARD);
    for (int regel = 0; regel < 60; ++regel) {
        aangepast()->AnnotationSetText(regel, "mislukt");
    }
    verwachtOveral();
}

TEST_F(OngelijkSchuiven, HoudtDeCursorInBeeld) {
    zet(maakRegels(182), maakRegels(91));
    for (auto* editor : {origineel(), aangepast(), origineel()}) {
        editor->DocumentEnd();
        rust();
        EXPECT_TRUE(isInBeeld(editor)) << "aan het einde van " << editor->GetId();
        EXPECT_EQ(editor->GetLineCount() - 1, editor->GetCurrentLine());
        editor->PageUp();
        rust();
        EXPECT_TRUE(isInBeeld(editor)) << "een bladzijde terug in " << editor->GetId();
    }
}

TEST_F(OngelijkSchuiven, VolgtDeSchuifbalkVanBeide) {
    zet(maakRegels(182), maakRegels(91));
    sleep(origineel(), 170);
    rust();
    EXPECT_EQ(170, origineel()->GetFirstVisibleLine());
    sleep(aangepast(), 60);
    rust();
    EXPECT_EQ(60, origineel()->GetFirstVisibleLine());
    EXPECT_EQ(60, aangepast()->GetFirstVisibleLine());
    sleep(aangepast(), 90);
    rust();
    EXPECT_EQ(90, origineel()->GetFirstVisibleLine());
}

TEST_F(OngelijkSchuiven, LaatDeLangsteStaanAlsDeKortsteGroeit) {
    zet(maakRegels(182), maakRegels(91));
    origineel()->ScrollToLine(170);
    rust();
    aangepast()->AppendText("een regel\nen nog een\n");
    rust();
    EXPECT_EQ(170, origineel()->GetFirstVisibleLine());
}

TEST_F(OngelijkSchuiven, BlijftBijEenKnipbeurtOokVoorbijHetResultaat) {
    lid(&Inzage::beginMarkerTekst)->SetValue("regel 20");
    lid(&Inzage::eindMarkerTekst)->SetValue("regel 179");
    lid(&Inzage::vervangTekst)->SetValue("werk\n");
    zet(maakRegels(182), "");
    for (const int plek : {170, 100, 10, 0}) {
        origineel()->ScrollToLine(plek);
        rust();
        geefOpdracht(wxID_REPLACE);
        rust();
        EXPECT_EQ(plek, origineel()->GetFirstVisibleLine());
        EXPECT_EQ(std::min(plek, laatsteRegel(aangepast())), aangepast()->GetFirstVisibleLine()) << plek;
    }
}
