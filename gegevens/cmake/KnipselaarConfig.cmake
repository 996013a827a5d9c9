# Studentversies maken als deel van een bouw, met knipselaar-cli:
#
#   find_package(Knipselaar REQUIRED)
#   knipselaar_student(DOEL student
#     BRONNEN main.c lab/ringbuffer.c lab/ringbuffer.h
#     NAAR student
#     OPTIES --streng --vervang-uit tekst.txt)
#
# DOEL wordt een doel van de bouw dat niet bij "all" hoort. Een bron met een relatief pad ligt in de brondirectory
# en houdt dat pad in NAAR; een andere bron houdt alleen haar naam. NAAR is een directory in de bouwdirectory,
# tenzij het pad absoluut is. Een bestand dat een optie noemt, ligt in de brondirectory. De instellingen van het
# venster tellen niet mee, en een bron zonder blok is in orde tenzij OPTIES "--minstens" heeft. Opnieuw gemaakt wordt
# alleen wat veranderd is: de bron zelf, een bestand dat een optie noemt, of het programma.

set(_knipselaar_reden "")
# Eerder las alleen ninja waar een bestand van afhangt.
if(CMAKE_VERSION VERSION_LESS 3.20)
  set(_knipselaar_reden "CMake 3.20 of later is nodig")
else()
  cmake_policy(VERSION 3.20...3.31)
  # Het programma van deze installatie gaat voor.
  find_program(KNIPSELAAR_CLI knipselaar-cli
    HINTS "${CMAKE_CURRENT_LIST_DIR}/../../../bin"
    DOC "Het consoleprogramma van Knipselaar"
    NO_CMAKE_FIND_ROOT_PATH)
  if(NOT KNIPSELAAR_CLI)
    set(_knipselaar_reden "knipselaar-cli is niet te vinden; wijs het aan met -DKNIPSELAAR_CLI=...")
  endif()
endif()
if(_knipselaar_reden)
  set(${CMAKE_FIND_PACKAGE_NAME}_FOUND FALSE)
  set(${CMAKE_FIND_PACKAGE_NAME}_NOT_FOUND_MESSAGE "${_knipselaar_reden}")
  return()
endif()

function(knipselaar_student)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "DOEL;NAAR" "BRONNEN;OPTIES")
  foreach(deel DOEL BRONNEN NAAR)
    if("${arg_${deel}}" STREQUAL "")
      message(FATAL_ERROR "knipselaar_student: ${deel} ontbreekt")
    endif()
  endforeach()
  if(NOT "${arg_UNPARSED_ARGUMENTS}" STREQUAL "")
    message(FATAL_ERROR "knipselaar_student: onbekend: ${arg_UNPARSED_ARGUMENTS}")
  endif()
  set(opties "")
  foreach(woord IN LISTS arg_OPTIES)
    # Een leeg woord raakt bij het maken van de opdracht weg, en dan is het volgende zijn waarde.
    if(woord STREQUAL "")
      message(FATAL_ERROR "knipselaar_student: OPTIES heeft een leeg woord; zet een lege tekst in een bestand")
    endif()
    # Een puntkomma in een tekst scheidt geen woorden.
    string(REPLACE ";" "\\;" woord "${woord}")
    list(APPEND opties "${woord}")
  endforeach()
  cmake_path(ABSOLUTE_PATH arg_NAAR BASE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}" NORMALIZE)
  # Niet in NAAR: daar hoort alleen te staan wat een student krijgt.
  set(afhankelijk "${CMAKE_CURRENT_BINARY_DIR}/CMakeFiles/${arg_DOEL}.dir")
  set(knipsels "")
  foreach(bron IN LISTS arg_BRONNEN)
    set(naam "${bron}")
    cmake_path(NORMAL_PATH naam)
    if(IS_ABSOLUTE "${naam}" OR naam MATCHES "^\\.\\./")
      cmake_path(GET naam FILENAME naam)
    endif()
    cmake_path(ABSOLUTE_PATH bron BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}" NORMALIZE)
    set(knipsel "${arg_NAAR}/${naam}")
    if(knipsel IN_LIST knipsels)
      message(FATAL_ERROR "knipselaar_student: twee bronnen zouden ${knipsel} worden; geef ze een eigen NAAR")
    endif()
    list(APPEND knipsels "${knipsel}")
    set(regels "${afhankelijk}/${naam}.d")
    cmake_path(GET knipsel PARENT_PATH map)
    cmake_path(GET regels PARENT_PATH regelmap)
    add_custom_command(OUTPUT "${knipsel}"
      COMMAND "${CMAKE_COMMAND}" -E make_directory "${map}" "${regelmap}"
      COMMAND "${KNIPSELAAR_CLI}" --zonder-instellingen --minstens 0 ${opties} --overschrijf
              --afhankelijk "${regels}" --uit "${knipsel}" -- "${bron}"
      WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}"
      DEPENDS "${bron}" "${KNIPSELAAR_CLI}"
      DEPFILE "${regels}"
      COMMENT "Studentversie van ${naam}"
      VERBATIM)
  endforeach()
  add_custom_target(${arg_DOEL} DEPENDS ${knipsels})
endfunction()
