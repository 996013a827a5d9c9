#include "KnipselaarCli/opties.h"

#include <wx/cmdline.h>
#include <wx/msgout.h>

#include <algorithm>
#include <charconv>
#include <string_view>

#include "Knipselaar/kern/regeleinden.h"
#include "KnipselaarCli/bestanden.h"
#include "KnipselaarCli/fout.h"

namespace cli {

namespace {

constexpr std::array alleOpties = {
    Optie{"u", "uit", "BESTAND", "schrijf het knipsel naar dit bestand"},
    Optie{"n", "naar", "DIR", "schrijf de knipsels onder dezelfde naam in deze directory"},
    Optie{"t", "ter-plaatse", "", "vervang elk bestand door zijn knipsel"},
    Optie{"", "alles-of-niets", "",
          "laat bij --ter-plaatse elk bestand zoals het is als er ook maar iets misgaat"},
    Optie{"r", "recursief", "", "ga een directory helemaal af; met --naar gaan alle andere bestanden mee"},
    Optie{"f", "overschrijf", "", "vervang ook bestemmingen die geen eerdere uitvoer zijn"},
    Optie{"k", "keuze", "SOORT", "wat in een directory geknipt wordt: talen (standaard), vhdl of alles"},
    Optie{"m", "masker", "MASKER", "knip in een directory wat op dit masker past, zoals '*.c'; mag vaker"},
    Optie{"x", "verborgen", "", "neem verborgen bestanden en directories mee"},
    Optie{"", "versiebeheer", "", "neem directories als .git mee"},
    Optie{"b", "begin", "MARKER", "de beginmarker; mag vaker, met elk een --eind"},
    Optie{"e", "eind", "MARKER", "de eindmarker"},
    Optie{"", "markers-uit", "BESTAND", "lees markers uit een bestand: om de regel een begin en een eind"},
    Optie{"l", "letterlijk", "", R"("*" en "?" in een marker zijn gewone tekens)"},
    Optie{"v", "vervang", "TEKST", "de vervangtekst, voor elke taal"},
    Optie{"", "vervang-uit", "BESTAND", "lees de vervangtekst uit een bestand"},
    Optie{"", "vervang-c", "TEKST", "de vervangtekst voor .c, .cpp en .h"},
    Optie{"", "vervang-c-uit", "BESTAND", "hetzelfde uit een bestand"},
    Optie{"", "vervang-vhdl", "TEKST", "de vervangtekst voor .vhd en .vhdl"},
    Optie{"", "vervang-vhdl-uit", "BESTAND", "hetzelfde uit een bestand"},
    Optie{"", "vervang-overig", "TEKST", "de vervangtekst voor alle andere bestanden"},
    Optie{"", "vervang-overig-uit", "BESTAND", "hetzelfde uit een bestand"},
    Optie{"T", "taal", "TAAL", "doe of elk bestand in deze taal is: c, vhdl of overig"},
    Optie{"z", "zonder-instellingen", "", "lees de instellingen van het venster niet"},
    Optie{"g", "getrouw", "", "buiten de blokken blijft elke byte staan (standaard)"},
    Optie{"a", "als-venster", "", "schrijf UTF-8 met LF en een extra laatste regel, zoals het venster"},
    Optie{"i", "inspringen", "", "de vervangtekst springt in zoals de beginmarker"},
    Optie{"c", "controle", "", "kijk alleen de markers na"},
    Optie{"s", "streng", "", "een waarschuwing is een fout"},
    Optie{"p", "bewijs", "", "lees de bestemming na en meld elke markerregel en weggelaten regel"},
    Optie{"L", "bewijs-lengte", "AANTAL",
          "let op weggelaten regels die langer zijn dan dit (standaard 10 tekens)"},
    Optie{"d", "droog", "", "zeg per bestand wat er zou gebeuren en schrijf niets"},
    Optie{"D", "verschil", "", "toon het verschil zoals \"patch\" het neemt en schrijf niets"},
    Optie{"q", "stil", "", "meld alleen fouten"},
    Optie{"j", "json", "", "geef het verslag als JSON"},
    Optie{"J", "taken", "AANTAL", "zoveel bestanden tegelijk (standaard wat de machine aankan)"},
    Optie{"h", "help", "", "toon deze hulp"},
    Optie{"V", "versie", "", "toon de versie"},
};

/// De bytes die naarBreed tekens maakte.
std::string naarBytes(const wxString& tekst) {
    std::string bytes;
    for (const wxUniChar teken : tekst) {
        bytes += static_cast<char>(static_cast<unsigned char>(teken.GetValue()));
    }
    return bytes;
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

std::string leesTekst(const std::string& pad) {
    const kern::Bytes bytes = leesStroom(pad);
    std::string_view tekst = bytes.geef();
    constexpr std::string_view merkteken = "\xEF\xBB\xBF";
    if (tekst.starts_with(merkteken)) {
        tekst.remove_prefix(merkteken.size());
    }
    return kern::zetRegeleindenOm(tekst);
}

void leesMarkers(const std::string& pad, TekstKeuze& teksten) {
    const std::string inhoud = leesTekst(pad);
    std::vector<std::string> regels;
    for (std::size_t plek = 0; plek < inhoud.size();) {
        const std::size_t einde = std::min(inhoud.find('\n', plek), inhoud.size());
        if (einde > plek) {
            regels.push_back(inhoud.substr(plek, einde - plek));
        }
        plek = einde + 1;
    }
    if (regels.empty() || regels.size() % 2 != 0) {
        throw Fout(pad + ": heeft " + std::to_string(regels.size()) +
                   " regels met een marker; zet om de regel een beginmarker en een eindmarker");
    }
    for (std::size_t i = 0; i < regels.size(); i += 2) {
        teksten.begin.push_back(regels[i]);
        teksten.eind.push_back(regels[i + 1]);
    }
}

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
    explicit Verwerker(Opties& opties) : opties_(opties) {}

    void zet(const std::string& naam) {
        if (naam == "getrouw" || naam == "als-venster") {
            kiesManier(naam == "getrouw" ? Manier::getrouw : Manier::venster);
        } else if (!zetVlag(naam)) {
            kiesOpdracht(naam);
        }
    }

    void zet(const std::string& naam, const std::string& waarde) {
        using namespace std::string_view_literals;
        if (naam == "uit") {
            opties_.naarStandaarduitvoer = waarde == standaardinvoer;
            opties_.uit = opties_.naarStandaarduitvoer ? std::nullopt : std::optional(neemPad(naam, waarde));
        } else if (naam == "naar") {
            opties_.naar = neemPad(naam, waarde);
        } else if (naam == "keuze") {
            opties_.keuze = kies<Bestandskeuze>(std::array{"talen"sv, "vhdl"sv, "alles"sv}, waarde, naam);
        } else if (naam == "masker") {
            opties_.maskers.push_back(neemPad(naam, waarde));
        } else if (naam == "begin") {
            opties_.teksten.begin.push_back(waarde);
        } else if (naam == "eind") {
            opties_.teksten.eind.push_back(waarde);
        } else if (naam == "markers-uit") {
            // Anders kwam een marker uit het bestand bij een van de opdrachtregel.
            if (opties_.teksten.begin.size() != opties_.teksten.eind.size()) {
                throw Fout("--markers-uit staat tussen een --begin en zijn --eind; zet hem ervoor of erna");
            }
            leesMarkers(waarde, opties_.teksten);
        } else if (naam == "taal") {
            opties_.taal = kies<Taal>(std::array{"c"sv, "vhdl"sv, "overig"sv}, waarde, naam);
        } else if (naam == "bewijs-lengte") {
            opties_.bewijsLengte = leesGetal(waarde, naam);
        } else if (naam == "taken") {
            opties_.taken = leesGetal(waarde, naam);
        } else {
            zetVervanging(naam, waarde);
        }
    }

  private:
    bool zetVlag(const std::string& naam) {
        const std::array<std::pair<const char*, bool*>, 13> vlaggen{{
            {"ter-plaatse", &opties_.terPlaatse},
            {"alles-of-niets", &opties_.allesOfNiets},
            {"recursief", &opties_.recursief},
            {"overschrijf", &opties_.overschrijf},
            {"verborgen", &opties_.verborgen},
            {"versiebeheer", &opties_.versiebeheer},
            {"letterlijk", &opties_.teksten.letterlijk},
            {"zonder-instellingen", &opties_.teksten.zonderInstellingen},
            {"inspringen", &opties_.inspringen},
            {"streng", &opties_.streng},
            {"bewijs", &opties_.bewijs},
            {"stil", &opties_.stil},
            {"json", &opties_.json},
        }};
        const auto vlag = std::find_if(vlaggen.begin(), vlaggen.end(),
                                       [&](const auto& paar) { return naam == paar.first; });
        if (vlag != vlaggen.end()) {
            *vlag->second = true;
        }
        return vlag != vlaggen.end();
    }

    void kiesOpdracht(const std::string& naam) {
        using namespace std::string_view_literals;
        constexpr std::array namen{"knip"sv, "controle"sv, "droog"sv, "verschil"sv, "help"sv, "versie"sv};
        const auto opdracht = kies<Opdracht>(namen, naam, naam);
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

    static std::string neemPad(const std::string& naam, const std::string& waarde) {
        if (waarde.empty()) {
            throw Fout("--" + naam + ": de naam is leeg; geef een naam");
        }
        return waarde;
    }

    /// "vervang", "vervang-c" enzovoort, met of zonder "-uit" erachter.
    void zetVervanging(std::string naam, const std::string& waarde) {
        constexpr std::string_view staart = "-uit";
        const bool uitBestand = naam.ends_with(staart);
        const std::string tekst = uitBestand ? leesTekst(waarde) : kern::zetRegeleindenOm(waarde);
        if (uitBestand) {
            naam.resize(naam.size() - staart.size());
        }
        if (tekst.find('\0') != std::string::npos || (!tekst.empty() && wxString::FromUTF8(tekst).empty())) {
            throw Fout((uitBestand ? waarde : "--" + naam) + ": de vervangtekst is geen UTF-8; zet hem om");
        }
        constexpr std::array<std::string_view, aantalTalen> namen{"vervang-c", "vervang-vhdl",
                                                                  "vervang-overig"};
        if (naam == "vervang") {
            opties_.teksten.vervanging = tekst;
        } else {
            opties_.teksten.perTaal.at(static_cast<std::size_t>(std::find(namen.begin(), namen.end(), naam) -
                                                                namen.begin())) = tekst;
        }
    }

    Opties& opties_;
    std::optional<Manier> gekozen_;
};

void keurUitgang(const Opties& opties) {
    if ((opties.uit || opties.naarStandaarduitvoer ? 1 : 0) + (opties.naar ? 1 : 0) +
            (opties.terPlaatse ? 1 : 0) >
        1) {
        throw Fout("--uit, --naar en --ter-plaatse gaan niet samen; kies er één");
    }
    if (opties.bronnen.empty()) {
        throw Fout("er is niets om te knippen; noem een bestand, een directory, of '-'");
    }
    if (opties.bronnen.size() > 1 && (opties.uit || opties.naarUitvoer())) {
        throw Fout("er zijn " + std::to_string(opties.bronnen.size()) +
                   " bronnen voor één uitvoer; geef --naar of --ter-plaatse");
    }
    const bool metInvoer =
        std::find(opties.bronnen.begin(), opties.bronnen.end(), standaardinvoer) != opties.bronnen.end();
    if (metInvoer && (opties.naar || opties.terPlaatse)) {
        throw Fout("de standaardinvoer ('-') heeft geen naam; gebruik --uit of de standaarduitvoer");
    }
    if (metInvoer && opties.bronnen.size() > 1) {
        throw Fout("'-' gaat niet samen met andere bronnen; geef hem alleen");
    }
}

void keurSamen(const Opties& opties) {
    if (opties.keuze && !opties.maskers.empty()) {
        throw Fout("--keuze en --masker gaan niet samen; met --masker kiest u alles zelf");
    }
    if (opties.bewijs && opties.versiebeheer) {
        throw Fout("--bewijs gaat niet samen met --versiebeheer; in de geschiedenis staat elke oplossing");
    }
    if (opties.allesOfNiets && !opties.terPlaatse) {
        throw Fout("--alles-of-niets hoort bij --ter-plaatse; alleen daar verandert een origineel");
    }
    if (opties.inspringen && opties.manier == Manier::venster) {
        throw Fout("--inspringen gaat niet samen met --als-venster; het venster springt niet in");
    }
    if (opties.json && (opties.naarUitvoer() || opties.opdracht == Opdracht::verschil)) {
        throw Fout(
            "--json gaat niet samen met een knipsel of verschil op de standaarduitvoer; geef --uit, --naar, "
            "--ter-plaatse, --controle of --droog");
    }
    if (opties.bewijs &&
        (opties.naarUitvoer() || (opties.opdracht == Opdracht::controle && !opties.uit && !opties.naar))) {
        throw Fout("--bewijs heeft een bestemming nodig om na te lezen; geef --uit, --naar of --ter-plaatse");
    }
    if (opties.bewijs && (opties.opdracht == Opdracht::droog || opties.opdracht == Opdracht::verschil)) {
        throw Fout("--bewijs gaat niet samen met --droog of --verschil; die schrijven geen bestemming");
    }
}

/// De opdrachtregel voor de toolkit: elke byte wordt het teken met dat nummer, en komt zo ongeschonden terug.
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

/// De standaardinvoer geeft haar tekst maar één keer.
void keurStandaardinvoer(const wxCmdLineParser& lezer) {
    int keren = 0;
    for (const wxCmdLineArg& woord : lezer.GetArguments()) {
        const bool leest = woord.GetKind() == wxCMD_LINE_PARAM ||
                           (woord.GetKind() == wxCMD_LINE_OPTION && woord.GetLongName().EndsWith("-uit"));
        keren += leest && naarBytes(woord.GetStrVal()) == standaardinvoer ? 1 : 0;
    }
    if (keren > 1) {
        throw Fout("'-' staat er " + std::to_string(keren) +
                   " keer; de standaardinvoer is maar één keer te lezen");
    }
}

/// De optie met deze korte naam, of niets.
const Optie* zoekKort(char kort) {
    const auto optie = std::find_if(alleOpties.begin(), alleOpties.end(), [kort](const Optie& kandidaat) {
        return kandidaat.kort[0] == kort && kort != '\0';
    });
    return optie == alleOpties.end() ? nullptr : &*optie;
}

}  // namespace

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
            if (optie == nullptr || *optie->waarde != '\0') {
                break;
            }
        }
    }
    return false;
}

std::span<const Optie> geefAlleOpties() {
    return alleOpties;
}

Opties leesOpties(const std::vector<std::string>& woorden) {
    std::vector<std::wstring> breed = naarBreed(woorden);
    std::vector<wchar_t*> rij;
    rij.reserve(breed.size());
    for (std::wstring& woord : breed) {
        rij.push_back(woord.data());
    }
    const Meldingvanger vanger;
    wxCmdLineParser lezer(static_cast<int>(rij.size()), rij.data());
    lezer.SetSwitchChars("-");
    for (const Optie& optie : alleOpties) {
        if (*optie.waarde == '\0') {
            lezer.AddSwitch(optie.kort, optie.lang);
        } else {
            lezer.AddOption(optie.kort, optie.lang);
        }
    }
    lezer.AddParam(wxEmptyString, wxCMD_LINE_VAL_STRING,
                   wxCMD_LINE_PARAM_OPTIONAL | wxCMD_LINE_PARAM_MULTIPLE);
    if (lezer.Parse(false) != 0) {
        throw Fout(vertaal(vanger.geefEersteRegel()) + "; zie knipselaar-cli --help");
    }
    keurStandaardinvoer(lezer);
    Opties opties;
    Verwerker verwerker(opties);
    for (const wxCmdLineArg& woord : lezer.GetArguments()) {
        switch (woord.GetKind()) {
            case wxCMD_LINE_SWITCH:
                verwerker.zet(woord.GetLongName().utf8_string());
                break;
            case wxCMD_LINE_OPTION:
                verwerker.zet(woord.GetLongName().utf8_string(), naarBytes(woord.GetStrVal()));
                break;
            default:
                opties.bronnen.push_back(naarBytes(woord.GetStrVal()));
                break;
        }
    }
    if (opties.opdracht != Opdracht::help && opties.opdracht != Opdracht::versie) {
        keurUitgang(opties);
        keurSamen(opties);
    }
    return opties;
}

std::string maakHulp() {
    std::string hulp =
        "Gebruik: knipselaar-cli [OPTIES] BESTAND|DIR|-...\n"
        "\n"
        "Haalt uit bronbestanden wat tussen een beginmarker en een eindmarker staat en zet er een tekst voor "
        "de\n"
        "student voor in de plaats. Zonder --uit, --naar of --ter-plaatse komt het knipsel op de\n"
        "standaarduitvoer; \"-\" is de standaardinvoer.\n"
        "\n";
    for (const Optie& optie : alleOpties) {
        constexpr std::size_t kolom = 32;
        std::string regel = *optie.kort == '\0' ? "      --" : std::string("  -") + optie.kort + ", --";
        regel += optie.lang;
        if (*optie.waarde != '\0') {
            regel += std::string(" ") + optie.waarde;
        }
        regel.resize(std::max(kolom, regel.size() + 1), ' ');
        hulp += regel + optie.uitleg + "\n";
    }
    return hulp +
           "\n"
           "Afloop: 0 alles goed, 1 fouten in de invoer, 2 verkeerd gebruik of een storing bij lezen of "
           "schrijven.\n"
           "Meer staat in de handleiding: man knipselaar-cli.\n";
}

}  // namespace cli
