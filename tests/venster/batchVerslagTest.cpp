// Wat er onder de regels van beide logboeken staat, en dat het nergens anders komt.

#include "tests/venster/batchVerslag.h"

namespace fs = std::filesystem;

TEST_F(BatchVerslag, StaatOnderElkeRegelVanEenDirectory) {
    knipDirectoryMet(
        maakMengsel(),
        "fout | Fout: 2 bestanden geknipt met 3 blokken, 1 zonder enig blok, 1 overgeslagen, 1 mislukt");
}

TEST_F(BatchVerslag, StaatOnderElkeRegelVanEenBoom) {
    hulp::maakBoom(doel_, {{"a.c", metBlok}, {"sub/b.c", "niets\n"}});
    zonderDialoog([this] {
        knipBoom();
        wxLog::FlushActive();
    });
    const std::string samenvatting =
        "^ opmerking | 1 bestand geknipt met 1 blok, 1 zonder enig blok, 0 overgeslagen, 0 "
        "mislukt";
    verwacht({"In totaal 2 bestanden en directories gevonden in " + doelPad() + "\n",
              "Orig bestand 1:" + naarTekst(doel_ / "sub" / "b.c") + "\n", "^ " + geenBlok,
              "Orig bestand 2:" + naarTekst(doel_ / "a.c") + "\n", "", samenvatting},
             {"Student bestand 1:" + naarTekst(doel_ / "sub" / "b.c") + "\n",
              "Student bestand 2:" + naarTekst(doel_ / "a.c") + "\n", "", samenvatting});
}

TEST_F(BatchVerslag, LaatGoedeBestandenZonderBijschrift) {
    hulp::maakBoom(bron_, {{"a.c", metBlok}});
    knipDirectory();
    const std::string samenvatting =
        "^ opmerking | 1 bestand geknipt met 1 blok, 0 zonder enig blok, 0 overgeslagen, 0 mislukt";
    verwacht({"Originele dir : " + bronPad() + "\n", "Orig bestand 1:a.c\n", "", samenvatting},
             {"Student dir : " + doelPad() + "\n", "Student bestand 1:a.c\n", "", samenvatting});
}

TEST_F(BatchVerslag, KomtNietInEenOpgeslagenLogboek) {
    maakMengsel();
    knipDirectory();
    hulp::neemBeweringen();
    const std::string tekst = tekstVan(aangepast());
    const fs::path log = geefOmgeving().werk() / "log";
    beantwoordBestandsdialoog(naarWx(log), [this] { geefOpdracht(wxID_SAVE); });
    EXPECT_EQ(tekst, hulp::leesBestand(log));
    EXPECT_EQ(std::string::npos, tekst.find("Fout"));
}

TEST_F(BatchVerslag, MaaktEenLeegLogboekNietVeranderd) {
    zonderDialoog([this] { knipBoom(); });
    const std::string samenvatting =
        "^ waarschuwing | Let op: 0 bestanden geknipt met 0 blokken, 0 zonder enig blok, 0 overgeslagen, "
        "0 mislukt";
    verwacht({"In totaal 0 bestanden en directories gevonden in " + doelPad() + "\n", "", samenvatting},
             {"", samenvatting});
    EXPECT_FALSE(aangepast()->IsModified());
    EXPECT_FALSE(lid(&Inzage::opslaanKnop)->IsEnabled());
}

TEST_F(BatchVerslag, HeeftZonderBestandenNietsTeZeggen) {
    beantwoordMelding(wxID_OK, [this] {
        knipDirectory();
        wxLog::FlushActive();
    });
    EXPECT_EQ((Regels{"Originele dir : " + bronPad() + "\n", ""}), lees(origineel()));
    EXPECT_EQ((Regels{"Student dir : " + doelPad() + "\n", ""}), lees(aangepast()));
}

TEST_F(BatchVerslag, VerdwijntBijEenAndereVerwerking) {
    maakMengsel();
    for (const int keuze : {0, 1, 2}) {
        knipDirectory();
        EXPECT_NE(wxSTC_ANNOTATION_HIDDEN, origineel()->AnnotationGetVisible());
        kiesModus(keuze);
        verwachtZonderBijschriften();
    }
    hulp::neemBeweringen();
}

TEST_F(BatchVerslag, VerdwijntBijDeVolgendeBatch) {
    maakMengsel();
    knipDirectory();
    hulp::neemBeweringen();
    fs::remove_all(bron_);
    fs::remove_all(doel_);
    fs::create_directory(doel_);
    hulp::maakBoom(bron_, {{"1.c", metBlok}, {"2.c", metBlok}, {"3.c", metBlok}, {"4.c", metBlok}});
    geefOpdracht(wxID_REPLACE);
    bronLog_ = {"Originele dir : " + bronPad() + "\n"};
    doelLog_ = {"Student dir : " + doelPad() + "\n"};
    long nummer = 1;
    for (const std::string& naam : hulp::somOp(bron_)) {
        bronLog_.push_back("Orig bestand " + std::to_string(nummer) + ":" + naam + "\n");
        doelLog_.push_back("Student bestand " + std::to_string(nummer) + ":" + naam + "\n");
        ++nummer;
    }
    for (Regels* log : {&bronLog_, &doelLog_}) {
        log->push_back("");
        voegToe(*log, {"opmerking | 4 bestanden geknipt met 4 blokken, 0 zonder enig blok, 0 overgeslagen, "
                       "0 mislukt"});
    }
    verwacht(bronLog_, doelLog_);
    fs::remove_all(bron_);
    fs::create_directory(bron_);
    beantwoordMelding(wxID_OK, [this] {
        geefOpdracht(wxID_REPLACE);
        wxLog::FlushActive();
    });
    EXPECT_EQ((Regels{"Originele dir : " + bronPad() + "\n", ""}), lees(origineel()))
        << "ook als er niets te knippen valt";
}

TEST_F(BatchVerslag, VerdwijntOokUitEenLogboekZonderTekst) {
    knipBoom();
    kiesModus(2);
    verwachtZonderBijschriften();
    kiesModus(2);
    knipBoom();
    hulp::maakBoom(doel_, {{"a.c", metBlok}});
    geefOpdracht(wxID_REPLACE);
    const std::string samenvatting =
        "^ opmerking | 1 bestand geknipt met 1 blok, 0 zonder enig blok, 0 overgeslagen, 0 mislukt";
    verwacht({"In totaal 1 bestanden en directories gevonden in " + doelPad() + "\n",
              "Orig bestand 1:" + naarTekst(doel_ / "a.c") + "\n", "", samenvatting},
             {"Student bestand 1:" + naarTekst(doel_ / "a.c") + "\n", "", samenvatting});
}

TEST_F(BatchVerslag, BlijftHetzelfdeAlsHetVensterSmallerWordt) {
    maakMengsel();
    knipDirectory();
    hulp::neemBeweringen();
    laatLopen();
    const Regels bronLog = lees(origineel());
    const Regels doelLog = lees(aangepast());
    const int onderste = origineel()->GetLineCount() - 1;
    const int hoogte = origineel()->AnnotationGetLines(onderste);
    const int breedte = origineel()->GetSize().x;
    venster_->SetSize(venster_->GetSize().x * 2 / 3, venster_->GetSize().y);
    EXPECT_TRUE(laatLopenTot([&] {
        laatLopen();
        return origineel()->GetSize().x < breedte && origineel()->AnnotationGetLines(onderste) > hoogte;
    }));
    verwacht(bronLog, doelLog);
}

TEST_F(BatchVerslag, IsBijEenFoutNietMetEenOpmerkingTeVerwarren) {
    hulp::maakBoom(bron_, {{"a.c", metBlok}});
    knipDirectory();
    const int onderste = origineel()->GetLineCount() - 1;
    const auto opmerking = geefKleuren(origineel(), onderste);
    EXPECT_EQ(opmerking, geefKleuren(aangepast(), onderste));
    hulp::maakBoom(bron_, {{"a.c", "niets\n"}});
    knipDirectory();
    const auto waarschuwing = geefKleuren(origineel(), onderste);
    hulp::maakBoom(bron_, {{"a.c", metFouten}});
    knipDirectory();
    for (wxStyledTextCtrl* log : {origineel(), aangepast()}) {
        const auto fout = geefKleuren(log, onderste);
        EXPECT_EQ(fout, geefKleuren(log, onderste - 1)) << "bij het bestand en in de samenvatting";
        for (const auto& ander : {opmerking, waarschuwing}) {
            EXPECT_NE(ander.first, fout.first);
            EXPECT_NE(ander.second, fout.second);
        }
    }
}
