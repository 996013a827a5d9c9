#pragma once

// Het logo als XPM-gegevens van 223 bij 155 beeldpunten, om aan wxBitmap of wxXPMDecoder te geven. De
// gegevens zijn vast en blijven hier; wie er een bitmap van maakt, krijgt een kopie.

// De vorm van een XPM ligt vast: een kale rij van tekstregels.
// NOLINTNEXTLINE(modernize-avoid-c-arrays)
extern const char* const qorlogo[412];
