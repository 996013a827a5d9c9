# Twee deuren naar de toolkit: wx_venster voor alles met een scherm, wx_basis voor code die zonder moet kunnen.

# Houdt vensters buiten de code die dit linkt. Alleen PRIVATE te gebruiken: wie er zelf op bouwt, mag weer
# wel vensters hebben.
add_library(knipselaar_zonder_venster INTERFACE)
target_compile_definitions(knipselaar_zonder_venster INTERFACE wxUSE_GUI=0)

if(WIN32)
  include(${CMAKE_CURRENT_LIST_DIR}/Windows.cmake)
  return()
endif()

# De zoekmodule van CMake geeft haar uitkomst in variabelen; elke aanroep overschrijft die van
# de vorige, dus wordt zij per deur eenmaal aangeroepen en meteen in een doel vastgelegd.
macro(knipselaar_wx_doel naam)
  find_package(wxWidgets 3.2 REQUIRED COMPONENTS ${ARGN})
  add_library(${naam} INTERFACE)
  target_include_directories(${naam} SYSTEM INTERFACE ${wxWidgets_INCLUDE_DIRS})
  target_compile_definitions(${naam} INTERFACE ${wxWidgets_DEFINITIONS})
  target_compile_options(${naam} INTERFACE ${wxWidgets_CXX_FLAGS})
  target_link_directories(${naam} INTERFACE ${wxWidgets_LIBRARY_DIRS})
  target_link_libraries(${naam} INTERFACE ${wxWidgets_LIBRARIES})
endmacro()

knipselaar_wx_doel(wx_venster stc core base)
knipselaar_wx_doel(wx_basis base)

# GTK zelf, voor het weinige dat de toolkit er niet van doorgeeft: namen voor schermlezers en, in de tests, het
# Over-venster.
find_package(PkgConfig REQUIRED)
pkg_check_modules(GTK3 REQUIRED IMPORTED_TARGET gtk+-3.0)
