#pragma once

// De handleiding als testgegevens: de blokken met voorbeelden die erin staan. Achter de taal van een blok
// staat wat het is; een lezer ziet dat niet.
//
//   bron                     een bestand om te knippen
//   resultaat [batch|gelijk] wat de editorvariant van de laatste bron maakt, de bestandsvariant, of de
//                            bestandsvariant met bron en doel gelijk
//   begin, eind, vervang     een tekst die voor de eerstvolgende bron geldt
//   vervang vast             de vervangingstekst voor alle bronnen erna
//   vervang gcc|g++|ghdl     een vervangingstekst waar deze vertalers op stoppen
//   logboek                  het verslag van een batch
//   ... bytes                de regeleinden van het blok tellen niet; \n, \r en \xHH staan voor een byte

#include <filesystem>
#include <string>
#include <vector>

namespace hulp {

struct HandleidingBlok {
    int regel;                       ///< regelnummer van de eerste regel van de inhoud
    std::vector<std::string> soort;  ///< de woorden achter de taal
    std::string inhoud;              ///< met elk regeleinde, of de bytes die er staan

    /// Of een woord achter de taal staat, zoals "bron".
    bool is(const std::string& woord) const;
};

/// Alle blokken met een soort, op volgorde.
std::vector<HandleidingBlok> leesBlokken(const std::filesystem::path& handleiding);

}  // namespace hulp
