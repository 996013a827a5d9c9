#pragma once

// Bestanden lezen en schrijven zonder iets half achter te laten. Namen zijn de bytes van het bestandssysteem,
// in welke codering ook. Wat niet lukt gooit Fout, met de naam en de reden.

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "Knipselaar/kern/bytes.h"
#include "Knipselaar/kern/systeem/buurbestand.h"
#include "Knipselaar/kern/systeem/kenmerken.h"
#include "Knipselaar/kern/systeem/verlies.h"

namespace cli {

/// De naam waaronder de standaardinvoer genoemd wordt.
inline constexpr std::string_view standaardinvoer = "-";

/// Van een bestand dat geen bron heeft; wat de gebruiker zijn bestanden nooit geeft gaat eraf.
inline constexpr std::filesystem::perms gewoneRechten =
    std::filesystem::perms::owner_read | std::filesystem::perms::owner_write |
    std::filesystem::perms::group_read | std::filesystem::perms::group_write |
    std::filesystem::perms::others_read | std::filesystem::perms::others_write;

/// Wie stukken bytes aanneemt; ze zijn alleen tijdens de aanroep geldig.
using Ontvanger = std::function<void(std::string_view)>;

/// Wie stukken bytes op volgorde aan een ontvanger geeft.
using Stukken = std::function<void(const Ontvanger&)>;

struct Inhoud {
    kern::Bytes bytes;
    kern::Kenmerken kenmerken;  ///< van het open bestand; van de standaardinvoer alleen de rechten
};

/// Leest een gewoon bestand, of de standaardinvoer.
Inhoud leesInhoud(const std::string& pad);

/// Leest een tekst die de gebruiker als optie noemt: een bestand, de standaardinvoer, of een pijp van de
/// shell.
kern::Bytes leesStroom(const std::string& pad);

/// Wat voor run een bestand schreef; een bestand van dezelfde soort mag zonder vragen vernieuwd worden.
enum class Uitvoersoort { bestand, directory, boom };

/// Schrijft een nieuw bestand, of vervangt er een in één keer: op elk moment staat er het oude of het nieuwe.
/// Tekent er waar het bestandssysteem dat toelaat bij aan dat het uitvoer is.
/// @param rechten  van de bron; het masker van de gebruiker gaat eraf.
void schrijfUitvoer(const std::string& pad, const Stukken& stukken, std::filesystem::perms rechten,
                    Uitvoersoort soort);

enum class Uitvoerstand : std::uint8_t {
    geen,       ///< geen uitvoer van zo'n run, of het bestandssysteem bewaart geen aantekening
    veranderd,  ///< wel, maar er is daarna in geschreven
    eerder      ///< nog precies wat die run schreef
};

/// Of een run van deze soort dit gewone bestand schreef.
Uitvoerstand keurUitvoer(const std::string& pad, Uitvoersoort soort);

/// Of dit gewone bestand nog precies is wat een eerdere run van deze soort schreef.
bool isEerdereUitvoer(const std::string& pad, Uitvoersoort soort);

/// De nieuwe inhoud van een bestand, klaar om zijn plaats in te nemen. Wat zijn plaats niet kreeg, verdwijnt
/// met dit object.
class Klaargezet {
  public:
    /// Schrijft de inhoud in een bestand ernaast. Gooit Fout; het bestand blijft dan zoals het is.
    /// @param pad      zoals het in meldingen staat.
    /// @param echt     het pad zonder links; zo blijft een link een link.
    /// @param gelezen  van het bestand toen het gelezen werd.
    Klaargezet(std::string pad, const std::string& echt, const kern::Kenmerken& gelezen,
               const Stukken& stukken);

    /// Het bestandssysteem waar het op staat, en een directory daarop.
    std::uint64_t geefSchijf() const { return gelezen_.schijf; }
    std::string geefDirectory() const;

    /// Gooit Fout als het bestand intussen veranderd is.
    void keur() const;

    /// Neemt de plaats van het bestand in. Gooit Fout als dat niet lukt, of als het bestand intussen
    /// veranderd is.
    void vervang();

    /// Wat het bestand daarbij niet kan houden.
    const kern::Verlies& geefVerlies() const { return nieuw_.geefVerlies(); }

  private:
    std::string pad_;
    std::string echt_;
    kern::Kenmerken gelezen_;
    kern::Buurbestand nieuw_;
};

/// Schrijft alles naar een open kanaal. Gooit Fout met alleen de reden.
void schrijfAlles(int kanaal, const Stukken& stukken);

}  // namespace cli
