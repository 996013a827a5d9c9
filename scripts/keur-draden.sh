#!/usr/bin/env bash
# Voert de tests van het consoleprogramma uit onder ThreadSanitizer: alleen dat heeft meer draden. Een wedloop is een
# fout, ook als de test er niets van merkte; waar hij zit staat in de uitvoer van die test.
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Op een kernel die adressen ruimer verspreidt dan ThreadSanitizer aankan, start geen enkel programma. Waar verspreiden
# uit te zetten is, gaat dat uit; de tests starten ook al bij het bouwen.
if [ -z "${ZONDER_SPREIDING:-}" ] && setarch --addr-no-randomize true 2>/dev/null; then
    ZONDER_SPREIDING=ja exec setarch --addr-no-randomize "${BASH_SOURCE[0]}" "$@"
fi
. "$hoofdmap/scripts/gemeen.sh"
cd "$hoofdmap"

installeer "${pakketten_bouw[@]}" "${pakketten_test[@]}" "${pakketten_keur[@]}"
zorg_voor_locale
bouw draden
# De installatie, ook die voor de tests met CMake, legt een venster neer dat hier niet gebouwd wordt.
stil "draden zitten elkaar in de weg, of een test faalt onder ThreadSanitizer" als_gebruiker \
    ctest --preset draden --parallel "$(nproc)" -R '^kern[.]cli[.]' -E 'DeInstallatieZetAllesNeer|CliCMake'
