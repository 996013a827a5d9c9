# Bijna alle tijd van een bouw gaat naar headers van de toolkit en de tests, voor elke bron opnieuw. Met deze keuze
# vertaalt elk doel ze één keer. Een vergeten #include valt dan niet op; de bouw onder de sanitizers en die
# voor Windows doen het daarom zonder.
option(KNIPSELAAR_VOORVERTAALD "Vertaal headers van anderen één keer voor elk doel" OFF)

# knipselaar_voorvertaal(DOEL HEADER...): headers van anderen die bijna elke bron van het doel leest.
function(knipselaar_voorvertaal doel)
  if(KNIPSELAAR_VOORVERTAALD)
    target_precompile_headers(${doel} PRIVATE ${ARGN} <algorithm> <filesystem> <functional> <string> <vector>)
    # Zonder dit kan een tussengeheugen van de vertaler er niet mee overweg.
    target_compile_options(${doel} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
  endif()
endfunction()
