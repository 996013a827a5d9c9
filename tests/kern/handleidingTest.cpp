// Wat de handleiding beweert, wordt hier nagerekend: haar voorbeelden, haar tabel met bestanden, haar verslag
// en haar vervangingsteksten komen uit de tekst zelf.

#include <gtest/gtest.h>

#include <array>
#include <sstream>

#include "Knipselaar/kern/bestandKnipper.h"
#include "Knipselaar/kern/keuzes.h"
#include "Knipselaar/kern/logregels.h"
#include "Knipselaar/kern/parserInstellingen.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/handleiding.h"
#include "tests/hulp/opdracht.h"

namespace fs = std::filesystem;

namespace {

const fs::path handleiding = fs::path(WORTEL) / "docs" / "handleiding.md";

wxString naarWx(const std::string& tekst) {
    return wxString::FromUTF8(tekst);
}

kern::KnipTeksten standaardTeksten() {
    return {kern::standaardBeginMarker(), kern::standaardEindMarker(), kern::standaardVervangtekst()};
}

/// Het resultaat van de bestandsvariant; naar zichzelf als dat gevraagd wordt.
std::string knipAlsBestand(const std::string& bron, const kern::KnipTeksten& teksten, bool naarZichzelf) {
    const hulp::TijdelijkeMap map;
    const fs::path doel = map / (naarZichzelf ? "bron" : "doel");
    hulp::schrijfBestand(map / "bron", bron);
    EXPECT_TRUE(kern::knipBestand(wxFileName((map / "bron").string()), wxFileName(doel.string()), teksten)
                    .isGelukt());
    return hulp::leesBestand(doel);
}

/// Wat er van een bron hoort te komen, en met welke teksten.
class Voorbeeld {
  public:
    /// Neemt het volgende blok; geeft of het een resultaat was dat nu klopt of niet klopt.
    bool neem(const hulp::HandleidingBlok& blok) {
        if (blok.is("bron")) {
            bron_ = blok.inhoud;
            teksten_ = komend_;
            komend_ = vast_;
        } else if (blok.is("begin")) {
            komend_.beginMarker = naarWx(blok.inhoud).Trim();
        } else if (blok.is("eind")) {
            komend_.eindMarker = naarWx(blok.inhoud).Trim();
        } else if (blok.is("vervang")) {
            neemVervangtekst(blok);
        } else if (blok.is("resultaat")) {
            EXPECT_EQ(blok.inhoud, knip(blok)) << "regel " << blok.regel;
            return true;
        }
        return false;
    }

  private:
    void neemVervangtekst(const hulp::HandleidingBlok& blok) {
        komend_.vervangtekst = naarWx(blok.inhoud);
        if (blok.is("vast")) {
            vast_ = komend_;
        } else if (blok.soort.size() > 1 && !blok.is("bytes")) {
            komend_ = vast_;  // voor de vertalers, niet voor een bron
        }
    }

    std::string knip(const hulp::HandleidingBlok& blok) const {
        return blok.is("batch") || blok.is("gelijk") ? knipAlsBestand(bron_, teksten_, blok.is("gelijk"))
                                                     : kern::knipTekst(bron_, teksten_);
    }

    std::string bron_;
    kern::KnipTeksten vast_ = standaardTeksten();
    kern::KnipTeksten komend_ = vast_;
    kern::KnipTeksten teksten_;
};

/// De cellen van een tabelregel, zonder spaties eromheen.
std::vector<std::string> leesCellen(const std::string& regel) {
    std::istringstream cellen(regel.substr(1));
    std::vector<std::string> uit;
    std::string cel;
    while (std::getline(cellen, cel, '|')) {
        uit.push_back(naarWx(cel).Trim().Trim(false).utf8_string());
    }
    return uit;
}

/// De tekst met alleen de markers van het zoveelste blok; leeg als dat er niet is.
std::string houdBlok(const std::string& tekst, int nummer) {
    std::istringstream regels(tekst);
    std::string regel;
    std::string uit;
    int begonnen = 0;
    while (std::getline(regels, regel)) {
        const bool begin = regel.find("Student Begin") != std::string::npos;
        const bool eind = regel.find("Student Eind") != std::string::npos;
        begonnen += begin ? 1 : 0;
        if (!(begin || eind) || begonnen == nummer) {
            uit += regel + "\n";
        }
    }
    return begonnen < nummer ? "" : uit;
}

struct Vertaling {
    const char* vertaler;
    const char* bestand;
    const char* opdracht;
};

constexpr std::array<Vertaling, 5> vertalingen{{
    {"gcc", "ringbuffer.c", "gcc -std=c11 -fsyntax-only ringbuffer.c"},
    {"g++", "matrix.h", "g++ -std=c++17 -fsyntax-only matrix.cpp"},
    {"g++", "matrix.cpp", "g++ -std=c++17 -fsyntax-only matrix.cpp"},
    {"ghdl", "teller.vhdl", "ghdl -a --std=08 teller.vhdl"},
    {"ghdl", "teller_tb.vhdl", "ghdl -a --std=08 teller.vhdl teller_tb.vhdl"},
}};

/// Knipt elk blok van een voorbeeld apart en kijkt of de vertaler er met de eerste regel van de tekst op
/// stopt. Geeft het aantal blokken.
int verwachtStop(const std::string& vervangtekst, const Vertaling& vertaling) {
    const std::string eersteRegel = vervangtekst.substr(0, vervangtekst.find('\n'));
    const std::string origineel = hulp::leesBestand(fs::path(VOORBEELDEN) / vertaling.bestand);
    kern::KnipTeksten teksten = standaardTeksten();
    teksten.vervangtekst = naarWx(vervangtekst);
    int nummer = 1;
    for (std::string tekst; !(tekst = houdBlok(origineel, nummer)).empty(); ++nummer) {
        const hulp::TijdelijkeMap map;
        fs::copy(VOORBEELDEN, map.pad(), fs::copy_options::recursive);
        hulp::schrijfBestand(map / vertaling.bestand, kern::knipTekst(tekst, teksten));
        const hulp::Afloop afloop = hulp::voerUitIn(map.pad(), std::string("LC_ALL=C ") + vertaling.opdracht);
        EXPECT_NE(0, afloop.status) << vertaling.bestand << ", blok " << nummer;
        EXPECT_NE(std::string::npos, afloop.uitvoer.find(eersteRegel)) << afloop.uitvoer;
    }
    return nummer - 1;
}

}  // namespace

TEST(Handleiding, VoorbeeldenKloppen) {
    Voorbeeld voorbeeld;
    int resultaten = 0;
    for (const auto& blok : hulp::leesBlokken(handleiding)) {
        resultaten += voorbeeld.neem(blok) ? 1 : 0;
    }
    EXPECT_GT(resultaten, 0);
}

TEST(Handleiding, TabelMetBestandenKlopt) {
    std::istringstream tekst(hulp::leesBestand(handleiding));
    const std::vector<std::string> kop{"Bestand", "C,C++ en H bestanden", "VHDL bestanden", "Alle bestanden"};
    std::string regel;
    while (std::getline(tekst, regel) && (!regel.starts_with('|') || leesCellen(regel) != kop)) {
    }
    std::getline(tekst, regel);  // de streep
    int rijen = 0;
    for (; std::getline(tekst, regel) && regel.starts_with('|'); ++rijen) {
        const auto cellen = leesCellen(regel);
        ASSERT_EQ(kop.size(), cellen.size()) << regel;
        const wxFileName bestand(naarWx(cellen[0].substr(1, cellen[0].size() - 2)));
        for (int keuze = 0; keuze < 3; ++keuze) {
            EXPECT_EQ(cellen[static_cast<std::size_t>(keuze) + 1],
                      kern::isBestandGekozen(bestand.GetExt(), keuze) ? "ja" : "nee")
                << regel;
        }
    }
    EXPECT_GT(rijen, 0);
}

TEST(Handleiding, VerslagKlopt) {
    int verslagen = 0;
    for (const auto& blok : hulp::leesBlokken(handleiding)) {
        if (!blok.is("logboek")) {
            continue;
        }
        ++verslagen;
        std::istringstream regels(blok.inhoud);
        std::string regel;
        std::getline(regels, regel);
        wxString verwacht = kern::regelStudentDirectory("/home/docent/klas");
        for (long nummer = 1; std::getline(regels, regel); ++nummer) {
            verwacht += kern::regelStudent(nummer, naarWx(regel.substr(regel.find(':') + 1)));
        }
        EXPECT_EQ(verwacht.utf8_string(), blok.inhoud);
    }
    EXPECT_EQ(1, verslagen);
}

TEST(Handleiding, StandaardtekstKlopt) {
    for (const auto& blok : hulp::leesBlokken(handleiding)) {
        if (blok.is("gcc")) {
            EXPECT_EQ(kern::standaardVervangtekst().utf8_string(), blok.inhoud);
            return;
        }
    }
    FAIL() << "de handleiding noemt de standaardtekst niet";
}

TEST(Handleiding, VervangingstekstenHoudenDeVertalerTegen) {
    std::array<int, vertalingen.size()> geprobeerd{};
    for (const auto& blok : hulp::leesBlokken(handleiding)) {
        for (std::size_t i = 0; i < vertalingen.size(); ++i) {
            if (blok.is(vertalingen[i].vertaler)) {
                SCOPED_TRACE("regel " + std::to_string(blok.regel));
                geprobeerd[i] += verwachtStop(blok.inhoud, vertalingen[i]);
            }
        }
    }
    for (const int aantal : geprobeerd) {
        EXPECT_GT(aantal, 0);
    }
}
