set(venster_systeem_bronnen
  venster/systeem/msw/invoergreep.cpp
  venster/systeem/msw/klik.cpp
  venster/systeem/msw/pictogram.cpp
  venster/systeem/msw/toegankelijkheid.cpp)
set(venster_systeem_linkt "")
