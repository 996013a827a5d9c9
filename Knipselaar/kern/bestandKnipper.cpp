#include "Knipselaar/kern/bestandKnipper.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <wx/log.h>
#include <wx/wfstream.h>

namespace kern {

namespace {

constexpr int geenBestand = -1;

enum class Inhoud { houden, legen };

/// Geeft alleen een gewoon bestand door, zo nodig geleegd; al het andere gaat meteen weer dicht.
int houdGewoonBestand(int bestand, Inhoud inhoud) {
    struct stat gegevens {};
    const bool gewoon = bestand != geenBestand && fstat(bestand, &gegevens) == 0 && S_ISREG(gegevens.st_mode);
    const bool goed =
        gewoon && (inhoud == Inhoud::houden || gegevens.st_size == 0 || ftruncate(bestand, 0) == 0);
    if (bestand != geenBestand && !goed) {
        close(bestand);
    }
    return goed ? bestand : geenBestand;
}

// O_NONBLOCK: op een pijp zonder tegenpartij zou open anders voor altijd wachten. Voor gewone bestanden
// betekent de vlag niets.

int openBron(const wxFileName& pad) {
    return houdGewoonBestand(open(pad.GetFullPath().fn_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC),
                             Inhoud::houden);
}

int openDoel(const wxFileName& pad) {
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

}  // namespace

KnipUitslag knipBestand(const wxFileName& bron, const wxFileName& doel, const KnipTeksten& teksten) {
    const wxLogNull geenMeldingen;
    KnipUitslag uitslag;
    wxFileInputStream origStroom(openBron(bron));
    wxASSERT(origStroom.IsOk());
    wxFileOutputStream uitStroom(openDoel(doel));
    wxASSERT(uitStroom.IsOk());

    if (origStroom.IsOk()) {
        uitslag = knipStroom(origStroom, uitStroom, teksten);
    }
    uitslag.doelHeelGeschreven = uitStroom.Close() && uitslag.doelHeelGeschreven;
    return uitslag;
}

}  // namespace kern
