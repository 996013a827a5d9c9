set(venster_systeem_bronnen
  venster/systeem/gtk/invoergreep.cpp
  venster/systeem/gtk/klik.cpp
  venster/systeem/gtk/pictogram.cpp
  venster/systeem/gtk/toegankelijkheid.cpp)
set(venster_systeem_linkt PkgConfig::GTK3)
