set(gemeenschappelijk_systeem_bronnen systeem/msw/overPlaatje.cpp systeem/msw/slotDirectory.cpp)
set(gemeenschappelijk_systeem_linkt "")
