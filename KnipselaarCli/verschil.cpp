#include "KnipselaarCli/verschil.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <vector>

namespace cli {

namespace {

constexpr std::size_t omgeving = 3;

using Regels = std::vector<std::string_view>;

/// De regels van een tekst, elk met haar LF; de laatste mag zonder zijn.
Regels deelOp(std::string_view tekst) {
    Regels regels;
    while (!tekst.empty()) {
        const std::size_t einde = tekst.find('\n');
        const std::size_t lengte = einde == std::string_view::npos ? tekst.size() : einde + 1;
        regels.push_back(tekst.substr(0, lengte));
        tekst.remove_prefix(lengte);
    }
    return regels;
}

/// Een verandering van hele regels.
struct Verandering {
    std::size_t begin;  ///< eerste oude regel, vanaf 0
    std::size_t eind;   ///< voorbij de laatste oude regel
    Regels nieuw;
};

/// Maakt van wijzigingen van bytes veranderingen van hele regels. Wijzigingen in dezelfde regel worden er
/// één.
class Regelaar {
  public:
    Regelaar(std::string_view ruw, std::span<const Wijziging> wijzigingen) : ruw_(ruw), oud_(deelOp(ruw)) {
        for (std::size_t i = 0; i < wijzigingen.size();) {
            i = neem(wijzigingen, i);
        }
    }

    const Regels& geefOud() const { return oud_; }
    const std::vector<Verandering>& geefVeranderingen() const { return veranderingen_; }

  private:
    /// Neemt de wijziging met dit nummer en alle volgende die er regels mee delen. Geeft het nummer daarna.
    std::size_t neem(std::span<const Wijziging> wijzigingen, std::size_t i) {
        const std::size_t begin = zoekBegin(wijzigingen[i].begin);
        std::size_t eind = begin;
        std::size_t plek = begin;
        std::string& nieuw = teksten_.emplace_back();
        for (;;) {
            for (; i < wijzigingen.size() && (plek == begin || zoekBegin(wijzigingen[i].begin) < eind); ++i) {
                nieuw += ruw_.substr(plek, wijzigingen[i].begin - plek);
                nieuw += wijzigingen[i].nieuw;
                plek = wijzigingen[i].eind;
                eind = std::max(eind, zoekEind(plek));
            }
            const std::string_view staart = ruw_.substr(plek, eind - plek);
            const bool halveRegel =
                staart.empty() ? !nieuw.empty() && nieuw.back() != '\n' : staart.back() != '\n';
            if (!halveRegel || eind == ruw_.size()) {
                nieuw += staart;
                break;
            }
            eind = zoekEind(eind + 1);
        }
        voegToe(begin, eind, nieuw);
        return i;
    }

    void voegToe(std::size_t begin, std::size_t eind, std::string_view nieuw) {
        while (geteldTot_ < begin) {
            geteldTot_ += oud_[geteld_++].size();
        }
        const std::size_t eerste = geteld_;
        while (geteldTot_ < eind) {
            geteldTot_ += oud_[geteld_++].size();
        }
        veranderingen_.push_back({.begin = eerste, .eind = geteld_, .nieuw = deelOp(nieuw)});
    }

    /// Het begin van de regel waar deze plaats in ligt. Achter een laatste regel zonder LF is dat die regel.
    std::size_t zoekBegin(std::size_t plek) const {
        const std::size_t vorige = plek == 0 ? std::string_view::npos : ruw_.rfind('\n', plek - 1);
        return vorige == std::string_view::npos ? 0 : vorige + 1;
    }

    /// Het einde van de regel waarin een wijziging ophoudt; wie tot een regelbegin gaat, raakt die regel niet
    /// aan.
    std::size_t zoekEind(std::size_t plek) const {
        if (zoekBegin(plek) == plek) {
            return plek;
        }
        const std::size_t einde = ruw_.find('\n', plek);
        return einde == std::string_view::npos ? ruw_.size() : einde + 1;
    }

    std::string_view ruw_;
    Regels oud_;
    std::deque<std::string> teksten_;  ///< een deque: de veranderingen kijken erin
    std::vector<Verandering> veranderingen_;
    std::size_t geteldTot_ = 0;
    std::size_t geteld_ = 0;
};

void voegRegelToe(char teken, std::string_view regel, std::string& uit) {
    uit += teken;
    uit += regel;
    if (!regel.ends_with('\n')) {
        uit += "\n\\ No newline at end of file\n";
    }
}

/// Begin en aantal zoals in de kop van een stuk; een leeg stuk noemt de regel ervoor.
std::string noemDeel(std::size_t begin, std::size_t aantal) {
    const std::string eerste = std::to_string(aantal == 0 ? begin : begin + 1);
    return aantal == 1 ? eerste : eerste + "," + std::to_string(aantal);
}

/// Een naam die "patch" ongeschonden leest; die met bijzondere tekens komt tussen aanhalingstekens.
std::string citeerVoorPatch(std::string_view naam) {
    const auto isBijzonder = [](char teken) {
        return static_cast<unsigned char>(teken) < 0x20 || teken == '"' || teken == '\\' || teken == 0x7F;
    };
    if (std::none_of(naam.begin(), naam.end(), isBijzonder)) {
        return std::string(naam);
    }
    std::string uit = "\"";
    for (const char teken : naam) {
        if (teken == '"' || teken == '\\') {
            uit += {'\\', teken};
        } else if (isBijzonder(teken)) {
            std::array<char, 5> octaal{};
            std::snprintf(octaal.data(), octaal.size(), "\\%03o", static_cast<unsigned char>(teken));
            uit += octaal.data();
        } else {
            uit += teken;
        }
    }
    return uit + "\"";
}

/// Schrijft één stuk: veranderingen die te dicht op elkaar liggen voor een eigen stuk, met hun omgeving.
class Stukschrijver {
  public:
    Stukschrijver(const Regels& oud, std::string& uit) : oud_(oud), uit_(uit) {}

    /// @param verschuiving  hoeveel regels het nieuwe bestand hier al langer is.
    void schrijf(std::span<const Verandering> groep, std::ptrdiff_t verschuiving) {
        const std::size_t begin = groep.front().begin - std::min(omgeving, groep.front().begin);
        const std::size_t eind = std::min(oud_.size(), groep.back().eind + omgeving);
        std::string regels;
        std::size_t nieuw = eind - begin;
        std::size_t plek = begin;
        for (const Verandering& deel : groep) {
            houd(plek, deel.begin, regels);
            for (std::size_t i = deel.begin; i < deel.eind; ++i) {
                voegRegelToe('-', oud_[i], regels);
            }
            for (const std::string_view regel : deel.nieuw) {
                voegRegelToe('+', regel, regels);
            }
            nieuw += deel.nieuw.size();
            nieuw -= deel.eind - deel.begin;
            plek = deel.eind;
        }
        houd(plek, eind, regels);
        const auto nieuwBegin = static_cast<std::size_t>(static_cast<std::ptrdiff_t>(begin) + verschuiving);
        uit_ +=
            "@@ -" + noemDeel(begin, eind - begin) + " +" + noemDeel(nieuwBegin, nieuw) + " @@\n" + regels;
    }

  private:
    void houd(std::size_t begin, std::size_t eind, std::string& regels) const {
        for (std::size_t i = begin; i < eind; ++i) {
            voegRegelToe(' ', oud_[i], regels);
        }
    }

    const Regels& oud_;
    std::string& uit_;
};

}  // namespace

std::string maakVerschil(std::string_view naam, std::string_view ruw,
                         std::span<const Wijziging> wijzigingen) {
    const Regelaar regelaar(ruw, wijzigingen);
    const std::vector<Verandering>& alle = regelaar.geefVeranderingen();
    if (alle.empty()) {
        return {};
    }
    // De tab sluit de naam af, ook een met spaties.
    const std::string naamRegel = citeerVoorPatch(naam) + "\t\n";
    std::string uit = "--- " + naamRegel + "+++ " + naamRegel;
    Stukschrijver schrijver(regelaar.geefOud(), uit);
    std::ptrdiff_t verschuiving = 0;
    for (std::size_t eerste = 0; eerste < alle.size();) {
        std::size_t volgende = eerste + 1;
        while (volgende < alle.size() && alle[volgende].begin - alle[volgende - 1].eind <= 2 * omgeving) {
            ++volgende;
        }
        const std::span groep(alle.begin() + static_cast<std::ptrdiff_t>(eerste), volgende - eerste);
        schrijver.schrijf(groep, verschuiving);
        for (const Verandering& deel : groep) {
            verschuiving += static_cast<std::ptrdiff_t>(deel.nieuw.size());
            verschuiving -= static_cast<std::ptrdiff_t>(deel.eind - deel.begin);
        }
        eerste = volgende;
    }
    return uit;
}

}  // namespace cli
