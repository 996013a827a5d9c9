// Wat een schermlezer over de bediening hoort. De toolkit geeft namen niet door aan GTK; dit gaat daarom
// rechtstreeks. Aan het venster zelf is er niets van te zien.

#include "Knipselaar/venster/toegankelijkheid.h"

#include <gtk/gtk.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/intl.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/stc/stc.h>
#include <wx/textctrl.h>

#include "Knipselaar/venster/parserVenster.h"

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

GtkWidget* geefLabel(const wxWindow& kader) {
    return gtk_frame_get_label_widget(GTK_FRAME(kader.GetHandle()));
}

/// Wat in een veld met schuifbalken de toetsen krijgt.
GtkWidget* geefInhoud(const wxWindow& veld) {
    return gtk_bin_get_child(GTK_BIN(veld.GetHandle()));
}

/// Beide kiezers hebben een knop met dezelfde tekst; de beschrijving zegt welke het is. De tooltip van het
/// tekstveld is geen beschrijving: een schermlezer leest het pad al voor.
void noemKiezer(const wxStaticText& label, wxDirPickerCtrl& kiezer) {
    const wxString naam = label.GetLabelText();
    GtkWidget* veld = kiezer.GetTextCtrl()->GetHandle();
    zetLabel(label.GetHandle(), veld, naam);
    atk_object_set_description(geefToegang(veld), "");
    atk_object_set_description(geefToegang(kiezer.GetPickerCtrl()->GetHandle()), naam.utf8_str());
}

/// Een keuzelijst is in GTK een doos om een knop, en die knop krijgt de toetsen.
void noemMetKnop(GtkWidget* deel, gpointer naam) {
    zetNaam(deel, *static_cast<const wxString*>(naam));
    if (g_type_is_a(G_OBJECT_TYPE(deel), GTK_TYPE_TOGGLE_BUTTON) == 0) {
        gtk_container_forall(GTK_CONTAINER(deel), noemMetKnop, naam);
    }
}

}  // namespace

void ParserVenster::noemVoorSchermlezer() {
    zetLabel(geefLabel(*origineelBox), geefInhoud(*origineelEditor), origineelBox->GetLabelText());
    zetLabel(geefLabel(*beginMarkerBox), beginMarkerTekst->GetHandle(), beginMarkerBox->GetLabelText());
    zetLabel(geefLabel(*eindMarkerBox), eindMarkerTekst->GetHandle(), eindMarkerBox->GetLabelText());
    zetLabel(geefLabel(*aangepastBox), geefInhoud(*aangepastEditor), aangepastBox->GetLabelText());
    zetLabel(geefLabel(*vervangBox), geefInhoud(*vervangTekst), vervangBox->GetLabelText());
    noemKiezer(*bronLabel, *bronDirKiezer);
    noemKiezer(*bestemmingLabel, *bestemmingDirKiezer);
    wxString soort = wxGetTranslation("Soort bestanden");
    noemMetKnop(bestandTypeKeuze->GetHandle(), &soort);
}
