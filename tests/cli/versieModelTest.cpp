// Duizenden toevallige bronnen waarvan bij het maken al vaststaat wat er van elke versie hoort te worden: met
// blokken in blokken, regels voor de student, en lege regels die de nummers gelijk houden.

#include <gtest/gtest.h>

#include <random>

#include "KnipselaarCli/knipsel.h"
#include "tests/hulp/bestanden.h"

using cli::Brontekst;
using cli::Lezing;

namespace {

constexpr std::size_t aantalParen = 3;

/// Een bron, en wat er van hoort te komen.
class Bronmaker {
  public:
    Bronmaker(std::mt19937& toeval, bool metGeef, bool regelsGelijk)
        : toeval_(toeval), metGeef_(metGeef), regelsGelijk_(regelsGelijk) {
        for (auto&& houdt : houd_) {
            houdt = kies(2) == 0;
        }
        voegRegelsToe(0);
    }

    std::string geefBron(const std::string& einde) const { return plak(bron_, einde); }
    std::string geefVerwacht(const std::string& einde) const { return plak(verwacht_, einde); }
    const std::vector<bool>& geefHoud() const { return houd_; }

  private:
    using Regels = std::vector<std::string>;

    std::size_t kies(std::size_t aantal) { return toeval_() % aantal; }

    static std::string plak(const Regels& regels, const std::string& einde) {
        std::string tekst;
        for (const std::string& regel : regels) {
            tekst += regel + einde;
        }
        return tekst;
    }

    /// Regels en blokken die blijven. Buiten een blok staat geen regel voor de student: die wordt gemeld.
    void voegRegelsToe(unsigned gebruikt) {
        for (std::size_t aantal = kies(6); aantal > 0; --aantal) {
            const std::size_t paar = kies(2 * aantalParen);
            if (paar < aantalParen && (gebruikt & (1U << paar)) == 0) {
                houd_[paar] ? voegGehoudenToe(paar, gebruikt) : voegGekniptToe(paar, gebruikt);
            } else if (gebruikt != 0 && metGeef_ && kies(4) == 0) {
                bron_.emplace_back("  //G alleen voor de student");
                voegLegeToe(1);
            } else {
                bron_.push_back(maakRegel());
                verwacht_.push_back(bron_.back());
            }
        }
    }

    void voegGehoudenToe(std::size_t paar, unsigned gebruikt) {
        bron_.push_back("\t<" + std::to_string(paar));
        voegLegeToe(1);
        voegRegelsToe(gebruikt | (1U << paar));
        bron_.push_back("\t" + std::to_string(paar) + ">");
        voegLegeToe(1);
    }

    void voegGekniptToe(std::size_t paar, unsigned gebruikt) {
        const std::size_t begin = bron_.size();
        const std::size_t verwacht = verwacht_.size();
        bron_.push_back("<" + std::to_string(paar));
        for (std::size_t aantal = kies(4); aantal > 0; --aantal) {
            voegBinnenregelToe(gebruikt | (1U << paar));
        }
        bron_.push_back(std::to_string(paar) + ">");
        if (verwacht_.size() == verwacht && bron_.size() - begin > 2) {
            verwacht_.emplace_back("X");
        }
        voegLegeToe(bron_.size() - begin - (verwacht_.size() - verwacht));
    }

    void voegBinnenregelToe(unsigned gebruikt) {
        const std::size_t ander = kies(aantalParen);
        if (metGeef_ && kies(3) == 0) {
            bron_.emplace_back("  //G geef");
            verwacht_.emplace_back("  geef");
        } else if ((gebruikt & (1U << ander)) == 0 && kies(3) == 0) {
            bron_.push_back("<" + std::to_string(ander));
            bron_.push_back(std::to_string(ander) + ">");
        } else {
            bron_.push_back(maakRegel());
        }
    }

    void voegLegeToe(std::size_t aantal) {
        if (regelsGelijk_) {
            verwacht_.insert(verwacht_.end(), aantal, "");
        }
    }

    std::string maakRegel() {
        static const std::vector<std::string> regels{"", "a", "  b", "é", "// //G c"};
        return regels[kies(regels.size())];
    }

    std::mt19937& toeval_;
    bool metGeef_;
    bool regelsGelijk_;
    std::vector<bool> houd_ = std::vector<bool>(aantalParen);
    Regels bron_;
    Regels verwacht_;
};

kern::MarkerReeks maakModelMarkers() {
    std::vector<kern::Markerpaar> paren;
    for (std::size_t i = 0; i < aantalParen; ++i) {
        const std::string nummer = std::to_string(i);
        paren.push_back({.begin = kern::MarkerMasker(wxString::FromUTF8("<" + nummer)),
                         .eind = kern::MarkerMasker(wxString::FromUTF8(nummer + ">"))});
    }
    return kern::MarkerReeks(std::move(paren));
}

/// Een tekst in UTF-16, de hoge byte eerst, met merkteken.
std::string maakBreed(const std::string& tekst) {
    return "\xFE\xFF" + cli::codeer(tekst, cli::Codering::utf16be);
}

TEST(CliVersieModel, IsWatErBijHetMakenVaststond) {
    std::mt19937 toeval{11};  // NOLINT(cert-msc51-cpp): elke loop van de test maakt dezelfde bronnen
    const kern::MarkerReeks markers = maakModelMarkers();
    const std::vector<std::string> geef{"//G"};
    for (int i = 0; i < 20'000; ++i) {
        const bool metGeef = i % 2 == 0;
        const bool regelsGelijk = i % 3 == 0;
        const Bronmaker maker(toeval, metGeef, regelsGelijk);
        const std::string einde = i % 5 == 0 ? "\r\n" : i % 5 == 1 ? "\r" : "\n";
        std::string bron = maker.geefBron(einde);
        std::string verwacht = maker.geefVerwacht(einde);
        if (i % 7 == 0) {
            bron = maakBreed(bron);
            verwacht = maakBreed(verwacht);
        }
        const Brontekst tekst(kern::Bytes(bron), i % 2 == 0 ? Lezing::volledig : Lezing::zuinig);
        const cli::Ontleding ontleding = cli::ontleed(
            tekst.geefTekst(), markers,
            {.houd = maker.geefHoud(),
             .geef = metGeef ? std::span<const std::string>(geef) : std::span<const std::string>()});
        ASSERT_FALSE(ontleding.heeftFout()) << hulp::toonBytes(bron);
        cli::Knipsel knipsel(
            tekst, ontleding,
            {.regelsGelijk = regelsGelijk,
             .vervanging = "X",
             .geef = metGeef ? std::span<const std::string>(geef) : std::span<const std::string>()});
        ASSERT_EQ(verwacht, knipsel.geefInhoud()) << hulp::toonBytes(bron);
        // De wijzigingen maken van de bron hetzelfde.
        std::string gewijzigd;
        std::size_t plek = 0;
        for (const cli::Wijziging& wijziging : knipsel.geefWijzigingen()) {
            gewijzigd += bron.substr(plek, wijziging.begin - plek) + std::string(wijziging.nieuw);
            plek = wijziging.eind;
        }
        ASSERT_EQ(verwacht, gewijzigd + bron.substr(plek)) << hulp::toonBytes(bron);
    }
}

}  // namespace
