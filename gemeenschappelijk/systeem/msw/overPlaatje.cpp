#include "gemeenschappelijk/systeem/overPlaatje.h"

// Het Over-venster van Windows laat zonder pictogram geen plaatje zien.
void verbergPlaatje() {}
