#pragma once

// De basis van alle venstertests: het venster van de lopende toepassing, zijn leden, en wachten zonder
// slapen.

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/evtloop.h>
#include <wx/filepicker.h>
#include <wx/menu.h>
#include <wx/panel.h>
#include <wx/radiobox.h>
#include <wx/stattext.h>
#include <wx/stc/stc.h>
#include <wx/textctrl.h>

#include <filesystem>
#include <functional>

#include "Knipselaar/knipselaar.h"
#include "Knipselaar/venster/identificaties.h"
#include "Knipselaar/venster/parserVenster.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/beweringen.h"
#include "tests/hulp/omgeving.h"
#include "tests/hulp/wachten.h"

void zetOmgeving(const hulp::Omgeving& omgeving);
const hulp::Omgeving& geefOmgeving();

/// Laat de hoofdlus lopen tot een voorwaarde geldt. False als dat te lang duurt.
bool laatLopenTot(const std::function<bool()>& voorwaarde, int hoogstensMs = 30000);

/// Laat de hoofdlus alles afhandelen wat er ligt, ook het bijwerken van de bediening.
void laatLopen();

/// Een pad zoals het programma het toont: met de scheidingstekens van dit systeem.
wxString naarWx(std::filesystem::path pad);
std::string naarTekst(const std::filesystem::path& pad);

/// Geeft de tests toegang tot de leden van elk ParserVenster: via &Inzage::lid.
class Inzage : public ParserVenster {
  public:
    using ParserVenster::aangepastBox;
    using ParserVenster::aangepastEditor;
    using ParserVenster::aangepastPad;
    using ParserVenster::batchBox;
    using ParserVenster::beginMarkerBox;
    using ParserVenster::beginMarkerTekst;
    using ParserVenster::bestandTypeKeuze;
    using ParserVenster::bestemmingDirKiezer;
    using ParserVenster::bestemmingGekozen;
    using ParserVenster::bestemmingLabel;
    using ParserVenster::bezigMetScrollen;
    using ParserVenster::bronDirKiezer;
    using ParserVenster::bronGekozen;
    using ParserVenster::bronLabel;
    using ParserVenster::config;
    using ParserVenster::eindeKnop;
    using ParserVenster::eindMarkerBox;
    using ParserVenster::eindMarkerTekst;
    using ParserVenster::enkelBestandBox;
    using ParserVenster::GetEventTable;
    using ParserVenster::huidigBestand;
    using ParserVenster::menuBalk;
    using ParserVenster::openKnop;
    using ParserVenster::opslaanKnop;
    using ParserVenster::origineelBox;
    using ParserVenster::origineelEditor;
    using ParserVenster::origineelGeladen;
    using ParserVenster::origineelPad;
    using ParserVenster::paneel;
    using ParserVenster::parserModeKeuze;
    using ParserVenster::pasAanKnop;
    using ParserVenster::vervangBox;
    using ParserVenster::vervangTekst;
    using ParserVenster::voegToeKnop;
    using ParserVenster::werkMerkenBij;
};

/// Een keuzerondje waarvan de selectie niet bestaat.
class OnmogelijkeKeuze : public wxRadioBox {
  public:
    explicit OnmogelijkeKeuze(wxWindow& ouder)
        : wxRadioBox(&ouder, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxArrayString(1, &keuze_)) {
        Hide();
    }
    int GetSelection() const override { return 7; }

  private:
    inline static const wxString keuze_ = "enige";
};

class VensterTest : public testing::Test {
  protected:
    VensterTest();

    template <typename Soort>
    Soort& lid(Soort ParserVenster::*wijzer) const {
        return venster_->*wijzer;
    }

    wxStyledTextCtrl* origineel() const { return lid(&Inzage::origineelEditor); }
    wxStyledTextCtrl* aangepast() const { return lid(&Inzage::aangepastEditor); }
    wxRadioBox* modus() const { return lid(&Inzage::parserModeKeuze); }

    /// Geeft een opdracht zoals het menu dat doet.
    void geefOpdracht(int id) const;

    /// Kiest een verwerking en meldt dat, ook als zij er al stond.
    void kiesModus(int keuze) const;

    /// Voert een handeling uit terwijl het venster een keuze heeft die niet bestaat.
    void metOnmogelijkeKeuze(const std::function<void()>& handeling);

    /// De tekst van een editor als UTF-8.
    static std::string tekstVan(wxStyledTextCtrl* editor);

    /// Een bestand met deze inhoud in de werkdirectory van de test.
    static std::filesystem::path maakBestand(const std::string& naam, std::string_view inhoud);

    /// Een tweede venster op dezelfde opslag, zoals een volgende start het zou maken.
    static ParserVenster* maakVenster();
    static void sluitVenster(ParserVenster* venster);

    ParserVenster* venster_;
};
