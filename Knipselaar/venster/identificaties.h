#pragma once

// De eigen identificaties van de bediening. De waarden liggen vast: de gebeurtenistabel en de handlers
// onderscheiden er de twee editors en de twee directorykiezers mee.

enum {
    ID_ORIGINEEL = 0,
    ID_BEGINMARKER = 1,
    ID_EINDMARKER = 2,
    ID_AANGEPAST = 3,
    ID_VERVANGTEKST = 4,
    ID_BRONDIR = 5,
    ID_BESTEMMINGDIR = 6,
    ID_PARSERMODE = 7,
    ID_BESTANDTYPE = 8
};
