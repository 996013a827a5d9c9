#include "gemeenschappelijk/systeem/overPlaatje.h"

#include <gtk/gtk.h>

namespace {

void verberg(GtkWidget* deel, gpointer /*niets*/) {
    if (GTK_IS_IMAGE(deel)) {
        gtk_widget_hide(deel);
    } else if (GTK_IS_CONTAINER(deel)) {
        gtk_container_foreach(GTK_CONTAINER(deel), verberg, nullptr);
    }
}

}  // namespace

void verbergPlaatje() {
    GList* vensters = gtk_window_list_toplevels();
    for (const GList* rest = vensters; rest != nullptr; rest = rest->next) {
        if (GTK_IS_ABOUT_DIALOG(rest->data)) {
            // Alleen de inhoud: ook het kruisje van de titelbalk is een plaatje.
            verberg(gtk_dialog_get_content_area(GTK_DIALOG(rest->data)), nullptr);
        }
    }
    g_list_free(vensters);
}
