#include "gemeenschappelijk/systeem/slotDirectory.h"

// Niet in de home-directory, waar de toolkit het anders legt: die kan op meer machines dezelfde zijn.
wxString geefSlotDirectory() {
    return "/tmp";
}
