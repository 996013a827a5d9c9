#include "tests/eind/scherm.h"

#include <algorithm>
#include <sstream>
#include <vector>

#include "tests/hulp/opdracht.h"

using hulp::voerUit;

namespace {

/// Via de X-server, met een vensterbeheerder erop.
class SchermVanX : public Scherm {
  public:
    void druk(const std::string& toetsen) const override {
        voerUit({"xdotool", "key", "--clearmodifiers", toetsen});
    }

    void typ(const std::string& tekst) const override {
        voerUit({"xdotool", "type", "--delay", "20", tekst});
    }

    bool isZichtbaar(const std::string& titel) const override {
        return !voerUit({"xdotool", "search", "--onlyvisible", "--name", titel}).empty();
    }

    bool isActief(const std::string& titel) const override {
        std::istringstream gevonden(voerUit({"xdotool", "search", "--onlyvisible", "--name", titel}));
        const std::string actief = voerUit({"xdotool", "getactivewindow"});
        std::string nummer;
        while (gevonden >> nummer) {
            if (nummer + "\n" == actief) {
                return true;
            }
        }
        return false;
    }
};

/// Via Wayland. Daar kan een ander programma geen venster aanwijzen; de vensterbeheerder vertelt welke er
/// zijn.
class SchermVanWayland : public Scherm {
  public:
    void druk(const std::string& toetsen) const override {
        std::vector<std::string> opdracht{"wtype"};
        std::vector<std::string> loslaten;
        std::istringstream woorden(toetsen);
        std::string toets;
        while (std::getline(woorden, toets, '+') && !woorden.eof()) {
            opdracht.insert(opdracht.end(), {"-M", toets});
            loslaten.insert(loslaten.end(), {"-m", toets});
        }
        // Een echt toetsenbord maakt van shift en tab één teken.
        const bool terug =
            toets == "Tab" && std::find(loslaten.begin(), loslaten.end(), "shift") != loslaten.end();
        opdracht.insert(opdracht.end(), {"-k", terug ? "ISO_Left_Tab" : toets});
        opdracht.insert(opdracht.end(), loslaten.begin(), loslaten.end());
        doe(opdracht);
    }

    void typ(const std::string& tekst) const override { doe({"wtype", "-d", "20", tekst}); }

    bool isZichtbaar(const std::string& titel) const override { return is("title=\"" + titel + "\""); }

    bool isActief(const std::string& titel) const override {
        return is("con_id=__focused__ title=\"" + titel + "\"");
    }

  private:
    /// Voegt er een toets aan toe die niet gedrukt wordt: GTK slaat de laatste toets van een toetsenbord over
    /// als het opzoekt waar een sneltoets ligt, en dit toetsenbord heeft alleen de toetsen uit de opdracht.
    static void doe(std::vector<std::string> opdracht) {
        opdracht.insert(opdracht.end(), {"-p", "F35"});
        voerUit(opdracht);
    }

    static bool is(const std::string& kenmerken) {
        return !voerUit({"swaymsg", "--raw", "[" + kenmerken + "] nop"}).empty();
    }
};

}  // namespace

std::unique_ptr<Scherm> maakScherm(hulp::Beeldscherm beeldscherm) {
    if (beeldscherm == hulp::Beeldscherm::wayland) {
        return std::make_unique<SchermVanWayland>();
    }
    return std::make_unique<SchermVanX>();
}
