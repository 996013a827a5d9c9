#include "Knipselaar/venster/systeem/invoergreep.h"

#include <gtk/gtk.h>

/// Een venster dat nooit getoond wordt krijgt alle invoer, en doet er niets mee.
struct Invoergreep::Greep {
    GtkWidget* venster = gtk_invisible_new();
};

Invoergreep::Invoergreep() : greep_(std::make_unique<Greep>()) {
    gtk_widget_realize(greep_->venster);
    gtk_grab_add(greep_->venster);
}

Invoergreep::~Invoergreep() {
    gtk_grab_remove(greep_->venster);
    gtk_widget_destroy(greep_->venster);
}
