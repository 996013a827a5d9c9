#include "tests/eind/scherm.h"

#include <sstream>

#include "tests/eind/toetsenbord.h"
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
    void druk(const std::string& toetsen) const override { toetsenbord_->druk(toetsen); }
    void typ(const std::string& tekst) const override { toetsenbord_->typ(tekst); }

    bool isZichtbaar(const std::string& titel) const override { return is("title=\"" + titel + "\""); }

    bool isActief(const std::string& titel) const override {
        return is("con_id=__focused__ title=\"" + titel + "\"");
    }

  private:
    static bool is(const std::string& kenmerken) {
        return !voerUit({"swaymsg", "--raw", "[" + kenmerken + "] nop"}).empty();
    }

    std::unique_ptr<Toetsenbord> toetsenbord_ = std::make_unique<Toetsenbord>();
};

}  // namespace

std::unique_ptr<Scherm> maakScherm(hulp::Beeldscherm beeldscherm) {
    if (beeldscherm == hulp::Beeldscherm::wayland) {
        return std::make_unique<SchermVanWayland>();
    }
    return std::make_unique<SchermVanX>();
}
