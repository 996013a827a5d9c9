// Laat elke aanroep van het systeem die een batch doet om de beurt mislukken, op elke manier die bij haar
// past. Wat er ook misgaat: het programma loopt gewoon af, elk origineel is heel en niets blijft achter.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tests/fouten/proces.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/bestandsboom.h"
#include "tests/hulp/orakel.h"
#include "tests/kern/voorbeeld.h"

namespace fs = std::filesystem;

namespace {

/// Genoeg regels voor zoveel bytes, met om de tien regels een stuk om te knippen.
std::string maakBron(std::size_t bytes) {
    std::string bron;
    for (int regel = 0; bron.size() < bytes; ++regel) {
        bron += "regel " + std::to_string(regel) + " met caf\xC3\xA9 en een staart van gewone woorden\n";
        bron += regel % 10 == 3 ? "// BEGIN\ngeheim\n// EIND\n" : "";
    }
    return bron;
}

std::string maakBreed(const std::string& ascii) {
    std::string breed = "\xFF\xFE";
    for (const char teken : ascii) {
        breed += teken;
        breed += '\0';
    }
    return breed;
}

/// De grote bron en haar knipsel beslaan meer dan twee van de grootste blokken die gelezen worden.
const hulp::Boom begin{{"boom/a.c", maakBron(2000)},
                       {"boom/breed.cpp", maakBreed("een\nBEGIN\ntwee\nEIND\ndrie\n")},
                       {"boom/buiten.c", "-> ../buiten/c.c"},
                       {"boom/groot.c", maakBron(650'000)},
                       {"boom/link.c", "-> sub/b.c"},
                       {"boom/notities.txt", maakBron(300)},
                       {"boom/sub/b.c", maakBron(500)},
                       {"boom/sub/diep/teller.vhdl", maakBron(700)},
                       {"buiten/c.c", maakBron(400)},
                       {"doel/a.c", std::string(5000, 'o')},
                       {"tijdelijk", "/"}};

struct Fout {
    const char* aanroep;
    int keren;
    int kort;    ///< hoogstens zoveel bytes; 0 als de aanroep meteen mislukt
    int nummer;  ///< de errno; 0 als het bij kort blijft

    bool isAlleenKort() const { return nummer == 0; }
    /// Treft meer dan één bestand: een hele directory, of de vraag wat er bij de boom hoort.
    bool raaktMeer() const {
        return keren > 2 || std::strcmp(aanroep, "opendir") == 0 || std::strcmp(aanroep, "realpath") == 0;
    }
    std::string geefNaam() const {
        return std::string(aanroep) + (kort > 0 ? " kort" : "") +
               (nummer > 0 ? std::string(" ") + strerrorname_np(nummer) : "") + (keren > 2 ? " steeds" : "");
    }
};

std::vector<Fout> geefFouten() {
    constexpr int steeds = INT_MAX;
    std::vector<Fout> fouten;
    const std::vector<std::pair<const char*, std::vector<int>>> perAanroep{
        {"open", {EIO, ENOSPC, EACCES, EINTR}},
        {"mkstemp", {EIO, ENOSPC, EACCES, EINTR}},
        {"mkostemp", {EIO, ENOSPC, EACCES, EINTR}},
        {"read", {EIO, EINTR}},
        {"write", {EIO, ENOSPC, EINTR}},
        {"close", {EIO, ENOSPC, EINTR}},
        {"rename", {EIO, ENOSPC, EACCES, EXDEV}},
        {"ftruncate", {EIO, EINTR}},
        {"fchmod", {EIO, EPERM}},
        {"fchown", {EIO, EPERM}},
        {"unlink", {EIO, EACCES}},
        {"realpath", {EIO, EACCES}},
        {"opendir", {EIO, EACCES}}};
    for (const auto& [aanroep, nummers] : perAanroep) {
        for (const int nummer : nummers) {
            fouten.push_back({aanroep, 1, 0, nummer});
        }
        fouten.push_back({aanroep, steeds, 0, EIO});
    }
    for (const char* aanroep : {"read", "write"}) {
        const int vol = std::strcmp(aanroep, "read") == 0 ? EIO : ENOSPC;
        fouten.insert(fouten.end(), {{aanroep, 1, 1, 0},
                                     {aanroep, steeds, 1000, 0},
                                     {aanroep, 2, 1, vol},
                                     {aanroep, steeds, 1000, vol}});
    }
    return fouten;
}

/// Hoe een programma met een storing afliep.
struct Afloop {
    int status = 0;
    int geteld = 0;       ///< hoe vaak de aanroep voorkwam
    std::string verslag;  ///< wat het programma zelf zei
};

class Storing : public testing::Test {
  protected:
    /// Een loop zonder storing moet het knipsel geven; daar worden de andere tegen gehouden.
    void SetUp() override {
        // LD_PRELOAD is een lijst: een pad met een spatie erin zou als twee gelden.
        fs::create_symlink(STORING, storing_);
        maakWereld();
        na_ = hulp::leesBoom(wereld_);
    }

    void maakWereld() const {
        fs::remove_all(wereld_);
        hulp::maakBoom(wereld_, begin);
        for (const auto& [pad, inhoud] : begin) {
            if (isOrigineel(pad)) {
                chmod640(wereld_ / pad);
                geefWeg(wereld_ / pad);
            }
        }
    }

    std::string knip(const std::string& pad) const {
        return orakel::knipBestand(wereld_ / pad, proef::teksten);
    }

    /// Doet elke storing op elke plaats waar zij kan.
    void stoorOveral(const fouten::Proces::Woorden& batch) {
        std::ostringstream overzicht;
        int plaatsen = 0;
        for (const Fout& fout : geefFouten()) {
            int nummer = 0;
            int geheel = 0;
            while (stoor(batch, fout, nummer + 1)) {
                ++nummer;
                const hulp::Boom nu = hulp::leesBoom(wereld_);
                geheel += nu == na_ ? 1 : 0;
                const std::string mis = beoordeel(nu, fout);
                EXPECT_EQ("", mis) << fout.geefNaam() << ", nummer " << nummer;
                if (!mis.empty()) {
                    break;
                }
            }
            plaatsen += nummer;
            geheel_[fout.geefNaam()] += geheel;
            overzicht << "  " << fout.geefNaam() << ": " << nummer << " plaatsen, " << geheel
                      << " keer toch alles geknipt\n";
        }
        std::cout << batch[0] << ": " << plaatsen << " plaatsen gestoord\n" << overzicht.str();
        RecordProperty("plaatsen", plaatsen);
        EXPECT_LT(100, plaatsen) << "de storingen komen niet aan";
    }

    void stoorBoom() {
        for (const char* pad :
             {"boom/a.c", "boom/breed.cpp", "boom/groot.c", "boom/sub/b.c", "boom/sub/diep/teller.vhdl"}) {
            na_[pad] = knip(pad);
        }
        stoorOveral({"boom", wereld_ / "boom"});
    }

    /// Doet elke storing op elke plaats waar het consoleprogramma dit bestand schrijft. Het is nieuw als het
    /// programma dat zegt, en anders nog oud.
    void stoorConsole(const fouten::Proces::Woorden& opties, const std::string& doel) {
        fouten::Proces::Woorden opdracht{KNIPSELAAR_CLI,  "--zonder-instellingen", "--als-venster",
                                         "--begin=BEGIN", "--eind=EIND",           "--vervang=WERK"};
        opdracht.insert(opdracht.end(), opties.begin(), opties.end());
        const hulp::Boom vooraf = na_;
        hulp::Boom achteraf = vooraf;
        achteraf[doel] = knip("boom/a.c");
        int plaatsen = 0;
        for (const Fout& fout : geefFouten()) {
            for (int nummer = 1;; ++nummer) {
                maakWereld();
                const Afloop afloop = voerUit(opdracht, fout, nummer);
                if (afloop.geteld < nummer) {
                    EXPECT_EQ(0, afloop.status) << fout.geefNaam() << "\n" << afloop.verslag;
                    break;
                }
                ++plaatsen;
                hulp::Boom nu = hulp::leesBoom(wereld_);
                std::erase_if(nu, [&fout](const auto& paar) { return magBlijven(paar.first, fout); });
                EXPECT_TRUE(afloop.status == 0 || afloop.status == 2) << afloop.status;
                EXPECT_EQ(afloop.status == 0 ? achteraf : vooraf, nu)
                    << fout.geefNaam() << ", nummer " << nummer << "\n"
                    << afloop.verslag;
            }
        }
        EXPECT_LT(30, plaatsen) << "de storingen komen niet aan";
    }

    hulp::TijdelijkeMap map_{fouten::geefSnellePlaats()};
    fs::path wereld_ = map_ / "wereld";
    fs::path storing_ = map_ / "storing.so";
    bool verweg_ = false;  ///< of de tijdelijke directory op een ander bestandssysteem lijkt te liggen
    hulp::Boom na_;
    std::map<std::string, int> geheel_;  ///< hoe vaak toch alles geknipt werd, per storing

  private:
    static constexpr uid_t vreemdeEigenaar = 1234;
    static constexpr gid_t vreemdeGroep = 5678;

    static bool isOrigineel(const std::string& pad) {
        return !pad.starts_with("doel") && !begin.at(pad).starts_with("-> ") && begin.at(pad) != "/";
    }

    /// Van een ander, zodat ook het overnemen van de eigenaar mis kan gaan. Alleen root kan dat.
    static void geefWeg(const fs::path& pad) {
        EXPECT_TRUE(geteuid() != 0 || chown(pad.c_str(), vreemdeEigenaar, vreemdeGroep) == 0) << pad;
    }

    /// Wie zijn groep niet kon houden, geeft de nieuwe groep niet meer dan iedereen mag: hier niets.
    static bool heeftZijnRechten(const fs::path& pad) {
        struct stat kenmerken {};
        const bool vanAnder = stat(pad.c_str(), &kenmerken) == 0 && kenmerken.st_gid == vreemdeGroep;
        return (kenmerken.st_mode & 07777U) == (vanAnder || geteuid() != 0 ? 0640U : 0600U);
    }

    /// Een tijdelijk bestand dat niet weg te halen is.
    static bool magBlijven(const std::string& pad, const Fout& fout) {
        return std::strcmp(fout.aanroep, "unlink") == 0 && pad.find("Knipselaar") != std::string::npos;
    }

    static void chmod640(const fs::path& pad) {
        fs::permissions(pad, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    }

    /// Eén batch met één storing. Geeft of er iets te storen viel.
    bool stoor(const fouten::Proces::Woorden& batch, const Fout& fout, int nummer) const {
        maakWereld();
        fouten::Proces::Woorden opdracht{AANDRIJVER};
        opdracht.insert(opdracht.end(), batch.begin(), batch.end());
        opdracht.insert(opdracht.end(), {"BEGIN", "EIND", "WERK"});
        const Afloop afloop = voerUit(opdracht, fout, nummer);
        EXPECT_EQ(0, afloop.status) << fout.geefNaam() << ", nummer " << nummer << "\n" << afloop.verslag;
        EXPECT_EQ("", afloop.verslag) << fout.geefNaam() << ", nummer " << nummer;
        return afloop.geteld >= nummer;
    }

    /// Een programma met één storing.
    Afloop voerUit(const fouten::Proces::Woorden& opdracht, const Fout& fout, int nummer) const {
        std::ostringstream storing;
        storing << fout.aanroep << ' ' << nummer << ' ' << fout.keren << ' ' << fout.kort << ' '
                << fout.nummer << ' ' << wereld_.string();
        // Een controle van de compiler wil zelf vooraan staan, maar hoeft dat voor deze aanroepen niet.
        const char* controle = std::getenv("ASAN_OPTIONS");
        fouten::Proces proces(opdracht,
                              {{"LD_PRELOAD", storing_},
                               {"STORING", storing.str()},
                               {"TMPDIR", wereld_ / "tijdelijk"},
                               {verweg_ ? "VERWEG" : "DICHTBIJ", "1"},
                               {"ASAN_OPTIONS", std::string(controle == nullptr ? "" : controle) +
                                                    ":verify_asan_link_order=0"}},
                              map_ / "verslag");
        Afloop afloop;
        afloop.status = proces.wacht();
        afloop.verslag = hulp::leesBestand(map_ / "verslag");
        // De laatste regel is van de storing.
        const std::size_t einde = afloop.verslag.find_last_not_of('\n') + 1;
        const std::size_t laatste = afloop.verslag.substr(0, einde).rfind('\n') + 1;
        afloop.geteld = std::atoi(afloop.verslag.c_str() + laatste);
        afloop.verslag.resize(laatste);
        return afloop;
    }

    /// Wat er mis is met de bestanden na een storing; leeg als alles klopt.
    std::string beoordeel(const hulp::Boom& nu, const Fout& fout) const {
        std::string mis;
        for (const auto& [pad, inhoud] : begin) {
            const bool heel = nu.contains(pad) && (nu.at(pad) == inhoud || nu.at(pad) == na_.at(pad));
            if (!heel && !pad.starts_with("doel/")) {
                mis += " niet heel: " + pad;
            } else if (isOrigineel(pad) && !heeftZijnRechten(wereld_ / pad)) {
                mis += " andere rechten: " + pad;
            }
        }
        for (const auto& [pad, inhoud] : nu) {
            if (!na_.contains(pad) && !magBlijven(pad, fout)) {
                mis += " blijft achter: " + pad;
            }
        }
        const auto anders = std::count_if(na_.begin(), na_.end(), [&nu](const auto& paar) {
            const auto plek = nu.find(paar.first);
            return plek == nu.end() || plek->second != paar.second;
        });
        if (fout.isAlleenKort() ? anders > 0 : anders > 1 && !fout.raaktMeer()) {
            mis += " " + std::to_string(anders) + " bestanden niet geknipt";
        }
        return mis;
    }
};

}  // namespace

TEST_F(Storing, LaatInEenBoomElkOrigineelHeel) {
    stoorBoom();
}

TEST_F(Storing, LaatInEenBoomElkOrigineelHeelOokMetDeTijdelijkeBestandenElders) {
    verweg_ = true;
    stoorBoom();
    // Een kopie die onderbroken wordt leest en schrijft verder.
    EXPECT_LT(0, geheel_.at("read EINTR"));
    EXPECT_LT(0, geheel_.at("write EINTR"));
}

TEST_F(Storing, LaatBijEenDirectoryElkeBronMetRust) {
    for (const char* naam : {"a.c", "breed.cpp", "buiten.c", "groot.c", "link.c"}) {
        na_[std::string("doel/") + naam] = knip(std::string("boom/") + naam);
    }
    stoorOveral({"vlak", wereld_ / "boom", wereld_ / "doel"});
}

TEST_F(Storing, LaatVanHetConsoleprogrammaElkeUitvoerHeel) {
    stoorConsole({"--overschrijf", "--uit", wereld_ / "doel/a.c", wereld_ / "boom/a.c"}, "doel/a.c");
}

TEST_F(Storing, LaatVanHetConsoleprogrammaElkOrigineelHeel) {
    stoorConsole({"--ter-plaatse", wereld_ / "boom/a.c"}, "boom/a.c");
}
