#include "Knipselaar/venster/systeem/toegankelijkheid.h"

#include <gtk/gtk.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace {

AtkObject* geefToegang(GtkWidget* bediening) {
    return gtk_widget_get_accessible(bediening);
}

void zetNaam(GtkWidget* bediening, const wxString& naam) {
    atk_object_set_name(geefToegang(bediening), naam.utf8_str());
}

/// Geeft bediening een naam en het label dat haar die naam geeft.
void zetLabel(GtkWidget* label, GtkWidget* bediening, const wxString& naam) {
    gtk_label_set_mnemonic_widget(GTK_LABEL(label), bediening);
    zetNaam(bediening, naam);
}

/// Wat in een veld de toetsen krijgt: het veld zelf, of wat er tussen zijn schuifbalken staat.
GtkWidget* geefInhoud(const wxWindow& veld) {
    GtkWidget* heel = veld.GetHandle();
    return GTK_IS_BIN(heel) ? gtk_bin_get_child(GTK_BIN(heel)) : heel;
}

/// Een keuzelijst is in GTK een doos om een knop, en die knop krijgt de toetsen.
void noemMetKnop(GtkWidget* deel, gpointer naam) {
    zetNaam(deel, *static_cast<const wxString*>(naam));
    if (g_type_is_a(G_OBJECT_TYPE(deel), GTK_TYPE_TOGGLE_BUTTON) == 0) {
        gtk_container_forall(GTK_CONTAINER(deel), noemMetKnop, naam);
    }
}

}  // namespace

// cppcheck-suppress constParameter; een ander systeem verandert er iets aan
void noemVeld(const wxStaticBox& kader, wxWindow& veld) {
    zetLabel(gtk_frame_get_label_widget(GTK_FRAME(kader.GetHandle())), geefInhoud(veld),
             kader.GetLabelText());
}

void noemKiezer(const wxStaticText& label, wxDirPickerCtrl& kiezer) {
    const wxString naam = label.GetLabelText();
    GtkWidget* veld = kiezer.GetTextCtrl()->GetHandle();
    zetLabel(label.GetHandle(), veld, naam);
    // De tooltip van het tekstveld is geen beschrijving: een schermlezer leest het pad al voor.
    atk_object_set_description(geefToegang(veld), "");
    atk_object_set_description(geefToegang(kiezer.GetPickerCtrl()->GetHandle()), naam.utf8_str());
}

// cppcheck-suppress constParameter; idem
void noemKeuzelijst(wxChoice& keuzelijst, const wxString& naam) {
    wxString tekst = naam;
    noemMetKnop(keuzelijst.GetHandle(), &tekst);
}
