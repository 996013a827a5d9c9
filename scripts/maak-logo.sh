#!/bin/bash
# Maakt gemeenschappelijk/qorlogo.xpm opnieuw uit gegevens/logo.svg. Nodig na elke wijziging van de tekening.
# Gebruikt rsvg-convert (pakket librsvg2-bin) en python3. De laatste regel is een som over de tekening en de gegevens:
# randen tekent elke uitgave van rsvg iets anders, dus aan de kleuren alleen is niet te zien of iemand een van beide
# veranderde. Met het argument "kijk" verandert er niets en faalt het als de som niet klopt.
set -euo pipefail

wortel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
doel=$wortel/gemeenschappelijk/qorlogo.xpm

# De som bij de gegevens op de standaardinvoer.
som() { cat "$wortel/gegevens/logo.svg" "$wortel/gegevens/knipselaar.svg" - | sha256sum | cut -d ' ' -f 1; }

if [ "${1:-}" = kijk ]; then
    [ "/* $(head -n -1 "$doel" | som) */" = "$(tail -n 1 "$doel")" ] || {
        echo "$doel hoort niet bij de tekening; voer scripts/maak-logo.sh uit" >&2
        exit 1
    }
    exit
fi

nieuw=$(mktemp "$doel.XXXXXX")
trap 'rm -f "$nieuw"' EXIT

rsvg-convert --width 223 --height 155 "$wortel/gegevens/logo.svg" \
    | python3 "$wortel/scripts/pngNaarXpm.py" qorlogo > "$nieuw"
echo "/* $(som < "$nieuw") */" >> "$nieuw"

chmod 644 "$nieuw"
mv "$nieuw" "$doel"
