#!/bin/bash
# Maakt gemeenschappelijk/qorlogo.xpm opnieuw uit gegevens/logo.svg. Nodig na elke wijziging van de tekening;
# zonder wijziging blijft het bestand gelijk. Gebruikt rsvg-convert (pakket librsvg2-bin) en python3.
set -euo pipefail

wortel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
doel=$wortel/gemeenschappelijk/qorlogo.xpm
nieuw=$(mktemp "$doel.XXXXXX")
trap 'rm -f "$nieuw"' EXIT

rsvg-convert --width 223 --height 155 "$wortel/gegevens/logo.svg" \
    | python3 "$wortel/scripts/pngNaarXpm.py" qorlogo > "$nieuw"

chmod 644 "$nieuw"
mv "$nieuw" "$doel"
