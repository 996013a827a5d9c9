#include "KnipselaarCli/teksten.h"

#include <wx/fileconf.h>

#include <algorithm>

#include "Knipselaar/kern/keuzes.h"
#include "Knipselaar/kern/parserInstellingen.h"
#include "Knipselaar/kern/systeem/paden.h"
#include "KnipselaarCli/fout.h"
#include "gemeenschappelijk/desktopApp.h"

namespace cli {

namespace {

/// Een naam gevolgd door een string kan in VHDL nergens staan, wat er ook omheen overblijft; een vertaler
/// wijst het dus altijd af en toont de regel.
constexpr std::string_view standaardVhdl =
    "error \"Dit stuk software ontbreekt.\";\n"
    "-- Beste student,\n"
    "--     Dit stuk ontbreekt. Werk dit uit om de opdracht uit te voeren.\n";

constexpr std::string_view standaardOverig =
    "Beste student,\n"
    "    Dit stuk ontbreekt. Werk dit uit om de opdracht uit te voeren.\n";

/// De instellingen zoals het venster ze achterliet. Zonder bestand zijn het de standaardteksten.
kern::ParserInstellingen leesInstellingen() {
    wxFileConfig opslag("Knipselaar", leverancierNaam, wxEmptyString, wxEmptyString,
                        wxCONFIG_USE_LOCAL_FILE | wxCONFIG_USE_GLOBAL_FILE);
    opslag.DisableAutoSave();
    opslag.SetExpandEnvVars(false);
    return kern::ParserInstellingen::lees(opslag);
}

kern::ParserInstellingen geefStandaard() {
    return {.origineelPad = {},
            .aangepastPad = {},
            .verwerkingkeuze = 0,
            .beginMarker = kern::standaardBeginMarker(),
            .eindMarker = kern::standaardEindMarker(),
            .vervangtekst = kern::standaardVervangtekst()};
}

bool isGewoon(const std::string& marker, bool letterlijk) {
    return std::all_of(marker.begin(), marker.end(), [letterlijk](char teken) {
        return teken >= ' ' && teken < 0x7F && (letterlijk || teken != '?');
    });
}

void keurMarker(const std::string& marker, const char* welke, bool letterlijk) {
    const bool zegtIets = marker.find_first_not_of(letterlijk ? "" : "*?") != std::string::npos;
    if (!zegtIets) {
        throw Fout(std::string("de ") + welke + " '" + marker +
                   "' past op elke regel; geef een marker met gewone tekens");
    }
    if (marker.find_first_of(std::string_view("\n\r\0", 3)) != std::string::npos) {
        throw Fout(std::string("de ") + welke + " heeft een regeleinde; een marker staat op één regel");
    }
    if (wxString::FromUTF8(marker).empty()) {
        throw Fout(std::string("de ") + welke + " is geen UTF-8; zet hem om");
    }
}

kern::MarkerMasker maakMasker(const std::string& marker, bool letterlijk) {
    return kern::MarkerMasker(wxString::FromUTF8(marker), letterlijk ? kern::Jokers::nee : kern::Jokers::ja);
}

void vulMarkers(const TekstKeuze& keuze, const kern::ParserInstellingen& instellingen, Teksten& teksten) {
    std::vector<std::string> begin = keuze.begin;
    std::vector<std::string> eind = keuze.eind;
    if (begin.empty() && eind.empty()) {
        begin.push_back(instellingen.beginMarker.utf8_string());
        eind.push_back(instellingen.eindMarker.utf8_string());
    }
    if (begin.size() != eind.size()) {
        throw Fout("er zijn " + std::to_string(begin.size()) + " beginmarkers en " +
                   std::to_string(eind.size()) + " eindmarkers; geef bij elke --begin een --eind");
    }
    std::vector<kern::Markerpaar> paren;
    for (std::size_t i = 0; i < begin.size(); ++i) {
        keurMarker(begin[i], "beginmarker", keuze.letterlijk);
        keurMarker(eind[i], "eindmarker", keuze.letterlijk);
        paren.push_back(
            {.begin = maakMasker(begin[i], keuze.letterlijk), .eind = maakMasker(eind[i], keuze.letterlijk)});
        teksten.markersGewoon = teksten.markersGewoon && isGewoon(begin[i], keuze.letterlijk) &&
                                isGewoon(eind[i], keuze.letterlijk);
    }
    teksten.markers = kern::MarkerReeks(std::move(paren));
}

void vulVersie(const TekstKeuze& keuze, Teksten& teksten) {
    const std::size_t aantal = teksten.markers.geefParen().size();
    teksten.houd.assign(aantal, keuze.versie == Versie::oplossing);
    for (const std::size_t nummer : keuze.houd) {
        if (nummer == 0 || nummer > aantal) {
            throw Fout("--houd: er is geen markerpaar " + std::to_string(nummer) + "; kies 1 tot en met " +
                       std::to_string(aantal));
        }
        teksten.houd[nummer - 1] = true;
    }
    teksten.geef = keuze.geef;
    teksten.markersGewoon = teksten.markersGewoon &&
                            std::all_of(keuze.geef.begin(), keuze.geef.end(),
                                        [](const std::string& prefix) { return isGewoon(prefix, true); });
}

void vulVervanging(const TekstKeuze& keuze, const kern::ParserInstellingen& instellingen, Teksten& teksten) {
    const std::array<std::string, aantalTalen> standaard{kern::standaardVervangtekst().utf8_string(),
                                                         std::string(standaardVhdl),
                                                         std::string(standaardOverig)};
    const bool eigen = instellingen.vervangtekst != kern::standaardVervangtekst();
    const std::string uitInstellingen = instellingen.vervangtekst.utf8_string();
    for (std::size_t taal = 0; taal < aantalTalen; ++taal) {
        const std::string& aanvulling = eigen ? uitInstellingen : standaard.at(taal);
        teksten.vervanging.at(taal) = keuze.perTaal.at(taal).value_or(keuze.vervanging.value_or(aanvulling));
    }
}

}  // namespace

Taal kiesTaal(std::string_view pad) {
    const std::string_view naam = kern::geefNaam(pad);
    const std::size_t punt = naam.rfind('.');
    if (punt == std::string_view::npos) {
        return Taal::overig;
    }
    switch (kern::kiesBrontaal(wxString::From8BitData(naam.data() + punt + 1, naam.size() - punt - 1))) {
        case kern::Brontaal::c:
        case kern::Brontaal::cpp:
            return Taal::c;
        case kern::Brontaal::vhdl:
            return Taal::vhdl;
        case kern::Brontaal::geen:
            break;
    }
    return Taal::overig;
}

Teksten bepaalTeksten(const TekstKeuze& keuze) {
    const kern::ParserInstellingen instellingen =
        keuze.zonderInstellingen ? geefStandaard() : leesInstellingen();
    Teksten teksten;
    vulMarkers(keuze, instellingen, teksten);
    vulVersie(keuze, teksten);
    vulVervanging(keuze, instellingen, teksten);
    return teksten;
}

}  // namespace cli
