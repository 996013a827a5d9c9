set(gemeenschappelijk_systeem_bronnen systeem/gtk/overPlaatje.cpp)
set(gemeenschappelijk_systeem_linkt PkgConfig::GTK3)
