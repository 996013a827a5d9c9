#!/usr/bin/env bash
# Maakt van wat git van deze boom kent een Debianpakket. Argument: de directory waar het komt (standaard deze).
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$hoofdmap/scripts/gemeen.sh"
doel=$(realpath -- "${1:-$hoofdmap}")

# De boom kan van een ander zijn dan wie hem bouwt; git wil dat weten.
in_git() { als_gebruiker git -C "$hoofdmap" -c safe.directory="$hoofdmap" "$@"; }

installeer "${pakketten_bouw[@]}" "${pakketten_pakket[@]}"
# Met de tijd van de laatste commit als enige tijd geeft dezelfde boom altijd hetzelfde pakket, byte voor byte.
tijd=$(in_git log -1 --format=%ct) || stop "$hoofdmap is geen kloon van git"

# Niet in de boom zelf: met een spatie in zijn pad zou het programma onthouden waar het gebouwd is.
werk=$(als_gebruiker mktemp -d)
trap 'rm -rf "$werk"' EXIT
bron="$werk/knipselaar"
als_gebruiker mkdir -p "$bron" "$doel"
in_git ls-files -z |
    als_gebruiker tar --create --directory="$hoofdmap" --null --files-from=- --mtime="@$tijd" |
    als_gebruiker tar --extract --directory="$bron"
cd "$bron"
echo "Pakket bouwen, dat duurt een minuut"
# Zonder -g: wat een debugger wil weten gaat er toch weer uit, en kost een zevende van de bouw.
stil "het pakket is niet te bouwen" als_gebruiker env SOURCE_DATE_EPOCH="$tijd" \
    DEB_BUILD_OPTIONS="noautodbgsym parallel=$(nproc)" DEB_CXXFLAGS_STRIP=-g \
    dpkg-buildpackage --build=binary --no-sign
als_gebruiker cp "$werk"/knipselaar_*.deb "$doel"
for pakket in "$werk"/knipselaar_*.deb; do
    echo "$doel/$(basename "$pakket")"
done
