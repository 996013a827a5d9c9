#!/usr/bin/env bash
# Keurt de code zonder haar te gebruiken zoals een gebruiker: opmaak, cppcheck, een tweede vertaler, clang-tidy, alle
# tests onder de sanitizers, wat die tests van de code doorliepen, wat draden elkaar afpakken, en een minuut toevallige
# invoer. Elke stap zegt zelf wat eraan schort.
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$hoofdmap/scripts/gemeen.sh"
cd "$hoofdmap"

installeer "${pakketten_bouw[@]}" "${pakketten_test[@]}" "${pakketten_keur[@]}"
zorg_voor_locale

mapfile -t code < <(git ls-files '*.cpp' '*.h' ':!voorbeelden/*.cpp' ':!voorbeelden/*.h' 'voorbeelden/grafiek/*.cpp')
# Wat alleen voor Windows is, kent deze vertaler niet; windows.sh bouwt het met alle waarschuwingen aan.
mapfile -t eigen < <(git ls-files 'Knipselaar*/*.cpp' 'gemeenschappelijk/*.cpp' ':!*/systeem/windows/*' ':!*/systeem/msw/*')
mapfile -t delen < <(printf '%s\n' "${eigen[@]%%/*}" | sort -u)
taken=$(nproc)
gekeurd="$hoofdmap/bouw/sanitizers"

echo "Keuren: opmaak"
stil "clang-format wil iets anders; voer uit: clang-format -i BESTAND" clang-format --dry-run -Werror "${code[@]}"
echo "Keuren: cppcheck"
stil "cppcheck heeft een bevinding" cppcheck --quiet --enable=warning,style,performance,portability --std=c++20 \
    --inline-suppr --suppressions-list=tests/cppcheck.txt --error-exitcode=1 -I. --library=wxwidgets "${delen[@]}"
echo "Keuren: breuken"
stil "een breuk voor de tests past niet meer op de code" tests/mutatie/mutaties.py --staan
echo "Keuren: clang++"
bouw sanitizers
echo "Keuren: clang-tidy"
printf '%s\0' "${eigen[@]}" | stil "clang-tidy heeft een bevinding" als_gebruiker \
    xargs -0 -P "$taken" -n 3 clang-tidy -p "$gekeurd" --quiet
echo "Keuren: alle tests onder de sanitizers"
rm -rf "$gekeurd/dekking"
# Het pakket is zonder sanitizers gebouwd en wordt door de gewone tests gekeurd. Wie van buiten een traag programma
# bedient, krijgt een tweede kans; voor een fout die een sanitizer ziet maakt dat niets uit.
onder_sanitizers() {
    als_gebruiker ctest --preset sanitizers --parallel "$((taken + 1))" "$@"
}
stil "een test faalt onder de sanitizers" onder_sanitizers -L 'kern|venster'
stil "een test van buiten faalt onder de sanitizers" onder_sanitizers -L eind --repeat until-pass:2
mapfile -t programmas < <(find "$gekeurd" -type f -executable ! -name '*.so' ! -path '*/CMakeFiles/*' ! -path '*/bench/*')
als_gebruiker python3 "$hoofdmap/tests/dekking.py" "$hoofdmap" "$gekeurd/dekking" "${programmas[@]}"
echo "Keuren: draden"
"$hoofdmap/scripts/keur-draden.sh"
echo "Keuren: toevallige invoer"
"$hoofdmap/scripts/fuzz.sh" 60
