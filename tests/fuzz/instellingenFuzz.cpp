// Leest wat libFuzzer verzint als opslag van instellingen. Wat eruit komt moet een opslag ook weer
// ongewijzigd teruggeven.

#include <wx/fileconf.h>
#include <wx/mstream.h>

#include <cstdint>

#include "Knipselaar/kern/parserInstellingen.h"
#include "tests/fuzz/velden.h"
#include "tests/fuzz/vondst.h"

using kern::ParserInstellingen;

namespace {

ParserInstellingen leesOpslag(std::string_view inhoud) {
    wxMemoryInputStream stroom(inhoud.data(), inhoud.size());
    wxFileConfig opslag(stroom);
    opslag.SetExpandEnvVars(false);
    return ParserInstellingen::lees(opslag);
}

std::string schrijfOpslag(const ParserInstellingen& record) {
    wxMemoryInputStream leeg(nullptr, 0);
    wxFileConfig opslag(leeg);
    opslag.SetExpandEnvVars(false);
    record.schrijf(opslag);
    wxMemoryOutputStream stroom;
    fuzz::eis(opslag.Save(stroom), "de opslag is te schrijven");
    std::string inhoud(stroom.GetSize(), '\0');
    stroom.CopyTo(inhoud.data(), inhoud.size());
    return inhoud;
}

ParserInstellingen vulIn(std::string_view invoer) {
    const auto neemTekst = [&invoer] { return fuzz::alsTekst(fuzz::neemVeld(invoer)); };
    return {.origineelPad = neemTekst(),
            .aangepastPad = neemTekst(),
            .verwerkingkeuze = static_cast<long>(invoer.size()),
            .beginMarker = neemTekst(),
            .eindMarker = neemTekst(),
            .vervangtekst = neemTekst()};
}

void eisOngewijzigd(const ParserInstellingen& record) {
    const ParserInstellingen terug = leesOpslag(schrijfOpslag(record));
    const auto eisGelijk = [](const wxString& verwacht, const wxString& gekregen, const char* eigenschap) {
        fuzz::eisGelijk(verwacht.utf8_string(), gekregen.utf8_string(), eigenschap);
    };
    eisGelijk(record.origineelPad, terug.origineelPad, "OrigineelPad komt ongewijzigd terug");
    eisGelijk(record.aangepastPad, terug.aangepastPad, "AangepastPad komt ongewijzigd terug");
    fuzz::eis(record.verwerkingkeuze == terug.verwerkingkeuze, "Verwerkingkeuze komt ongewijzigd terug");
    eisGelijk(record.beginMarker, terug.beginMarker, "BeginMarker komt ongewijzigd terug");
    eisGelijk(record.eindMarker, terug.eindMarker, "EindMarker komt ongewijzigd terug");
    eisGelijk(record.vervangtekst, terug.vervangtekst, "Vervangtekst komt ongewijzigd terug");
}

}  // namespace

// libFuzzer zoekt deze functie onder deze naam.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* gegevens, std::size_t lengte) {
    const std::string_view invoer(reinterpret_cast<const char*>(gegevens), lengte);
    eisOngewijzigd(leesOpslag(invoer));
    eisOngewijzigd(vulIn(invoer));
    return 0;
}
