# Wat alleen bij een bouw voor Windows hoort: de toolkit zoals scripts/toolkit-windows.sh hem klaarlegt, programma's
# die geen andere DLL's nodig hebben dan die van Windows zelf, en hun hulpbronnen.
set(KNIPSELAAR_TOOLKIT "" CACHE PATH "Waar scripts/toolkit-windows.sh de toolkit klaarlegde")
set(toolkit_lib ${KNIPSELAAR_TOOLKIT}/lib/gcc_x64_lib)
if(NOT EXISTS ${toolkit_lib}/mswu/wx/setup.h)
  message(FATAL_ERROR "KNIPSELAAR_TOOLKIT wijst geen toolkit voor Windows aan; bouw met ./windows.sh")
endif()
enable_language(RC)

# Alles in één directory: daar zoekt een programma onder Windows wat bij hem hoort.
set(CMAKE_INSTALL_BINDIR .)
set(docmap handleiding)
set(voorbeeldmap voorbeelden)
install(FILES ${KNIPSELAAR_TOOLKIT}/nl/wxstd.mo DESTINATION nl)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION . RENAME LICENSE.txt)

# Windows 10; zonder NOMINMAX zijn min en max er macro's.
add_library(wx_basis INTERFACE)
target_include_directories(wx_basis SYSTEM INTERFACE ${toolkit_lib}/mswu ${KNIPSELAAR_TOOLKIT}/include)
target_compile_definitions(wx_basis INTERFACE
  __WXMSW__ UNICODE _UNICODE NOMINMAX WINVER=0x0A00 _WIN32_WINNT=0x0A00)
target_link_directories(wx_basis INTERFACE ${toolkit_lib})
set(van_windows kernel32 user32 gdi32 gdiplus msimg32 comdlg32 winspool winmm shell32 shlwapi comctl32 ole32 oleaut32
    uuid rpcrt4 advapi32 version ws2_32 wininet oleacc uxtheme imm32)
target_link_libraries(wx_basis INTERFACE wxbase32u wxregexu ${van_windows})

add_library(wx_venster INTERFACE)
target_link_libraries(wx_venster INTERFACE wxmsw32u_stc wxmsw32u_core wxbase32u wxscintilla wx_basis)

# Waar de bron staat en hoe laat het is, komt niet in een programma: dezelfde bron geeft dezelfde bytes.
target_compile_options(knipselaar_controles INTERFACE
  $<$<COMPILE_LANGUAGE:CXX>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>
  $<$<COMPILE_LANGUAGE:CXX>:-ffile-prefix-map=${PROJECT_BINARY_DIR}=bouw>
  $<$<COMPILE_LANGUAGE:CXX>:-ffile-prefix-map=${KNIPSELAAR_TOOLKIT}=toolkit>)
target_link_options(knipselaar_controles INTERFACE -static -s -Wl,--gc-sections -Wl,--no-insert-timestamp)

# Geeft een programma pictogram, uitgave en manifest. Met een venster ook wat de toolkit zelf gebruikt.
set(pictogram ${PROJECT_BINARY_DIR}/gegevens/knipselaar.ico)
function(knipselaar_hulpbronnen naam beschrijving)
  set(toolkit_hulpbronnen "")
  get_target_property(met_venster ${naam} WIN32_EXECUTABLE)
  if(met_venster)
    # Het manifest is van ons.
    set(toolkit_hulpbronnen "#define wxUSE_NO_MANIFEST 1\n#include \"wx/msw/wx.rc\"")
  endif()
  set(rc ${CMAKE_CURRENT_BINARY_DIR}/${naam}.rc)
  configure_file(${PROJECT_SOURCE_DIR}/gegevens/windows/hulpbronnen.rc.in ${rc} @ONLY)
  set_source_files_properties(${rc} PROPERTIES
    OBJECT_DEPENDS "${pictogram};${PROJECT_SOURCE_DIR}/gegevens/windows/knipselaar.manifest")
  target_sources(${naam} PRIVATE ${rc})
endfunction()
