// Wat bash, zsh en fish aanvullen, gevraagd aan die shells zelf.

#include <map>
#include <set>

#include "KnipselaarCli/optielijst.h"
#include "tests/cli/shell.h"

namespace fs = std::filesystem;

using proef::Woorden;

namespace {

using Namen = std::set<std::string>;

class CliAanvulling : public proef::Shell, public testing::WithParamInterface<const char*> {
  protected:
    CliAanvulling() {
        schrijf("een.c", "");
        fs::create_directory(map_ / "eendir");
    }

    /// Wat er na elk van deze regels aan te vullen is, een directory zonder streep erachter.
    std::vector<Namen> vulAan(const Woorden& regels) const {
        std::string invoer;
        for (const std::string& regel : regels) {
            invoer += "knipselaar-cli " + regel + "\n";
        }
        hulp::schrijfBestand(alles_ / "regels", invoer);
        Woorden uitvoer = leesRegels(voerScriptUit(shell_ + " '" BOOM "/tests/cli/aanvulling." + shell_ +
                                                   "' '" BOOM "/gegevens' < ../regels"));
        EXPECT_EQ("afloop 0", uitvoer.back());
        uitvoer.pop_back();
        std::vector<Namen> uit(1);
        for (std::string& woord : uitvoer) {
            if (woord.empty()) {
                uit.emplace_back();
            } else {
                uit.back().insert(woord.ends_with('/') ? woord.substr(0, woord.size() - 1) : woord);
            }
        }
        uit.pop_back();
        EXPECT_EQ(regels.size(), uit.size());
        uit.resize(regels.size());
        return uit;
    }

    Namen vulAan(const std::string& regel) const { return vulAan(Woorden{regel}).front(); }

    /// Zo noemt de gebruiker een optie: kort, als dat kan, en lang.
    static Woorden geefVormen(const cli::Optie& optie) {
        Woorden vormen{std::string("--") + optie.lang};
        if (*optie.kort != '\0') {
            vormen.push_back(std::string("-") + optie.kort);
        }
        return vormen;
    }

    const std::string shell_ = GetParam();
};

}  // namespace

TEST_P(CliAanvulling, NoemtElkeOptieEnGeenAndere) {
    Namen verwacht;
    Namen lang;
    for (const cli::Optie& optie : cli::geefAlleOpties()) {
        const Woorden vormen = geefVormen(optie);
        lang.insert(vormen.front());
        verwacht.insert(vormen.begin(), vormen.end());
    }
    EXPECT_EQ(verwacht, vulAan("-"));
    EXPECT_EQ(lang, vulAan("--"));
}

TEST_P(CliAanvulling, VultAchterElkeOptieAanWatDaarHoort) {
    const std::map<std::string, Namen> waarden{{"BESTAND", {"een.c", "eendir"}},
                                               {"DIR", {"eendir"}},
                                               {"SOORT", {"talen", "vhdl", "alles"}},
                                               {"TAAL", {"c", "vhdl", "overig"}},
                                               {"VERSIE", {"student", "oplossing"}}};
    const Namen bestanden = waarden.at("BESTAND");
    Woorden regels;
    std::vector<Namen> verwacht;
    for (const cli::Optie& optie : cli::geefAlleOpties()) {
        const auto waarde = waarden.find(optie.waarde);
        for (const std::string& vorm : geefVormen(optie)) {
            regels.push_back(vorm + " ");
            verwacht.push_back(!optie.heeftWaarde()      ? bestanden
                               : waarde == waarden.end() ? Namen{}
                                                         : waarde->second);
            // Achter een optie met een waarde komt geen optie; fish biedt er dan toch een aan. Een latere
            // fish ook elke waar deze letters op volgorde in staan; dat is er bij deze twee geen.
            const std::string andere = std::string(optie.lang) == "streng" ? "--letterlijk" : "--streng";
            regels.push_back(vorm + " " + andere);
            verwacht.push_back(optie.heeftWaarde() && shell_ != "fish" ? Namen{} : Namen{andere});
        }
    }
    const std::vector<Namen> gevonden = vulAan(regels);
    for (std::size_t i = 0; i < regels.size(); ++i) {
        EXPECT_EQ(verwacht[i], gevonden[i]) << regels[i];
    }
}

TEST_P(CliAanvulling, VultAanWatErBegonnenIs) {
    EXPECT_EQ((Namen{"--bewijs", "--bewijs-lengte", "--bewijs-toegestaan"}), vulAan("een.c --bew"));
    EXPECT_EQ(Namen{"vhdl"}, vulAan("-k v"));
    EXPECT_EQ((Namen{"een.c", "eendir"}), vulAan("--stil ee"));
    EXPECT_EQ(Namen{"een.c"}, vulAan("--uit een."));
    EXPECT_EQ(Namen{}, vulAan("-- --bew"));
    schrijf("--droog", "");
    EXPECT_EQ(Namen{"--droog"}, vulAan("-- --dr"));
}

TEST_P(CliAanvulling, VultEenWaardeAchterEenIsTekenAan) {
    // Zsh vult alleen de waarde aan, bash en fish het hele woord.
    const std::string vooraan = shell_ == "zsh" ? "" : "--keuze=";
    EXPECT_EQ(Namen{vooraan + "vhdl"}, vulAan("--keuze=v"));
    const std::string naar = shell_ == "zsh" ? "" : "--naar=";
    EXPECT_EQ(Namen{naar + "eendir"}, vulAan("--naar=e"));
    if (shell_ == "bash") {
        EXPECT_EQ(Namen{"vhdl"}, vulAan("--taal = v")) << "zo deelt bash zelf het woord";
        EXPECT_EQ(Namen{"een.c"}, vulAan("--uit = een."));
    }
}

INSTANTIATE_TEST_SUITE_P(Shells, CliAanvulling, testing::Values("bash", "zsh", "fish"),
                         [](const auto& shell) { return std::string(shell.param); });
