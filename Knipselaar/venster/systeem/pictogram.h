#pragma once

// Het pictogram van een venster.

class wxTopLevelWindow;

/// Geeft een venster het pictogram van het programma, waar het systeem dat niet zelf aan het programma kent.
void zetPictogram(wxTopLevelWindow& venster);
