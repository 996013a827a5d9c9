#pragma once

// Wat de ontleding moet opleveren, langs de rechte weg: elke regel tegen elke marker, zonder iets over te
// slaan. Ontleder wordt hiertegen gehouden.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "Knipselaar/kern/ontleding.h"

namespace orakel {

struct Ontleding {
    std::vector<kern::Blok> blokken;
    kern::Bevindingen bevindingen;
};

/// Wat er achter het laatste regeleinde van een tekst staat.
enum class Staart {
    geen,  ///< niets; de tekst is leeg of eindigt op een regeleinde
    regel  ///< nog een regel, ook als zij leeg is
};

/// @param tekst      de hele tekst in UTF-8 met "\n" als regeleinde.
/// @param hoogstens  zoveel bevindingen worden bewaard, zoals een Ontleder dat doet.
Ontleding ontleed(std::string_view tekst, Staart staart, const std::vector<kern::Markerpaar>& paren,
                  std::size_t hoogstens = kern::Ontleder::onbeperkt);

/// Wat er van een tekst uit een editor overblijft als wat de ontleding een blok noemt wegvalt.
std::string knipBlokken(std::string_view tekst, const Ontleding& ontleding, const std::string& vervanging);

/// Alle bevindingen als leesbare tekst: regel, soort en blok.
std::string toon(const std::vector<kern::Bevinding>& lijst);

/// De hele uitkomst als leesbare tekst; die van twee ontledingen is alleen gelijk als alles gelijk is.
std::string toon(const Ontleding& ontleding);

}  // namespace orakel
