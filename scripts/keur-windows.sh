#!/usr/bin/env bash
# Beproeft met wine wat ./windows.sh maakte, naast hetzelfde op dit systeem.
# Gebruik: keur-windows.sh WINDOWSBOUW LINUXBOUW CLITESTS PAKKETTEN
#   de tests van de kern die onder Windows lopen, en die van het venster in zijn eigen hoofdlus
#   het consoleprogramma: bestanden, uitvoer en afloop zijn die van Linux; zijn tests van buiten; onderbreken
#   het installatieprogramma, stil: het programma komt er, en gaat er weer af zonder iets achter te laten
#   het geïnstalleerde venster, met toetsen: één bestand, een directory en een boom, met de uitkomst van Linux
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$hoofdmap/scripts/gemeen.sh"
. "$hoofdmap/scripts/bediening.sh"
windowsbouw=${1:?}
linuxbouw=${2:?}
clitests=${3:?}
pakketten=${4:?}

# Een eigen wine, die met het script verdwijnt. Zonder .NET en zonder browser, waar hij anders naar vraagt.
export WINEPREFIX="$werk/wine" WINEDEBUG=-all WINEDLLOVERRIDES='mscoree=;mshtml='
trap 'wineserver -k 2>/dev/null || true; ruim_op' EXIT

# Wie wil weten waarom iets niet verschijnt, wil zien wat er wel staat.
stop() {
    import -window root "$windowsbouw/keur.png" 2>/dev/null || true
    echo "$(basename "$0"): $* (beeldscherm in $windowsbouw/keur.png)" >&2
    exit 1
}

# Zoals wine een pad van dit systeem noemt.
als_windows() { echo "Z:${1//\//\\}"; }

# Voert een opdracht uit in $werk/$1, en bewaart uitvoer en afloopstatus naast die directory.
voer_uit_in() {
    local map="$werk/$1" status=0
    shift
    (cd "$map" && timeout 60 "$@") >"$map.uitvoer" 2>"$map.fouten" </dev/null || status=$?
    echo "$status" >"$map.status"
}

# Laat beide consoleprogramma's hetzelfde doen in een eigen kopie van dezelfde boom. Alles hoort gelijk te zijn.
# $1 is de naam van de proef; met als_venster erin eindigen regels onder Windows met CR LF.
vergelijk() {
    local naam=$1 deel
    shift
    rm -rf "$werk/linux" "$werk/windows"
    cp -R --preserve=links "$werk/boom" "$werk/linux"
    cp -R --preserve=links "$werk/boom" "$werk/windows"
    voer_uit_in linux "$linuxbouw/KnipselaarCli/knipselaar-cli" --zonder-instellingen "$@"
    voer_uit_in windows wine "$windowsbouw/KnipselaarCli/knipselaar-cli.exe" --zonder-instellingen "$@"
    if [[ $naam == *als_venster* ]]; then
        sed -i 's/$/\r/' "$werk/linux.uitvoer"
    fi
    for deel in status fouten uitvoer; do
        cmp "$werk/linux.$deel" "$werk/windows.$deel" || stop "$naam: $deel verschilt: $(cat "$werk/windows.$deel")"
    done
    diff -r "$werk/linux" "$werk/windows" || stop "$naam: de bestanden verschillen"
}

keur_console() {
    local naam lang droog=(--zonder-instellingen --droog --naar uit les)
    mkdir -p "$werk/boom"
    cp -R "$hoofdmap/voorbeelden" "$werk/boom/les"
    cp "$werk/boom/les/ringbuffer.c" "$werk/boom/les/Ωmega € 😀.c"
    ln "$werk/boom/les/ringbuffer.c" "$werk/boom/les/zelfde.c"
    mkdir "$werk/boom/les/.verborgen" "$werk/boom/les/leeg"
    # Voorbij de 260 tekens waar oude programma's ophouden.
    lang=$(printf 'map-met-een-lange-naam-%s/' {1..14})
    mkdir -p "$werk/boom/les/$lang"
    cp "$werk/boom/les/matrix.h" "$werk/boom/les/$lang"
    cp "$werk/boom/les/matrix.h" "$werk/boom/les/.verborgen"
    vergelijk uitvoer les/ringbuffer.c
    vergelijk als_venster --als-venster les/ringbuffer.c
    vergelijk bestand --uit uit.c les/ringbuffer.c
    vergelijk directory --naar uit les
    vergelijk boom --recursief --naar uit les
    vergelijk verborgen --recursief --verborgen --naar uit les
    vergelijk ter_plaatse --recursief --ter-plaatse les
    vergelijk dubbel --recursief --ter-plaatse les les/ringbuffer.c
    vergelijk hard --ter-plaatse les/ringbuffer.c les/zelfde.c
    vergelijk lang --ter-plaatse "les/${lang}matrix.h"
    vergelijk masker --naar uit --masker '*.[ch]' les
    vergelijk verschil --verschil les
    vergelijk bewijs --recursief --naar uit --bewijs les
    vergelijk hulp --help
    vergelijk bestaat_niet les/bestaat-niet.c
    vergelijk verkeerd --bestaat-niet
    # Door een pijp, zoals een ander programma de uitvoer leest; de namen zijn dan ook UTF-8.
    (cd "$werk/boom" && "$linuxbouw/KnipselaarCli/knipselaar-cli" "${droog[@]}") | cat >"$werk/pijp.linux"
    (cd "$werk/boom" && wine "$windowsbouw/KnipselaarCli/knipselaar-cli.exe" "${droog[@]}") | cat >"$werk/pijp.windows"
    grep -q 'Ωmega € 😀' "$werk/pijp.windows" || stop "in een pijp is de uitvoer geen UTF-8"
    cmp "$werk/pijp.linux" "$werk/pijp.windows" || stop "in een pijp is de uitvoer anders"
    # Een apparaat bestaat overal; wie het leest kan er voor altijd op wachten.
    for naam in NUL CON COM1 les/nul; do
        voer_uit_in windows wine "$windowsbouw/KnipselaarCli/knipselaar-cli.exe" "$naam"
        [ "$(cat "$werk/windows.status")" = 2 ] || stop "$naam: status $(cat "$werk/windows.status")"
        grep -q 'is geen gewoon bestand' "$werk/windows.fouten" || stop "$naam: $(cat "$werk/windows.fouten")"
    done
}

# Onder Windows maken hoofdletters geen ander bestand.
keur_hoofdletters() {
    rm -rf "$werk/windows"
    cp -R "$werk/boom" "$werk/windows"
    voer_uit_in windows wine "$windowsbouw/KnipselaarCli/knipselaar-cli.exe" --zonder-instellingen --ter-plaatse \
        LES/Ringbuffer.C les/ringbuffer.c
    grep -q '^1 bestand geknipt' "$werk/windows.uitvoer" || stop "hoofdletters: $(cat "$werk/windows.uitvoer")"
}

# De tests van het consoleprogramma van buiten, op dat voor Windows. Zij starten een script, dat eerst de instellingen
# van de test neerlegt waar Windows ze zoekt.
keur_cli_tests() {
    local opslag nogeens
    opslag=$(echo "$WINEPREFIX"/drive_c/users/*/AppData/Roaming)/Knipselaar.ini
    cat >"$werk/knipselaar-cli" <<EOF
#!/bin/sh
export WINEPREFIX='$WINEPREFIX' WINEDEBUG=-all WINEDLLOVERRIDES='$WINEDLLOVERRIDES;winemenubuilder.exe='
rm -f '$opslag'
[ ! -e "\$HOME/.Knipselaar" ] || cp "\$HOME/.Knipselaar" '$opslag'
exec wine '$windowsbouw/KnipselaarCli/knipselaar-cli.exe' "\$@"
EOF
    chmod +x "$werk/knipselaar-cli"
    # Op een drukke machine verliest een programma soms zijn verbinding met wine zelf; dan gaat het nog eens.
    if ! env KNIPSELAAR_CLI="$werk/knipselaar-cli" "$clitests" --gtest_brief=1 --gtest_filter="$(zonder cli-niet.txt)" >"$werk/cli" 2>&1; then
        nogeens=$(sed -n 's/^\[  FAILED  \] \([^ ,]*\).*/\1/p' "$werk/cli" | paste -s -d :)
        [ -n "$nogeens" ] || stop "de tests van het consoleprogramma houden op: $(tail -3 "$werk/cli")"
        stil "een test van het consoleprogramma faalt onder wine" \
            env KNIPSELAAR_CLI="$werk/knipselaar-cli" "$clitests" --gtest_brief=1 --gtest_filter="$nogeens"
    fi
    rm -f "$opslag"
}

# De tests die een lijst als niet uit te voeren noemt, als filter voor GoogleTest.
zonder() { echo "-$(sed '/^#/d; s/ .*//' "$hoofdmap/tests/windows/$1" | paste -s -d :)"; }

# De tests van het venster, elk in een eigen proces: een test die blijft hangen houdt dan alleen zichzelf op.
keur_venster_tests() {
    local programma="$windowsbouw/tests/windows/venster_tests.exe" test nogeens=()
    wine "$programma" --gtest_list_tests --gtest_filter="$(zonder venster-niet.txt)" |
        tr -d '\r' | awk '/^ / { print soort $1; next } { soort = $1 }' >"$werk/venstertests"
    [ -s "$werk/venstertests" ] || stop "er zijn geen tests van het venster"
    while read -r test; do
        venster_test "$test" >/dev/null 2>&1 || nogeens+=("$test")
    done <"$werk/venstertests"
    # Een test die de machine te druk vond, lukt daarna.
    for test in "${nogeens[@]}"; do
        stil "de test $test van het venster faalt onder wine" venster_test "$test"
    done
    vergeet_instellingen
    echo "  $(wc -l <"$werk/venstertests") tests, ${#nogeens[@]} daarvan pas de tweede keer goed"
}

venster_test() {
    vergeet_instellingen
    timeout -k 5 180 wine "$programma" --gtest_brief=1 --gtest_filter="$1" </dev/null
}

# Wine maakt van SIGINT Ctrl+C. De uitkomst is STATUS_CONTROL_C_EXIT, waar hier de laatste byte van overblijft.
onderbroken=58

# Vraagt een programma te stoppen tot het dat doet; een verzoek dat komt voor het begonnen is, gaat verloren.
onderbreek() {
    local status=0
    wacht_op "$1 stopt niet" stopt "$2"
    wait "$2" || status=$?
    [ "$status" = "$onderbroken" ] || stop "$1 eindigt met $status"
}

stopt() {
    kill -INT "$1" 2>/dev/null || return 0
    sleep 0.2
    ! kill -0 "$1" 2>/dev/null
}

keur_onderbreken() {
    local map="$werk/onderbreken" nummer bestand
    local knip=(wine "$windowsbouw/KnipselaarCli/knipselaar-cli.exe" --zonder-instellingen)
    mkdir "$map"
    for nummer in {1..1500}; do
        cp "$hoofdmap/voorbeelden/ringbuffer.c" "$map/$nummer.c"
    done
    "${knip[@]}" --ter-plaatse "$map" >/dev/null 2>&1 &
    wacht_op "er komt niets klaar te staan" heeft_buurbestand "$map"
    onderbreek "een run ter plaatse" $!
    for bestand in "$map"/*.c; do
        cmp "$bestand" "$hoofdmap/voorbeelden/ringbuffer.c" || stop "onderbreken verandert een bestand"
    done
    ! heeft_buurbestand "$map" || stop "onderbreken laat een tijdelijk bestand achter"
}

heeft_buurbestand() { [ -n "$(find "$1" -name '.Knipselaar*' -print -quit)" ]; }

# Alles op de schijf van wine en in het register van de gebruiker. Niet wat een Windows die al in gebruik is altijd
# heeft (de plaats van programma's van een gebruiker, en hun lijst), en niet de kopie waaruit het verwijderprogramma
# zichzelf weghaalt: die ruimt Windows bij het opstarten op.
toestand() {
    wineserver -w
    (cd "$WINEPREFIX/drive_c" && find . | grep -v -e '/AppData/Local/Programs$' -e '/Temp/~nsu' | sort)
    grep '^\[' "$WINEPREFIX/user.reg" | sed 's/ [0-9]*$//' | grep -v 'CurrentVersion\\\\Uninstall\]$' | sort
}

toetsen() { xdotool key --delay 100 "$@"; }

typ_pad() {
    toetsen ctrl+a
    xdotool type --delay 20 "$1"
}

# Start het venster van een systeem, en wacht tot het de toetsen krijgt. $1 is linux of windows.
start_venster() {
    vergeet_instellingen
    if [ "$1" = linux ]; then
        "$linuxbouw/Knipselaar/knipselaar" &
    else
        wine "$geinstalleerd/knipselaar.exe" &
    fi
    processen+=($!)
    wacht_op "het venster van $1 verschijnt niet" venster_nummer_bestaat
    xdotool windowactivate --sync "$(venster_nummer '^Knipselaar$')"
    wacht_op "het venster van $1 is niet actief" venster_actief '^Knipselaar$'
    wacht_op "het venster van $1 komt niet tot rust" staat_stil '^Knipselaar$'
}

# Wat het venster van de vorige keer weet.
vergeet_instellingen() { rm -f "$HOME/.Knipselaar" "$WINEPREFIX"/drive_c/users/*/AppData/Roaming/Knipselaar.ini; }

venster_nummer_bestaat() { [ -n "$(venster_nummer '^Knipselaar$')" ]; }

sluit_venster() {
    wacht_op "het venster komt niet terug" venster_actief '^Knipselaar$'
    toetsen ctrl+q
    wait "${processen[-1]}" || stop "het venster sloot niet netjes af"
    unset 'processen[-1]'
}

# Een pad zoals de dialogen en kiezers van een systeem het noemen.
pad_voor() {
    if [ "$1" = linux ]; then
        echo "$2"
    else
        als_windows "$2"
    fi
}

knip_een_bestand() {
    local systeem=$1
    cp "$hoofdmap/voorbeelden/ringbuffer.c" "$werk/$systeem/bron.c"
    start_venster "$systeem"
    toetsen ctrl+o
    kies_pad '^Kies een origineel bestand[.]$' "$(pad_voor "$systeem" "$werk/$systeem/bron.c")"
    wacht_op "het venster komt niet terug" venster_actief '^Knipselaar$'
    neem_verandering '^Knipselaar$' "$werk/$systeem.png" xdotool key ctrl+f
    toetsen ctrl+s
    kies_pad '^Sla aangepast bestand op[.]$' "$(pad_voor "$systeem" "$werk/$systeem/uit.c")"
    wacht_op "het knipsel verschijnt niet" test -s "$werk/$systeem/uit.c"
    sluit_venster
}

# Naar de keuze van de modus. In een editor typt Tab een tab. GTK kiest daarna pas met de spatiebalk.
naar_modus() { toetsen ctrl+Tab Tab Tab ctrl+Tab Tab; }

knip_een_directory() {
    local systeem=$1
    mkdir "$werk/$systeem/van" "$werk/$systeem/naar"
    cp "$hoofdmap"/voorbeelden/*.* "$werk/$systeem/van"
    start_venster "$systeem"
    naar_modus
    toetsen Down space Tab
    typ_pad "$(pad_voor "$systeem" "$werk/$systeem/van")"
    toetsen Tab Tab
    typ_pad "$(pad_voor "$systeem" "$werk/$systeem/naar")"
    toetsen ctrl+f
    wacht_op "de directory wordt niet geknipt" test -s "$werk/$systeem/naar/ringbuffer.c"
    sluit_venster
}

knip_een_boom() {
    local systeem=$1 map="$werk/$1/boom"
    mkdir -p "$map/sub"
    cp "$hoofdmap/voorbeelden/ringbuffer.c" "$map"
    cp "$hoofdmap/voorbeelden/matrix.cpp" "$map/sub"
    start_venster "$systeem"
    naar_modus
    toetsen Down Down space Tab
    typ_pad "$(pad_voor "$systeem" "$map")"
    toetsen ctrl+f
    wacht_op "de boom wordt niet geknipt" is_geknipt "$map/ringbuffer.c" "$map/sub/matrix.cpp"
    sluit_venster
}

is_geknipt() { ! grep -l 'Student Begin' "$@"; }

# Wat een batch schrijft heeft onder Windows CR LF; wat een editor bewaart, heeft de regeleinden van het origineel.
met_crlf() { find "$@" -type f -exec sed -i 's/$/\r/' {} +; }

keur_venster() {
    local systeem
    rm -rf "$werk/linux" "$werk/windows"
    for systeem in linux windows; do
        mkdir "$werk/$systeem"
        knip_een_bestand "$systeem"
        knip_een_directory "$systeem"
        knip_een_boom "$systeem"
    done
    met_crlf "$werk/linux/naar" "$werk/linux/boom"
    diff -r "$werk/linux" "$werk/windows" || stop "het venster knipt onder Windows anders"
}

open_beeldscherm 1280x1024
stil "wine start niet" wineboot -i
echo "Keuren onder wine: tests van de kern"
stil "een test faalt onder wine" wine "$windowsbouw/tests/windows/kern_tests.exe"
echo "Keuren onder wine: tests van het venster, een paar minuten"
keur_venster_tests
echo "Keuren onder wine: het consoleprogramma"
keur_console
keur_hoofdletters
echo "Keuren onder wine: de tests van het consoleprogramma van buiten, een paar minuten"
keur_cli_tests
keur_onderbreken
echo "Keuren onder wine: installeren, het venster, verwijderen"
toestand >"$werk/voor"
stil "het installatieprogramma lukt niet" wine "$pakketten"/knipselaar-*-setup.exe /S
geinstalleerd=$(echo "$WINEPREFIX"/drive_c/users/*/AppData/Local/Programs/Knipselaar)
[ -f "$geinstalleerd/knipselaar.exe" ] || stop "het programma is niet geïnstalleerd"
[ -f "$(echo "$WINEPREFIX"/drive_c/users/*/AppData/Roaming/Microsoft/Windows/'Start Menu'/Programs/Knipselaar.lnk)" ] ||
    stop "het startmenu noemt het programma niet"
keur_venster
# De instellingen zijn van de gebruiker; die blijven.
vergeet_instellingen
stil "verwijderen lukt niet" wine "$geinstalleerd/verwijder.exe" /S
wacht_op "het programma gaat niet weg" test ! -e "$geinstalleerd"
toestand | diff "$werk/voor" - || stop "er blijft iets achter"
echo "Onder wine is alles goed"
