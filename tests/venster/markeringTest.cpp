// Wat de editors bij één bestand laten zien: links wat een knipbeurt weghaalt en wat er niet klopt, rechts
// wat er vervangen is en of dat nog bij het origineel hoort. Niets daarvan komt in een tekst of een bestand.

#include <wx/evtloop.h>
#include <wx/timer.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "Knipselaar/venster/merken.h"
#include "tests/venster/dialogen.h"
#include "tests/venster/vensterTest.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* begin = "//**** Student Begin ****//";
constexpr const char* eind = "//**** Student Eind ****//";

class Markering : public VensterTest {
  protected:
    void zetTeksten(const char* beginMarker, const char* eindMarker, const char* vervang) {
        lid(&Inzage::beginMarkerTekst)->SetValue(wxString::FromUTF8(beginMarker));
        lid(&Inzage::eindMarkerTekst)->SetValue(wxString::FromUTF8(eindMarker));
        lid(&Inzage::vervangTekst)->SetValue(wxString::FromUTF8(vervang));
    }

    /// Wacht tot het venster niets meer te merken heeft.
    void wacht() {
        ASSERT_TRUE(laatLopenTot([this] { return !(venster_->*&Inzage::werkMerkenBij)(); }));
    }

    /// Typt als een gebruiker, op een plaats in de linker editor.
    void typ(int plaats, const char* tekst) {
        origineel()->InsertText(plaats, wxString::FromUTF8(tekst));
        wacht();
    }

    void zetOrigineel(const std::string& tekst) {
        origineel()->SetText(wxString::FromUTF8(tekst));
        wacht();
    }

    void open(const std::string& naam, const std::string& inhoud) {
        const auto pad = maakBestand(naam, inhoud);
        beantwoordBestandsdialoog(naarWx(pad), [this] { geefOpdracht(wxID_OPEN); });
        wacht();
    }

    void knip() {
        geefOpdracht(wxID_REPLACE);
        wacht();
    }

    /// Een teken per regel: "." niets, "b" in een blok, "r" een markerregel, "v" een vervanging.
    static std::string achtergronden(wxStyledTextCtrl* editor) {
        std::string uit;
        for (int regel = 0; regel < editor->GetLineCount(); ++regel) {
            const int merk = editor->MarkerGet(regel) & merken::alle;
            uit += merk == merken::geen                    ? '.'
                   : merk == merken::blok                  ? 'b'
                   : merk == (merken::blok | merken::rand) ? 'r'
                   : merk == merken::vervanging            ? 'v'
                                                           : '?';
        }
        return uit;
    }

    /// Alle bijschriften die te zien zijn, elk met het nummer van zijn regel.
    static std::vector<std::string> bijschriften(wxStyledTextCtrl* editor) {
        std::vector<std::string> uit;
        const bool zichtbaar = editor->AnnotationGetVisible() != wxSTC_ANNOTATION_HIDDEN;
        for (int regel = 0; zichtbaar && regel < editor->GetLineCount(); ++regel) {
            for (const auto& bijschrift : merken::leesBijschriften(*editor, regel)) {
                uit.push_back(std::to_string(regel + 1) + " " + bijschrift.tekst.utf8_string());
            }
        }
        return uit;
    }

    using Lijst = std::vector<std::string>;
};

double contrast(const wxColour& een, const wxColour& ander) {
    const auto helderheid = [](const wxColour& kleur) {
        const auto deel = [](unsigned char waarde) {
            const double lineair = waarde / 255.0;
            return lineair <= 0.04045 ? lineair / 12.92 : std::pow((lineair + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * deel(kleur.Red()) + 0.7152 * deel(kleur.Green()) + 0.0722 * deel(kleur.Blue());
    };
    const auto [donker, licht] = std::minmax({helderheid(een), helderheid(ander)});
    return (licht + 0.05) / (donker + 0.05);
}

}  // namespace

TEST_F(Markering, GeeftBlokkenEenAchtergrond) {
    zetOrigineel(std::string("a\n") + begin + "\nx\n\n" + eind + "\nb\n" + begin + "\n" + eind + "\n");
    EXPECT_EQ(".rbbr.rr.", achtergronden(origineel()));
    EXPECT_EQ((Lijst{"7 Let op: leeg blok: geen vervangingstekst"}), bijschriften(origineel()));
}

TEST_F(Markering, ZegtOnderEenRegelWatErNietKlopt) {
    zetTeksten("// Begin", "// Eind", "V\n");
    zetOrigineel("// Eind\n// Begin\n// Begin\n// Eind\n//begin\n// Begin\nx\n// Eind");
    EXPECT_EQ(".rbr.rbb", achtergronden(origineel()));
    EXPECT_EQ((Lijst{"1 Fout: eind zonder begin: blijft staan",
                     "3 Fout: begin in een blok: telt niet; het blok eindigt bij regel 4",
                     "5 Let op: bijna een beginmarker: telt niet",
                     "6 Fout: begin zonder eind: alles hierna valt weg",
                     "8 Fout: eind op een laatste regel zonder regeleinde: telt niet"}),
              bijschriften(origineel()));
}

TEST_F(Markering, ZegtEenmaalDatErGeenBlokIs) {
    EXPECT_EQ(Lijst{}, bijschriften(origineel())) << "een lege editor is geen fout";
    zetOrigineel("a\nb\nc\n");
    EXPECT_EQ((Lijst{"1 Let op: geen enkel blok; er valt niets weg"}), bijschriften(origineel()));
    zetTeksten("", "E", "V");
    wacht();
    EXPECT_EQ((Lijst{"1 Fout: de beginmarker is leeg: elke regel is een begin",
                     "1 Fout: begin zonder eind: alles hierna valt weg"}),
              bijschriften(origineel()));
    EXPECT_EQ("rbbb", achtergronden(origineel()));
}

TEST_F(Markering, VolgtWatDeGebruikerTyptEnVerandert) {
    zetTeksten("B", "E", "V\n");
    zetOrigineel("a\nB\nx\nE\n");
    EXPECT_EQ(".rbr.", achtergronden(origineel()));
    EXPECT_EQ(Lijst{}, bijschriften(origineel()));
    typ(0, "nieuw\n");
    EXPECT_EQ("..rbr.", achtergronden(origineel()));
    typ(origineel()->PositionFromLine(4), "geen ");
    EXPECT_EQ("..rbr.", achtergronden(origineel())) << "een marker mag midden in een regel staan";
    origineel()->DeleteRange(origineel()->PositionFromLine(4), 6);
    wacht();
    EXPECT_EQ("..rbbb", achtergronden(origineel()));
    EXPECT_EQ((Lijst{"3 Fout: begin zonder eind: alles hierna valt weg"}), bijschriften(origineel()));
    lid(&Inzage::eindMarkerTekst)->SetValue("x");
    wacht();
    EXPECT_EQ("..rr..", achtergronden(origineel()));
    EXPECT_EQ((Lijst{"3 Let op: leeg blok: geen vervangingstekst"}), bijschriften(origineel()));
    lid(&Inzage::beginMarkerTekst)->SetValue("nergens");
    wacht();
    EXPECT_EQ("......", achtergronden(origineel()));
    EXPECT_EQ(
        (Lijst{"1 Let op: geen enkel blok; er valt niets weg", "4 Fout: eind zonder begin: blijft staan"}),
        bijschriften(origineel()));
}

TEST_F(Markering, KomtVanzelfAlsHetVensterNietsTeDoenHeeft) {
    origineel()->SetText(wxString(begin) + "\nx\n" + eind + "\n");
    EXPECT_TRUE(laatLopenTot([this] { return achtergronden(origineel()) == "rbr."; }));
    lid(&Inzage::eindMarkerTekst)->SetValue("nergens");
    EXPECT_TRUE(laatLopenTot([this] { return achtergronden(origineel()) == "rbbb"; }));
    EXPECT_TRUE(laatLopenTot([this] { return !bijschriften(origineel()).empty(); }));
}

TEST_F(Markering, LaatZienWatHetKnippenDoet) {
    zetTeksten("B", "E", "V\n");
    for (const char* tekst : {"a\nB\nx\ny\nE\nb\n", "B\nE\nB\nx\n", "E\na\nB", "B\nx\nE", "B\r\nx\rE\r\ny\n",
                              "a\nB\n", "", "B\nB\nE\nE\n"}) {
        zetOrigineel(tekst);
        const std::string merk = achtergronden(origineel());
        std::string blijft;
        bool inBlok = false;
        for (int regel = 0; regel < origineel()->GetLineCount(); ++regel) {
            const char teken = merk[static_cast<std::size_t>(regel)];
            wxString inhoud = origineel()->GetLine(regel);
            inhoud.Replace("\r\n", "\n");
            inhoud.Replace("\r", "\n");
            blijft += teken == '.' ? inhoud.utf8_string() : teken == 'b' && !inBlok ? "V\n" : "";
            inBlok = teken == 'b';
        }
        knip();
        EXPECT_EQ(blijft, tekstVan(aangepast())) << tekst;
    }
}

TEST_F(Markering, KomtInGeenTekstEnGeenBestand) {
    const std::string tekst =
        std::string("x\n") + eind + "\n" + begin + "\ny\n" + eind + "\n" + begin + "\nz\n";
    open("een.c", tekst);
    EXPECT_FALSE(bijschriften(origineel()).empty());
    EXPECT_EQ(tekst, tekstVan(origineel()));
    EXPECT_FALSE(origineel()->IsModified());
    EXPECT_FALSE(origineel()->CanUndo());
    zetTeksten(begin, eind, "V\n");
    knip();
    const std::string resultaat = std::string("x\n") + eind + "\nV\nV\n";
    EXPECT_EQ(resultaat, tekstVan(aangepast()));
    lid(&Inzage::vervangTekst)->SetValue("W\n");
    wacht();
    EXPECT_EQ(1U, bijschriften(aangepast()).size());
    const auto doel = geefOmgeving().werk() / "uit.c";
    beantwoordBestandsdialoog(naarWx(doel), [this] { geefOpdracht(wxID_SAVE); });
    wacht();
    EXPECT_EQ(resultaat, hulp::leesBestand(doel));
    EXPECT_FALSE(aangepast()->IsModified());
    EXPECT_EQ(1U, bijschriften(aangepast()).size()) << "opslaan maakt een oud resultaat niet nieuw";
}

TEST_F(Markering, MerktElkeVervanging) {
    zetTeksten("B", "E", "een\n\ntwee\n");
    zetOrigineel("a\nB\nx\nE\nb\nB\ny\nE\n");
    knip();
    EXPECT_EQ("a\neen\n\ntwee\nb\neen\n\ntwee\n", tekstVan(aangepast()));
    EXPECT_EQ(".vvv.vvv.", achtergronden(aangepast()));
    EXPECT_EQ(Lijst{}, bijschriften(aangepast()));
    knip();
    EXPECT_EQ(".vvv.vvv.", achtergronden(aangepast())) << "nog eens hetzelfde";
    aangepast()->InsertText(0, "erboven\n");
    wacht();
    EXPECT_EQ("..vvv.vvv.", achtergronden(aangepast()));
}

TEST_F(Markering, MerktEenDeelVanEenRegelAlsDeVervangingMiddenInEindigt) {
    zetTeksten("B", "E", "een\nV");
    zetOrigineel("a\nB\nx\nE\nb\n");
    knip();
    ASSERT_EQ("a\neen\nVb\n", tekstVan(aangepast()));
    EXPECT_EQ(".v..", achtergronden(aangepast())) << "de regel is niet helemaal een vervanging";
    std::string kleuring;
    for (int plek = 0; plek < aangepast()->GetTextLength(); ++plek) {
        kleuring += aangepast()->IndicatorAllOnFor(plek) == 0 ? '.' : 'v';
    }
    EXPECT_EQ("..vvvvv..", kleuring) << "alleen de vervanging zelf";
}

TEST_F(Markering, MerktVervangingenDieOpEenRegelStaan) {
    zetTeksten("B", "E", "V");
    zetOrigineel("a\nB\nx\nE\nB\ny\nE\nc\n");
    knip();
    ASSERT_EQ("a\nVVc\n", tekstVan(aangepast()));
    EXPECT_EQ("...", achtergronden(aangepast()));
    EXPECT_NE(0, aangepast()->IndicatorAllOnFor(2));
    EXPECT_EQ(aangepast()->IndicatorAllOnFor(2), aangepast()->IndicatorAllOnFor(3));
    EXPECT_EQ(0, aangepast()->IndicatorAllOnFor(4));
}

TEST_F(Markering, ZegtBijWelkBestandEenOudResultaatHoort) {
    zetTeksten("B", "E", "V\n");
    open("ringbuffer.c", "a\r\nB\r\nx\r\nE\r\n");
    knip();
    EXPECT_EQ(Lijst{}, bijschriften(aangepast()));
    const std::string kop = "1 Let op: dit resultaat hoort bij ringbuffer.c; sinds het knippen: ";
    open("matrix.c", "a\nB\nx\nE\n");
    EXPECT_EQ((Lijst{kop + "er is een ander bestand geopend of toegevoegd"}), bijschriften(aangepast()));
    open("ringbuffer.c", "a\r\nB\r\nx\r\nE\r\n");
    EXPECT_EQ(Lijst{}, bijschriften(aangepast())) << "weer hetzelfde";
    typ(0, "nieuw ");
    EXPECT_EQ((Lijst{kop + "het origineel is veranderd"}), bijschriften(aangepast()));
    typ(0, "en ");
    EXPECT_EQ((Lijst{kop + "het origineel is veranderd"}), bijschriften(aangepast()));
    origineel()->Undo();
    origineel()->Undo();
    wacht();
    EXPECT_EQ(Lijst{}, bijschriften(aangepast()));
    const wxFileName pad = std::exchange(lid(&Inzage::huidigBestand), wxFileName("/elders/ringbuffer.c"));
    wacht();
    EXPECT_EQ((Lijst{kop + "er is een ander bestand geopend of toegevoegd"}), bijschriften(aangepast()))
        << "met dezelfde tekst";
    lid(&Inzage::huidigBestand) = pad;
    lid(&Inzage::beginMarkerTekst)->SetValue("C");
    wacht();
    EXPECT_EQ((Lijst{kop + "een marker is veranderd"}), bijschriften(aangepast()));
    lid(&Inzage::beginMarkerTekst)->SetValue("B");
    lid(&Inzage::vervangTekst)->SetValue("W\n");
    wacht();
    EXPECT_EQ((Lijst{kop + "de vervangingstekst is veranderd"}), bijschriften(aangepast()));
    aangepast()->InsertText(0, "boven\n");
    wacht();
    EXPECT_EQ((Lijst{kop + "de vervangingstekst is veranderd"}), bijschriften(aangepast()))
        << "het blijft boven staan";
    knip();
    EXPECT_EQ(Lijst{}, bijschriften(aangepast())) << "opnieuw geknipt";
    EXPECT_EQ("a\nW\n", tekstVan(aangepast()));
}

TEST_F(Markering, NoemtHetToegevoegdeBestand) {
    zetTeksten("B", "E", "V\n");
    open("een.c", "a\n");
    const auto pad = maakBestand("twee.c", "B\nx\nE\n");
    beantwoordBestandsdialoog(naarWx(pad), [this] { geefOpdracht(wxID_ADD); });
    wacht();
    EXPECT_EQ(".rbr.", achtergronden(origineel()).substr(0, 5));
    knip();
    open("drie.c", "a\n");
    EXPECT_EQ((Lijst{"1 Let op: dit resultaat hoort bij twee.c; sinds het knippen: er is een ander bestand "
                     "geopend of toegevoegd"}),
              bijschriften(aangepast()));
}

TEST_F(Markering, VerdwijntBijEenAndereModus) {
    zetTeksten("B", "E", "V\n");
    open("een.c", "E\nB\nx\n");
    knip();
    typ(0, "y");
    ASSERT_FALSE(bijschriften(origineel()).empty());
    ASSERT_FALSE(bijschriften(aangepast()).empty());
    kiesModus(1);
    laatLopen();
    for (auto* editor : {origineel(), aangepast()}) {
        EXPECT_EQ(Lijst{}, bijschriften(editor));
        EXPECT_EQ(".", achtergronden(editor));
    }
    origineel()->SetText("B\nx\nE\n");
    laatLopen();
    EXPECT_EQ("....", achtergronden(origineel())) << "een logboek heeft geen blokken";
    kiesModus(0);
    wacht();
    EXPECT_EQ(Lijst{}, bijschriften(aangepast())) << "waar het resultaat bij hoorde is vergeten";
}

TEST_F(Markering, BlijftNaEenKleuring) {
    zetTeksten("B", "E", "V\n");
    for (const char* naam : {"een.c", "een.cpp", "een.vhd"}) {
        open(naam, "E\nB\nx\nE\n");
        EXPECT_EQ(".rbr.", achtergronden(origineel())) << naam;
        const int stijl = origineel()->AnnotationGetStyleOffset() + 1 + static_cast<int>(kern::Ernst::fout);
        const auto& kleuren = merken::geefBijschriftKleuren()[static_cast<std::size_t>(kern::Ernst::fout)];
        EXPECT_EQ(kleuren.tekst, origineel()->StyleGetForeground(stijl)) << naam;
        EXPECT_EQ(kleuren.achtergrond, origineel()->StyleGetBackground(stijl)) << naam;
    }
}

TEST_F(Markering, BreektLangeBijschriftenAfOpDeBreedte) {
    zetTeksten("B", "E", "V\n");
    zetOrigineel("B\nx\nB\ny\nE\n");
    const int regels = origineel()->AnnotationGetLines(2);
    venster_->SetSize(venster_->GetSize().x * 2, venster_->GetSize().y);
    ASSERT_TRUE(laatLopenTot([this] { return origineel()->AnnotationGetLines(2) == 1; }));
    EXPECT_EQ((Lijst{"3 Fout: begin in een blok: telt niet; het blok eindigt bij regel 5"}),
              bijschriften(origineel()));
    venster_->SetSize(venster_->GetMinSize());
    venster_->Fit();
    EXPECT_TRUE(laatLopenTot([this, regels] { return origineel()->AnnotationGetLines(2) == regels; }));
    EXPECT_EQ((Lijst{"3 Fout: begin in een blok: telt niet; het blok eindigt bij regel 5"}),
              bijschriften(origineel()));
}

TEST_F(Markering, MerktOokWatPasNaSchuivenTeZienIs) {
    zetTeksten("B", "E", "V\n");
    std::string tekst;
    for (int blok = 0; blok < 2000; ++blok) {
        tekst += "a\nB\nx\nE\n";
    }
    zetOrigineel(tekst);
    const auto isGemerkt = [this](int regel) {
        return origineel()->MarkerGet(regel + 1) != 0 && origineel()->MarkerGet(regel) == 0;
    };
    EXPECT_TRUE(isGemerkt(0));
    for (const int regel : {7600, 40, 4000}) {
        origineel()->ScrollToLine(regel);
        EXPECT_TRUE(laatLopenTot([&] { return isGemerkt(regel); })) << regel;
    }
    knip();
    ASSERT_EQ("a\nV\na\nV\n", tekstVan(aangepast()).substr(0, 8));
    aangepast()->ScrollToLine(3900);
    EXPECT_TRUE(laatLopenTot([this] {
        return aangepast()->MarkerGet(3901) == merken::vervanging && aangepast()->MarkerGet(3900) == 0;
    }));
}

TEST_F(Markering, KanTotHetEindeGeschovenWorden) {
    zetTeksten("B", "E", "V\n");
    std::string tekst;
    for (int regel = 0; regel < 100; ++regel) {
        tekst += "E\n";
    }
    zetOrigineel(tekst);
    // Elke regel heeft een bijschrift, en de laatste staat dus twee keer zo ver.
    origineel()->ScrollToEnd();
    EXPECT_TRUE(laatLopenTot([this] {
        return origineel()->GetFirstVisibleLine() > 100 &&
               origineel()->GetScrollPos(wxVERTICAL) == origineel()->GetFirstVisibleLine();
    }));
}

TEST_F(Markering, LaatGeenOudeAchtergrondenAchter) {
    zetTeksten("B", "E", "V\n");
    std::string tekst;
    for (int blok = 0; blok < 500; ++blok) {
        tekst += "a\nB\nx\nE\n";
    }
    zetOrigineel(tekst);
    origineel()->ScrollToLine(1900);
    ASSERT_TRUE(laatLopenTot([this] { return origineel()->MarkerGet(1997) != 0; }));
    lid(&Inzage::beginMarkerTekst)->SetValue("nergens");
    wacht();
    origineel()->ScrollToLine(0);
    ASSERT_TRUE(laatLopenTot([this] { return origineel()->GetFirstVisibleLine() == 0; }));
    wacht();
    EXPECT_EQ(std::string(300, '.'), achtergronden(origineel()).substr(0, 300));
    open("kort.c", "a\nb\n");
    EXPECT_EQ("...", achtergronden(origineel()));
}

TEST_F(Markering, IsLeesbaarInElkThema) {
    std::vector<merken::Kleurpaar> paren(merken::geefBijschriftKleuren().begin(),
                                         merken::geefBijschriftKleuren().end());
    paren.push_back(merken::geefBlokKleuren());
    paren.push_back(merken::geefVervangingKleuren());
    for (const auto& paar : paren) {
        EXPECT_LE(4.5, contrast(paar.tekst, paar.achtergrond));
        EXPECT_LE(4.5, contrast(*wxBLACK, paar.achtergrond)) << "ook voor tekst die nog geen kleur heeft";
    }
    zetTeksten("B", "E", "V\n");
    open("een.c", "a\nB\nint x;\n\nE\n");
    for (const int regel : {1, 2, 4}) {
        EXPECT_NE(0, origineel()->IndicatorAllOnFor(origineel()->PositionFromLine(regel))) << regel;
    }
    EXPECT_EQ(0, origineel()->IndicatorAllOnFor(0));
}

TEST_F(Markering, WerktInKorteStappenEnNeemtMeeWatErGetyptIs) {
    zetTeksten("B", "E", "V\n");
    std::string tekst;
    for (int blok = 0; blok < 40'000; ++blok) {
        tekst += "een regel\nB\nx\nE\nE\n";
    }
    origineel()->SetText(tekst);
    EXPECT_TRUE((venster_->*&Inzage::werkMerkenBij)()) << "een stap is kort; er blijft werk over";
    origineel()->InsertText(0, "getypt\n");
    wacht();
    EXPECT_EQ("..rbr..rbr.", achtergronden(origineel()).substr(0, 11)) << "wat onderweg getypt is telt mee";
}

TEST_F(Markering, LaatGeenBijschriftStaanVanEenStapDieAfgebrokenIs) {
    zetTeksten("B", "E", "V\n");
    std::string tekst;
    for (int regel = 0; regel < 200'000; ++regel) {
        tekst += "E\n";
    }
    origineel()->SetText(tekst + "B\nx\neinde\n");
    const auto heeftBijschrift = [this] { return origineel()->AnnotationGetLines(0) > 0; };
    bool meer = true;
    while (meer && !heeftBijschrift()) {
        meer = (venster_->*&Inzage::werkMerkenBij)();
    }
    ASSERT_TRUE(meer && heeftBijschrift()) << "een deel van de bijschriften staat er";
    lid(&Inzage::eindMarkerTekst)->SetValue("einde");
    wacht();
    EXPECT_FALSE(heeftBijschrift());
    EXPECT_EQ(Lijst{}, bijschriften(origineel()));
}

TEST_F(Markering, GaatDoorZonderDatErVerderIetsGebeurt) {
    constexpr int langeRun = 60'000;
    zetTeksten("B", "E", "V\n");
    std::string tekst;
    for (int blok = 0; blok < 8'000; ++blok) {
        tekst += "een regel\nB\nx\nE\nE\n";
    }
    // Een knipperende cursor wekt de hoofdlus ook.
    origineel()->SetCaretPeriod(0);
    aangepast()->SetCaretPeriod(0);
    laatLopen();
    origineel()->SetText(tekst);
    wxGUIEventLoop lus;
    wxTimer grens;
    grens.Bind(wxEVT_TIMER, [&lus](wxTimerEvent&) { lus.Exit(1); });
    const auto kijk = [this, &lus](wxIdleEvent& event) {
        event.Skip();
        if (!bijschriften(origineel()).empty()) {
            lus.Exit(0);
        }
    };
    venster_->Bind(wxEVT_IDLE, kijk);
    grens.StartOnce(langeRun);
    EXPECT_EQ(0, lus.Run()) << "de bijschriften kwamen niet af";
    venster_->Unbind(wxEVT_IDLE, kijk);
}
