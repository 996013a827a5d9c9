#include "Knipselaar/venster/invoerslot.h"

#include <gtk/gtk.h>
#include <wx/window.h>

Invoerslot::Invoerslot(wxWindow& venster) : venster_(venster) {
    gtk_grab_add(venster_.GetHandle());
}

Invoerslot::~Invoerslot() {
    gtk_grab_remove(venster_.GetHandle());
}
