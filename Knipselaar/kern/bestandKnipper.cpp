#include "Knipselaar/kern/bestandKnipper.h"

#include <wx/log.h>
#include <wx/wfstream.h>

#include <utility>

#include "Knipselaar/kern/systeem/bestand.h"
#include "Knipselaar/kern/systeem/paden.h"
#include "Knipselaar/kern/systeem/reden.h"

namespace kern {

namespace {

/// Waarom een bestand niet openging; leeg als het open is. Bij een directory heeft de gebruiker geen
/// verkeerde naam gegeven; de naam komt van de bron.
std::string noemOpenReden(const Opening& opening) {
    const Bestandssoort soort = opening.kenmerken.soort;
    if (opening.bestand.isOpen()) {
        return {};
    }
    if (opening.fout && soort == Bestandssoort::directory) {
        return "is een directory";
    }
    if (soort == Bestandssoort::link) {
        return "is een link die nergens heen wijst";
    }
    const bool nietGewoon = !opening.fout || soort == Bestandssoort::anders;
    return nietGewoon ? "is geen gewoon bestand" : noemReden(opening.fout);
}

/// Of er een gewoon bestand kan staan. Wie er niet bij mag kan het niet weten.
bool kanGewoonBestandZijn(const std::string& pad) {
    Kenmerken kenmerken;
    const auto fout = leesKenmerken(pad, kenmerken);
    return fout ? fout == std::errc::permission_denied : kenmerken.soort == Bestandssoort::bestand;
}

/// Waarom een bestand dat openging niet heel gelezen of geschreven is; leeg als het lukte of al gezegd is.
void vulReden(bool gelukt, const wxFile& bestand, std::string& reden) {
    if (!gelukt && reden.empty() && bestand.GetLastError() != 0) {
        reden = noemReden({bestand.GetLastError(), std::generic_category()});
    }
}

}  // namespace

KnipUitslag knipBestand(const wxFileName& bron, const wxFileName& doel, const KnipMal& mal,
                        Nakijken nakijken) {
    const wxLogNull geenMeldingen;
    KnipUitslag uitslag;
    const std::string bronPad = naarPad(bron.GetFullPath());
    Opening vanBron = openBron(bronPad);
    std::string bronReden = noemOpenReden(vanBron);
    wxFileInputStream origStroom(vanBron.bestand.geefUitHanden());
    wxASSERT(origStroom.IsOk());
    Opening vanDoel = openDoel(naarPad(doel.GetFullPath()));
    std::string doelReden = noemOpenReden(vanDoel);
    wxFileOutputStream uitStroom(vanDoel.bestand.geefUitHanden());
    wxASSERT(uitStroom.IsOk());

    if (origStroom.IsOk()) {
        uitslag = knipStroom(origStroom, uitStroom, mal, nakijken);
    }
    uitslag.doelHeelGeschreven = uitStroom.Close() && uitslag.doelHeelGeschreven;
    uitslag.bronBestaat = bronReden.empty() || kanGewoonBestandZijn(bronPad);
    uitslag.bron = vanBron.kenmerken;
    uitslag.bronReden = std::move(bronReden);
    uitslag.doelReden = std::move(doelReden);
    vulReden(uitslag.bronHeelGelezen, *origStroom.GetFile(), uitslag.bronReden);
    vulReden(uitslag.doelHeelGeschreven, *uitStroom.GetFile(), uitslag.doelReden);
    return uitslag;
}

KnipUitslag knipBestand(const wxFileName& bron, const wxFileName& doel, const KnipTeksten& teksten) {
    return knipBestand(bron, doel, KnipMal(teksten));
}

}  // namespace kern
