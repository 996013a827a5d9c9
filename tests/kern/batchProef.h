#pragma once

// Wat de tests van de batches delen: een opdracht die onthoudt wat er gemeld werd, en een boom met een eigen
// tijdelijke directory.

#include <gtest/gtest.h>
#include <wx/utils.h>

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "Knipselaar/kern/batch.h"
#include "Knipselaar/kern/keuzes.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/bestandsboom.h"
#include "tests/hulp/beweringen.h"
#include "tests/kern/voorbeeld.h"

namespace proef {

/// Een overslag in woorden.
inline std::string vertel(kern::Overslag reden) {
    switch (reden) {
        case kern::Overslag::nietGekozen:
            return "over: niet gekozen";
        case kern::Overslag::bronZelf:
            return "over: de bron zelf";
        case kern::Overslag::alGeweest:
            return "over: al geweest";
        case kern::Overslag::buitenBoom:
            return "over: buiten de boom";
    }
    return "";
}

/// Een afloop in woorden, met alles wat erin staat.
inline std::string vertel(const kern::Afloop& afloop) {
    const std::string blokken = std::to_string(afloop.knip.bevindingen.blokken) + " blok";
    std::string tekst = (afloop.isGelukt() ? "gelukt" : "mislukt") +
                        std::string(afloop.terPlaatse ? " ter plaatse, " : " vlak, ") + blokken;
    if (!afloop.knip.bronHeelGelezen) {
        tekst += afloop.knip.bronBestaat ? ", bron bestaat" : ", bron bestaat niet";
    }
    for (const auto& [wat, reden] :
         {std::pair{", bron: ", afloop.knip.bronReden}, std::pair{", doel: ", afloop.knip.doelReden},
          std::pair{", tijdelijk: ", afloop.tijdelijkReden},
          std::pair{", vervangen: ", afloop.vervangReden}}) {
        tekst += reden.empty() ? "" : wat + reden;
    }
    return tekst;
}

/// Een opdracht die onthoudt wat er gemeld werd.
class Opdracht : public kern::BatchOpdracht {
  public:
    explicit Opdracht(int bestandType = 0) : bestandType_(bestandType) {}

    bool isGekozen(const wxFileName& bestand) override {
        return kern::isBestandGekozen(bestand.GetExt(), bestandType_);
    }
    kern::KnipUitslag knip(const wxFileName& bron, const wxFileName& bestemming) override {
        if (voorElkeKnip) {
            voorElkeKnip();
        }
        auto uitslag = kern::knipBestand(bron, bestemming, kern::KnipMal(teksten), kern::Nakijken::ja);
        if (naElkeKnip) {
            naElkeKnip();
        }
        return uitslag;
    }
    void meldOvergeslagen(long nummer, const wxFileName& bestand, kern::Overslag reden) override {
        meld("over", nummer, bestand);
        loop[bestand.GetFullName().utf8_string()] = vertel(reden);
    }
    void meldVerwerkt(long nummer, const wxFileName& bron, const wxFileName& bestemming) override {
        meld("knip", nummer, bron);
        EXPECT_EQ(bron.GetFullName(), bestemming.GetFullName());
        laatste_ = bron.GetFullName().utf8_string();
    }
    void meldAfloop(const kern::Afloop& afloop) override {
        EXPECT_EQ(0U, loop.count(laatste_)) << "elk bestand loopt eenmaal af: " << laatste_;
        loop[laatste_] = vertel(afloop);
    }

    void meldVoortgang(std::size_t gedaan, std::size_t totaal) override {
        voortgang += std::to_string(gedaan) + "/" + std::to_string(totaal) + " ";
        if (voorElkBestand) {
            voorElkBestand(gedaan);
        }
    }

    std::vector<std::string> gemeld;
    std::string voortgang;
    std::map<std::string, std::string> loop;          ///< hoe het met elk bestand ging, op naam
    std::function<void(std::size_t)> voorElkBestand;  ///< krijgt hoeveel er gedaan zijn
    std::function<void()> voorElkeKnip;
    std::function<void()> naElkeKnip;

  private:
    void meld(const std::string& wat, long nummer, const wxFileName& bestand) {
        gemeld.push_back(wat + " " + std::to_string(nummer) + " " + bestand.GetFullName().utf8_string());
    }

    int bestandType_;
    std::string laatste_;
};

inline wxString naarWx(const std::filesystem::path& pad) {
    return wxString::FromUTF8(pad.generic_string());
}

class Batch : public testing::Test {
  protected:
    Batch() {
        std::filesystem::create_directory(tijdelijk_);
        wxSetEnv("TMPDIR", naarWx(tijdelijk_));
        std::filesystem::create_directory(boom_);
    }
    ~Batch() override {
        wxUnsetEnv("TMPDIR");
        // Ook een bestand dat niet te knippen is beweert; dat hoort zo en verschilt per test.
        hulp::neemBeweringen();
    }

    std::vector<std::string> knipBoom(Opdracht& opdracht) {
        const auto paden = kern::lijstBoom(naarWx(boom_));
        kern::knipBoom(naarWx(boom_), paden, opdracht);
        EXPECT_TRUE(std::filesystem::is_empty(tijdelijk_)) << "er bleef een tijdelijk bestand achter";
        std::sort(opdracht.gemeld.begin(), opdracht.gemeld.end());
        return opdracht.gemeld;
    }

    std::vector<std::string> knipBoom(int bestandType = 0) {
        Opdracht opdracht(bestandType);
        return knipBoom(opdracht);
    }

    hulp::TijdelijkeMap map_;
    std::filesystem::path boom_ = map_ / "boom";
    std::filesystem::path tijdelijk_ = map_ / "tijdelijk";
};

}  // namespace proef
