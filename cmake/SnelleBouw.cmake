# Bijna alle tijd van een bouw gaat naar headers van de toolkit en de tests, voor elke bron opnieuw. Met deze keuze
# vertaalt elk doel zijn bronnen in groepen, en leest het die headers één keer per groep. Een vergeten #include valt
# dan niet op, en wie één bron verandert wacht op haar groep; de bouw onder de sanitizers en die voor Windows doen het
# daarom zonder.
option(KNIPSELAAR_SNELLE_BOUW "Vertaal bronnen in groepen" OFF)

# knipselaar_bouw_snel(DOEL)
function(knipselaar_bouw_snel doel)
  if(KNIPSELAAR_SNELLE_BOUW)
    # Groter scheelt nog iets op één kern; dan staan er bij meer kernen eerder een paar stil.
    set_target_properties(${doel} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 16)
    # In een groep houdt g++ elke bron voor een header, waar een klasse met een naamloze basis verdacht is.
    target_compile_options(${doel} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
  endif()
endfunction()
