#include "KnipselaarCli/afhankelijk.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <vector>

#include "Knipselaar/kern/systeem/kenmerken.h"
#include "Knipselaar/kern/systeem/paden.h"
#include "KnipselaarCli/bestanden.h"
#include "KnipselaarCli/bestemming.h"
#include "KnipselaarCli/boom.h"
#include "KnipselaarCli/fout.h"

namespace cli {

namespace fs = std::filesystem;

namespace {

/// Dit leest make in een naam anders dan het er staat, ook met een backslash ervoor.
constexpr std::string_view onleesbaar = "%*;=?|";

/// Dit krijgt een backslash. Een die er in de naam zelf al voor staat, lezen make en ninja alleen bij een
/// spatie hetzelfde.
constexpr std::string_view metBackslash = " #:";

bool isBesturing(char teken) {
    return static_cast<unsigned char>(teken) < 0x20 || teken == '\x7F';
}

bool isTeSchrijven(std::string_view naam) {
    return !naam.ends_with('\\') && naam.find("\\#") == std::string_view::npos &&
           naam.find("\\:") == std::string_view::npos &&
           naam.find_first_of(onleesbaar) == std::string_view::npos &&
           std::none_of(naam.begin(), naam.end(), isBesturing);
}

/// Een pijp van de shell is er bij een volgende run niet meer.
std::set<std::string> geefGelezenBestanden(const Opties& opties) {
    std::set<std::string> uit;
    for (const std::string& pad : opties.gelezen) {
        kern::Kenmerken kenmerken;
        if (pad != standaardinvoer && !kern::leesKenmerken(pad, kenmerken) &&
            kenmerken.soort == kern::Bestandssoort::bestand) {
            uit.insert(fs::absolute(pad).generic_string());
        }
    }
    return uit;
}

/// Links en directories kan make niet aan hun tijd zien.
std::vector<Taak> geefBestanden(const Plan& plan) {
    std::vector<Taak> uit;
    std::copy_if(plan.taken.begin(), plan.taken.end(), std::back_inserter(uit), [](const Taak& taak) {
        return taak.handeling == Handeling::knip || taak.handeling == Handeling::neemOver;
    });
    return uit;
}

std::string maakSleutel(const std::string& pad) {
    return kern::maakSleutel(maakEcht(pad));
}

/// Een directory die deze run maakt, is er straks.
bool maaktOuder(const Plan& plan, const std::string& pad) {
    const std::string ouder = fs::path(pad).parent_path().string();
    return !ouder.empty() && std::any_of(plan.taken.begin(), plan.taken.end(), [&ouder](const Taak& taak) {
        return taak.handeling == Handeling::maakDirectory && maakSleutel(taak.doel) == maakSleutel(ouder);
    });
}

/// Er is een bestand van een gebruiker te verliezen, en een bestemming die er zonder deze regels staat wordt
/// niet opnieuw gemaakt.
void keurRegelbestand(const std::string& pad, const Plan& plan, const std::set<std::string>& gelezen,
                      bool overschrijf) {
    if (pad == standaardinvoer) {
        throw Fout("--afhankelijk: '-' kan hier niet; noem een bestand");
    }
    const std::string sleutel = maakSleutel(pad);
    const auto is = [&sleutel](const std::string& ander) {
        return !ander.empty() && ander != standaardinvoer && maakSleutel(ander) == sleutel;
    };
    const bool botst = std::any_of(gelezen.begin(), gelezen.end(), is) ||
                       std::any_of(plan.taken.begin(), plan.taken.end(),
                                   [&is](const Taak& taak) { return is(taak.bron) || is(taak.doel); });
    if (botst) {
        throw Fout(pad + ": is zelf een bron of bestemming; noem met --afhankelijk een ander bestand");
    }
    if (!maaktOuder(plan, pad)) {
        keurOuder(pad);
    }
    kern::Kenmerken kenmerken;
    if (!overschrijf && !kern::leesEigenKenmerken(pad, kenmerken) &&
        !isEerdereUitvoer(pad, Uitvoersoort::bestand)) {
        throw Fout(
            pad +
            ": bestaat al en is geen eerdere uitvoer van zo'n run; geef --overschrijf om het te vervangen");
    }
}

}  // namespace

std::string schrijfNaam(std::string_view naam) {
    if (!isTeSchrijven(naam)) {
        throw Fout(std::string(naam) +
                   ": deze naam lezen make en ninja verkeerd; kies een andere, of laat --afhankelijk weg");
    }
    // De dubbele punt van een schijf is voor make en ninja gewoon een teken.
    const std::string schijf = fs::path(naam).root_name().string();
    std::string uit = schijf;
    std::size_t backslashes = 0;
    for (const char teken : naam.substr(schijf.size())) {
        if (metBackslash.find(teken) != std::string_view::npos) {
            uit.append(backslashes + 1, '\\');
        } else if (teken == '$') {
            uit += '$';
        }
        uit += teken;
        backslashes = teken == '\\' ? backslashes + 1 : 0;
    }
    return uit;
}

std::string maakAfhankelijkheden(const Plan& plan, const Opties& opties) {
    const std::set<std::string> gelezen = geefGelezenBestanden(opties);
    keurRegelbestand(*opties.afhankelijk, plan, gelezen, opties.overschrijf);
    std::string teksten;
    std::string los;
    for (const std::string& pad : gelezen) {
        const std::string naam = schrijfNaam(pad);
        teksten.append(" ").append(naam);
        // Anders houdt make op bij een bestand dat er niet meer is, ook als geen optie het nog noemt.
        los.append(naam).append(":\n");
    }
    std::string regels;
    for (const Taak& taak : geefBestanden(plan)) {
        // Wie met --uit een link noemt, noemt die ook in de makefile.
        regels.append(schrijfNaam(opties.uit.value_or(taak.doel))).append(":");
        if (taak.bron != standaardinvoer) {
            regels.append(" ").append(schrijfNaam(taak.bron));
        }
        regels.append(teksten).append("\n");
    }
    return regels + los;
}

}  // namespace cli
