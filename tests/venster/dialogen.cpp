#include "tests/venster/dialogen.h"

#include <gtest/gtest.h>

#include "tests/venster/vensterTest.h"

namespace {

/// Meldt aan GoogleTest in plaats van met een bewering, die in een bouw zonder beweringen zou verdwijnen.
class Haak : public wxTestingModalHook {
  public:
    Haak() : wxTestingModalHook(nullptr, 0, nullptr) {}

  protected:
    void ReportFailure(const wxString& melding) override { ADD_FAILURE() << melding; }
};

class VerwachtBestandsdialoog : public wxExpectModalBase<wxFileDialog> {
  public:
    VerwachtBestandsdialoog(wxString keuze, Bestandsdialoog& gezien)
        : keuze_(std::move(keuze)), gezien_(gezien) {}

  protected:
    int OnInvoked(wxFileDialog* dialoog) const override {
        gezien_ = {dialoog->GetMessage(), dialoog->GetDirectory(), dialoog->GetFilename(),
                   dialoog->GetWildcard(), dialoog->GetWindowStyle()};
        if (keuze_.empty()) {
            return wxID_CANCEL;
        }
        // GTK kent de keuze pas als de dialoog getoond is en zijn directory gelezen heeft.
        dialoog->SetPath(keuze_);
        dialoog->Show();
        EXPECT_TRUE(laatLopenTot([this, dialoog] { return dialoog->GetPath() == keuze_; }))
            << dialoog->GetPath() << " in plaats van " << keuze_;
        dialoog->Hide();
        return wxID_OK;
    }

  private:
    wxString keuze_;
    Bestandsdialoog& gezien_;
};

class VerwachtMelding : public wxExpectModalBase<wxMessageDialog> {
  public:
    VerwachtMelding(
        int antwoord, Melding& gezien, std::function<void()> bijLezen = [] {})
        : antwoord_(antwoord), gezien_(gezien), bijLezen_(std::move(bijLezen)) {}

  protected:
    int OnInvoked(wxMessageDialog* dialoog) const override {
        gezien_ = {dialoog->GetMessage().utf8_string(), dialoog->GetCaption().utf8_string(),
                   dialoog->GetMessageDialogStyle(), dialoog->GetParent(),
                   vindBezigVenster(dialoog->GetParent())};
        bijLezen_();
        return antwoord_;
    }

  private:
    static wxRect vindBezigVenster(const wxWindow* ouder) {
        if (ouder != nullptr) {
            for (const wxWindow* kind : ouder->GetChildren()) {
                if (kind->IsTopLevel() && kind->IsShown() &&
                    dynamic_cast<const wxMessageDialog*>(kind) == nullptr) {
                    return kind->GetScreenRect();
                }
            }
        }
        return {};
    }

    int antwoord_;
    Melding& gezien_;
    std::function<void()> bijLezen_;
};

void voerUit(const wxModalExpectation& verwachting, const std::function<void()>& handeling) {
    Haak haak;
    haak.AddExpectation(verwachting);
    handeling();
    haak.CheckUnmetExpectations();
}

}  // namespace

Bestandsdialoog beantwoordBestandsdialoog(const wxString& keuze, const std::function<void()>& handeling) {
    Bestandsdialoog gezien;
    voerUit(VerwachtBestandsdialoog(keuze, gezien), handeling);
    return gezien;
}

Melding beantwoordMelding(int antwoord, const std::function<void()>& handeling) {
    Melding gezien;
    voerUit(VerwachtMelding(antwoord, gezien), handeling);
    return gezien;
}

Melding beantwoordDialoogEnMelding(const wxString& keuze, const std::function<void()>& bijLezen,
                                   const std::function<void()>& handeling) {
    Bestandsdialoog dialoog;
    Melding melding;
    const VerwachtBestandsdialoog eerst(keuze, dialoog);
    const VerwachtMelding dan(wxID_OK, melding, bijLezen);
    Haak haak;
    haak.AddExpectation(eerst);
    haak.AddExpectation(dan);
    handeling();
    haak.CheckUnmetExpectations();
    return melding;
}

void zonderDialoog(const std::function<void()>& handeling) {
    Haak haak;
    handeling();
}
