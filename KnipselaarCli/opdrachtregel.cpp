#include "KnipselaarCli/opdrachtregel.h"

#include <wx/cmdline.h>
#include <wx/msgout.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "KnipselaarCli/bestanden.h"
#include "KnipselaarCli/fout.h"
#include "KnipselaarCli/optielijst.h"
#include "KnipselaarCli/optietekst.h"

namespace cli {

namespace {

/// De bytes die naarBreed tekens maakte.
std::string naarBytes(const wxString& tekst) {
    std::string bytes;
    for (const wxUniChar teken : tekst) {
        bytes += static_cast<char>(static_cast<unsigned char>(teken.GetValue()));
    }
    return bytes;
}

/// De woorden voor de toolkit: elke byte wordt het teken met dat nummer, en komt zo ongeschonden terug.
std::vector<std::wstring> naarBreed(const std::vector<std::string>& woorden) {
    std::vector<std::wstring> breed{L"knipselaar-cli"};
    for (const std::string& woord : woorden) {
        std::wstring& nieuw = breed.emplace_back();
        for (const char byte : woord) {
            nieuw += static_cast<wchar_t>(static_cast<unsigned char>(byte));
        }
    }
    return breed;
}

/// Vangt wat de toolkit over een verkeerde opdrachtregel te zeggen heeft.
class Meldingvanger : public wxMessageOutput {
  public:
    Meldingvanger() : vorige_(Set(this)) {}
    Meldingvanger(const Meldingvanger&) = delete;
    Meldingvanger& operator=(const Meldingvanger&) = delete;
    ~Meldingvanger() override { Set(vorige_); }

    void Output(const wxString& tekst) override { tekst_ += tekst; }
    std::string geefEersteRegel() const { return naarBytes(tekst_.BeforeFirst('\n')); }

  private:
    wxMessageOutput* vorige_;
    wxString tekst_;
};

/// Zet een melding van de toolkit om; zij spreekt alleen met een catalogus erbij Nederlands.
std::string vertaal(std::string_view melding) {
    struct Paar {
        std::string_view voor;
        std::string_view na;
        std::string_view nederlandsVoor;
        std::string_view nederlandsNa;
    };
    constexpr std::array paren{
        Paar{"Unknown long option '", "'", "onbekende optie '--", "'"},
        Paar{"Unknown option '", "'", "onbekende optie '-", "'"},
        Paar{"Option '", "' requires a value.", "optie '", "' heeft een waarde nodig"},
        Paar{"Option '", "' can't be negated", "optie '", "' is niet uit te zetten"},
        Paar{"Separator expected after the option '", "'.", "optie '",
             "' heeft een waarde nodig, na een spatie of '='"},
        Paar{"Unexpected characters following option '", "'.", "optie '", "' heeft geen waarde"},
    };
    for (const Paar& paar : paren) {
        if (melding.size() >= paar.voor.size() + paar.na.size() && melding.starts_with(paar.voor) &&
            melding.ends_with(paar.na)) {
            const std::string_view naam =
                melding.substr(paar.voor.size(), melding.size() - paar.voor.size() - paar.na.size());
            return std::string(paar.nederlandsVoor) + std::string(naam) + std::string(paar.nederlandsNa);
        }
    }
    return std::string(melding);
}

/// Laat de toolkit de woorden ontleden.
std::vector<Woord> ontleedWoorden(const std::vector<std::string>& woorden) {
    std::vector<std::wstring> breed = naarBreed(woorden);
    std::vector<wchar_t*> rij;
    rij.reserve(breed.size());
    for (std::wstring& woord : breed) {
        rij.push_back(woord.data());
    }
    const Meldingvanger vanger;
    wxCmdLineParser lezer(static_cast<int>(rij.size()), rij.data());
    lezer.SetSwitchChars("-");
    for (const Optie& optie : geefAlleOpties()) {
        if (optie.heeftWaarde()) {
            lezer.AddOption(optie.kort, optie.lang);
        } else {
            lezer.AddSwitch(optie.kort, optie.lang);
        }
    }
    lezer.AddParam(wxEmptyString, wxCMD_LINE_VAL_STRING,
                   wxCMD_LINE_PARAM_OPTIONAL | wxCMD_LINE_PARAM_MULTIPLE);
    if (lezer.Parse(false) != 0) {
        throw Fout(vertaal(vanger.geefEersteRegel()) + "; zie knipselaar-cli --help");
    }
    std::vector<Woord> uit;
    for (const wxCmdLineArg& woord : lezer.GetArguments()) {
        const bool isBron = woord.GetKind() == wxCMD_LINE_PARAM;
        const bool heeftWaarde = woord.GetKind() != wxCMD_LINE_SWITCH;
        uit.push_back({.optie = isBron ? std::string() : woord.GetLongName().utf8_string(),
                       .waarde = heeftWaarde ? naarBytes(woord.GetStrVal()) : std::string(),
                       .waar = {}});
    }
    return uit;
}

/// Een regel van een optiebestand als woorden: achter de naam van een optie is alles tot het einde van de
/// regel haar waarde, zonder dat daar aanhalingstekens bij nodig zijn.
std::vector<std::string> splitsRegel(const std::string& regel) {
    const std::size_t blanco = regel.find_first_of(" \t");
    if (!regel.starts_with('-') || blanco == std::string::npos || regel.find('=') < blanco) {
        return {regel};
    }
    return {regel.substr(0, blanco), regel.substr(regel.find_first_not_of(" \t", blanco))};
}

Woord leesOptieregel(const std::string& regel) {
    if (!regel.starts_with('-') || regel == standaardinvoer) {
        return {.optie = {}, .waarde = regel, .waar = {}};
    }
    std::vector<Woord> woorden = ontleedWoorden(splitsRegel(regel));
    if (woorden.size() != 1) {
        throw Fout("'" + regel + "' is meer dan één optie; zet op elke regel één");
    }
    if (woorden.front().optie == "opties") {
        throw Fout("--opties staat in een optiebestand; noem het andere bestand op de opdrachtregel");
    }
    return std::move(woorden.front());
}

void neemOptiebestand(const std::string& pad, Opdrachtregel& uit) {
    uit.optiebestanden.push_back(pad);
    for (const Tekstregel& regel : leesLijst(pad)) {
        const std::string waar = pad + ":" + std::to_string(regel.nummer) + ": ";
        try {
            uit.woorden.push_back(leesOptieregel(regel.tekst));
        } catch (const Fout& fout) {
            throw Fout(waar + fout.what());
        }
        uit.woorden.back().waar = waar;
    }
}

/// De standaardinvoer geeft haar tekst maar één keer.
void keurStandaardinvoer(const Opdrachtregel& regel) {
    auto keren = static_cast<std::size_t>(
        std::count(regel.optiebestanden.begin(), regel.optiebestanden.end(), standaardinvoer));
    for (const Woord& woord : regel.woorden) {
        const bool leest =
            woord.optie.empty() || woord.optie.ends_with("-uit") || woord.optie == "bewijs-toegestaan";
        keren += leest && woord.waarde == standaardinvoer ? 1 : 0;
    }
    if (keren > 1) {
        throw Fout("'-' staat er " + std::to_string(keren) +
                   " keer; de standaardinvoer is maar één keer te lezen");
    }
}

}  // namespace

Opdrachtregel leesOpdrachtregel(const std::vector<std::string>& woorden) {
    Opdrachtregel uit;
    for (Woord& woord : ontleedWoorden(woorden)) {
        if (woord.optie == "opties") {
            neemOptiebestand(woord.waarde, uit);
        } else {
            uit.woorden.push_back(std::move(woord));
        }
    }
    keurStandaardinvoer(uit);
    return uit;
}

bool vraagtJson(const std::vector<std::string>& woorden) {
    for (const std::string& woord : woorden) {
        if (woord == "--") {
            break;
        }
        if (woord == "--json") {
            return true;
        }
        if (!woord.starts_with('-') || woord.starts_with("--")) {
            continue;
        }
        for (const char letter : woord.substr(1)) {
            if (letter == 'j') {
                return true;
            }
            const Optie* optie = zoekKort(letter);
            if (optie == nullptr || optie->heeftWaarde()) {
                break;
            }
        }
    }
    return false;
}

}  // namespace cli
