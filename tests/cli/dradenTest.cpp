// Met meer draden komt er hetzelfde uit als met één, wat de opdracht ook is. Onder ThreadSanitizer (zie
// scripts/keur-draden.sh) blijkt hier of draden elkaar iets afpakken.

#include "tests/cli/proef.h"

using hulp::Boom;
using proef::bron;
using proef::Uitkomst;
using proef::Woorden;

namespace {

/// Elk soort bestand dat zijn eigen weg door het programma gaat.
const std::vector<std::pair<std::string, std::string>> soorten{
    {".c", bron},
    {".vhd", bron},
    {".txt", "gaat alleen mee"},
    {".c", "geen blok\n"},
    {".cpp", "// Student Begin //\r\nanders ge\xEFnspireerd\r\n// Student Eind //\r\n"},
    {".h", "//**** Student Begin ****//\n//**** Student Eind ****//\n"},
    {".c", "\xFF\xFE" + std::string("/\0/\0 \0x\0\n\0", 10)},
    {".c", "//**** Student Begin ****//\nopen\n"},
    {".c", "//**** Student Eind ****//\n// student begin //\n"}};

struct Gedaan {
    Uitkomst uitkomst;
    Boom boom;
};

class CliDraden : public proef::Cli {
  protected:
    /// Voert een opdracht uit op een verse boom.
    Gedaan doe(Woorden woorden, const std::string& draden) const {
        std::filesystem::remove_all(map_);
        for (std::size_t i = 0; i < 5 * soorten.size(); ++i) {
            const auto& [extensie, inhoud] = soorten[i % soorten.size()];
            schrijf("boom/" + std::to_string(i % 7) + "/f" + std::to_string(i) + extensie, inhoud);
        }
        woorden.insert(woorden.end(), {"-J", draden, "-r", "boom"});
        const Uitkomst uitkomst = draai(woorden);
        return {.uitkomst = uitkomst, .boom = leesBoom("")};
    }
};

}  // namespace

TEST_F(CliDraden, DoenSamenWatEenDraadDoet) {
    const std::vector<Woorden> opdrachten{{"-c"},        {"-d", "-j"},       {"-D"},
                                          {"-t"},        {"-t", "-a", "-i"}, {"-t", "--alles-of-niets"},
                                          {"-n", "uit"}, {"-n", "uit", "-p"}};
    const std::vector<Woorden> markers{
        {}, {"-b", "Student B?gin", "-e", "Student E?nd", "-b", "geen", "-e", "blok"}};
    for (const Woorden& opdracht : opdrachten) {
        for (const Woorden& paren : markers) {
            Woorden woorden = opdracht;
            woorden.insert(woorden.end(), paren.begin(), paren.end());
            const Gedaan een = doe(woorden, "1");
            const Gedaan meer = doe(woorden, "4");
            EXPECT_NE(0, een.uitkomst.status) << "de boom heeft fouten: " << opdracht.front();
            EXPECT_EQ(een.uitkomst, meer.uitkomst) << opdracht.front();
            EXPECT_EQ(een.boom, meer.boom) << opdracht.front();
        }
    }
}
