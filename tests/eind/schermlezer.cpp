// Ziet een lopend programma zoals een schermlezer het ziet: over de bus voor toegankelijkheid.
//
//   boom       noemt alles waar een schermlezer iets over te zeggen heeft, in de volgorde van het venster
//
//   plek DING  noemt van alles wat zo heet de plaats in het venster: links, boven, breedte en hoogte
//
//   toetsen    noemt wat de toetsen heeft, met op de volgende regels de tekst erin
//
//   volg       noemt wat de toetsen heeft en daarna alles wat ze krijgt, tot het gestopt wordt
//
// Elke regel is een rol en een naam, zoals: push button "Openen". Daarachter kan een beschrijving tussen
// haakjes staan en in de boom ook: wat het label ervan is (<-), waar het een label van is (->), en of het
// gekozen is of uit staat.

#include <atspi/atspi.h>

#include <algorithm>
#include <array>
#include <functional>
#include <iostream>
#include <memory>
#include <string>
#include <utility>

namespace {

struct Opruimer {
    void operator()(gpointer object) const { g_object_unref(object); }
};
using Ding = std::unique_ptr<AtspiAccessible, Opruimer>;
using Staten = std::unique_ptr<AtspiStateSet, Opruimer>;

/// Wat alleen voor de plaats op het scherm bestaat, of hier zonder naam niets zegt.
bool isIndeling(AtspiRole rol, const std::string& naam) {
    constexpr std::array altijd{ATSPI_ROLE_DESKTOP_FRAME, ATSPI_ROLE_APPLICATION, ATSPI_ROLE_FILLER,
                                ATSPI_ROLE_SCROLL_PANE,   ATSPI_ROLE_SCROLL_BAR,  ATSPI_ROLE_SEPARATOR};
    constexpr std::array naamloos{ATSPI_ROLE_PANEL, ATSPI_ROLE_MENU};
    return std::find(altijd.begin(), altijd.end(), rol) != altijd.end() ||
           (naam.empty() && std::find(naamloos.begin(), naamloos.end(), rol) != naamloos.end());
}

/// Hoe een rol hier heet. De bibliotheek verandert haar namen van uitgave tot uitgave.
std::string noemRol(AtspiRole rol) {
    constexpr std::array<std::pair<AtspiRole, const char*>, 11> namen{
        {{ATSPI_ROLE_FRAME, "frame"},
         {ATSPI_ROLE_MENU_BAR, "menu bar"},
         {ATSPI_ROLE_MENU, "menu"},
         {ATSPI_ROLE_MENU_ITEM, "menu item"},
         {ATSPI_ROLE_PANEL, "panel"},
         {ATSPI_ROLE_LABEL, "label"},
         {ATSPI_ROLE_TEXT, "text"},
         {ATSPI_ROLE_RADIO_BUTTON, "radio button"},
         {ATSPI_ROLE_PUSH_BUTTON, "push button"},
         {ATSPI_ROLE_TOGGLE_BUTTON, "toggle button"},
         {ATSPI_ROLE_COMBO_BOX, "combo box"}}};
    const auto* const gevonden =
        std::find_if(namen.begin(), namen.end(), [rol](const auto& naam) { return naam.first == rol; });
    return gevonden == namen.end() ? "rol " + std::to_string(rol) : gevonden->second;
}

std::string neem(gchar* tekst) {
    const std::string kopie = tekst == nullptr ? "" : tekst;
    g_free(tekst);
    return kopie;
}

std::string noem(AtspiAccessible* ding) {
    const std::string beschrijving = neem(atspi_accessible_get_description(ding, nullptr));
    return noemRol(atspi_accessible_get_role(ding, nullptr)) + " \"" +
           neem(atspi_accessible_get_name(ding, nullptr)) + "\"" +
           (beschrijving.empty() ? "" : " (" + beschrijving + ")");
}

bool heeftStaat(AtspiAccessible* ding, AtspiStateType staat) {
    const Staten staten(atspi_accessible_get_state_set(ding));
    return atspi_state_set_contains(staten.get(), staat) != 0;
}

std::string noemLabels(AtspiAccessible* ding) {
    std::string tekst;
    GArray* betrekkingen = atspi_accessible_get_relation_set(ding, nullptr);
    for (guint i = 0; betrekkingen != nullptr && i < betrekkingen->len; ++i) {
        auto* betrekking = g_array_index(betrekkingen, AtspiRelation*, i);
        const AtspiRelationType soort = atspi_relation_get_relation_type(betrekking);
        if (soort == ATSPI_RELATION_LABELLED_BY || soort == ATSPI_RELATION_LABEL_FOR) {
            const Ding ander(atspi_relation_get_target(betrekking, 0));
            tekst += (soort == ATSPI_RELATION_LABEL_FOR ? " -> " : " <- ") + noem(ander.get());
        }
        g_object_unref(betrekking);
    }
    if (betrekkingen != nullptr) {
        g_array_free(betrekkingen, TRUE);
    }
    return tekst;
}

/// Loopt langs een ding en alles wat erin zit.
void bezoek(AtspiAccessible* ding, const std::function<void(AtspiAccessible*)>& doe) {
    doe(ding);
    const gint aantal = atspi_accessible_get_child_count(ding, nullptr);
    for (gint i = 0; i < aantal; ++i) {
        // Wat net verdween geeft niets.
        if (const Ding kind(atspi_accessible_get_child_at_index(ding, i, nullptr)); kind != nullptr) {
            bezoek(kind.get(), doe);
        }
    }
}

void toonBoom(AtspiAccessible* ding) {
    const std::string naam = neem(atspi_accessible_get_name(ding, nullptr));
    if (!isIndeling(atspi_accessible_get_role(ding, nullptr), naam)) {
        const bool gekozen = heeftStaat(ding, ATSPI_STATE_CHECKED) || heeftStaat(ding, ATSPI_STATE_SELECTED);
        std::cout << noem(ding) << noemLabels(ding) << (gekozen ? ", gekozen" : "")
                  << (heeftStaat(ding, ATSPI_STATE_ENABLED) ? "" : ", uit") << "\n";
    }
}

void toonPlek(AtspiAccessible* ding, const std::string& gezocht) {
    if (noem(ding) == gezocht) {
        AtspiComponent* deel = atspi_accessible_get_component_iface(ding);
        AtspiRect* vlak = atspi_component_get_extents(deel, ATSPI_COORD_TYPE_WINDOW, nullptr);
        std::cout << vlak->x << " " << vlak->y << " " << vlak->width << " " << vlak->height << "\n";
        g_free(vlak);
        g_object_unref(deel);
    }
}

void toonToetsen(AtspiAccessible* ding) {
    if (heeftStaat(ding, ATSPI_STATE_FOCUSED)) {
        std::cout << noem(ding) << "\n";
        if (AtspiText* tekst = atspi_accessible_get_text_iface(ding); tekst != nullptr) {
            std::cout << neem(atspi_text_get_text(tekst, 0, -1, nullptr));
            g_object_unref(tekst);
        }
    }
}

/// Onthoudt wie de toetsen heeft: de bus meldt hetzelfde vaak twee keer.
class Volger {
  public:
    void krijgt(AtspiAccessible* ding) {
        if (ding != laatste_.get()) {
            laatste_.reset(static_cast<AtspiAccessible*>(g_object_ref(ding)));
            std::cout << noem(ding) << std::endl;
        }
    }

  private:
    Ding laatste_;
};

void meldToetsen(AtspiEvent* gebeurtenis, void* volger) {
    if (gebeurtenis->detail1 != 0) {
        static_cast<Volger*>(volger)->krijgt(gebeurtenis->source);
    }
    g_boxed_free(ATSPI_TYPE_EVENT, gebeurtenis);
}

void volg(AtspiAccessible* bureaublad) {
    Volger volger;
    AtspiEventListener* luisteraar = atspi_event_listener_new(meldToetsen, &volger, nullptr);
    atspi_event_listener_register(luisteraar, "object:state-changed:focused", nullptr);
    bezoek(bureaublad, [&volger](AtspiAccessible* ding) {
        if (heeftStaat(ding, ATSPI_STATE_FOCUSED)) {
            volger.krijgt(ding);
        }
    });
    atspi_event_main();
    g_object_unref(luisteraar);
}

}  // namespace

int main(int argc, char** argv) {
    if (atspi_init() != 0) {
        std::cerr << "er is geen bus voor toegankelijkheid\n";
        return 1;
    }
    // Op een drukke machine antwoordt een programma niet binnen de seconde die gewoon is.
    constexpr gint hoogstensMs = 10000;
    atspi_set_timeout(hoogstensMs, hoogstensMs);
    const Ding bureaublad(atspi_get_desktop(0));
    if (argv[1] == std::string("boom")) {
        bezoek(bureaublad.get(), toonBoom);
    } else if (argv[1] == std::string("toetsen")) {
        bezoek(bureaublad.get(), toonToetsen);
    } else if (argc > 2) {
        bezoek(bureaublad.get(), [argv](AtspiAccessible* ding) { toonPlek(ding, argv[2]); });
    } else {
        volg(bureaublad.get());
    }
    return 0;
}
