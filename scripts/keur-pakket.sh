#!/usr/bin/env bash
# Keurt het Debianpakket in stappen, zodat elke stap een eigen test kan zijn.
# Gebruik: keur-pakket.sh STAP MAP [TESTS]
#   maak         maakt het pakket in MAP en pakt het daar uit; de andere stappen kijken naar wat daar ligt
#   lintian      wat Debian van een pakket vraagt
#   bureaublad   de ingang van het startmenu, de beschrijving en de pictogrammen
#   bladen       de handleidingbladen en de handleiding
#   gereedschap  wat shells en CMake van het consoleprogramma zoeken, ligt waar zij zoeken
#   versies      alles noemt dezelfde uitgave
#   installatie  installeert het, bedient het met het programma TESTS en haalt het weg; 77 als dat niet mag
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$hoofdmap/scripts/gemeen.sh"
stap=${1:?}
map=${2:?}
inhoud="$map/inhoud"
deel="$inhoud/usr/share"

maak() {
    rm -rf "$map"
    mkdir -p "$map"
    "$hoofdmap/pakket.sh" "$map"
    dpkg-deb --extract "$(pakket)" "$inhoud"
}

# Het ene pakket in de map.
pakket() {
    local pakketten=("$map"/knipselaar_1.0*.deb)
    [ ${#pakketten[@]} -eq 1 ] && [ -f "${pakketten[0]}" ] || stop "in $map hoort één pakket te liggen"
    echo "${pakketten[0]}"
}

# Een opdracht hoort te slagen en niets te zeggen.
zwijgt() {
    local uitvoer status=0
    uitvoer=$("$@" 2>&1) || status=$?
    [ $status -eq 0 ] && [ -z "$uitvoer" ] || stop "$* (status $status) zegt: $uitvoer"
}

lintian() {
    zwijgt command lintian --allow-root --fail-on error,warning --display-level '>=warning' "$deb"
}

bureaublad() {
    local maat gevonden
    zwijgt desktop-file-validate "$deel/applications/knipselaar.desktop"
    # Zonder --strict: wat de ene uitgave verouderd noemt, kent een eerdere nog niet anders.
    appstreamcli validate --no-net --pedantic --explain "$deel"/metainfo/*.metainfo.xml
    appstreamcli validate-tree --no-net --pedantic "$inhoud"
    for maat in 16 22 24 32 48 64 128 256; do
        gevonden=$(identify -format '%wx%h' "$deel/icons/hicolor/${maat}x$maat/apps/knipselaar.png")
        [ "$gevonden" = "${maat}x$maat" ] || stop "het pictogram van $maat is $gevonden"
    done
    cmp "$hoofdmap/gegevens/knipselaar.svg" "$deel/icons/hicolor/scalable/apps/knipselaar.svg"
}

# Waar de handleiding in HTML naar verwijst op dezelfde schijf: beelden en andere bestanden.
verwijzingen() {
    find "$deel/doc/knipselaar" -name '*.html' -exec sed 's/"/\n/g' {} + |
        sed -n -E '/(src|href)=$/{n;s/#.*//;/^$/d;/^[a-z]+:/d;p}'
}

# De handleiding is er als HTML, en de beelden waarmee de beschrijving het programma toont zijn de hare.
heeft_handleiding() {
    local beeld
    [ -f "$deel/doc/knipselaar/handleiding.html" ] || stop "de handleiding ontbreekt als HTML"
    while IFS= read -r beeld; do
        [ -f "$deel/doc/knipselaar/beelden/$beeld" ] || stop "de beschrijving toont $beeld, dat ontbreekt"
    done < <(sed -n 's|.*<image>.*/\(.*\)</image>.*|\1|p' "$deel"/metainfo/*.metainfo.xml)
}

bladen() {
    local blad taal verwijzing
    for taal in '' nl; do
        [ -f "$deel/man/$taal/man1/knipselaar.1.gz" ] || stop "het handleidingblad in '$taal' ontbreekt"
    done
    while IFS= read -r -d '' blad; do
        zwijgt env LC_ALL=C.UTF-8 MANWIDTH=80 bash -c 'man --warnings --local-file "$1" >/dev/null' - "$blad"
    done < <(find "$deel/man" -name '*.[1-8].gz' -print0)
    heeft_handleiding
    while IFS= read -r verwijzing; do
        [ -e "$deel/doc/knipselaar/$verwijzing" ] || stop "de handleiding verwijst naar $verwijzing, dat ontbreekt"
    done < <(verwijzingen)
}

gereedschap() {
    local pad
    for pad in share/bash-completion/completions/knipselaar-cli share/zsh/vendor-completions/_knipselaar-cli \
        share/fish/vendor_completions.d/knipselaar-cli.fish lib/cmake/Knipselaar/KnipselaarConfig.cmake \
        lib/cmake/Knipselaar/KnipselaarConfigVersion.cmake; do
        [ -f "$inhoud/usr/$pad" ] || stop "$pad ontbreekt"
    done
}

# De eerste uitgave die een bestand noemt, hoort die van het pakket te zijn. $1 is het bestand, $2 het patroon van
# wat er op die regel voor staat.
noemt() {
    local gevonden
    gevonden=$(sed -n "s|$2\([0-9][0-9.]*\).*|\1|p" "$hoofdmap/$1" | head -n 1)
    [ "$gevonden" = "$versie" ] || stop "$1 noemt uitgave '$gevonden', het pakket $versie"
}

versies() {
    versie=$(dpkg-deb --field "$deb" Version)
    noemt CMakeLists.txt 'project(Knipselaar VERSION '
    noemt CHANGELOG.md '^## '
    noemt gegevens/org.example.knipselaar.metainfo.xml '.*<release version="'
    noemt docs/man/knipselaar.1 '^\.TH .*Knipselaar '
    noemt docs/man/nl/knipselaar.1 '^\.TH .*Knipselaar '
    noemt Knipselaar/venster/parserVenster.cpp '^ *"'
}

mag_installeren() {
    local status
    if [ "$(id -u)" -ne 0 ] && ! sudo -n true 2>/dev/null; then
        echo "Overgeslagen: zonder root of sudo zonder wachtwoord is er niets te installeren."
        exit 77
    fi
    status=$(dpkg-query -W -f '${db:Status-Status}' knipselaar 2>/dev/null || true)
    if [ -n "$status" ] && [ "$status" != not-installed ]; then
        echo "Overgeslagen: knipselaar staat al op deze machine en dat blijft zo."
        exit 77
    fi
}

met_apt() {
    stil "apt-get $1 lukt niet" als_root env DEBIAN_FRONTEND=noninteractive \
        apt-get --yes --option DPkg::Lock::Timeout=120 "$@"
}

# Wat een installatie na afloop weer zo hoort achter te laten: pakketten, locales, en alles wat haar naam draagt.
toestand() {
    dpkg-query -W -f '${db:Status-Abbrev} ${binary:Package} ${Version}\n' | grep -v '^un'
    locale -a
    als_root find /etc /opt /usr /var -xdev -iname '*knipselaar*' | sort
}

# De pakketten die apt erbij gaat zetten; wat het alleen vernieuwt, noemt het met de oude versie erachter.
nieuwe_pakketten() {
    als_root apt-get install --simulate "$deb" | awk '$1 == "Inst" && $3 !~ /^\[/ {print $2}'
}

# De paden van het pakket die er nu niet zijn.
nieuwe_paden() {
    local pad
    dpkg-deb --fsys-tarfile "$deb" | tar --list | sed 's|^\./|/|; s|/$||' | while IFS= read -r pad; do
        [ -z "$pad" ] || [ -e "$pad" ] || echo "$pad"
    done
}

# Haalt weg wat de installatie erbij zette. Een onderbroken installatie zette misschien nog niets neer.
haal_weg() { met_apt remove --purge "${nieuw[@]}"; }

# Wat het pakket zelf noemt om pictogrammen te tekenen en de knoppen van de toolkit Nederlands te maken. Hier
# opgesomd, want op een machine die dit al heeft is aan het venster niet te zien dat het pakket het vergeet.
brengt_mee() {
    local nodig
    for nodig in librsvg2-common fonts-dejavu-core locales-all wx3.2-i18n; do
        dpkg-query -W -f '${Depends}, ${Recommends}\n' knipselaar | tr -d ' ' | tr ',' '\n' | grep -x "$nodig" \
            >/dev/null || stop "het pakket noemt $nodig niet"
        dpkg-query -W -f '${db:Status-Status}\n' "$nodig" | grep -x installed >/dev/null ||
            stop "$nodig kwam niet mee"
    done
    [ -f /usr/share/locale/nl/LC_MESSAGES/wxstd-3.2.mo ] || stop "de catalogus van de toolkit ontbreekt"
    locale -a | grep -x nl_NL.utf8 >/dev/null || stop "de Nederlandse locale ontbreekt"
}

bedien() {
    local uitvoer exec
    exec=$(sed -n 's/^Exec=//p' /usr/share/applications/knipselaar.desktop)
    [ "$(command -v "$exec")" = /usr/bin/knipselaar ] || stop "het startmenu start $exec"
    uitvoer=$(KNIPSELAAR_PROGRAMMA=$exec timeout 120 "$1" \
        --gtest_filter='Programma.KniptEenCBestandMetToetsen:Bureaublad*') ||
        stop "het geïnstalleerde programma doet het niet: $uitvoer"
    grep 'PASSED.* 3 tests' <<<"$uitvoer" || stop "niet alle tests zijn er: $uitvoer"
}

installatie() {
    local pad tests=${1:?}
    mag_installeren
    werk=$(mktemp -d)
    trap 'rm -rf "$werk"' EXIT
    # Op een verse machine kent apt nog geen aanbevolen pakketten, en laat ze dan zonder iets te zeggen weg.
    apt-cache show locales-all >/dev/null 2>&1 || met_apt update
    toestand >"$werk/voor"
    nieuwe_paden >"$werk/paden"
    mapfile -t nieuw < <(nieuwe_pakketten)
    trap 'haal_weg; rm -rf "$werk"' EXIT
    met_apt install "$deb"
    while IFS= read -r pad; do
        [ -e "$pad" ] || stop "$pad is niet geïnstalleerd"
    done <"$werk/paden"
    zwijgt dpkg --verify knipselaar
    brengt_mee
    bedien "$tests"
    haal_weg
    trap 'rm -rf "$werk"' EXIT
    while IFS= read -r pad; do
        [ ! -e "$pad" ] || stop "$pad blijft achter"
    done <"$werk/paden"
    toestand | diff "$werk/voor" - || stop "de machine is anders dan ervoor"
}

shift 2
case $stap in
maak) maak ;;
lintian | bureaublad | bladen | gereedschap | versies | installatie)
    deb=$(pakket)
    "$stap" "$@"
    ;;
*) stop "onbekende stap $stap" ;;
esac
