#pragma once

// Openen, toevoegen en opslaan, met een dialoog die de test beantwoordt.

#include <string>
#include <string_view>

#include "tests/venster/dialogen.h"
#include "tests/venster/vensterTest.h"

class BestandsOpdrachten : public VensterTest {
  protected:
    Bestandsdialoog kies(int opdracht, const std::filesystem::path& pad) {
        return beantwoordBestandsdialoog(naarWx(pad), [this, opdracht] { geefOpdracht(opdracht); });
    }

    Bestandsdialoog open(const std::string& naam, std::string_view inhoud) {
        return kies(wxID_OPEN, maakBestand(naam, inhoud));
    }

    /// Opent een bestand met deze naam, en slaat er een op.
    void werktMet(const std::string& naam) {
        open(naam, "inhoud");
        EXPECT_EQ("inhoud", tekstVan(origineel())) << naam;
        aangepast()->SetText("resultaat");
        const auto doel = geefOmgeving().werk() / ("uit " + naam);
        kies(wxID_SAVE, doel);
        EXPECT_EQ("resultaat", hulp::leesBestand(doel));
    }

    int lexer() const { return origineel()->GetLexer(); }

    const wxString werk_ = naarWx(geefOmgeving().werk());
};
