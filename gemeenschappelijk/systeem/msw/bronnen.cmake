set(gemeenschappelijk_systeem_bronnen systeem/msw/overPlaatje.cpp)
set(gemeenschappelijk_systeem_linkt "")
