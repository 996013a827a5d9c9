// De stroom valt uit terwijl het consoleprogramma een boom ter plaatse knipt. Van een opname van alle
// aanroepen wordt na elke aanroep elke toestand bekeken waarin de schijf dan terug kan komen: wat niet
// vastgezet was is er niet, en wat sindsdien hernoemd werd heeft de ene of de andere naam, los van elkaar.
// Elk origineel is dan heel: zoals het was, of geknipt.

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "tests/fouten/proces.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/bestandsboom.h"

namespace fs = std::filesystem;

namespace {

struct Gebeurtenis {
    std::string wat;
    std::string pad;
    std::string naar;
    std::string bytes;
};

std::vector<Gebeurtenis> leesOpname(const fs::path& pad) {
    std::istringstream opname(hulp::leesBestand(pad));
    std::vector<Gebeurtenis> uit;
    for (std::string regel; std::getline(opname, regel);) {
        std::istringstream delen(regel);
        Gebeurtenis gebeurtenis;
        std::getline(delen, gebeurtenis.wat, '\t');
        std::getline(delen, gebeurtenis.pad, '\t');
        std::getline(delen, gebeurtenis.naar, '\t');
        if (gebeurtenis.wat == "schrijf") {
            gebeurtenis.bytes.resize(std::stoul(gebeurtenis.naar));
            opname.read(gebeurtenis.bytes.data(), static_cast<std::streamsize>(gebeurtenis.bytes.size()));
        }
        uit.push_back(std::move(gebeurtenis));
    }
    return uit;
}

/// Een schijf die vergeet wat niet vastgezet is.
class Schijf {
  public:
    explicit Schijf(const hulp::Boom& boom, const std::string& wortel) {
        for (const auto& [naam, inhoud] : boom) {
            if (inhoud != "/") {
                inhouden_.push_back({.nu = inhoud, .vast = inhoud});
                nu_[wortel + "/" + naam] = inhouden_.size() - 1;
            }
        }
        zetVast();
    }

    void neem(const Gebeurtenis& gebeurtenis) {
        if (gebeurtenis.wat == "maak" || gebeurtenis.wat == "open") {
            inhouden_.emplace_back();
            wijs(gebeurtenis.pad, inhouden_.size() - 1);
        } else if (gebeurtenis.wat == "schrijf") {
            inhouden_.at(nu_.at(gebeurtenis.pad)).nu += gebeurtenis.bytes;
        } else if (gebeurtenis.wat == "hernoem") {
            wijs(gebeurtenis.naar, nu_.at(gebeurtenis.pad));
            nu_.erase(gebeurtenis.pad);
        } else if (gebeurtenis.wat == "haalweg") {
            nu_.erase(gebeurtenis.pad);
        } else if (gebeurtenis.wat == "vast") {
            zetVast();
        }
    }

    /// Wat er onder een naam terug kan komen.
    std::set<std::string> geefMogelijk(const std::string& pad) const {
        std::set<std::string> uit;
        for (const std::size_t inhoud : mogelijk_.at(pad)) {
            uit.insert(inhouden_.at(inhoud).vast);
        }
        return uit;
    }

  private:
    struct Inhoud {
        std::string nu = {};
        std::string vast = {};
    };

    void wijs(const std::string& pad, std::size_t inhoud) {
        nu_[pad] = inhoud;
        mogelijk_[pad].insert(inhoud);
    }

    void zetVast() {
        for (Inhoud& inhoud : inhouden_) {
            inhoud.vast = inhoud.nu;
        }
        mogelijk_.clear();
        for (const auto& [pad, inhoud] : nu_) {
            mogelijk_[pad] = {inhoud};
        }
    }

    std::vector<Inhoud> inhouden_;
    std::map<std::string, std::size_t> nu_;
    std::map<std::string, std::set<std::size_t>> mogelijk_;
};

class Stroom : public testing::Test {
  protected:
    Stroom() {
        for (int i = 0; i < aantal; ++i) {
            const std::string naam = "d" + std::to_string(i % 4) + "/" + std::to_string(i) + ".c";
            const std::string kop = "bestand " + std::to_string(i) + "\n" + std::string(5'000, 'x') + "\n";
            voor_["d" + std::to_string(i % 4)] = "/";
            na_["d" + std::to_string(i % 4)] = "/";
            voor_[naam] = kop + "BEGIN\ngeheim\nEIND\n";
            na_[naam] = kop + "WERK\n";
        }
        hulp::maakBoom(boom_, voor_);
        // LD_PRELOAD is een lijst: een pad met een spatie erin zou als twee gelden.
        fs::create_symlink(OPNAME, map_ / "opname.so");
    }

    /// Knipt de boom en geeft de afloop.
    int knip(const std::vector<std::string>& opties, fouten::Proces::Omgeving omgeving = {}) const {
        fouten::Proces::Woorden woorden{KNIPSELAAR_CLI, "-z",   "-b", "BEGIN", "-e", "EIND",
                                        "-v",           "WERK", "-r", "-t",    boom_};
        woorden.insert(woorden.end(), opties.begin(), opties.end());
        omgeving.insert({{"LD_PRELOAD", map_ / "opname.so"},
                         {"OPNAME", map_ / "opname"},
                         {"OPNAME_VAN", boom_},
                         {"LLVM_PROFILE_FILE", "/dev/null"},
                         {"ASAN_OPTIONS", "verify_asan_link_order=0:detect_leaks=0"}});
        fouten::Proces proces(woorden, omgeving, map_ / "verslag");
        return proces.wacht();
    }

    static constexpr int aantal = 40;
    hulp::TijdelijkeMap map_;
    fs::path boom_ = map_ / "boom";
    hulp::Boom voor_;
    hulp::Boom na_;
};

}  // namespace

TEST_F(Stroom, LaatNaElkeAanroepElkOrigineelHeel) {
    for (const std::string draden : {"1", "4"}) {
        hulp::maakBoom(boom_, voor_);
        fs::remove(map_ / "opname");
        ASSERT_EQ(0, knip({"--taken", draden})) << hulp::leesBestand(map_ / "verslag");
        EXPECT_EQ(na_, hulp::leesBoom(boom_));
        const std::vector<Gebeurtenis> opname = leesOpname(map_ / "opname");
        Schijf schijf(voor_, boom_);
        int hernoemd = 0;
        int vastgezet = 0;
        for (const Gebeurtenis& gebeurtenis : opname) {
            schijf.neem(gebeurtenis);
            hernoemd += gebeurtenis.wat == "hernoem" ? 1 : 0;
            vastgezet += gebeurtenis.wat == "vast" ? 1 : 0;
            for (const auto& [naam, inhoud] : voor_) {
                if (inhoud == "/") {
                    continue;
                }
                for (const std::string& mogelijk : schijf.geefMogelijk((boom_ / naam).string())) {
                    ASSERT_TRUE(mogelijk == inhoud || mogelijk == na_.at(naam))
                        << naam << " na " << gebeurtenis.wat << " " << gebeurtenis.pad << " heeft "
                        << mogelijk.size() << " bytes";
                }
            }
        }
        EXPECT_EQ(aantal, hernoemd);
        EXPECT_EQ(1, vastgezet) << "één keer voor alles";
    }
}

TEST_F(Stroom, LaatStaanWatIntussenBewaardIs) {
    const std::string bewaard = (boom_ / "d1/1.c").string();
    EXPECT_EQ(2, knip({}, {{"BEWAART", bewaard}}));
    const std::string verslag = hulp::leesBestand(map_ / "verslag");
    EXPECT_NE(std::string::npos,
              verslag.find("knipselaar-cli: fout: " + bewaard +
                           ": blijft zoals het is: is intussen veranderd; knip het opnieuw\n"))
        << verslag;
    na_["d1/1.c"] = voor_["d1/1.c"] + "erbij\n";
    EXPECT_EQ(na_, hulp::leesBoom(boom_));
}

TEST_F(Stroom, VerandertOokNietsAlsErIntussenIetsBewaardIsEnDatGevraagdIs) {
    EXPECT_EQ(2, knip({"--alles-of-niets"}, {{"BEWAART", (boom_ / "d1/1.c").string()}}));
    voor_["d1/1.c"] += "erbij\n";
    EXPECT_EQ(voor_, hulp::leesBoom(boom_));
}

TEST_F(Stroom, VerandertNietsAlsErIetsMisgaatEnDatGevraagdIs) {
    voor_["d0/fout.c"] = "BEGIN\n";
    na_["d0/fout.c"] = "BEGIN\n";
    hulp::maakBoom(boom_, voor_);
    EXPECT_EQ(1, knip({"--alles-of-niets"}));
    EXPECT_EQ(voor_, hulp::leesBoom(boom_)) << "ook geen bestanden ernaast";
    const std::string verslag = hulp::leesBestand(map_ / "verslag");
    EXPECT_NE(std::string::npos,
              verslag.find("knipselaar-cli: fout: er ging iets mis; geen enkel bestand is veranderd\n"))
        << verslag;
    EXPECT_NE(std::string::npos, verslag.find("\n0 bestanden geknipt, 0 blokken, 40 gelaten, 1 met fouten\n"))
        << verslag;
    EXPECT_EQ(1, knip({}));
    EXPECT_EQ(na_, hulp::leesBoom(boom_)) << "zonder die vraag gaat de rest door";
}
