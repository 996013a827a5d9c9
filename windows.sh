#!/usr/bin/env bash
# Maakt op Debian van Knipselaar een programma voor Windows 10 en later, 64 bits: knipselaar-1.0-setup.exe en een zip
# met hetzelfde. Beproeft ze daarna met wine. Argument: de directory waar ze komen (standaard deze).
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$hoofdmap/scripts/gemeen.sh"
doel=$(realpath -- "${1:-$hoofdmap}")

installeer "${pakketten_windows[@]}" "${pakketten_bouw[@]}" "${pakketten_test[@]}"
zorg_voor_locale
toolkit=$(als_gebruiker "$hoofdmap/scripts/toolkit-windows.sh")
bouw windows -D KNIPSELAAR_TOOLKIT="$toolkit"
# Met de tijd van de laatste commit als enige tijd geeft dezelfde boom altijd dezelfde bytes.
tijd=$(als_gebruiker git -C "$hoofdmap" -c safe.directory="$hoofdmap" log -1 --format=%ct) ||
    stop "$hoofdmap is geen kloon van git"
als_gebruiker env SOURCE_DATE_EPOCH="$tijd" "$hoofdmap/scripts/pakket-windows.sh" "$hoofdmap/bouw/windows" "$doel"
# Om de uitkomsten mee te vergelijken, en de tests van het consoleprogramma.
bouw release
stil "configureren lukt niet" als_gebruiker cmake --preset debug
stil "de tests zijn niet te bouwen" als_gebruiker cmake --build --preset debug --target cli_tests
als_gebruiker "$hoofdmap/scripts/keur-windows.sh" "$hoofdmap/bouw/windows" "$hoofdmap/bouw/release" \
    "$hoofdmap/bouw/debug/tests/cli/cli_tests" "$doel"
