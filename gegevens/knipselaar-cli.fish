# Aanvulling van knipselaar-cli in fish.

# Waar het heen gaat
complete -c knipselaar-cli -s u -l uit -r -F -d 'schrijf het knipsel naar dit bestand'
complete -c knipselaar-cli -s n -l naar -x -a '(__fish_complete_directories)' -d 'schrijf de knipsels onder dezelfde naam in deze directory'
complete -c knipselaar-cli -s t -l ter-plaatse -d 'vervang elk bestand door zijn knipsel'
complete -c knipselaar-cli -s r -l recursief -d 'ga een directory helemaal af; met --naar gaan alle andere bestanden mee'
complete -c knipselaar-cli -s f -l overschrijf -d 'vervang ook bestemmingen die geen eerdere uitvoer zijn'
complete -c knipselaar-cli -l spiegel -d 'ruim bij --naar op wat een eerdere run maakte en geen bron meer maakt'
complete -c knipselaar-cli -l alles-of-niets -d 'laat bij --ter-plaatse elk bestand zoals het is als er ook maar iets misgaat'

# Welke bestanden
complete -c knipselaar-cli -s k -l keuze -x -a 'talen vhdl alles' -d 'wat in een directory geknipt wordt: talen (standaard), vhdl of alles'
complete -c knipselaar-cli -s m -l masker -x -d 'knip in een directory wat op dit masker past, zoals \'*.c\'; mag vaker'
complete -c knipselaar-cli -s w -l weglaten -x -d 'laat in een directory weg wat op dit masker past; mag vaker'
complete -c knipselaar-cli -l weglaten-uit -r -F -d 'lees zulke maskers uit een bestand, op elke regel één'
complete -c knipselaar-cli -s x -l verborgen -d 'neem verborgen bestanden en directories mee'
complete -c knipselaar-cli -l versiebeheer -d 'neem directories als .git mee'

# Wat er weggaat
complete -c knipselaar-cli -s b -l begin -x -d 'de beginmarker; mag vaker, met elk een --eind'
complete -c knipselaar-cli -s e -l eind -x -d 'de eindmarker'
complete -c knipselaar-cli -l markers-uit -r -F -d 'lees markers uit een bestand: om de regel een begin en een eind'
complete -c knipselaar-cli -s l -l letterlijk -d '"*" en "?" in een marker zijn gewone tekens'
complete -c knipselaar-cli -s z -l zonder-instellingen -d 'lees de instellingen van het venster niet'

# Wat ervoor in de plaats komt
complete -c knipselaar-cli -s v -l vervang -x -d 'de vervangtekst, voor elke taal'
complete -c knipselaar-cli -l vervang-uit -r -F -d 'lees de vervangtekst uit een bestand'
complete -c knipselaar-cli -l vervang-c -x -d 'de vervangtekst voor .c, .cpp en .h'
complete -c knipselaar-cli -l vervang-c-uit -r -F -d 'hetzelfde uit een bestand'
complete -c knipselaar-cli -l vervang-vhdl -x -d 'de vervangtekst voor .vhd en .vhdl'
complete -c knipselaar-cli -l vervang-vhdl-uit -r -F -d 'hetzelfde uit een bestand'
complete -c knipselaar-cli -l vervang-overig -x -d 'de vervangtekst voor alle andere bestanden'
complete -c knipselaar-cli -l vervang-overig-uit -r -F -d 'hetzelfde uit een bestand'
complete -c knipselaar-cli -s T -l taal -x -a 'c vhdl overig' -d 'doe of elk bestand in deze taal is: c, vhdl of overig'
complete -c knipselaar-cli -s G -l geef -x -d 'geef in een blok de regels die hiermee beginnen, zonder PREFIX, in plaats van de vervangtekst; mag vaker'

# Hoe het eruit komt
complete -c knipselaar-cli -s M -l maak -x -a 'student oplossing' -d 'welke versie: student (standaard), of oplossing, die alleen de markers kwijt is'
complete -c knipselaar-cli -l houd -x -d 'haal van dit markerpaar alleen de markers weg; het eerste paar is 1; mag vaker'
complete -c knipselaar-cli -s g -l getrouw -d 'buiten de blokken blijft elke byte staan (standaard)'
complete -c knipselaar-cli -s a -l als-venster -d 'schrijf UTF-8 met LF en een extra laatste regel, zoals het venster'
complete -c knipselaar-cli -s i -l inspringen -d 'de vervangtekst springt in zoals de beginmarker'
complete -c knipselaar-cli -l regels-gelijk -d 'houd met lege regels elke regel op het nummer dat zij in de bron heeft'

# Nakijken vooraf
complete -c knipselaar-cli -s c -l controle -d 'kijk alleen de markers na'
complete -c knipselaar-cli -s s -l streng -d 'een waarschuwing is een fout'
complete -c knipselaar-cli -l minstens -x -d 'minder blokken in de hele run is een fout'
complete -c knipselaar-cli -s d -l droog -d 'zeg per bestand wat er zou gebeuren en schrijf niets'
complete -c knipselaar-cli -s D -l verschil -d 'toon het verschil zoals "patch" het neemt en schrijf niets'

# Nakijken achteraf
complete -c knipselaar-cli -s p -l bewijs -d 'lees de bestemming na en meld elke markerregel en weggelaten regel'
complete -c knipselaar-cli -s L -l bewijs-lengte -x -d 'let op weggelaten regels die langer zijn dan dit (standaard 10 tekens)'
complete -c knipselaar-cli -l bewijs-toegestaan -r -F -d 'lees uit een bestand regels die in de bestemming mogen staan'
complete -c knipselaar-cli -s P -l probeer -x -d 'voer dit voor elk geknipt bestand uit, met zijn naam voor {}; mislukt het, dan is dat een fout'

# Verslag en gedrag
complete -c knipselaar-cli -s q -l stil -d 'meld alleen fouten'
complete -c knipselaar-cli -s j -l json -d 'geef het verslag als JSON'
complete -c knipselaar-cli -l afhankelijk -r -F -d 'schrijf voor make en ninja op van welke bestanden de knipsels afhangen'
complete -c knipselaar-cli -s o -l opties -r -F -d 'lees opties uit een bestand, op elke regel één; mag vaker'
complete -c knipselaar-cli -s J -l taken -x -d 'zoveel bestanden tegelijk (standaard wat de machine aankan)'
complete -c knipselaar-cli -s h -l help -d 'toon deze hulp'
complete -c knipselaar-cli -s V -l versie -d 'toon de versie'
