#!/bin/bash
# Maakt het logo in een losse map opnieuw en vergelijkt het met dat van het project: de gegevens in
# gemeenschappelijk mogen niet achterlopen op de tekening. Faalt ook als rsvg-convert (pakket librsvg2-bin)
# ontbreekt, want een overgeslagen vergelijking ziet niemand.
#
# Gebruik: logoTest.sh WORTEL
set -euo pipefail

wortel=$1
command -v rsvg-convert > /dev/null || {
    echo "rsvg-convert ontbreekt; installeer librsvg2-bin" >&2
    exit 1
}

map=$(mktemp -d)
trap 'rm -rf "$map"' EXIT
mkdir "$map/gemeenschappelijk"
cp -r "$wortel/scripts" "$wortel/gegevens" "$map"

"$map/scripts/maak-logo.sh"
cmp "$map/gemeenschappelijk/qorlogo.xpm" "$wortel/gemeenschappelijk/qorlogo.xpm"
