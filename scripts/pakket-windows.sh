#!/usr/bin/env bash
# Maakt van een bouw voor Windows wat een gebruiker ophaalt: knipselaar-1.0-setup.exe en knipselaar-1.0-windows.zip.
# Gebruik: pakket-windows.sh BOUWMAP DOEL
# Dezelfde bouw geeft dezelfde bytes: alle bestanden krijgen de tijd van SOURCE_DATE_EPOCH en staan op naam.
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$hoofdmap/scripts/gemeen.sh"
bouwmap=${1:?}
doel=$(realpath -- "${2:?}")
: "${SOURCE_DATE_EPOCH:?}"
export LC_ALL=C TZ=UTC

versie=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$bouwmap/CMakeCache.txt")
naam="knipselaar-$versie"
werk=$(mktemp -d)
trap 'rm -rf "$werk"' EXIT
inhoud="$werk/$naam"

leg_klaar() {
    stil "de bestanden zijn niet klaar te leggen" cmake --install "$bouwmap" --prefix "$inhoud"
    find "$inhoud" -type f -exec chmod 644 {} +
    find "$inhoud" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +
}

# Wat er in de directory ligt, als opdrachten voor het installatieprogramma. Weghalen gaat van diep naar ondiep.
schrijf_lijsten() {
    local pad
    while IFS= read -r pad; do
        echo "SetOutPath \"\$INSTDIR\\${pad//\//\\}\""
        find "$inhoud/$pad" -maxdepth 1 -type f | sort | sed 's/.*/File "&"/'
    done < <(cd "$inhoud" && find . -type d -printf '%P\n' | sort) >"$werk/neer.nsh"
    {
        (cd "$inhoud" && find . -type f -printf '%P\n') | sort | sed 's|/|\\|g; s|.*|Delete "$INSTDIR\\&"|'
        (cd "$inhoud" && find . -mindepth 1 -type d -printf '%P\n') | sort -r | sed 's|/|\\|g; s|.*|RMDir "$INSTDIR\\&"|'
    } >"$werk/weg.nsh"
}

maak_zip() {
    (cd "$werk" && find "$naam" | sort | zip -X -q -@ "$werk/$naam-windows.zip")
    mv "$werk/$naam-windows.zip" "$doel"
}

meet_kilobytes() { find "$inhoud" -type f -printf '%s\n' | awk '{ bytes += $1 } END { print int(bytes / 1024) + 1 }'; }

maak_setup() {
    stil "het installatieprogramma is niet te maken" makensis -NOCD -INPUTCHARSET UTF8 -WX -V2 \
        "-DVERSIE=$versie" "-DLIJSTEN=$werk" "-DUITVOER=$doel/$naam-setup.exe" \
        "-DPICTOGRAM=$bouwmap/gegevens/knipselaar.ico" "-DKILOBYTES=$(meet_kilobytes)" \
        "$hoofdmap/gegevens/windows/setup.nsi"
}

mkdir -p "$doel"
leg_klaar
schrijf_lijsten
maak_zip
maak_setup
echo "$doel/$naam-setup.exe"
echo "$doel/$naam-windows.zip"
