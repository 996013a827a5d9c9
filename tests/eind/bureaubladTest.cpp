// Hoe een bureaublad het venster herkent. Een taakbalk zoekt bij de klasse van een venster de ingang van het
// startmenu die haar noemt, en neemt daar het pictogram uit.

#include <sstream>

#include "tests/eind/bediening.h"

namespace {

class Bureaublad : public Bediening {
  protected:
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

}  // namespace

TEST_F(Bureaublad, VindtBijHetVensterZijnIngang) {
    start();
    const std::string naam = std::filesystem::path(INGANG).stem();
    EXPECT_EQ("WM_CLASS(STRING) = \"" + naam + "\", \"" + leesIngang("StartupWMClass") + "\"\n",
              voerUit({"xprop", "-id", wachtOpVenster(hoofdvenster), "WM_CLASS"}));
    EXPECT_EQ(naam, leesIngang("Exec"));
    EXPECT_EQ(naam, leesIngang("Icon"));
}
