#pragma once

// Wat de tests van de batches in het venster delen: een bron, een bestemming, en de handelingen waarmee een
// gebruiker een batch begint.

#include <string>

#include "tests/hulp/bestandsboom.h"
#include "tests/venster/dialogen.h"
#include "tests/venster/vensterTest.h"

/// Een bestand met één blok, en wat een batch ervan maakt.
inline const std::string metBlok = "a\nBEGIN\nb\nEIND\nc\n";
inline const std::string zonderBlok = hulp::zetInBestand("a\nWERK\nc\n\n");

class BatchTest : public VensterTest {
  protected:
    BatchTest() {
        std::filesystem::create_directory(bron_);
        std::filesystem::create_directory(doel_);
        lid(&Inzage::beginMarkerTekst)->SetValue("BEGIN");
        lid(&Inzage::eindMarkerTekst)->SetValue("EIND");
        lid(&Inzage::vervangTekst)->SetValue("WERK");
    }

    /// Typt een pad in het tekstveld van een kiezer, zoals een gebruiker; de kiezer meldt het zelf.
    void typ(wxDirPickerCtrl* kiezer, const wxString& pad) {
        kiezer->Enable();
        kiezer->GetTextCtrl()->SetValue(pad);
        laatLopen();
    }
    void kiesBron(const std::filesystem::path& pad) { typ(lid(&Inzage::bronDirKiezer), naarWx(pad)); }
    void kiesDoel(const std::filesystem::path& pad) { typ(lid(&Inzage::bestemmingDirKiezer), naarWx(pad)); }

    /// Start de flat batch van bron_ naar doel_ met een keuze van het bestandstype.
    void knipDirectory(int bestandType = 0) {
        kiesModus(1);
        kiesBron(bron_);
        kiesDoel(doel_);
        lid(&Inzage::bestandTypeKeuze)->SetSelection(bestandType);
        geefOpdracht(wxID_REPLACE);
    }

    void knipBoom(int bestandType = 0) {
        kiesModus(2);
        kiesDoel(doel_);
        lid(&Inzage::bestandTypeKeuze)->SetSelection(bestandType);
        geefOpdracht(wxID_REPLACE);
    }

    /// De batch van bron_ naar deze directory vraagt of dat zo hoort, en doet dan niets.
    void verwachtVraag(const std::filesystem::path& bestemming) {
        lid(&Inzage::aangepastPad) = naarWx(bestemming);
        lid(&Inzage::origineelPad) = naarWx(bron_);
        modus()->SetSelection(1);
        const auto melding = beantwoordMelding(wxID_NO, [this] { geefOpdracht(wxID_REPLACE); });
        EXPECT_EQ("Bevestig", melding.titel) << bestemming;
        EXPECT_EQ(metBlok, hulp::leesBestand(bron_ / "a.c")) << bestemming;
    }

    std::string bronPad() const { return naarTekst(bron_); }
    std::string doelPad() const { return naarTekst(doel_); }

    std::filesystem::path bron_ = geefOmgeving().werk() / "bron";
    std::filesystem::path doel_ = geefOmgeving().werk() / "doel";
};
