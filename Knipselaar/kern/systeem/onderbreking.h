#pragma once

// Ctrl+C en de andere verzoeken om te stoppen. Het verzoek zelf wordt alleen onthouden; het werk kijkt tussen
// twee bestanden en na elke onderbroken systeemaanroep of het verder mag, en ruimt dus zelf op.

namespace kern {

/// Vangt voortaan de verzoeken om te stoppen. Een lezer die stopt is voortaan een schrijffout als elke
/// andere.
void vangOnderbreking();

/// Of er om stoppen gevraagd is.
bool isOnderbroken();

/// Eindigt zoals een programma eindigt dat het verzoek niet vangt, zodat ook de aanroeper (een shell, make)
/// het ziet. Doet niets als er geen was.
void sterfAanOnderbreking();

}  // namespace kern
