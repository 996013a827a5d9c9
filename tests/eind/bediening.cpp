#include "tests/eind/bediening.h"

#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <sstream>
#include <utility>

#include "tests/hulp/gewoneGebruiker.h"

namespace fs = std::filesystem;

Bediening::Bediening() = default;

// Eerst het programma, dan pas het beeldscherm: anders sterft het aan een verbroken verbinding.
Bediening::~Bediening() {
    if (programma_ && !programma_->isAf()) {
        programma_->stuur(SIGTERM);
        hulp::wachtTot([this] { return programma_->isAf(); }, 5000);
    }
}

std::string Bediening::programmaPad() {
    const char* gekozen = std::getenv("KNIPSELAAR_PROGRAMMA");
    return gekozen == nullptr ? PROGRAMMA : gekozen;
}

void Bediening::start(const std::vector<std::string>& argumenten) {
    std::vector<std::string> opdracht{programmaPad()};
    opdracht.insert(opdracht.end(), argumenten.begin(), argumenten.end());
    startOpdracht(opdracht);
}

void Bediening::startAlsGewoneGebruiker() {
    if (geteuid() != 0) {
        start();
        return;
    }
    const fs::path map = omgeving_.werk().parent_path();
    std::string programma = programmaPad();
    if (programma.find('/') != std::string::npos) {
        // Waar het gebouwd is mag een ander misschien niet komen.
        programma = map / "knipselaar";
        fs::copy_file(programmaPad(), programma);
    }
    EXPECT_EQ(0, chown(map.c_str(), hulp::niemand, hulp::niemand));
    for (const auto& deel : fs::recursive_directory_iterator(map)) {
        EXPECT_EQ(0, lchown(deel.path().c_str(), hulp::niemand, hulp::niemand));
    }
    const std::string niemand = std::to_string(hulp::niemand);
    // Wie zijn dekking laat meten, moet die kunnen opschrijven.
    startOpdracht({"env", "LLVM_PROFILE_FILE=" + (map / "dekking").string(), "setpriv", "--reuid", niemand,
                   "--regid", niemand, "--clear-groups", "--pdeathsig", "KILL", programma});
}

void Bediening::startOpdracht(const std::vector<std::string>& opdracht) {
    programma_ = std::make_unique<hulp::Kindproces>(opdracht, omgeving_.werk() / "uitvoer",
                                                    omgeving_.werk() / "fouten");
    wachtOpVenster(hoofdvenster);
}

void Bediening::druk(const std::string& toetsen) {
    voerUit({"xdotool", "key", "--clearmodifiers", toetsen});
}

void Bediening::vraagOpslaan(const std::string& toetsen) {
    EXPECT_TRUE(drukTot(toetsen, [] { return isZichtbaar(opslaanDialoog); })) << toetsen << " vraagt niets";
}

bool Bediening::isZichtbaar(const std::string& titel) {
    return !voerUit({"xdotool", "search", "--onlyvisible", "--name", titel}).empty();
}

namespace {

/// Het nummer van het zichtbare venster met deze titel dat het laatst verscheen; leeg als het er niet is.
std::string zoekVenster(const std::string& titel) {
    std::istringstream gevonden(voerUit({"xdotool", "search", "--onlyvisible", "--name", titel}));
    std::string nummer;
    std::string kandidaat;
    while (gevonden >> kandidaat) {
        nummer = kandidaat;
    }
    return nummer;
}

bool isActief(const std::string& titel) {
    const std::string nummer = zoekVenster(titel);
    return !nummer.empty() && voerUit({"xdotool", "getactivewindow"}) == nummer + "\n";
}

}  // namespace

std::string Bediening::wachtOpVenster(const std::string& titel) {
    EXPECT_TRUE(hulp::wachtTot([&titel] { return isActief(titel); })) << "geen actief venster " << titel;
    return zoekVenster(titel);
}

void Bediening::wachtTotWeg(const std::string& titel) {
    EXPECT_TRUE(hulp::wachtTot([&titel] { return !isZichtbaar(titel); })) << titel << " blijft staan";
}

void Bediening::typPad(const std::string& titel, const fs::path& pad) {
    constexpr int evenMs = 3000;
    const auto isWeg = [&titel] { return !isZichtbaar(titel); };
    wachtOpVenster(titel);
    bool opnieuw = false;
    // Op een drukke machine vult de dialoog nog aan terwijl er getypt wordt, en klopt het pad niet. Dan
    // blijft zij staan, soms achter een melding, en gaat het nog eens.
    EXPECT_TRUE(hulp::wachtTot([&] {
        if (!std::exchange(opnieuw, true) || isActief(titel)) {
            druk("ctrl+a");
            voerUit({"xdotool", "type", "--delay", "20", pad.string()});
            druk("Return");
            // De eerste Return kan nog de lijst met aanvullingen sluiten.
            if (hulp::wachtTot(isWeg, evenMs)) {
                return true;
            }
        }
        // Is zij intussen toch weg, dan zou een Return in het hoofdvenster op een knop drukken.
        if (!isWeg()) {
            druk("Return");
        }
        return hulp::wachtTot(isWeg, 2 * evenMs);
    })) << titel
        << " blijft staan";
}

void Bediening::kiesPad(const std::string& titel, const fs::path& pad) {
    typPad(titel, pad);
    wachtOpVenster(hoofdvenster);
}

void Bediening::klik(int x, int y, int knop) {
    const std::string nummer = wachtOpVenster(hoofdvenster);
    voerUit({"xdotool", "mousemove", "--window", nummer, std::to_string(x), std::to_string(y), "click",
             std::to_string(knop)});
}

std::string Bediening::kiekje(const std::string& venster, const std::string& uitsnede) {
    return voerUit({"import", "-window", venster, "-crop", uitsnede, "-depth", "8", "rgb:-"});
}

bool Bediening::isBruikbaar(const std::string& uitsnede) {
    constexpr unsigned char donker = 80;
    const std::string kleuren = kiekje(wachtOpVenster(hoofdvenster), uitsnede);
    for (std::size_t i = 0; i + 2 < kleuren.size(); i += 3) {
        if (std::all_of(&kleuren[i], &kleuren[i] + 3,
                        [](char deel) { return static_cast<unsigned char>(deel) < donker; })) {
            return true;
        }
    }
    return false;
}

void Bediening::wachtOpBeginmodus() {
    const char* openen = "52x16+320+438";
    const char* bron = "80x16+668+427";
    EXPECT_TRUE(hulp::wachtTot([&] { return isBruikbaar(openen) && !isBruikbaar(bron); }))
        << "geen beginmodus";
}

int Bediening::wachtOpEinde() {
    return hulp::wachtTot([this] { return programma_->isAf(); }) ? programma_->status() : -1;
}

std::string Bediening::fouten() const {
    return hulp::leesBestand(omgeving_.werk() / "fouten");
}

std::string Bediening::leesSleutel(const std::string& groep, const std::string& sleutel) const {
    std::istringstream opslag(hulp::leesBestand(omgeving_.opslag()));
    std::string regel;
    std::string huidigeGroep;
    while (std::getline(opslag, regel)) {
        if (regel.starts_with('[')) {
            huidigeGroep = regel.substr(1, regel.size() - 2);
        } else if (huidigeGroep == groep && regel.starts_with(sleutel + "=")) {
            return regel.substr(sleutel.size() + 1);
        }
    }
    return "(ontbreekt)";
}
