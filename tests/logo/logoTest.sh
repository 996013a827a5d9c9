#!/bin/bash
# De gegevens van het logo in gemeenschappelijk mogen niet achterlopen op de tekening en niet met de hand veranderd
# zijn: hun som klopt, en wie ze in een losse map opnieuw maakt krijgt hetzelfde beeld, op wat elke uitgave van rsvg
# anders doet met randen na. Faalt ook als rsvg-convert (pakket librsvg2-bin) of compare (pakket imagemagick)
# ontbreekt, want een overgeslagen vergelijking ziet niemand.
#
# Gebruik: logoTest.sh WORTEL
set -euo pipefail

wortel=$1
for nodig in rsvg-convert compare; do
    command -v "$nodig" > /dev/null || {
        echo "$nodig ontbreekt" >&2
        exit 1
    }
done

"$wortel/scripts/maak-logo.sh" kijk

map=$(mktemp -d)
trap 'rm -rf "$map"' EXIT
mkdir "$map/gemeenschappelijk"
cp -r "$wortel/scripts" "$wortel/gegevens" "$map"
"$map/scripts/maak-logo.sh"
"$map/scripts/maak-logo.sh" kijk

# Het gemiddelde verschil van een punt, als deel van zwart tot wit. Het staat tussen haakjes.
verschil=$(compare -metric MAE "$map/gemeenschappelijk/qorlogo.xpm" "$wortel/gemeenschappelijk/qorlogo.xpm" null: 2>&1) ||
    true
awk -F '[()]' '{ exit !(NF == 3 && $2 + 0 < 0.005) }' <<< "$verschil" || {
    echo "het logo is een ander beeld dan de tekening: $verschil" >&2
    exit 1
}
