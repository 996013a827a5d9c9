#pragma once

// Wat geschreven is ook na stroomuitval terugvinden.

#include <string>
#include <system_error>

namespace kern {

/// Wacht tot alles wat op een bestandssysteem geschreven is op de schijf staat. Eén keer voor duizend
/// bestanden is veel sneller dan duizend keer voor één. Op Windows gebeurt er niets: daar staat een
/// buurbestand er al (zie Buurbestand::maakKlaar).
/// @param directory  een directory op dat bestandssysteem.
std::error_code zetVast(const std::string& directory);

}  // namespace kern
