#pragma once

// Paden en teksten zoals Windows ze aanneemt: UTF-16, en voorbij 260 tekens alleen voluit.

#include <string>
#include <string_view>

namespace kern::windows {

/// UTF-8 als UTF-16 en terug. Wat geen geldige tekst is wordt een vervangteken.
std::wstring maakBreed(std::string_view tekst);
std::string maakSmal(std::wstring_view tekst);

/// Het hele pad, met het voorvoegsel waarmee Windows er niets meer aan leest: elke lengte mag, en "NUL" of
/// "COM1" is er een gewone naam. Een pad dat Windows zelf als apparaat leest ("NUL", "lessen\con",
/// "\\.\COM1") blijft zonder voorvoegsel; zie isApparaat. Leeg voor een leeg pad.
std::wstring maakVoluit(const std::string& pad);

/// Of een uitkomst van maakVoluit een apparaat is, of een pijp. Wie dat opent, kan er voor altijd op wachten.
bool isApparaat(std::wstring_view voluit);

/// Zonder dat voorvoegsel, zoals een mens een pad leest.
std::wstring maakLeesbaar(std::wstring voluit);

}  // namespace kern::windows
