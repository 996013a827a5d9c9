#include "gemeenschappelijk/systeem/slotDirectory.h"

// Het slot van Windows heeft alleen een naam.
wxString geefSlotDirectory() {
    return {};
}
