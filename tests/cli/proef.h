#pragma once

// Voert het gebouwde consoleprogramma uit, van buiten: elke test heeft een eigen map, thuisdirectory en
// tijdelijke directory, en vergelijkt de hele uitkomst.

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/hulp/bestanden.h"
#include "tests/hulp/bestandsboom.h"

namespace proef {

using Woorden = std::vector<std::string>;

/// Wat een run opleverde.
struct Uitkomst {
    int status = -1;  ///< de waarde van exit, of 128 + het signaal
    std::string uit;
    std::string fout;

    bool operator==(const Uitkomst&) const = default;
};

void PrintTo(const Uitkomst& uitkomst, std::ostream* uit);

/// Een tekst zoals het programma hem met --als-venster schrijft: dat voor Windows met CR LF.
std::string alsVenster(const std::string& tekst);

/// Het gebouwde programma, of wat KNIPSELAAR_CLI in de omgeving aanwijst: een script dat het programma voor
/// Windows met wine start.
std::filesystem::path geefProgramma();

/// Hoe een run gestart wordt.
struct Start {
    std::string invoer = {};
    std::map<std::string, std::string> omgeving = {};
    std::filesystem::path programma = geefProgramma();
    bool negeertOphangen = false;                       ///< zoals onder nohup
    bool gewoneGebruiker = false;                       ///< zonder de rechten van root
    std::optional<unsigned long> grootsteBestand = {};  ///< in bytes
};

/// De standaardmarkers in een klein bestand, wat de standaardtekst ervan maakt, en een bestand zonder blok.
inline const std::string bron =
    "voor\n//**** Student Begin ****//\ngeheime oplossing\n//**** Student Eind ****//\nna\n";
inline const std::string knipsel =
    "voor\n#error \"Dit stuk software ontbreekt.\"\n/* Beste student,\n    Dit stuk ontbreekt. Werk dit uit "
    "om de "
    "opdracht uit te voeren.  */\nna\n";
/// Hetzelfde met "X" als vervangtekst.
inline const std::string knipselX = "voor\nX\nna\n";

class Cli : public testing::Test {
  protected:
    Cli();

    /// Voert het programma uit in map_ en wacht tot het klaar is.
    Uitkomst draai(const Woorden& woorden, const Start& start = {}) const;

    /// Start het programma zonder te wachten; de kanalen zijn van de aanroeper.
    pid_t start(const Woorden& woorden, const Start& hoe, int invoer, int uitvoer, int foutkanaal) const;

    /// Wacht tot een proces er niet meer is. Geeft de waarde van exit, of 128 + het signaal.
    static int wacht(pid_t proces);

    /// Voert het programma uit met zijn foutkanaal op een terminal; wat daarop komt staat in fout.
    Uitkomst draaiOpTerminal(const Woorden& woorden, const Start& hoe = {}) const;

    /// Wacht tot er iets gebeurd is, hoogstens een minuut.
    static bool wachtOp(const std::function<bool()>& gebeurd);

    void schrijf(const std::string& naam, std::string_view inhoud) const {
        std::filesystem::create_directories((map_ / naam).parent_path());
        hulp::schrijfBestand(map_ / naam, inhoud);
    }
    std::string lees(const std::string& naam) const { return hulp::leesBestand(map_ / naam); }
    bool bestaat(const std::string& naam) const {
        return std::filesystem::exists(std::filesystem::symlink_status(map_ / naam));
    }
    hulp::Boom leesBoom(const std::string& naam) const { return hulp::leesBoom(map_ / naam); }

    hulp::TijdelijkeMap alles_;
    std::filesystem::path map_ = alles_ / "werk";
    std::filesystem::path thuis_ = alles_ / "thuis";
    std::filesystem::path tijdelijk_ = alles_ / "tijdelijk";
};

/// Een uitkomst zonder meldingen.
inline Uitkomst goed(std::string uit = {}) {
    return {.status = 0, .uit = std::move(uit), .fout = {}};
}

/// Wat er gemeld wordt als een hele run geen blok vond.
inline const std::string geenBlok =
    "knipselaar-cli: waarschuwing: er is nergens een blok gevonden; kijk de markers na\n";

/// Een goede uitkomst van een run zonder blok.
inline Uitkomst zonderBlok(std::string uit = {}) {
    return {.status = 0, .uit = std::move(uit), .fout = geenBlok};
}

/// Verkeerd gebruik of een storing: één regel, niets op de uitvoer.
inline Uitkomst storing(const std::string& melding) {
    return {.status = 2, .uit = {}, .fout = "knipselaar-cli: fout: " + melding + "\n"};
}

}  // namespace proef
