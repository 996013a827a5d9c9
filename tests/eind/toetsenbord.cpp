#include "tests/eind/toetsenbord.h"

#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "tests/hulp/wachten.h"

namespace {

// Wat hier nodig is van het protocol virtual-keyboard-unstable-v1: de eerste verzoeken van elk ding, met de
// soorten van wat erbij hoort.
std::array<const wl_interface*, 4> getallen{};
const std::array<wl_message, 3> verzoeken{{{"keymap", "uhu", getallen.data()},
                                           {"key", "uuu", getallen.data()},
                                           {"modifiers", "uuuu", getallen.data()}}};
enum Verzoek : std::uint32_t { indeling, toets, stand };
const wl_interface soort{"zwp_virtual_keyboard_v1", 1, verzoeken.size(), verzoeken.data(), 0, nullptr};

std::array<const wl_interface*, 2> plaatsEnSoort{&wl_seat_interface, &soort};
const wl_message maakVerzoek{"create_virtual_keyboard", "on", plaatsEnSoort.data()};
enum MakerVerzoek : std::uint32_t { maak };
const wl_interface makerSoort{"zwp_virtual_keyboard_manager_v1", 1, 1, &maakVerzoek, 0, nullptr};

/// Wat een beeldscherm aanbiedt: de plaats van een gebruiker, en wie daar toetsenborden bij maakt.
struct Aanbod {
    wl_proxy* plaats = nullptr;
    wl_proxy* maker = nullptr;
};

void neemAan(void* aanbod, wl_registry* lijst, std::uint32_t nummer, const char* naam, std::uint32_t) {
    for (const auto& [gezocht, ding] :
         {std::pair(&wl_seat_interface, &Aanbod::plaats), std::pair(&makerSoort, &Aanbod::maker)}) {
        if (naam == std::string_view(gezocht->name)) {
            static_cast<Aanbod*>(aanbod)->*ding =
                static_cast<wl_proxy*>(wl_registry_bind(lijst, nummer, gezocht, 1));
        }
    }
}

void vergeet(void*, wl_registry*, std::uint32_t) {}

xkb_keysym_t noem(const std::string& toets) {
    if (toets == "ctrl") {
        return XKB_KEY_Control_L;
    }
    if (toets == "alt") {
        return XKB_KEY_Alt_L;
    }
    return toets == "shift" ? XKB_KEY_Shift_L : xkb_keysym_from_name(toets.c_str(), XKB_KEYSYM_NO_FLAGS);
}

}  // namespace

void Toetsenbord::Opruimer::operator()(wl_display* beeldscherm) const {
    wl_display_disconnect(beeldscherm);
}

void Toetsenbord::Opruimer::operator()(wl_proxy* ding) const {
    wl_proxy_destroy(ding);
}

Toetsenbord::Toetsenbord()
    : beeldscherm_(wl_display_connect(nullptr)), bron_(xkb_context_new(XKB_CONTEXT_NO_ENVIRONMENT_NAMES)) {
    const xkb_rule_names namen{"evdev", "pc105", "us", "", ""};
    indeling_.reset(xkb_keymap_new_from_names(bron_.get(), &namen, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!beeldscherm_ || !indeling_) {
        throw std::runtime_error("er is geen beeldscherm of geen indeling voor een toetsenbord");
    }
    stand_.reset(xkb_state_new(indeling_.get()));
    sluitAan();
    stuurIndeling();
    wachtOpBeeldscherm();
}

void Toetsenbord::sluitAan() {
    Aanbod aanbod;
    wl_registry* lijst = wl_display_get_registry(beeldscherm_.get());
    const Eigen<wl_proxy> vanLijst(reinterpret_cast<wl_proxy*>(lijst));
    const wl_registry_listener luisteraar{neemAan, vergeet};
    wl_registry_add_listener(lijst, &luisteraar, &aanbod);
    wachtOpBeeldscherm();
    const Eigen<wl_proxy> plaats(aanbod.plaats);
    const Eigen<wl_proxy> maker(aanbod.maker);
    if (!plaats || !maker) {
        throw std::runtime_error("het beeldscherm neemt geen toetsenbord aan");
    }
    toetsenbord_.reset(wl_proxy_marshal_flags(maker.get(), maak, &soort, 1, 0, plaats.get(), nullptr));
}

void Toetsenbord::stuurIndeling() {
    const std::unique_ptr<char, decltype(&std::free)> tekst(
        xkb_keymap_get_as_string(indeling_.get(), XKB_KEYMAP_FORMAT_TEXT_V1), std::free);
    const std::size_t lengte = std::string_view(tekst.get()).size() + 1;  // met de nul erachter
    const int bestand = memfd_create("indeling", MFD_CLOEXEC);
    if (write(bestand, tekst.get(), lengte) != static_cast<ssize_t>(lengte)) {
        throw std::runtime_error("de indeling past niet");
    }
    wl_proxy_marshal_flags(toetsenbord_.get(), Verzoek::indeling, nullptr, 1, 0,
                           WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, bestand, static_cast<std::uint32_t>(lengte));
    close(bestand);
}

void Toetsenbord::druk(const std::string& toetsen) {
    Codes codes;
    std::istringstream namen(toetsen);
    std::string naam;
    while (std::getline(namen, naam, '+')) {
        const Codes deel = zoek(noem(naam));
        codes.insert(codes.end(), deel.begin(), deel.end());
    }
    sla(codes);
    wachtOpBeeldscherm();
}

void Toetsenbord::typ(const std::string& tekst) {
    for (const char teken : tekst) {
        sla(zoek(xkb_utf32_to_keysym(static_cast<unsigned char>(teken))));
    }
    wachtOpBeeldscherm();
}

/// De toetsen die samen een teken geven: een, of een met shift.
Toetsenbord::Codes Toetsenbord::zoek(xkb_keysym_t teken) const {
    for (const xkb_level_index_t niveau : {0U, 1U}) {
        for (xkb_keycode_t code = xkb_keymap_min_keycode(indeling_.get());
             code <= xkb_keymap_max_keycode(indeling_.get()); ++code) {
            const xkb_keysym_t* tekens = nullptr;
            if (xkb_keymap_key_get_syms_by_level(indeling_.get(), code, 0, niveau, &tekens) == 1 &&
                *tekens == teken) {
                return niveau == 0 ? Codes{code} : Codes{zoek(XKB_KEY_Shift_L).front(), code};
            }
        }
    }
    throw std::runtime_error("toets " + std::to_string(teken) + " zit niet op het toetsenbord");
}

void Toetsenbord::sla(const Codes& codes) {
    for (const xkb_keycode_t code : codes) {
        beweeg(code, XKB_KEY_DOWN);
    }
    for (auto code = codes.rbegin(); code != codes.rend(); ++code) {
        beweeg(*code, XKB_KEY_UP);
    }
}

void Toetsenbord::beweeg(xkb_keycode_t code, xkb_key_direction richting) {
    constexpr xkb_keycode_t eerste = 8;  // bij X, en dus in een indeling
    wl_proxy_marshal_flags(toetsenbord_.get(), Verzoek::toets, nullptr, 1, 0,
                           static_cast<std::uint32_t>(hulp::klokMs()), code - eerste,
                           static_cast<std::uint32_t>(richting));
    xkb_state_update_key(stand_.get(), code, richting);
    const auto telt = [this](xkb_state_component deel) {
        return xkb_state_serialize_mods(stand_.get(), deel);
    };
    wl_proxy_marshal_flags(toetsenbord_.get(), Verzoek::stand, nullptr, 1, 0, telt(XKB_STATE_MODS_DEPRESSED),
                           telt(XKB_STATE_MODS_LATCHED), telt(XKB_STATE_MODS_LOCKED), 0U);
}

void Toetsenbord::wachtOpBeeldscherm() const {
    if (wl_display_roundtrip(beeldscherm_.get()) < 0) {
        throw std::runtime_error("het beeldscherm is weg");
    }
}
