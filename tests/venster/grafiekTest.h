#pragma once

// De basis van de tests van GrafiekVenster: een paneel van 300 bij 200 met een veld van 600 bij 400, in een
// eigen venster van de lopende toepassing, en vragen over de beeldpunten die erop staan.

#include <gtest/gtest.h>
#include <wx/frame.h>

#include <functional>

#include "gemeenschappelijk/grafiekVenster.h"
#include "tests/hulp/beweringen.h"

/// Geeft de tests toegang tot de leden van elk GrafiekVenster: via &GrafiekInzage::lid.
class GrafiekInzage : public GrafiekVenster {
  public:
    using GrafiekVenster::clientGrootte;
    using GrafiekVenster::grafiekGrootte;
    using GrafiekVenster::groteFont;
    using GrafiekVenster::normaleFont;
    using GrafiekVenster::oorsprong;
    using GrafiekVenster::tekening;
    using GrafiekVenster::tekeningDC;
};

/// Telt hoe vaak het paneel zichzelf ververst, met en zonder de achtergrond.
class TelPaneel : public GrafiekVenster {
  public:
    using GrafiekVenster::GrafiekVenster;

    void Refresh(bool wisAchtergrond = true, const wxRect* gebied = nullptr) override {
        (wisAchtergrond && gebied == nullptr ? heel_ : anders_) += 1;
        GrafiekVenster::Refresh(wisAchtergrond, gebied);
    }

    /// Hoe vaak een handeling het hele paneel ververst; -1 als zij iets anders ververst.
    int telVerversen(const std::function<void()>& handeling) {
        heel_ = 0;
        anders_ = 0;
        handeling();
        return anders_ == 0 ? heel_ : -1;
    }

  private:
    int heel_ = 0;
    int anders_ = 0;
};

/// De beeldpunten van één beeld. Getekend heet wat donkerder is dan halverwege wit: de randen van een lijn
/// die niet precies op het raster ligt, zijn lichter dan de lijn zelf.
class Beeld {
  public:
    explicit Beeld(const wxImage& beeld) : beeld_(beeld) {}

    [[nodiscard]] bool isGetekend(int x, int y) const;
    [[nodiscard]] bool isWit(int x, int y) const { return kleur(x, y) == *wxWHITE; }
    [[nodiscard]] wxColour kleur(int x, int y) const;

    /// De kleinste rechthoek om alles wat getekend is; leeg als er niets staat.
    [[nodiscard]] wxRect gebied() const { return gebied(wxRect(beeld_.GetSize())); }
    [[nodiscard]] wxRect gebied(const wxRect& binnen) const;

    /// Hoeveel beeldpunten getekend zijn, en hoeveel er niet meer zuiver wit zijn.
    [[nodiscard]] int telGetekend() const;
    [[nodiscard]] int telNietWit() const;

    /// De strook van één beeldpunt breed waarop getekend is, als "van-tot"; leeg als er niets staat.
    [[nodiscard]] std::string kolom(int x) const;

    [[nodiscard]] const wxImage& image() const { return beeld_; }
    bool operator==(const Beeld& ander) const;

  private:
    wxImage beeld_;
};

class GrafiekTest : public testing::Test {
  protected:
    GrafiekTest();
    ~GrafiekTest() override;

    template <typename Soort>
    Soort& lid(Soort GrafiekVenster::*wijzer) const {
        return paneel_->*wijzer;
    }

    /// Wat er nu op het veld staat.
    [[nodiscard]] Beeld beeld() const { return Beeld(paneel_->exporteerBeeld()); }

    static const hulp::Bewering buitenVeld;

    wxFrame* venster_;
    wxPanel* ouder_;
    TelPaneel* paneel_;
};

void PrintTo(const wxRect& rechthoek, std::ostream* uit);
