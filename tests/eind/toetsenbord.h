#pragma once

// Een toetsenbord aan een beeldscherm van Wayland, met de gewone Amerikaanse indeling. Het is er zolang het
// object bestaat, en dat hoort zo lang te zijn als het programma: GTK zoekt een toets op in de indeling van
// het laatste toetsenbord, ook een toets van daarvoor waar het nog niet aan toe was.

#include <xkbcommon/xkbcommon.h>

#include <memory>
#include <string>
#include <vector>

struct wl_display;
struct wl_proxy;

class Toetsenbord {
  public:
    /// Sluit aan op het beeldscherm dat WAYLAND_DISPLAY noemt. Gooit std::runtime_error als dat niet gaat.
    Toetsenbord();

    /// Drukt toetsen in, zoals "ctrl+o", laat ze los, en wacht tot het beeldscherm ze heeft. Gooit
    /// std::runtime_error bij een toets die er niet op zit, en als het beeldscherm weg is.
    void druk(const std::string& toetsen);

    /// Typt een tekst in ASCII; verder als druk.
    void typ(const std::string& tekst);

  private:
    using Codes = std::vector<xkb_keycode_t>;

    struct Opruimer {
        void operator()(wl_display* beeldscherm) const;
        void operator()(wl_proxy* ding) const;
        void operator()(xkb_context* bron) const { xkb_context_unref(bron); }
        void operator()(xkb_keymap* indeling) const { xkb_keymap_unref(indeling); }
        void operator()(xkb_state* stand) const { xkb_state_unref(stand); }
    };
    template <typename Ding>
    using Eigen = std::unique_ptr<Ding, Opruimer>;

    void sluitAan();
    void stuurIndeling();
    Codes zoek(xkb_keysym_t teken) const;
    void sla(const Codes& codes);
    void beweeg(xkb_keycode_t code, xkb_key_direction richting);
    void wachtOpBeeldscherm() const;

    Eigen<wl_display> beeldscherm_;
    Eigen<wl_proxy> toetsenbord_;
    Eigen<xkb_context> bron_;
    Eigen<xkb_keymap> indeling_;
    Eigen<xkb_state> stand_;  ///< welke toetsen er nu in zijn
};
