# De bouwregels die voor alle eigen code gelden; wie ze wil, linkt met knipselaar_regels.
add_library(knipselaar_regels INTERFACE)
target_compile_options(knipselaar_regels INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
if(KNIPSELAAR_STRENG)
  target_compile_options(knipselaar_regels INTERFACE -Werror)
endif()

if(KNIPSELAAR_SANITIZERS)
  target_compile_options(knipselaar_regels INTERFACE
    -fsanitize=${KNIPSELAAR_SANITIZERS} -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(knipselaar_regels INTERFACE -fsanitize=${KNIPSELAAR_SANITIZERS})
endif()
