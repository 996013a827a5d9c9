#!/usr/bin/env bash
# Keurt de code, bouwt Knipselaar met alle controles aan en voert alle tests uit. Met argumenten, die naar ctest
# gaan (zoals -L kern), alleen die tests.
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$hoofdmap/scripts/gemeen.sh"

installeer "${pakketten_bouw[@]}" "${pakketten_test[@]}" "${pakketten_pakket[@]}" "${pakketten_keur_pakket[@]}"
zorg_voor_locale
[ $# -gt 0 ] || "$hoofdmap/scripts/keur.sh"
bouw debug
# Een test wacht vooral op vensters; met één meer dan er kernen zijn staat er geen stil.
als_gebruiker ctest --preset debug --parallel "$(($(nproc) + 1))" "$@"
