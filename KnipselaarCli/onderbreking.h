#pragma once

// Ctrl+C en de andere verzoeken om te stoppen. Het signaal zelf doet niets dan het onthouden; het werk kijkt
// tussen twee bestanden en na elke onderbroken systeemaanroep of het verder mag, en ruimt dus zelf op.

namespace cli {

/// Vangt SIGINT, SIGTERM en SIGHUP en negeert SIGPIPE: een lezer die stopt is een schrijffout als elke
/// andere.
void vangSignalen();

/// Of er om stoppen gevraagd is.
bool isOnderbroken();

/// Eindigt aan het signaal dat om stoppen vroeg, zodat ook de aanroeper (een shell, make) het ziet. Doet
/// niets als er geen was.
void sterfAanSignaal();

}  // namespace cli
