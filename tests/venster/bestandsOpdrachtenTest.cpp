#include "Knipselaar/venster/padKiezer.h"
#include "tests/venster/bestandsOpdrachten.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* filter =
    "C files (*.c)|*.c|C++ files (*.cpp)|*.cpp|Header files (*.h)|*.h|VHDL files (*.vhdl)|*.vhdl|"
    "All Files (*.*)|*.*";

}  // namespace

TEST_F(BestandsOpdrachten, OpentEenOrigineel) {
    aangepast()->SetText("blijft staan");
    const auto dialoog = open("een.c", "int x;\r\nint y;\n");
    EXPECT_EQ("Kies een origineel bestand.", dialoog.titel);
    EXPECT_EQ(naarWx(geefOmgeving().thuis()), dialoog.directory);
    EXPECT_EQ("", dialoog.bestand);
    EXPECT_EQ(filter, dialoog.filter);
    EXPECT_EQ(17, dialoog.stijl & 0xFF);
    EXPECT_EQ(naarWx(geefOmgeving().werk() / "een.c"), lid(&Inzage::huidigBestand).GetFullPath());
    EXPECT_EQ(werk_, lid(&Inzage::origineelPad));
    EXPECT_EQ("int x;\r\nint y;\n", tekstVan(origineel()));
    EXPECT_FALSE(origineel()->IsModified());
    EXPECT_EQ("blijft staan", tekstVan(aangepast()));
    EXPECT_TRUE(lid(&Inzage::origineelGeladen));
    EXPECT_EQ(wxSTC_LEX_CPP, origineel()->GetLexer());
    EXPECT_EQ(wxSTC_LEX_CPP, aangepast()->GetLexer());
    EXPECT_EQ(werk_, open("twee.c", "").directory) << "de volgende keer begint de dialoog hier";
}

TEST_F(BestandsOpdrachten, VervangtHetVorigeOrigineel) {
    open("een.c", "een\n");
    open("twee.c", "twee\n");
    EXPECT_EQ("twee\n", tekstVan(origineel()));
}

TEST_F(BestandsOpdrachten, VeranderenNietsBijAfzien) {
    for (const int opdracht : {wxID_OPEN, wxID_ADD, wxID_SAVE}) {
        lid(&Inzage::origineelPad) = "/een";
        lid(&Inzage::aangepastPad) = "/twee";
        const wxFileName huidig("/drie/vier.c");
        lid(&Inzage::huidigBestand) = huidig;
        origineel()->SetText("tekst");
        kies(opdracht, {});
        EXPECT_EQ("/een", lid(&Inzage::origineelPad)) << opdracht;
        EXPECT_EQ("/twee", lid(&Inzage::aangepastPad)) << opdracht;
        EXPECT_EQ(huidig.GetFullPath(), lid(&Inzage::huidigBestand).GetFullPath()) << opdracht;
        EXPECT_EQ("tekst", tekstVan(origineel())) << opdracht;
        EXPECT_FALSE(lid(&Inzage::origineelGeladen)) << opdracht;
        EXPECT_EQ(wxSTC_LEX_CONTAINER, lexer()) << opdracht;
    }
}

TEST_F(BestandsOpdrachten, KiezenDeKleuringNaarDeExtensie) {
    struct Geval {
        const char* naam;
        int lexer;
        bool cpp;
    };
    for (const Geval& geval : {Geval{"a.cpp", wxSTC_LEX_CPP, true},
                               {"a.h", wxSTC_LEX_CPP, true},
                               {"a.c", wxSTC_LEX_CPP, false},
                               {"a.vhdl", wxSTC_LEX_VHDL, false},
                               {"a.vhd", wxSTC_LEX_VHDL, false}}) {
        open(geval.naam, "class x;\n");
        for (auto* editor : {origineel(), aangepast()}) {
            EXPECT_EQ(geval.lexer, editor->GetLexer()) << geval.naam;
            editor->SetText("class x;\n");
            editor->Colourise(0, -1);
            EXPECT_EQ(geval.cpp, editor->GetStyleAt(0) == wxSTC_C_WORD2 && geval.lexer == wxSTC_LEX_CPP)
                << geval.naam;
        }
    }
}

TEST_F(BestandsOpdrachten, LatenDeKleuringStaanBijEenOnbekendeExtensie) {
    open("a.vhd", "x\n");
    for (const char* naam : {"a.txt", "a.CPP", "a.C", "a.hpp", "a", "a.VHD"}) {
        open(naam, "inhoud\n");
        EXPECT_EQ(wxSTC_LEX_VHDL, lexer()) << naam;
        EXPECT_EQ("inhoud\n", tekstVan(origineel())) << naam;
    }
}

TEST_F(BestandsOpdrachten, VoegtEenBestandToe) {
    open("een.cpp", "int x;");
    const auto pad = maakBestand("twee.c", "eerste\r\ntweede\rderde\n");
    const auto dialoog = kies(wxID_ADD, pad);
    EXPECT_EQ("Kies een origineel bestand.", dialoog.titel);
    EXPECT_EQ(werk_, dialoog.directory);
    EXPECT_EQ("", dialoog.bestand);
    EXPECT_EQ(filter, dialoog.filter);
    EXPECT_EQ(17, dialoog.stijl & 0xFF);
    EXPECT_EQ("int x;eerste\ntweede\nderde\n\n", tekstVan(origineel()));
    EXPECT_TRUE(lid(&Inzage::origineelGeladen));
    EXPECT_EQ("twee.c", lid(&Inzage::huidigBestand).GetFullName());
    origineel()->SetText("class x;");
    origineel()->Colourise(0, -1);
    EXPECT_EQ(wxSTC_C_IDENTIFIER, origineel()->GetStyleAt(0)) << "alles is nu als C gekleurd";
    aangepast()->SetText("x");
    EXPECT_EQ("twee.c", kies(wxID_SAVE, {}).bestand);
}

TEST_F(BestandsOpdrachten, VoegtToeAanHetEindeEnNietBijDeInvoegplaats) {
    open("een.c", "een\n");
    origineel()->SetEmptySelection(0);
    kies(wxID_ADD, maakBestand("twee.c", "twee"));
    EXPECT_EQ("een\ntwee\n", tekstVan(origineel()));
}

TEST_F(BestandsOpdrachten, MakenEenOrigineelNietGeladenDoorToeTeVoegen) {
    kies(wxID_ADD, maakBestand("een.c", "een"));
    EXPECT_FALSE(lid(&Inzage::origineelGeladen));
}

TEST_F(BestandsOpdrachten, VoegtLatijnsEnBreedBestandToe) {
    kies(wxID_ADD, maakBestand("latijn.c", "caf\xE9 is open\n"));
    kies(wxID_ADD, maakBestand("breed.c", std::string_view("\xFF\xFE"
                                                           "a\0\n\0b\0",
                                                           8)));
    EXPECT_EQ("café is open\n\na\nb\n", tekstVan(origineel()));
}

TEST_F(BestandsOpdrachten, SlaatHetResultaatOp) {
    open("een.c", "x");
    const auto doel = geefOmgeving().thuis() / "uit" / "ander.c";
    fs::create_directory(doel.parent_path());
    lid(&Inzage::aangepastPad) = naarWx(geefOmgeving().thuis());
    aangepast()->SetText(wxString::FromUTF8("één\r\ntwee\nzonder einde"));
    const auto dialoog = kies(wxID_SAVE, doel);
    EXPECT_EQ("Sla aangepast bestand op.", dialoog.titel);
    EXPECT_EQ(naarWx(geefOmgeving().thuis()), dialoog.directory);
    EXPECT_EQ("een.c", dialoog.bestand);
    EXPECT_EQ(filter, dialoog.filter);
    EXPECT_EQ(6, dialoog.stijl & 0xFF);
    EXPECT_EQ("één\r\ntwee\nzonder einde", hulp::leesBestand(doel));
    EXPECT_EQ(naarWx(doel.parent_path()), lid(&Inzage::aangepastPad));
    EXPECT_EQ("een.c", lid(&Inzage::huidigBestand).GetFullName());
    EXPECT_FALSE(aangepast()->IsModified());
}

TEST_F(BestandsOpdrachten, LatenDeKiezersTonenWatEenBatchNuGebruikt) {
    int gemeld = 0;
    venster_->Bind(wxEVT_DIRPICKER_CHANGED, [&gemeld](wxFileDirPickerEvent& event) {
        ++gemeld;
        event.Skip();
    });
    const auto toont = [](wxDirPickerCtrl* kiezer) {
        EXPECT_EQ(kiezer->GetPath(), kiezer->GetTextCtrl()->GetValue());
        EXPECT_EQ(kiezer->GetPath(), kiezer->GetTextCtrl()->GetToolTipText());
        return kiezer->GetPath();
    };
    wxDirPickerCtrl* bron = lid(&Inzage::bronDirKiezer);
    wxDirPickerCtrl* bestemming = lid(&Inzage::bestemmingDirKiezer);
    const wxString thuis = naarWx(geefOmgeving().thuis());

    open("een.c", "een\n");
    EXPECT_EQ(werk_, toont(bron));
    EXPECT_EQ(thuis, toont(bestemming));
    fs::create_directory(geefOmgeving().werk() / "meer");
    kies(wxID_ADD, maakBestand("meer/twee.c", "twee\n"));
    EXPECT_EQ(naarWx(geefOmgeving().werk() / "meer"), toont(bron));
    kies(wxID_OPEN, {});
    EXPECT_EQ(naarWx(geefOmgeving().werk() / "meer"), toont(bron)) << "afzien verandert niets";
    kies(wxID_SAVE, geefOmgeving().werk() / "uit.c");
    EXPECT_EQ(werk_, toont(bestemming));
    EXPECT_EQ(naarWx(geefOmgeving().werk() / "meer"), toont(bron));

    laatLopen();
    EXPECT_EQ(0, gemeld) << "de gebruiker koos geen directory";
    EXPECT_FALSE(lid(&Inzage::bronGekozen));
    EXPECT_FALSE(lid(&Inzage::bestemmingGekozen));
    EXPECT_EQ("twee.c", lid(&Inzage::huidigBestand).GetFullName());
}

TEST_F(BestandsOpdrachten, WerkenMetElkeNaam) {
    for (const std::string& naam :
         {std::string("met spatie.c"), std::string("komma's, $HOME en %PATH%.c"), std::string("één €.c")}) {
        werktMet(naam);
    }
}

TEST_F(BestandsOpdrachten, OpenenEenBinairBestandZonderTeVallen) {
    std::string inhoud;
    for (int i = 1; i < 256; ++i) {
        inhoud += static_cast<char>(i);
    }
    open("binair.c", inhoud + std::string(3, '\0') + inhoud);
    EXPECT_FALSE(tekstVan(origineel()).empty());
    kies(wxID_ADD, geefOmgeving().werk() / "binair.c");
    EXPECT_TRUE(lid(&Inzage::origineelGeladen));
}

TEST_F(BestandsOpdrachten, LatenDeToolkitMeldenDatHetDoelNietTeSchrijvenIs) {
    aangepast()->SetText("resultaat");
    fs::create_directory(geefOmgeving().werk() / "map.c");
    const auto melding = beantwoordMelding(wxID_OK, [this] {
        wxFileName weg(werk_ + "/bestaat-niet/uit.c");
        EXPECT_FALSE(aangepast()->SaveFile(weg.GetFullPath()));
        wxLog::FlushActive();
    });
    EXPECT_NE("", melding.tekst);
    EXPECT_EQ("resultaat", tekstVan(aangepast()));
}

TEST_F(BestandsOpdrachten, ToontElkPadHoeLangHetOokIs) {
    fs::path pad = geefOmgeving().werk();
    for (const std::size_t lengte : {20U, 30U, 200U, 250U, 250U}) {
        pad /= std::string(lengte, 'x');
        fs::create_directory(pad);
        wxDirPickerCtrl* kiezer = maakPadKiezer(venster_, wxID_ANY, naarWx(pad));
        EXPECT_EQ(naarWx(pad), kiezer->GetTextCtrl()->GetValue());
        EXPECT_EQ(naarWx(pad), kiezer->GetTextCtrl()->GetToolTipText());
        EXPECT_EQ(naarWx(pad), kiezer->GetPath());
        toonPad(*kiezer, naarWx(geefOmgeving().werk()));
        toonPad(*kiezer, naarWx(pad));
        EXPECT_EQ(naarWx(pad), kiezer->GetTextCtrl()->GetValue());
        kiezer->Destroy();
    }
}
