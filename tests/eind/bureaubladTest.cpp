// Hoe een bureaublad het venster herkent. Een taakbalk zoekt bij een venster de ingang van het startmenu, en
// neemt daar het pictogram uit: bij X die zijn klasse noemt, bij Wayland die heet als zijn programma.

#include <sstream>

#include "tests/eind/bediening.h"

namespace {

class Bureaublad : public Bediening {
  protected:
    using Bediening::Bediening;

    /// De waarde van een sleutel uit de ingang van het startmenu, of leeg.
    static std::string leesIngang(const std::string& sleutel) {
        std::istringstream ingang(hulp::leesBestand(INGANG));
        std::string regel;
        while (std::getline(ingang, regel)) {
            if (regel.starts_with(sleutel + "=")) {
                return regel.substr(sleutel.size() + 1);
            }
        }
        return "";
    }
};

class BureaubladMetWayland : public Bureaublad {
  protected:
    BureaubladMetWayland() : Bureaublad(hulp::Beeldscherm::wayland) {}
};

}  // namespace

TEST_F(Bureaublad, VindtBijHetVensterZijnIngang) {
    start();
    const std::string naam = std::filesystem::path(INGANG).stem();
    EXPECT_EQ("WM_CLASS(STRING) = \"" + naam + "\", \"" + leesIngang("StartupWMClass") + "\"\n",
              voerUit({"xprop", "-id", vensterNummer(hoofdvenster), "WM_CLASS"}));
    EXPECT_EQ(naam, leesIngang("Exec"));
    EXPECT_EQ(naam, leesIngang("Icon"));
}

TEST_F(BureaubladMetWayland, VindtBijElkVensterZijnIngang) {
    start();
    const std::string naam = std::filesystem::path(INGANG).stem();
    const auto hoortBij = [&naam](const std::string& titel) {
        return !voerUit(
                    {"swaymsg", "[con_id=__focused__ title=\"" + titel + "\" app_id=\"^" + naam + "$\"] nop"})
                    .empty();
    };
    EXPECT_TRUE(hoortBij(hoofdvenster));
    druk("ctrl+o");
    wachtOpVenster(openDialoog);
    EXPECT_TRUE(hoortBij(openDialoog));
}
