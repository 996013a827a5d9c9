#include "Knipselaar/venster/systeem/klik.h"

#include <gtk/gtk.h>
#include <wx/radiobox.h>

namespace {

/// Zoekt in een GTK-onderdeel de knop die een klik afhandelt.
void zoekKlik(GtkWidget* deel, gpointer gevonden) {
    if (GTK_IS_RADIO_BUTTON(deel) && g_signal_get_invocation_hint(deel) != nullptr) {
        *static_cast<bool*>(gevonden) = true;
    } else if (GTK_IS_CONTAINER(deel)) {
        gtk_container_forall(GTK_CONTAINER(deel), zoekKlik, gevonden);
    }
}

}  // namespace

bool isKlik(const wxRadioBox& rondje) {
    bool gevonden = false;
    zoekKlik(rondje.GetHandle(), &gevonden);
    return gevonden;
}
