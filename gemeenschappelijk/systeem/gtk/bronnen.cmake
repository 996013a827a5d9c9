set(gemeenschappelijk_systeem_bronnen systeem/gtk/overPlaatje.cpp systeem/gtk/slotDirectory.cpp)
set(gemeenschappelijk_systeem_linkt PkgConfig::GTK3)
