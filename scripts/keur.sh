#!/usr/bin/env bash
# Keurt de code zonder haar te gebruiken zoals een gebruiker: opmaak, clang-tidy, cppcheck, een tweede vertaler, de
# tests onder de sanitizers, en een minuut toevallige invoer. Elke stap zegt zelf wat eraan schort.
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$hoofdmap/scripts/gemeen.sh"
cd "$hoofdmap"

installeer "${pakketten_bouw[@]}" "${pakketten_test[@]}" clang clang-format clang-tidy cppcheck libbenchmark-dev
zorg_voor_locale

mapfile -t code < <(git ls-files '*.cpp' '*.h' ':!voorbeelden/*.cpp' ':!voorbeelden/*.h' 'voorbeelden/grafiek/*.cpp')
mapfile -t eigen < <(git ls-files 'Knipselaar/*.cpp' 'gemeenschappelijk/*.cpp')
taken=$(nproc)

echo "Keuren: opmaak"
stil "clang-format wil iets anders; voer uit: clang-format -i BESTAND" clang-format --dry-run -Werror "${code[@]}"
echo "Keuren: cppcheck"
stil "cppcheck heeft een bevinding" cppcheck --quiet --enable=warning,style,performance,portability --std=c++20 \
    --inline-suppr --suppressions-list=tests/cppcheck.txt --error-exitcode=1 -I. --library=wxwidgets \
    Knipselaar gemeenschappelijk
echo "Keuren: clang++"
bouw clang
echo "Keuren: clang-tidy"
printf '%s\n' "${eigen[@]}" | stil "clang-tidy heeft een bevinding" als_gebruiker \
    xargs -P "$taken" -n 1 clang-tidy -p bouw/clang --quiet
echo "Keuren: sanitizers"
bouw sanitizers
stil "een test faalt onder de sanitizers" als_gebruiker ctest --preset sanitizers --parallel "$((taken + 1))" \
    -L 'kern|venster'
echo "Keuren: toevallige invoer"
"$hoofdmap/scripts/fuzz.sh" 60
