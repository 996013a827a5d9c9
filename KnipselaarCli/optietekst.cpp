#include "KnipselaarCli/optietekst.h"

#include "Knipselaar/kern/regeleinden.h"
#include "KnipselaarCli/bestanden.h"
#include "KnipselaarCli/fout.h"
#include "KnipselaarCli/regels.h"

namespace cli {

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
    std::vector<std::string> markers;
    loopRegelsAf(leesTekst(pad), [&markers](std::size_t, std::string_view regel) {
        if (!regel.empty()) {
            markers.emplace_back(regel);
        }
    });
    if (markers.empty() || markers.size() % 2 != 0) {
        throw Fout(pad + ": heeft " + std::to_string(markers.size()) +
                   " regels met een marker; zet om de regel een beginmarker en een eindmarker");
    }
    for (std::size_t i = 0; i < markers.size(); i += 2) {
        teksten.begin.push_back(markers[i]);
        teksten.eind.push_back(markers[i + 1]);
    }
}

std::vector<Tekstregel> leesLijst(const std::string& pad) {
    std::vector<Tekstregel> uit;
    loopRegelsAf(leesTekst(pad), [&uit](std::size_t nummer, std::string_view regel) {
        const std::string_view tekst = snoei(regel);
        if (!tekst.empty() && !tekst.starts_with('#')) {
            uit.push_back({.nummer = nummer, .tekst = std::string(tekst)});
        }
    });
    return uit;
}

}  // namespace cli
