#pragma once

#include "tests/hulp/omgeving.h"

/// Draait alle tests in de hoofdlus van de echte toepassing: dezelfde klasse, dezelfde start en hetzelfde
/// einde als het programma. Alleen de beweringen staan hier aan. Na InitGoogleTest, met het beeldscherm
/// klaar.
/// @param omgeving  blijft van de aanroeper, en moet er tot het einde zijn.
/// @return de afloopstatus voor main: 0 als alles goed ging.
int draaiInHoofdlus(int argc, char** argv, const hulp::Omgeving& omgeving);
