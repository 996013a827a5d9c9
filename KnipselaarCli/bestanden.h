#pragma once

// Bestanden lezen en schrijven zonder iets half achter te laten. Namen zijn de bytes van het bestandssysteem,
// in welke codering ook. Wat niet lukt gooit Fout, met de naam en de reden.

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "Knipselaar/kern/bytes.h"
#include "Knipselaar/kern/systeem/verlies.h"

namespace cli {

/// De naam waaronder de standaardinvoer genoemd wordt.
inline constexpr std::string_view standaardinvoer = "-";

/// Wie stukken bytes aanneemt; ze zijn alleen tijdens de aanroep geldig.
using Ontvanger = std::function<void(std::string_view)>;

/// Wie stukken bytes op volgorde aan een ontvanger geeft.
using Stukken = std::function<void(const Ontvanger&)>;

struct Inhoud {
    kern::Bytes bytes;
    std::filesystem::perms rechten{};  ///< rwx voor eigenaar, groep en anderen
};

/// Leest een gewoon bestand, of de standaardinvoer.
Inhoud leesInhoud(const std::string& pad);

/// Leest een tekst die de gebruiker als optie noemt: een bestand, de standaardinvoer, of een pijp van de shell.
kern::Bytes leesStroom(const std::string& pad);

/// Wat voor run een bestand schreef; een bestand van dezelfde soort mag zonder vragen vernieuwd worden.
enum class Uitvoersoort { bestand, directory, boom };

/// Schrijft een nieuw bestand, of vervangt er een in één keer: op elk moment staat er het oude of het nieuwe.
/// Tekent er waar het bestandssysteem dat toelaat bij aan dat het uitvoer is.
/// @param rechten  van de bron; het masker van de gebruiker gaat eraf.
void schrijfUitvoer(const std::string& pad, const Stukken& stukken, std::filesystem::perms rechten,
                    Uitvoersoort soort);

/// Of dit gewone bestand nog precies is wat een eerdere run van deze soort schreef. Niet als het
/// bestandssysteem geen aantekening bewaart.
bool isEerdereUitvoer(const std::string& pad, Uitvoersoort soort);

/// Vervangt de inhoud van een bestand zoals het venster dat in een boom doet; een link blijft een link.
/// @return  wat het bestand daarbij niet kon houden.
kern::Verlies vervangTerPlaatse(const std::string& pad, const Stukken& stukken);

/// Schrijft alles naar een open kanaal. Gooit Fout met alleen de reden.
void schrijfAlles(int kanaal, const Stukken& stukken);

}  // namespace cli
