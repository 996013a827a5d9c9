#include "Knipselaar/venster/invoerslot.h"

#include <wx/utils.h>
#include <wx/weakref.h>
#include <wx/window.h>

/// Een venster dat uit staat krijgt van Windows geen muis; aan wat erin staat is niets te zien. Toetsen gaan naar wie de
/// aandacht heeft, en dat is nu het venster van het slot.
class Invoerslot::Slot {
  public:
    explicit Slot(wxWindow& venster) : eerder_(wxWindow::FindFocus()), uit_(&venster) { venster.SetFocus(); }
    Slot(const Slot&) = delete;
    Slot& operator=(const Slot&) = delete;

    ~Slot() {
        if (eerder_ != nullptr) {
            eerder_->SetFocus();
        }
    }

  private:
    wxWeakRef<wxWindow> eerder_;
    wxWindowDisabler uit_;
};

Invoerslot::Invoerslot(wxWindow& venster) : slot_(std::make_unique<Slot>(venster)) {}

Invoerslot::~Invoerslot() = default;
