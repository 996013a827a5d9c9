# De bouwregels die voor alle eigen code gelden: wie in het programma zit linkt met knipselaar_regels, wie het
# test met knipselaar_testregels. De waarschuwingen staan apart voor code waar geen sanitizer in mag.
add_library(knipselaar_waarschuwingen INTERFACE)
target_compile_options(knipselaar_waarschuwingen INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
if(KNIPSELAAR_STRENG)
  target_compile_options(knipselaar_waarschuwingen INTERFACE -Werror)
endif()

add_library(knipselaar_controles INTERFACE)
target_link_libraries(knipselaar_controles INTERFACE knipselaar_waarschuwingen)
if(KNIPSELAAR_SANITIZERS)
  target_compile_options(knipselaar_controles INTERFACE
    -fsanitize=${KNIPSELAAR_SANITIZERS} -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(knipselaar_controles INTERFACE -fsanitize=${KNIPSELAAR_SANITIZERS})
endif()

add_library(knipselaar_regels INTERFACE)
target_link_libraries(knipselaar_regels INTERFACE knipselaar_controles)

# Code die maar een paar keer loopt, is eerder vertaald dan ze sneller gemaakt is.
add_library(knipselaar_testregels INTERFACE)
target_link_libraries(knipselaar_testregels INTERFACE knipselaar_controles)
target_compile_options(knipselaar_testregels INTERFACE -O0)

if(KNIPSELAAR_DEKKING)
  # Draden tellen samen. Zonder atomair verdwijnt er dan af en toe een telling, en van een tak is de telling een
  # verschil van twee: een tak die een enkele keer doorlopen is, lijkt dan soms nooit doorlopen.
  target_compile_options(knipselaar_regels INTERFACE -fprofile-instr-generate -fcoverage-mapping
                         -fprofile-update=atomic)
  target_link_options(knipselaar_controles INTERFACE -fprofile-instr-generate)
endif()
