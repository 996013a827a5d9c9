#pragma once

// Een bestand de plaats van een ander geven. Paden zijn die van maakVoluit (zie breed.h).
//
// ReplaceFile van Windows doet dit met twee hernoemingen; wie daartussen wegvalt, laat op de plaats van het
// bestand niets achter. Hier gaat het met één, en neemt het nieuwe bestand eerst over wat bij het oude
// hoorde.

#include <string>
#include <system_error>

namespace kern::windows {

/// Geeft een gesloten bestand de kenmerken, het moment van ontstaan en de toegangslijst van een ander.
std::error_code neemAllesOver(const std::wstring& nieuw, const std::wstring& van);

/// Hernoemt een gesloten bestand naar een plaats waar al een gewoon bestand mag staan. Een bestand dat alleen
/// te lezen is of dat een ander open heeft, blijft staan.
std::error_code zetOpPlaats(const std::wstring& nieuw, const std::wstring& plaats);

}  // namespace kern::windows
