#!/usr/bin/env bash
# Bouwt Knipselaar en start het. Zonder beeldscherm laat het op een virtueel beeldscherm zien wat het doet.
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$hoofdmap/scripts/gemeen.sh"

installeer "${pakketten_bouw[@]}"
zorg_voor_locale
bouw release
programma="$hoofdmap/bouw/release/Knipselaar/knipselaar"

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    als_gebruiker "$programma" || stop "het programma stopte met een fout (status $?); klopt DISPLAY=${DISPLAY:-}?"
else
    echo "Er is geen beeldscherm; hetzelfde programma wordt op een virtueel beeldscherm bediend."
    installeer "${pakketten_bediening[@]}"
    als_gebruiker "$hoofdmap/scripts/vertoon.sh" "$programma"
fi
