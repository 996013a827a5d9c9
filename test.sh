#!/usr/bin/env bash
# Bouwt Knipselaar met alle controles aan en voert alle tests uit. Argumenten gaan naar ctest: -L kern voert alleen die
# tests uit. Wat dieper kijkt staat in scripts/keur.sh.
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$hoofdmap/scripts/gemeen.sh"

installeer "${pakketten_bouw[@]}" "${pakketten_test[@]}" "${pakketten_pakket[@]}" "${pakketten_keur_pakket[@]}"
zorg_voor_locale
bouw debug
# Een test wacht vooral op vensters; met één meer dan er kernen zijn staat er geen stil.
als_gebruiker ctest --preset debug --parallel "$(($(nproc) + 1))" "$@"
