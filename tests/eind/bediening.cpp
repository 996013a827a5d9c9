#include "tests/eind/bediening.h"

#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <sstream>
#include <utility>

#include "tests/hulp/gewoneGebruiker.h"

namespace fs = std::filesystem;

Bediening::Bediening(hulp::Beeldscherm beeldscherm) : omgeving_(beeldscherm), beeldscherm_(beeldscherm) {
    if (beeldscherm_ != hulp::Beeldscherm::wayland) {
        scherm_ = maakScherm(beeldscherm_);
    }
}

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
    startAls(beeldscherm_ == hulp::Beeldscherm::wayland ? wordGewoneGebruiker() : std::vector<std::string>(),
             argumenten);
}

void Bediening::startAlsGewoneGebruiker() {
    startAls(wordGewoneGebruiker(), {});
}

/// Geeft de opdracht die een andere opdracht als gewone gebruiker uitvoert; leeg als dat al zo is.
std::vector<std::string> Bediening::wordGewoneGebruiker() {
    if (geteuid() != 0) {
        return {};
    }
    const fs::path map = omgeving_.werk().parent_path();
    if (uitvoerbaar_.find('/') != std::string::npos) {
        // Waar het gebouwd is mag een ander misschien niet komen.
        uitvoerbaar_ = map / "knipselaar";
        fs::copy_file(programmaPad(), uitvoerbaar_);
    }
    const fs::path kijker = map / "schermlezer";
    fs::copy_file(SCHERMLEZER, kijker);
    EXPECT_EQ(0, chown(map.c_str(), hulp::niemand, hulp::niemand));
    for (const auto& deel : fs::recursive_directory_iterator(map)) {
        EXPECT_EQ(0, lchown(deel.path().c_str(), hulp::niemand, hulp::niemand));
    }
    const std::string niemand = std::to_string(hulp::niemand);
    // Wie zijn dekking laat meten, moet die kunnen opschrijven.
    const std::vector<std::string> als{"env",         "LLVM_PROFILE_FILE=" + (map / "dekking").string(),
                                       "setpriv",     "--reuid",
                                       niemand,       "--regid",
                                       niemand,       "--clear-groups",
                                       "--pdeathsig", "KILL"};
    schermlezer_ = als;
    schermlezer_.push_back(kijker);
    return als;
}

void Bediening::startAls(const std::vector<std::string>& als, const std::vector<std::string>& argumenten) {
    if (beeldscherm_ == hulp::Beeldscherm::wayland) {
        omgeving_.startWayland(als);
        scherm_ = maakScherm(beeldscherm_);
    }
    // Op een bus van een ander komt niemand; wie meekijkt is dus ook van hem.
    omgeving_.startSchermlezerbus(als);
    std::vector<std::string> opdracht = als;
    opdracht.push_back(uitvoerbaar_);
    opdracht.insert(opdracht.end(), argumenten.begin(), argumenten.end());
    startOpdracht(opdracht);
}

void Bediening::startOpdracht(const std::vector<std::string>& opdracht) {
    programma_ = std::make_unique<hulp::Kindproces>(opdracht, omgeving_.werk() / "uitvoer",
                                                    omgeving_.werk() / "fouten");
    wachtOpVenster(hoofdvenster);
}

void Bediening::druk(const std::string& toetsen) const {
    scherm_->druk(toetsen);
}

void Bediening::typ(const std::string& tekst) const {
    scherm_->typ(tekst);
}

void Bediening::wachtOpAntwoord() const {
    EXPECT_TRUE(hulp::wachtTot([this] { return !kijk({"toetsen"}).empty(); })) << "er komt geen antwoord";
}

void Bediening::vraagOpslaan(const std::string& toetsen) const {
    EXPECT_TRUE(drukTot(toetsen, [this] { return isZichtbaar(opslaanDialoog); }))
        << toetsen << " vraagt niets";
}

bool Bediening::isZichtbaar(const std::string& titel) const {
    return scherm_->isZichtbaar(titel);
}

void Bediening::wachtOpVenster(const std::string& titel) const {
    EXPECT_TRUE(hulp::wachtTot([&] { return scherm_->isActief(titel); })) << "geen actief venster " << titel;
}

std::string Bediening::vensterNummer(const std::string& titel) const {
    wachtOpVenster(titel);
    std::string nummer = voerUit({"xdotool", "getactivewindow"});
    return nummer.substr(0, nummer.find('\n'));
}

void Bediening::wachtTotWeg(const std::string& titel) const {
    EXPECT_TRUE(hulp::wachtTot([&] { return !isZichtbaar(titel); })) << titel << " blijft staan";
}

void Bediening::gaMetKlikNaar(const std::string& ding) const {
    klik(zoek(ding));
    EXPECT_TRUE(hulp::wachtTot([&] { return kijk({"toetsen"}).starts_with(ding + "\n"); }))
        << ding << " krijgt de toetsen niet";
}

bool Bediening::staatIn(const std::string& veld, const std::string& tekst) const {
    return kijk({"toetsen"}) == veld + "\n" + tekst;
}

void Bediening::vervang(const std::string& veld, const std::string& tekst) const {
    EXPECT_TRUE(hulp::wachtTot([&] {
        druk("ctrl+a");
        typ(tekst);
        return volgt([&] { return staatIn(veld, tekst); });
    })) << tekst
        << " is niet te typen";
}

void Bediening::typPad(const std::string& titel, const fs::path& pad) const {
    const auto isWeg = [&] { return !isZichtbaar(titel); };
    wachtOpVenster(titel);
    bool opnieuw = false;
    // Op een drukke machine vult de dialoog nog aan terwijl er getypt wordt, en klopt het pad niet. Dan
    // blijft zij staan, soms achter een melding, en gaat het nog eens.
    EXPECT_TRUE(hulp::wachtTot([&] {
        if (!std::exchange(opnieuw, true) || scherm_->isActief(titel)) {
            druk("ctrl+a");
            typ(pad);
            druk("Return");
            // De eerste Return kan nog de lijst met aanvullingen sluiten.
            if (volgt(isWeg)) {
                return true;
            }
        }
        // Is zij intussen toch weg, dan zou een Return in het hoofdvenster op een knop drukken.
        if (!isWeg()) {
            druk("Return");
        }
        return volgt(isWeg);
    })) << titel
        << " blijft staan";
}

void Bediening::kiesPad(const std::string& titel, const fs::path& pad) const {
    typPad(titel, pad);
    wachtOpVenster(hoofdvenster);
}

std::vector<std::string> Bediening::schermlezer(const std::vector<std::string>& vraag) const {
    std::vector<std::string> opdracht = schermlezer_;
    opdracht.insert(opdracht.end(), vraag.begin(), vraag.end());
    return opdracht;
}

std::string Bediening::kijk(const std::vector<std::string>& vraag) const {
    return voerUit(schermlezer(vraag));
}

std::string Bediening::boom() const {
    return kijk({"boom"});
}

Vlak Bediening::zoek(const std::string& ding) const {
    Vlak gevonden;
    const bool isEr = hulp::wachtTot([&] {
        std::istringstream plekken(kijk({"plek", ding}));
        Vlak plek;
        while (plekken >> plek.links >> plek.boven >> plek.breedte >> plek.hoogte) {
            gevonden = plek;
        }
        return gevonden.hoogte > 0;
    });
    EXPECT_TRUE(isEr) << ding << " is er niet";
    return gevonden;
}

void Bediening::klik(const Vlak& plek, int knop, int keren) const {
    const std::string nummer = vensterNummer(hoofdvenster);
    // Een muis die daar blijft, roept een tooltip op over waar de volgende klik moet komen.
    voerUit({"xdotool", "mousemove", "--window", nummer, std::to_string(plek.links + plek.breedte / 2),
             std::to_string(plek.boven + plek.hoogte / 2), "click", "--repeat", std::to_string(keren),
             "--delay", "10", std::to_string(knop), "mousemove", "0", "0"});
}

std::string Bediening::kiekje(const std::string& venster, const Vlak& vlak) {
    const std::string uitsnede = std::to_string(vlak.breedte) + "x" + std::to_string(vlak.hoogte) + "+" +
                                 std::to_string(vlak.links) + "+" + std::to_string(vlak.boven);
    // Is het venster er niet meer, dan wacht de afdruk op een klik.
    return voerUit(
        {"timeout", "20", "import", "-window", venster, "-crop", uitsnede, "-depth", "8", "rgb:-"});
}

bool Bediening::isBruikbaar(const std::string& ding) const {
    const std::string nu = boom();
    const std::size_t plek = nu.find("\n" + ding);
    return plek != std::string::npos &&
           !nu.substr(plek + 1, nu.find('\n', plek + 1) - plek - 1).ends_with(", uit");
}

void Bediening::wachtOpBruikbaar(const std::string& ding) const {
    EXPECT_TRUE(hulp::wachtTot([&] { return isBruikbaar(ding); })) << ding << " blijft uit:\n" << boom();
}

bool Bediening::heeftTekst(const Vlak& vlak) const {
    constexpr unsigned char donker = 80;
    const std::string kleuren = kiekje(vensterNummer(hoofdvenster), vlak);
    for (std::size_t i = 0; i + 2 < kleuren.size(); i += 3) {
        if (std::all_of(&kleuren[i], &kleuren[i] + 3,
                        [](char deel) { return static_cast<unsigned char>(deel) < donker; })) {
            return true;
        }
    }
    return false;
}

void Bediening::wachtOpBeginmodus() const {
    EXPECT_TRUE(hulp::wachtTot([this] { return isBruikbaar(openKnop) && !isBruikbaar(bronVeld); }))
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
