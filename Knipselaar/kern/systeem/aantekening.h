#pragma once

// Een aantekening bij een bestand, naast de inhoud, waar het bestandssysteem die bewaart.

#include <string>
#include <string_view>

namespace kern {

/// Tekent iets aan bij een open bestand, in plaats van wat er stond. Verandert inhoud en tijd van het bestand
/// niet. Kan het niet, dan gebeurt er niets.
void tekenAan(int kanaal, std::string_view tekst);

/// Wat er bij een bestand aangetekend is; een link wordt niet gevolgd. Leeg als er niets is, of meer dan
/// tekenAan ooit schrijft.
std::string leesAantekening(const std::string& pad);

}  // namespace kern
