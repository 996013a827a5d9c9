#include "tests/hulp/schermomgeving.h"

#include <algorithm>
#include <cstdlib>
#include <ostream>
#include <stdexcept>
#include <thread>

#include "tests/hulp/wachten.h"

namespace hulp {

namespace fs = std::filesystem;

void PrintTo(Beeldscherm beeldscherm, std::ostream* uit) {
    *uit << (beeldscherm == Beeldscherm::wayland ? "Wayland" : "X");
}

Schermomgeving::Schermomgeving(Beeldscherm beeldscherm) {
    const fs::path xdg = plaats("xdg");
    fs::create_directory(xdg);
    fs::permissions(xdg, fs::perms::owner_all);
    setenv("XDG_RUNTIME_DIR", xdg.c_str(), 1);
    for (const char* variabele :
         {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS",
          "AT_SPI_BUS_ADDRESS", "SESSION_MANAGER", "GTK_THEME", "LC_ALL", "DISPLAY"}) {
        unsetenv(variabele);
    }
    setenv("LANG", "nl_NL.UTF-8", 1);
    setenv("GSETTINGS_BACKEND", "memory", 1);  // geen instellingen van het bureaublad
    setenv("NO_AT_BRIDGE", "1", 1);            // zolang er geen bus voor schermlezers is
    if (beeldscherm != Beeldscherm::wayland) {
        startX(beeldscherm == Beeldscherm::vensterbeheer);
    }
}

void Schermomgeving::startX(bool metVensterbeheer) {
    setenv("GDK_BACKEND", "x11", 1);
    const std::string beeldscherm = startBediende(
        {"Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset"});
    setenv("DISPLAY", (":" + beeldscherm).c_str(), 1);
    if (metVensterbeheer) {
        bedienden_.push_back(std::make_unique<Kindproces>(std::vector<std::string>{"openbox"},
                                                          plaats("openbox.log"), plaats("openbox.log")));
        // Een venster dat er eerder is dan zijn beheerder, krijgt de toetsen niet.
        wachtTot([] { return std::system("xdotool get_num_desktops >/dev/null 2>&1") == 0; });
    }
}

void Schermomgeving::startWayland(const std::vector<std::string>& als) {
    if (std::getenv("WAYLAND_DISPLAY") != nullptr) {
        return;
    }
    // Op een bureaublad zweven vensters, en ze sluiten met deze toets.
    const fs::path instelling = plaats("sway.conf");
    schrijfBestand(instelling,
                   "xwayland disable\n"
                   "output * resolution 1280x1024\n"
                   "for_window [app_id=\".*\"] floating enable\n"
                   "bindsym Mod1+F4 kill\n"
                   "exec echo $WAYLAND_DISPLAY\n");
    setenv("WLR_BACKENDS", "headless", 1);
    setenv("WLR_RENDERER", "pixman", 1);
    setenv("WLR_LIBINPUT_NO_DEVICES", "1", 1);
    setenv("SWAYSOCK", (plaats("xdg") / "sway").c_str(), 1);
    std::vector<std::string> opdracht = als;
    opdracht.insert(opdracht.end(), {"sway", "--config", instelling.string()});
    const std::string beeldscherm = startBediende(opdracht);
    setenv("WAYLAND_DISPLAY", beeldscherm.c_str(), 1);
    setenv("GDK_BACKEND", "wayland", 1);
}

std::string Schermomgeving::startBediende(const std::vector<std::string>& opdracht) {
    const std::string nummer = std::to_string(bedienden_.size());
    const fs::path uitvoer = plaats("bediende" + nummer + ".uit");
    const fs::path fouten = plaats("bediende" + nummer + ".log");
    bedienden_.push_back(std::make_unique<Kindproces>(opdracht, uitvoer, fouten));
    if (!wachtTot([&uitvoer] { return fs::exists(uitvoer) && leesBestand(uitvoer).ends_with('\n'); })) {
        throw std::runtime_error(opdracht[0] + " start niet: " + leesBestand(fouten));
    }
    std::string regel = leesBestand(uitvoer);
    regel.pop_back();
    return regel;
}

void Schermomgeving::startSchermlezerbus(std::vector<std::string> als) {
    if (std::getenv("DBUS_SESSION_BUS_ADDRESS") != nullptr) {
        return;
    }
    // Alleen deze ene dienst: wat het bureaublad van de machine verder te bieden heeft, hoort hier niet te
    // starten.
    const fs::path diensten = plaats("diensten");
    fs::create_directory(diensten);
    fs::copy("/usr/share/dbus-1/services/org.a11y.Bus.service", diensten);
    const fs::path instelling = plaats("bus.conf");
    schrijfBestand(instelling, "<busconfig><type>session</type><listen>unix:path=" + plaats("bus").string() +
                                   "</listen><servicedir>" + diensten.string() +
                                   "</servicedir><policy context=\"default\"><allow send_destination=\"*\"/>"
                                   "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy></busconfig>");
    als.insert(als.end(),
               {"dbus-daemon", "--config-file=" + instelling.string(), "--nofork", "--print-address"});
    const std::string adres = startBediende(als);
    setenv("DBUS_SESSION_BUS_ADDRESS", adres.c_str(), 1);
    unsetenv("NO_AT_BRIDGE");
}

// Andersom dan ze gestart zijn: het beeldscherm gaat als laatste weg.
Schermomgeving::~Schermomgeving() {
    while (!bedienden_.empty()) {
        bedienden_.pop_back();
    }
}

int drukte() {
    double wachtenden = 0;
    getloadavg(&wachtenden, 1);
    return 1 + static_cast<int>(wachtenden / std::thread::hardware_concurrency());
}

}  // namespace hulp
