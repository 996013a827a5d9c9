// De kern als proces op zichzelf, voor de metingen: wat het venster ermee doet, zonder venster.
//
//   knipmeter bestand BRON DOEL      knipt één bestand
//   knipmeter directory BRON DOEL    knipt alle bestanden van een directory naar een andere
//   knipmeter boom BOOM              knipt een boom ter plaatse
//   knipmeter niets                  start alleen de toolkit, als nullijn
//
// BEGIN, EIND en VERVANG in de omgeving vervangen de standaardteksten. Met GEHEUGEN erin komt aan het einde
// het meeste geheugen dat het proces gebruikte op de uitvoer, in kB; wat wait4 daarvan zegt telt ook de ouder
// mee.

#include <wx/init.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>

#include "Knipselaar/kern/parserInstellingen.h"
#include "tests/hulp/stilleOpdracht.h"

namespace {

wxString leesOf(const char* variabele, const wxString& anders) {
    const char* waarde = std::getenv(variabele);
    return waarde == nullptr ? anders : wxString::FromUTF8(waarde);
}

bool voerUit(std::string_view wat, int aantal, char** paden) {
    const kern::KnipTeksten teksten{leesOf("BEGIN", kern::standaardBeginMarker()),
                                    leesOf("EIND", kern::standaardEindMarker()),
                                    leesOf("VERVANG", kern::standaardVervangtekst())};
    const auto pad = [paden](int i) { return wxString::FromUTF8(paden[i]); };
    hulp::StilleOpdracht opdracht(teksten);
    if (wat == "bestand" && aantal == 2) {
        return kern::knipBestand(wxFileName(pad(0)), wxFileName(pad(1)), teksten).isGelukt();
    }
    if (wat == "directory" && aantal == 2) {
        kern::knipDirectory(pad(0), pad(1), kern::lijstDirectory(pad(0)), opdracht);
        return true;
    }
    if (wat == "boom" && aantal == 1) {
        kern::knipBoom(pad(0), kern::lijstBoom(pad(0)), opdracht);
        return true;
    }
    return wat == "niets";
}

}  // namespace

int main(int argc, char** argv) {
    const wxInitializer toolkit;
    const bool gelukt = toolkit.IsOk() && argc >= 2 && voerUit(argv[1], argc - 2, argv + 2);
    if (std::getenv("GEHEUGEN") != nullptr) {
        std::ifstream stand("/proc/self/status");
        std::string woord;
        while (stand >> woord && woord != "VmHWM:") {
        }
        stand >> woord;
        std::cout << woord << "\n";
    }
    return gelukt ? 0 : 1;
}
