// Ontleedt wat libFuzzer verzint met een tot vier markerparen en houdt de uitkomst tegen het orakel, dat
// regel voor regel gaat. De invoer is velden die elk met een NUL eindigen: de grootten van de stukken waarin
// de tekst komt, de keuzes (hoeveel paren, of jokers letterlijk zijn, hoeveel bevindingen bewaard worden),
// van elk paar de beginmarker en de eindmarker, en daarna de tekst. Daarin staat 0x01 voor een NUL.

#include <algorithm>
#include <cstdint>

#include "Knipselaar/kern/knipper.h"
#include "tests/fuzz/velden.h"
#include "tests/fuzz/vondst.h"
#include "tests/hulp/ontleedOrakel.h"

using orakel::Staart;

namespace {

struct Keuzes {
    std::size_t paren;
    kern::Jokers jokers;
    std::size_t hoogstens;
};

Keuzes leesKeuzes(std::string_view veld) {
    constexpr std::size_t meesteParen = 4;
    const auto neem = [veld](std::size_t plek) -> std::size_t {
        return plek < veld.size() ? static_cast<unsigned char>(veld[plek]) : 0;
    };
    return {.paren = neem(0) % meesteParen + 1,
            .jokers = neem(1) % 2 == 0 ? kern::Jokers::ja : kern::Jokers::nee,
            .hoogstens = veld.size() > 2 ? neem(2) % 16 : kern::Ontleder::onbeperkt};
}

std::string leesTekst(std::string_view invoer) {
    std::string tekst = fuzz::alsTekst(invoer).utf8_string();
    std::replace(tekst.begin(), tekst.end(), '\1', '\0');
    return tekst;
}

/// Ontleedt een tekst in stukken van hele regels.
/// @param grootten  na hoeveel bytes een stuk bij het eerstvolgende regeleinde ophoudt; wie op is begint
/// vooraan.
orakel::Ontleding ontleed(std::string_view tekst, Staart staart, std::string_view grootten,
                          const kern::MarkerReeks& reeks, std::size_t hoogstens) {
    orakel::Ontleding uitkomst;
    kern::Ontleder ontleder(
        reeks, [&uitkomst](const kern::Blok& blok) { uitkomst.blokken.push_back(blok); }, hoogstens);
    for (std::size_t beurt = 0; tekst.find('\n') != std::string_view::npos; ++beurt) {
        const std::size_t grens =
            grootten.empty() ? tekst.size() : static_cast<unsigned char>(grootten[beurt % grootten.size()]);
        const std::size_t einde = std::min(tekst.find('\n', grens), tekst.rfind('\n')) + 1;
        ontleder.neem(tekst.substr(0, einde));
        tekst.remove_prefix(einde);
    }
    if (staart == Staart::regel) {
        ontleder.neemStaart(tekst);
    }
    uitkomst.bevindingen = ontleder.maakAf();
    return uitkomst;
}

void controleer(std::string_view tekst, Staart staart, std::string_view grootten,
                const kern::MarkerReeks& reeks, std::size_t hoogstens) {
    const auto verwacht = orakel::ontleed(tekst, staart, reeks.geefParen(), hoogstens);
    fuzz::eisGelijk(orakel::toon(verwacht), orakel::toon(ontleed(tekst, staart, "", reeks, hoogstens)),
                    "de ontleding gaat regel voor regel");
    fuzz::eisGelijk(orakel::toon(verwacht), orakel::toon(ontleed(tekst, staart, grootten, reeks, hoogstens)),
                    "waar een stuk ophoudt maakt niets uit");
}

/// Met één paar is een blok wat het knippen weglaat.
void controleerKnippen(std::string_view tekst, const kern::KnipTeksten& teksten) {
    const kern::KnipMal mal(teksten);
    const auto ontleding = ontleed(tekst, Staart::regel, "", mal.geefMarkers(), kern::Ontleder::onbeperkt);
    const std::string vervanging = teksten.vervangtekst.utf8_string();
    fuzz::eisGelijk(kern::knipTekst(tekst, mal).tekst, orakel::knipBlokken(tekst, ontleding, vervanging),
                    "het knippen laat de blokken weg en verder niets");
}

}  // namespace

// libFuzzer zoekt deze functie onder deze naam.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* gegevens, std::size_t lengte) {
    std::string_view invoer(reinterpret_cast<const char*>(gegevens), lengte);
    const std::string_view grootten = fuzz::neemVeld(invoer);
    const Keuzes keuzes = leesKeuzes(fuzz::neemVeld(invoer));
    std::vector<wxString> markers;
    while (markers.size() < 2 * keuzes.paren) {
        markers.push_back(fuzz::alsTekst(fuzz::neemVeld(invoer)));
    }
    std::vector<kern::Markerpaar> paren;
    for (std::size_t i = 0; i < markers.size(); i += 2) {
        paren.push_back({.begin = kern::MarkerMasker(markers[i], keuzes.jokers),
                         .eind = kern::MarkerMasker(markers[i + 1], keuzes.jokers)});
    }
    const kern::MarkerReeks reeks(std::move(paren));
    const std::string tekst = leesTekst(invoer);
    const std::string_view heel = std::string_view(tekst).substr(0, tekst.rfind('\n') + 1);
    controleer(tekst, Staart::regel, grootten, reeks, keuzes.hoogstens);
    controleer(heel, Staart::geen, grootten, reeks, keuzes.hoogstens);
    controleerKnippen(tekst, {.beginMarker = markers[0], .eindMarker = markers[1], .vervangtekst = "V\n"});
    return 0;
}
