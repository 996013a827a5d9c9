#include "gemeenschappelijk/overPlaatje.h"

// Het Over-venster van Windows laat zonder pictogram geen plaatje zien.
void verbergPlaatje() {}
