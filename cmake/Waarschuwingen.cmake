# De bouwregels die voor alle eigen code gelden; wie ze wil, linkt met knipselaar_regels. De waarschuwingen
# staan apart voor code waar geen sanitizer in mag.
add_library(knipselaar_waarschuwingen INTERFACE)
target_compile_options(knipselaar_waarschuwingen INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
if(KNIPSELAAR_STRENG)
  target_compile_options(knipselaar_waarschuwingen INTERFACE -Werror)
endif()

add_library(knipselaar_regels INTERFACE)
target_link_libraries(knipselaar_regels INTERFACE knipselaar_waarschuwingen)

if(KNIPSELAAR_SANITIZERS)
  target_compile_options(knipselaar_regels INTERFACE
    -fsanitize=${KNIPSELAAR_SANITIZERS} -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(knipselaar_regels INTERFACE -fsanitize=${KNIPSELAAR_SANITIZERS})
endif()

if(KNIPSELAAR_DEKKING)
  target_compile_options(knipselaar_regels INTERFACE -fprofile-instr-generate -fcoverage-mapping)
  target_link_options(knipselaar_regels INTERFACE -fprofile-instr-generate)
endif()
