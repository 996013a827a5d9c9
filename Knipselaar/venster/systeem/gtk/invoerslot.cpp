#include "Knipselaar/venster/invoerslot.h"

#include <gtk/gtk.h>
#include <wx/window.h>

class Invoerslot::Slot {
  public:
    explicit Slot(wxWindow& venster) : venster_(venster) { gtk_grab_add(venster_.GetHandle()); }
    Slot(const Slot&) = delete;
    Slot& operator=(const Slot&) = delete;
    ~Slot() { gtk_grab_remove(venster_.GetHandle()); }

  private:
    wxWindow& venster_;
};

Invoerslot::Invoerslot(wxWindow& venster) : slot_(std::make_unique<Slot>(venster)) {}

Invoerslot::~Invoerslot() = default;
