#include "KnipselaarCli/optielijst.h"

#include <algorithm>
#include <array>
#include <optional>

namespace cli {

namespace {

constexpr std::array alleOpties = {
    Optie{Groep::bestemming, "u", "uit", "BESTAND", "schrijf het knipsel naar dit bestand"},
    Optie{Groep::bestemming, "n", "naar", "DIR", "schrijf de knipsels onder dezelfde naam in deze directory"},
    Optie{Groep::bestemming, "t", "ter-plaatse", "", "vervang elk bestand door zijn knipsel"},
    Optie{Groep::bestemming, "r", "recursief", "",
          "ga een directory helemaal af; met --naar gaan alle andere bestanden mee"},
    Optie{Groep::bestemming, "f", "overschrijf", "",
          "vervang ook bestemmingen die geen eerdere uitvoer zijn"},
    Optie{Groep::bestemming, "", "spiegel", "",
          "ruim bij --naar op wat een eerdere run maakte en geen bron meer maakt"},
    Optie{Groep::bestemming, "", "alles-of-niets", "",
          "laat bij --ter-plaatse elk bestand zoals het is als er ook maar iets misgaat"},

    Optie{Groep::bestanden, "k", "keuze", "SOORT",
          "wat in een directory geknipt wordt: talen (standaard), vhdl of alles"},
    Optie{Groep::bestanden, "m", "masker", "MASKER",
          "knip in een directory wat op dit masker past, zoals '*.c'; mag vaker"},
    Optie{Groep::bestanden, "w", "weglaten", "MASKER",
          "laat in een directory weg wat op dit masker past; mag vaker"},
    Optie{Groep::bestanden, "", "weglaten-uit", "BESTAND",
          "lees zulke maskers uit een bestand, op elke regel één"},
    Optie{Groep::bestanden, "x", "verborgen", "", "neem verborgen bestanden en directories mee"},
    Optie{Groep::bestanden, "", "versiebeheer", "", "neem directories als .git mee"},

    Optie{Groep::markers, "b", "begin", "MARKER", "de beginmarker; mag vaker, met elk een --eind"},
    Optie{Groep::markers, "e", "eind", "MARKER", "de eindmarker"},
    Optie{Groep::markers, "", "markers-uit", "BESTAND",
          "lees markers uit een bestand: om de regel een begin en een eind"},
    Optie{Groep::markers, "l", "letterlijk", "", R"("*" en "?" in een marker zijn gewone tekens)"},
    Optie{Groep::markers, "z", "zonder-instellingen", "", "lees de instellingen van het venster niet"},

    Optie{Groep::vervanging, "v", "vervang", "TEKST", "de vervangtekst, voor elke taal"},
    Optie{Groep::vervanging, "", "vervang-uit", "BESTAND", "lees de vervangtekst uit een bestand"},
    Optie{Groep::vervanging, "", "vervang-c", "TEKST", "de vervangtekst voor .c, .cpp en .h"},
    Optie{Groep::vervanging, "", "vervang-c-uit", "BESTAND", "hetzelfde uit een bestand"},
    Optie{Groep::vervanging, "", "vervang-vhdl", "TEKST", "de vervangtekst voor .vhd en .vhdl"},
    Optie{Groep::vervanging, "", "vervang-vhdl-uit", "BESTAND", "hetzelfde uit een bestand"},
    Optie{Groep::vervanging, "", "vervang-overig", "TEKST", "de vervangtekst voor alle andere bestanden"},
    Optie{Groep::vervanging, "", "vervang-overig-uit", "BESTAND", "hetzelfde uit een bestand"},
    Optie{Groep::vervanging, "T", "taal", "TAAL", "doe of elk bestand in deze taal is: c, vhdl of overig"},
    Optie{
        Groep::vervanging, "G", "geef", "PREFIX",
        "geef in een blok de regels die hiermee beginnen, zonder PREFIX, in plaats van de vervangtekst; mag "
        "vaker"},

    Optie{Groep::vorm, "M", "maak", "VERSIE",
          "welke versie: student (standaard), of oplossing, die alleen de markers kwijt is"},
    Optie{Groep::vorm, "", "houd", "NUMMER",
          "haal van dit markerpaar alleen de markers weg; het eerste paar is 1; mag vaker"},
    Optie{Groep::vorm, "g", "getrouw", "", "buiten de blokken blijft elke byte staan (standaard)"},
    Optie{Groep::vorm, "a", "als-venster", "",
          "schrijf UTF-8 met LF en een extra laatste regel, zoals het venster"},
    Optie{Groep::vorm, "i", "inspringen", "", "de vervangtekst springt in zoals de beginmarker"},
    Optie{Groep::vorm, "", "regels-gelijk", "",
          "houd met lege regels elke regel op het nummer dat zij in de bron heeft"},

    Optie{Groep::vooraf, "c", "controle", "", "kijk alleen de markers na"},
    Optie{Groep::vooraf, "s", "streng", "", "een waarschuwing is een fout"},
    Optie{Groep::vooraf, "", "minstens", "AANTAL", "minder blokken in de hele run is een fout"},
    Optie{Groep::vooraf, "d", "droog", "", "zeg per bestand wat er zou gebeuren en schrijf niets"},
    Optie{Groep::vooraf, "D", "verschil", "", "toon het verschil zoals \"patch\" het neemt en schrijf niets"},

    Optie{Groep::achteraf, "p", "bewijs", "",
          "lees de bestemming na en meld elke markerregel en weggelaten regel"},
    Optie{Groep::achteraf, "L", "bewijs-lengte", "AANTAL",
          "let op weggelaten regels die langer zijn dan dit (standaard 10 tekens)"},
    Optie{Groep::achteraf, "", "bewijs-toegestaan", "BESTAND",
          "lees uit een bestand regels die in de bestemming mogen staan"},
    Optie{Groep::achteraf, "P", "probeer", "OPDRACHT",
          "voer dit voor elk geknipt bestand uit, met zijn naam voor {}; mislukt het, dan is dat een fout"},

    Optie{Groep::gedrag, "q", "stil", "", "meld alleen fouten"},
    Optie{Groep::gedrag, "j", "json", "", "geef het verslag als JSON"},
    Optie{Groep::gedrag, "", "afhankelijk", "BESTAND",
          "schrijf voor make en ninja op van welke bestanden de knipsels afhangen"},
    Optie{Groep::gedrag, "o", "opties", "BESTAND",
          "lees opties uit een bestand, op elke regel één; mag vaker"},
    Optie{Groep::gedrag, "J", "taken", "AANTAL",
          "zoveel bestanden tegelijk (standaard wat de machine aankan)"},
    Optie{Groep::gedrag, "h", "help", "", "toon deze hulp"},
    Optie{Groep::gedrag, "V", "versie", "", "toon de versie"},
};

constexpr std::array<const char*, aantalGroepen> kopjes{
    "Waar het heen gaat", "Welke bestanden", "Wat er weggaat",    "Wat ervoor in de plaats komt",
    "Hoe het eruit komt", "Nakijken vooraf", "Nakijken achteraf", "Verslag en gedrag"};

/// Een uitleg in regels die naast de namen van de opties passen.
std::string breekAf(std::string_view uitleg, std::size_t kolom) {
    constexpr std::size_t breedte = 100;
    std::string uit;
    while (uitleg.size() > breedte - kolom) {
        const std::size_t spatie = uitleg.rfind(' ', breedte - kolom);
        uit += std::string(uitleg.substr(0, spatie)) + "\n" + std::string(kolom, ' ');
        uitleg.remove_prefix(spatie + 1);
    }
    return uit + std::string(uitleg) + "\n";
}

}  // namespace

const char* noemGroep(Groep groep) {
    return kopjes.at(static_cast<std::size_t>(groep));
}

std::span<const Optie> geefAlleOpties() {
    return alleOpties;
}

const Optie* zoekKort(char kort) {
    const auto optie = std::find_if(alleOpties.begin(), alleOpties.end(), [kort](const Optie& kandidaat) {
        return kandidaat.kort[0] == kort && kort != '\0';
    });
    return optie == alleOpties.end() ? nullptr : &*optie;
}

std::string maakHulp() {
    std::string hulp =
        "Gebruik: knipselaar-cli [OPTIES] BESTAND|DIR|-...\n"
        "\n"
        "Haalt uit bronbestanden wat tussen een beginmarker en een eindmarker staat en zet er een tekst voor "
        "de\n"
        "student voor in de plaats. Zonder --uit, --naar of --ter-plaatse komt het knipsel op de\n"
        "standaarduitvoer; \"-\" is de standaardinvoer.\n";
    std::optional<Groep> groep;
    for (const Optie& optie : alleOpties) {
        if (groep != optie.groep) {
            groep = optie.groep;
            hulp += std::string("\n") + noemGroep(optie.groep) + ":\n";
        }
        constexpr std::size_t kolom = 35;
        std::string regel = *optie.kort == '\0' ? "      --" : std::string("  -") + optie.kort + ", --";
        regel += optie.lang;
        if (optie.heeftWaarde()) {
            regel += std::string(" ") + optie.waarde;
        }
        regel.resize(std::max(kolom, regel.size() + 1), ' ');
        hulp += regel + breekAf(optie.uitleg, regel.size());
    }
    return hulp +
           "\n"
           "Afloop: 0 alles goed, 1 fouten in de invoer, 2 verkeerd gebruik of een storing bij lezen of "
           "schrijven.\n"
           "Meer staat in de handleiding: man knipselaar-cli.\n";
}

}  // namespace cli
