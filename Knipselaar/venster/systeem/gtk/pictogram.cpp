#include "Knipselaar/venster/systeem/pictogram.h"

// Een bureaublad vindt het pictogram bij de ingang van het programma in het startmenu.
void zetPictogram(wxTopLevelWindow& /*venster*/) {}
