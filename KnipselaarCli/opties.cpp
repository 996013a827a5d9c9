#include "KnipselaarCli/opties.h"

#include <wx/string.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <functional>
#include <map>
#include <string_view>

#include "Knipselaar/kern/regeleinden.h"
#include "KnipselaarCli/bestanden.h"
#include "KnipselaarCli/fout.h"
#include "KnipselaarCli/opdrachtregel.h"
#include "KnipselaarCli/optietekst.h"
#include "KnipselaarCli/regels.h"
#include "KnipselaarCli/samengaan.h"

namespace cli {

namespace {

std::size_t leesGetal(const std::string& waarde, const std::string& optie) {
    std::size_t getal = 0;
    const char* einde = waarde.data() + waarde.size();
    const auto [na, fout] = std::from_chars(waarde.data(), einde, getal);
    if (fout != std::errc() || na != einde) {
        throw Fout("--" + optie + ": '" + waarde + "' is geen getal; geef een geheel getal vanaf 0");
    }
    return getal;
}

/// Kiest uit een rijtje namen die in de volgorde van een enum staan.
template <typename Keuze, std::size_t aantal>
Keuze kies(const std::array<std::string_view, aantal>& namen, const std::string& waarde,
           const std::string& optie) {
    const auto naam = std::find(namen.begin(), namen.end(), waarde);
    if (naam == namen.end()) {
        std::string alle;
        for (const std::string_view mogelijk : namen) {
            alle += (alle.empty() ? "" : mogelijk == namen.back() ? " of " : ", ") + std::string(mogelijk);
        }
        throw Fout("--" + optie + ": '" + waarde + "' is geen keuze; kies " + alle);
    }
    return static_cast<Keuze>(naam - namen.begin());
}

/// Verwerkt de opties één voor één in de volgorde waarin ze gegeven zijn.
class Verwerker {
  public:
    explicit Verwerker(Opties& opties) : opties_(opties) {
        voegSchakelaarsToe();
        voegPadenToe();
        voegKeuzesToe();
        voegTekstenToe();
    }

    void neem(const Woord& woord) {
        if (woord.optie.empty()) {
            opties_.bronnen.push_back(woord.waarde);
        } else {
            naam_ = woord.optie;
            zetters_.at(naam_)(woord.waarde);
        }
    }

  private:
    using Zetter = std::function<void(const std::string&)>;

    void voegSchakelaarsToe() {
        for (const auto& [naam, vlag] : std::initializer_list<std::pair<const char*, bool*>>{
                 {"ter-plaatse", &opties_.terPlaatse},
                 {"alles-of-niets", &opties_.allesOfNiets},
                 {"recursief", &opties_.recursief},
                 {"overschrijf", &opties_.overschrijf},
                 {"spiegel", &opties_.spiegel},
                 {"verborgen", &opties_.verborgen},
                 {"versiebeheer", &opties_.versiebeheer},
                 {"letterlijk", &opties_.teksten.letterlijk},
                 {"zonder-instellingen", &opties_.teksten.zonderInstellingen},
                 {"inspringen", &opties_.inspringen},
                 {"regels-gelijk", &opties_.regelsGelijk},
                 {"streng", &opties_.streng},
                 {"bewijs", &opties_.bewijs},
                 {"stil", &opties_.stil},
                 {"json", &opties_.json},
             }) {
            zetters_[naam] = [vlag = vlag](const std::string&) { *vlag = true; };
        }
        zetters_["getrouw"] = [this](const std::string&) { kiesManier(Manier::getrouw); };
        zetters_["als-venster"] = [this](const std::string&) { kiesManier(Manier::venster); };
        zetters_["controle"] = [this](const std::string&) { kiesOpdracht(Opdracht::controle); };
        zetters_["droog"] = [this](const std::string&) { kiesOpdracht(Opdracht::droog); };
        zetters_["verschil"] = [this](const std::string&) { kiesOpdracht(Opdracht::verschil); };
        zetters_["help"] = [this](const std::string&) { kiesOpdracht(Opdracht::help); };
        zetters_["versie"] = [this](const std::string&) { kiesOpdracht(Opdracht::versie); };
    }

    void voegPadenToe() {
        zetters_["uit"] = [this](const std::string& waarde) {
            opties_.naarStandaarduitvoer = waarde == standaardinvoer;
            opties_.uit = opties_.naarStandaarduitvoer ? std::nullopt : std::optional(neemNaam(waarde));
        };
        zetters_["naar"] = [this](const std::string& waarde) { opties_.naar = neemNaam(waarde); };
        zetters_["afhankelijk"] = [this](const std::string& waarde) {
            opties_.afhankelijk = neemNaam(waarde);
        };
        zetters_["masker"] = [this](const std::string& waarde) {
            opties_.maskers.push_back(neemNaam(waarde));
        };
        zetters_["weglaten"] = [this](const std::string& waarde) {
            opties_.weglaten.push_back(neemNaam(waarde));
        };
        zetters_["weglaten-uit"] = [this](const std::string& waarde) {
            for (Tekstregel& regel : leesLijst(neemBestand(waarde))) {
                opties_.weglaten.push_back(std::move(regel.tekst));
            }
        };
    }

    void voegKeuzesToe() {
        using namespace std::string_view_literals;
        zetters_["keuze"] = [this](const std::string& waarde) {
            opties_.keuze = kies<Bestandskeuze>(std::array{"talen"sv, "vhdl"sv, "alles"sv}, waarde, naam_);
        };
        zetters_["taal"] = [this](const std::string& waarde) {
            opties_.taal = kies<Taal>(std::array{"c"sv, "vhdl"sv, "overig"sv}, waarde, naam_);
        };
        zetters_["maak"] = [this](const std::string& waarde) {
            opties_.teksten.versie = kies<Versie>(std::array{"student"sv, "oplossing"sv}, waarde, naam_);
        };
        zetters_["houd"] = [this](const std::string& waarde) {
            opties_.teksten.houd.push_back(leesGetal(waarde, naam_));
        };
        zetters_["minstens"] = [this](const std::string& waarde) {
            opties_.minstens = leesGetal(waarde, naam_);
            opties_.nulBlokken = opties_.minstens == 0;
        };
        zetters_["bewijs-lengte"] = [this](const std::string& waarde) {
            opties_.bewijsLengte = leesGetal(waarde, naam_);
        };
        zetters_["taken"] = [this](const std::string& waarde) { opties_.taken = leesGetal(waarde, naam_); };
    }

    void voegTekstenToe() {
        zetters_["begin"] = [this](const std::string& waarde) { opties_.teksten.begin.push_back(waarde); };
        zetters_["eind"] = [this](const std::string& waarde) { opties_.teksten.eind.push_back(waarde); };
        zetters_["markers-uit"] = [this](const std::string& waarde) {
            // Anders kwam een marker uit het bestand bij een van de opdrachtregel.
            if (opties_.teksten.begin.size() != opties_.teksten.eind.size()) {
                throw Fout("--markers-uit staat tussen een --begin en zijn --eind; zet hem ervoor of erna");
            }
            leesMarkers(neemBestand(waarde), opties_.teksten);
        };
        zetters_["geef"] = [this](const std::string& waarde) {
            opties_.teksten.geef.push_back(neemPrefix(waarde));
        };
        zetters_["bewijs-toegestaan"] = [this](const std::string& waarde) {
            loopRegelsAf(leesTekst(neemBestand(waarde)), [this](std::size_t, std::string_view regel) {
                opties_.toegestaan.emplace_back(snoei(regel));
            });
        };
        zetters_["probeer"] = [this](const std::string& waarde) {
            if (waarde.find("{}") == std::string::npos) {
                throw Fout("--probeer: in '" + waarde + "' staat geen {}; zet dat waar het bestand komt");
            }
            opties_.probeer = waarde;
        };
        voegVervangingToe("vervang", opties_.teksten.vervanging);
        voegVervangingToe("vervang-c", opties_.teksten.perTaal[static_cast<std::size_t>(Taal::c)]);
        voegVervangingToe("vervang-vhdl", opties_.teksten.perTaal[static_cast<std::size_t>(Taal::vhdl)]);
        voegVervangingToe("vervang-overig", opties_.teksten.perTaal[static_cast<std::size_t>(Taal::overig)]);
    }

    void voegVervangingToe(const std::string& naam, std::optional<std::string>& vervanging) {
        zetters_[naam] = [this, &vervanging](const std::string& waarde) {
            vervanging = keurTekst(kern::zetRegeleindenOm(waarde), "--" + naam_);
        };
        zetters_[naam + "-uit"] = [this, &vervanging](const std::string& waarde) {
            vervanging = keurTekst(leesTekst(neemBestand(waarde)), waarde);
        };
    }

    void kiesOpdracht(Opdracht opdracht) {
        const bool vraag = opdracht == Opdracht::help || opdracht == Opdracht::versie;
        if (opties_.opdracht == Opdracht::help || opties_.opdracht == Opdracht::versie) {
            return;
        }
        if (!vraag && opties_.opdracht != Opdracht::knip && opties_.opdracht != opdracht) {
            throw Fout("--controle, --droog en --verschil gaan niet samen; kies er één");
        }
        opties_.opdracht = opdracht;
    }

    void kiesManier(Manier manier) {
        if (gekozen_ && *gekozen_ != manier) {
            throw Fout("--getrouw en --als-venster gaan niet samen; kies er één");
        }
        gekozen_ = manier;
        opties_.manier = manier;
    }

    std::string neemNaam(const std::string& waarde) const {
        if (waarde.empty()) {
            throw Fout("--" + naam_ + ": de naam is leeg; geef een naam");
        }
        return waarde;
    }

    /// Een bestand dat voor een optie gelezen wordt.
    const std::string& neemBestand(const std::string& waarde) {
        opties_.gelezen.push_back(waarde);
        return waarde;
    }

    static std::string keurTekst(std::string tekst, const std::string& waar) {
        if (tekst.find('\0') != std::string::npos || (!tekst.empty() && wxString::FromUTF8(tekst).empty())) {
            throw Fout(waar + ": de vervangtekst is geen UTF-8; zet hem om");
        }
        return tekst;
    }

    /// De blanco tekens waar een regel mee begint tellen niet mee, dus die ervoor ook niet.
    static std::string neemPrefix(const std::string& waarde) {
        std::string prefix = waarde.substr(geefInspringing(waarde).size());
        if (prefix.empty()) {
            throw Fout("--geef: de tekst is leeg; geef waarmee een regel voor de student begint");
        }
        if (prefix.find_first_of(std::string_view("\n\r\0", 3)) != std::string::npos ||
            wxString::FromUTF8(prefix).empty()) {
            throw Fout("--geef: de tekst is geen enkele regel in UTF-8");
        }
        return prefix;
    }

    Opties& opties_;
    std::map<std::string, Zetter> zetters_;  ///< wat elke optie doet
    std::string naam_;                       ///< van de optie die nu aan de beurt is
    std::optional<Manier> gekozen_;
};

}  // namespace

Opties leesOpties(const std::vector<std::string>& woorden) {
    const Opdrachtregel regel = leesOpdrachtregel(woorden);
    Opties opties;
    opties.gelezen = regel.optiebestanden;
    Verwerker verwerker(opties);
    for (const Woord& woord : regel.woorden) {
        try {
            verwerker.neem(woord);
        } catch (const Fout& fout) {
            throw Fout(woord.waar + fout.what());
        }
    }
    std::sort(opties.toegestaan.begin(), opties.toegestaan.end());
    if (opties.opdracht != Opdracht::help && opties.opdracht != Opdracht::versie) {
        keurSamengaan(opties);
    }
    return opties;
}

}  // namespace cli
