#include "gemeenschappelijk/qorlogo.h"

// Gemaakt door scripts/maak-logo.sh uit gegevens/logo.svg; wijzig de tekening, niet de gegevens.
#include "gemeenschappelijk/qorlogo.xpm"
