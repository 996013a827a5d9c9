#include "Knipselaar/kern/bestandKnipper.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <wx/log.h>
#include <wx/wfstream.h>

#include <cerrno>
#include <utility>

#include "Knipselaar/kern/reden.h"

namespace kern {

namespace {

constexpr int geenBestand = -1;

enum class Inhoud { houden, legen };

/// Een bestand dat openging, of waarom niet.
struct Opening {
    int bestand = geenBestand;
    std::string reden;
};

constexpr const char* nietGewoon = "is geen gewoon bestand";

/// Bij een directory heeft de gebruiker geen verkeerde naam gegeven; de naam komt van de bron.
std::string noemOpenReden(int foutnummer) {
    switch (foutnummer) {
        case EISDIR:
            return "is een directory";
        case ENXIO:  // een pijp waar niemand uit leest, of een socket
            return nietGewoon;
        case EEXIST:
            return "is een link die nergens heen wijst";
        default:
            return noemReden(foutnummer);
    }
}

/// Of er een gewoon bestand kan staan. Wie er niet bij mag kan het niet weten.
bool kanGewoonBestandZijn(const wxString& pad) {
    struct stat gegevens {};
    return stat(pad.fn_str(), &gegevens) == 0 ? S_ISREG(gegevens.st_mode) : errno == EACCES;
}

/// Houdt alleen een gewoon bestand open, zo nodig geleegd; al het andere gaat meteen weer dicht.
Opening houdGewoonBestand(int bestand, Inhoud inhoud) {
    struct stat gegevens {};
    if (bestand == geenBestand || fstat(bestand, &gegevens) != 0) {
        return {.reden = noemOpenReden(errno)};
    }
    const bool gewoon = S_ISREG(gegevens.st_mode);
    if (gewoon && (inhoud == Inhoud::houden || gegevens.st_size == 0 || ftruncate(bestand, 0) == 0)) {
        return {.bestand = bestand, .reden = {}};
    }
    std::string reden = gewoon ? noemReden(errno) : nietGewoon;
    close(bestand);
    return {.reden = std::move(reden)};
}

// O_NONBLOCK: op een pijp zonder tegenpartij zou open anders voor altijd wachten. Voor gewone bestanden
// betekent de vlag niets.

Opening openBron(const wxFileName& pad) {
    return houdGewoonBestand(open(pad.GetFullPath().fn_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC),
                             Inhoud::houden);
}

Opening openDoel(const wxFileName& pad) {
    constexpr int vlaggen = O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    constexpr mode_t rechten = 0666;
    const wxString naam = pad.GetFullPath();
    int bestand = open(naam.fn_str(), vlaggen);
    if (bestand == geenBestand && errno == ENOENT) {
        // O_EXCL: door een link die nergens heen wijst zou hier elders een bestand ontstaan.
        bestand = open(naam.fn_str(), vlaggen | O_CREAT | O_EXCL, rechten);
    }
    return houdGewoonBestand(bestand, Inhoud::legen);
}

/// Waarom een bestand dat openging niet heel gelezen of geschreven is; leeg als het lukte of al gezegd is.
void vulReden(bool gelukt, const wxFile& bestand, std::string& reden) {
    if (!gelukt && reden.empty() && bestand.GetLastError() != 0) {
        reden = noemReden(bestand.GetLastError());
    }
}

}  // namespace

KnipUitslag knipBestand(const wxFileName& bron, const wxFileName& doel, const KnipMal& mal,
                        Nakijken nakijken) {
    const wxLogNull geenMeldingen;
    KnipUitslag uitslag;
    Opening vanBron = openBron(bron);
    wxFileInputStream origStroom(vanBron.bestand);
    wxASSERT(origStroom.IsOk());
    Opening vanDoel = openDoel(doel);
    wxFileOutputStream uitStroom(vanDoel.bestand);
    wxASSERT(uitStroom.IsOk());

    if (origStroom.IsOk()) {
        uitslag = knipStroom(origStroom, uitStroom, mal, nakijken);
    }
    uitslag.doelHeelGeschreven = uitStroom.Close() && uitslag.doelHeelGeschreven;
    uitslag.bronBestaat = vanBron.bestand != geenBestand || kanGewoonBestandZijn(bron.GetFullPath());
    uitslag.bronReden = std::move(vanBron.reden);
    uitslag.doelReden = std::move(vanDoel.reden);
    vulReden(uitslag.bronHeelGelezen, *origStroom.GetFile(), uitslag.bronReden);
    vulReden(uitslag.doelHeelGeschreven, *uitStroom.GetFile(), uitslag.doelReden);
    return uitslag;
}

KnipUitslag knipBestand(const wxFileName& bron, const wxFileName& doel, const KnipTeksten& teksten) {
    return knipBestand(bron, doel, KnipMal(teksten));
}

}  // namespace kern
