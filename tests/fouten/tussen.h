#pragma once

// Wat een bron nodig heeft die met LD_PRELOAD tussen een programma en het systeem in gaat staan.

#include <dlfcn.h>
#include <sys/types.h>

namespace fouten {

/// De aanroep van het systeem zelf.
template <typename Functie>
Functie* zoek(const char* naam) {
    return reinterpret_cast<Functie*>(dlsym(RTLD_NEXT, naam));
}

/// Wat er bij open en open64 gebeurt; elke bron heeft haar eigen.
/// @param naam      van de aanroep.
/// @param rechten   alleen zinvol als er een bestand gemaakt kan worden.
int doeOpen(const char* naam, const char* pad, int vlaggen, mode_t rechten);

/// Opent echt.
inline int openEcht(const char* naam, const char* pad, int vlaggen, mode_t rechten) {
    return zoek<int(const char*, int, ...)>(naam)(pad, vlaggen, rechten);
}

}  // namespace fouten
