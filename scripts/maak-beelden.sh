#!/usr/bin/env bash
# Maakt de beelden van de handleiding opnieuw, van het echte venster. Nodig na elke wijziging die te zien is.
# Een docent herkent zijn eigen paden, niet die van deze machine: in een eigen naamruimte voor koppelpunten
# bestaat even een /home/docent.
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$hoofdmap/scripts/gemeen.sh"

installeer "${pakketten_bouw[@]}" "${pakketten_bediening[@]}" "${pakketten_schermlezer[@]}"
zorg_voor_locale
bouw release

naamruimte=(als_gebruiker unshare --user --map-root-user --mount)
"${naamruimte[@]}" true || stop "dit systeem staat een eigen naamruimte voor koppelpunten niet toe"

# Onder /home is straks alleen nog de docent te zien; alles wat nodig is gaat naar een tijdelijke directory.
kopie=$(als_gebruiker mktemp -d)
trap 'rm -rf "$kopie"' EXIT
als_gebruiker cp -r "$hoofdmap/scripts" "$hoofdmap/voorbeelden" "$hoofdmap/docs/handleiding.md" \
    "$hoofdmap/bouw/release/Knipselaar/knipselaar" "$kopie"
als_gebruiker mkdir "$kopie/beelden"
mapfile -t atspi < <(pkg-config --cflags --libs atspi-2 gobject-2.0 | xargs printf '%s\n')
stil "de schermlezer bouwt niet" \
    als_gebruiker g++ -std=c++20 -o "$kopie/schermlezer" "$hoofdmap/tests/eind/schermlezer.cpp" "${atspi[@]}"
"${naamruimte[@]}" "$kopie/scripts/neem-beelden.sh" "$kopie/knipselaar" "$kopie/beelden" "$kopie/schermlezer"
als_gebruiker mkdir -p "$hoofdmap/docs/beelden"
als_gebruiker cp "$kopie"/beelden/*.png "$hoofdmap/docs/beelden"
