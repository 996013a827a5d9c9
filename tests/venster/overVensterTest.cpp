// Het Over-venster. Dat is een venster van GTK en niet van de toolkit; wat erin staat wordt daarom aan GTK
// gevraagd.

#include <gtk/gtk.h>
#include <wx/confbase.h>

#include <sstream>

#include "tests/venster/vensterTest.h"

namespace {

/// Een tekst van GTK, die ook kan ontbreken.
std::string lees(const char* tekst) {
    return tekst == nullptr ? "(ontbreekt)" : tekst;
}

/// Hoeveel namen er in een rij van GTK staan.
std::size_t telNamen(const char* const* namen) {
    std::size_t aantal = 0;
    while (namen != nullptr && namen[aantal] != nullptr) {
        ++aantal;
    }
    return aantal;
}

/// Schrijft een groep van de opslag met alles eronder uit, een sleutel per regel.
void beschrijf(const wxConfigBase& opslag, const wxString& groep, std::ostream& uit) {
    const wxConfigPathChanger pad(&opslag, groep + "/");
    wxString naam;
    long plaats = 0;
    for (bool meer = opslag.GetFirstEntry(naam, plaats); meer; meer = opslag.GetNextEntry(naam, plaats)) {
        uit << groep << "/" << naam << "=" << opslag.Read(naam) << "\n";
    }
    wxArrayString groepen;
    for (bool meer = opslag.GetFirstGroup(naam, plaats); meer; meer = opslag.GetNextGroup(naam, plaats)) {
        groepen.Add(naam);
    }
    for (const wxString& onder : groepen) {
        beschrijf(opslag, groep + "/" + onder, uit);
    }
}

/// Schrijft een venster met al zijn kinderen uit: wat de gebruiker ervan ziet en ermee kan.
void beschrijf(wxWindow* venster, std::ostream& uit) {
    uit << wxString(venster->GetClassInfo()->GetClassName()) << " " << venster->GetId() << " "
        << venster->GetLabel() << " " << venster->IsShown() << venster->IsEnabled() << " "
        << venster->GetRect().x << "," << venster->GetRect().y << "," << venster->GetRect().width << ","
        << venster->GetRect().height;
    if (auto* veld = dynamic_cast<wxTextEntryBase*>(venster)) {
        uit << " " << veld->GetValue();
    }
    if (auto* editor = dynamic_cast<wxStyledTextCtrl*>(venster)) {
        uit << " " << editor->GetText() << " " << editor->IsModified() << editor->GetLexer();
    }
    if (auto* keuze = dynamic_cast<wxItemContainerImmutable*>(venster)) {
        uit << " " << keuze->GetSelection();
    }
    uit << "\n";
    for (wxWindow* kind : venster->GetChildren()) {
        beschrijf(kind, uit);
    }
}

class OverVenster : public VensterTest {
  protected:
    ~OverVenster() override {
        if (zoek() != nullptr) {
            sluit();
        }
    }

    /// De zichtbare Over-vensters; er hoort er hooguit één te zijn.
    static std::vector<GtkAboutDialog*> zoekAlle() {
        std::vector<GtkAboutDialog*> gevonden;
        GList* vensters = gtk_window_list_toplevels();
        for (GList* rest = vensters; rest != nullptr; rest = rest->next) {
            if (GTK_IS_ABOUT_DIALOG(rest->data) && gtk_widget_get_visible(GTK_WIDGET(rest->data)) != FALSE) {
                gevonden.push_back(GTK_ABOUT_DIALOG(rest->data));
            }
        }
        g_list_free(vensters);
        return gevonden;
    }

    static GtkAboutDialog* zoek() {
        const auto gevonden = zoekAlle();
        EXPECT_LE(gevonden.size(), 1U);
        return gevonden.empty() ? nullptr : gevonden.front();
    }

    /// De zichtbare plaatjes in de inhoud van een venster. Onder een onderdeel dat niet te zien is, is niets
    /// te zien.
    static std::vector<std::string> zoekPlaatjes(GtkWidget* deel) {
        std::vector<std::string> gevonden;
        if (gtk_widget_get_visible(deel) == FALSE) {
            return gevonden;
        }
        if (GTK_IS_IMAGE(deel)) {
            const char* naam = nullptr;
            gtk_image_get_icon_name(GTK_IMAGE(deel), &naam, nullptr);
            gevonden.push_back(lees(naam));
        } else if (GTK_IS_CONTAINER(deel)) {
            GList* kinderen = gtk_container_get_children(GTK_CONTAINER(deel));
            for (GList* rest = kinderen; rest != nullptr; rest = rest->next) {
                const auto daarin = zoekPlaatjes(GTK_WIDGET(rest->data));
                gevonden.insert(gevonden.end(), daarin.begin(), daarin.end());
            }
            g_list_free(kinderen);
        }
        return gevonden;
    }

    /// Sluit het Over-venster met het signaal dat GTK bij Escape geeft.
    static void sluit() {
        g_signal_emit_by_name(zoek(), "close");
        EXPECT_TRUE(laatLopenTot([] { return zoek() == nullptr; }));
    }

    GtkAboutDialog* open() {
        geefOpdracht(wxID_ABOUT);
        EXPECT_TRUE(laatLopenTot([] { return zoek() != nullptr; }));
        return zoek();
    }

    /// Alles wat er in het venster en in de opslag staat.
    [[nodiscard]] std::string toestand() const {
        std::ostringstream uit;
        beschrijf(venster_, uit);
        beschrijf(*wxGetApp().configuratie, "", uit);
        uit << wxGetApp().configuratie->GetPath() << " " << lid(&Inzage::origineelPad) << " "
            << lid(&Inzage::aangepastPad) << " " << lid(&Inzage::huidigBestand).GetFullPath() << " "
            << lid(&Inzage::origineelGeladen) << lid(&Inzage::bronGekozen) << lid(&Inzage::bestemmingGekozen);
        return uit.str();
    }
};

constexpr const char* rechten =
    "\u00a92025-2026 ing. Team Knipselaar\nopleiding Elektrotechniek\nWerkplaats Knipselaar";

}  // namespace

TEST_F(OverVenster, ToontNaamVersieBeschrijvingEnRechten) {
    GtkAboutDialog* over = open();
    ASSERT_NE(nullptr, over);
    EXPECT_EQ("Knipselaar", lees(gtk_about_dialog_get_program_name(over)));
    EXPECT_EQ("1.0", lees(gtk_about_dialog_get_version(over)));
    EXPECT_EQ(
        "Met deze tool kan een docent stukken verwijderen uit software bronbestanden voor gebruik in het "
        "onderwijs",
        lees(gtk_about_dialog_get_comments(over)));
    EXPECT_EQ(rechten, lees(gtk_about_dialog_get_copyright(over))) << "de toolkit maakt van (c) het teken";
}

TEST_F(OverVenster, ToontVerderNiets) {
    GtkAboutDialog* over = open();
    ASSERT_NE(nullptr, over);
    EXPECT_EQ("(ontbreekt)", lees(gtk_about_dialog_get_website(over)));
    EXPECT_EQ("(ontbreekt)", lees(gtk_about_dialog_get_license(over)));
    // Zonder vertalers zet de toolkit hier zelf de vertaling van deze tekst neer, als haar catalogus die
    // kent.
    EXPECT_EQ(wxGetTranslation("translator-credits"), lees(gtk_about_dialog_get_translator_credits(over)));
    EXPECT_EQ(0U, telNamen(gtk_about_dialog_get_authors(over)));
    EXPECT_EQ(0U, telNamen(gtk_about_dialog_get_documenters(over)));
    EXPECT_EQ(0U, telNamen(gtk_about_dialog_get_artists(over)));
    EXPECT_EQ(nullptr, gtk_about_dialog_get_logo(over));
}

TEST_F(OverVenster, ToontGeenPlaatje) {
    for (int keer = 0; keer < 2; ++keer) {
        GtkAboutDialog* over = open();
        ASSERT_NE(nullptr, over);
        laatLopen();
        EXPECT_EQ(std::vector<std::string>(), zoekPlaatjes(gtk_dialog_get_content_area(GTK_DIALOG(over))))
            << "ook dat van een ontbrekend beeld telt";
        sluit();
    }
}

TEST_F(OverVenster, ToontDeRechtenregelVanDeToepassing) {
    // De toolkit maakt van "(c)" het teken.
    EXPECT_EQ(std::string(rechten).substr(2), std::string(DesktopApp::rechtenregel).substr(3));
    EXPECT_TRUE(std::string(DesktopApp::rechtenregel).ends_with(std::string("\n") + leverancierNaam));
}

TEST_F(OverVenster, HoudtNietsVast) {
    open();
    EXPECT_TRUE(venster_->IsEnabled()) << "het venster blijft te bedienen";
    sluit();
    wxGetApp().geefCopyright("Ander programma", "Doet iets anders.", "7.5");
    ASSERT_TRUE(laatLopenTot([] { return zoek() != nullptr; }));
    EXPECT_EQ("Ander programma", lees(gtk_about_dialog_get_program_name(zoek())));
    EXPECT_EQ("Doet iets anders.", lees(gtk_about_dialog_get_comments(zoek())));
    EXPECT_EQ("7.5", lees(gtk_about_dialog_get_version(zoek())));
    EXPECT_EQ(rechten, lees(gtk_about_dialog_get_copyright(zoek()))) << "de rechtenregel ligt vast";
    sluit();
    GtkAboutDialog* over = open();
    ASSERT_NE(nullptr, over);
    EXPECT_EQ("Knipselaar", lees(gtk_about_dialog_get_program_name(over)));
}

TEST_F(OverVenster, VerandertNietsAanVensterEnOpslag) {
    aangepast()->SetText("een knipsel dat nog niet bewaard is\n");
    origineel()->SetText("//**** Student Begin ****//\nx\n");
    laatLopen();
    const std::string vooraf = toestand();
    ASSERT_NE(std::string::npos, vooraf.find("een knipsel dat nog niet bewaard is"));
    ASSERT_NE(std::string::npos, vooraf.find("/Statistiek/StartDatum="));
    open();
    EXPECT_EQ(vooraf, toestand());
    sluit();
    laatLopen();
    EXPECT_EQ(vooraf, toestand());
}

TEST_F(OverVenster, KomtOokNaEenBatchAlsErEenLogStaat) {
    kiesModus(1);
    origineel()->SetText("Bestand 1\nBestand 2\n");
    laatLopen();
    const std::string vooraf = toestand();
    open();
    sluit();
    laatLopen();
    EXPECT_EQ(vooraf, toestand());
    kiesModus(0);
}
