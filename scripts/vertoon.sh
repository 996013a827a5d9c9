#!/usr/bin/env bash
# Laat zonder beeldscherm zien wat het programma doet: start het op een virtueel beeldscherm en bedient het van
# buiten, met toetsen. Opent een voorbeeld, knipt het, bewaart het en sluit af. $1 is het programma.
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$hoofdmap/scripts/gemeen.sh"

programma=$1
origineel="$hoofdmap/voorbeelden/ringbuffer.c"
resultaat="$hoofdmap/resultaat"
werk=$(mktemp -d)
processen=()

# Het programma moet weg zijn voor zijn beeldscherm verdwijnt.
ruim_op() {
    local i
    for ((i = ${#processen[@]} - 1; i >= 0; i--)); do
        kill "${processen[$i]}" 2>/dev/null || true
        wait "${processen[$i]}" 2>/dev/null || true
    done
    rm -rf "$werk"
}
trap ruim_op EXIT

# Wacht tot een opdracht slaagt. $1 is wat er anders gemeld wordt.
wacht_op() {
    local melding=$1 poging
    shift
    for ((poging = 0; poging < 200; poging++)); do
        "$@" >/dev/null 2>&1 && return
        sleep 0.1
    done
    stop "$melding"
}

venster_actief() {
    local nummer
    nummer=$(xdotool search --onlyvisible --name "$1" | tail -n 1)
    [ -n "$nummer" ] && [ "$(xdotool getactivewindow)" = "$nummer" ]
}

venster_weg() { ! xdotool search --onlyvisible --name "$1"; }

# Typt een pad in de bestandsdialoog met deze titel.
kies_pad() {
    wacht_op "de dialoog '$1' verschijnt niet" venster_actief "$1"
    xdotool key ctrl+a
    xdotool type --delay 20 "$2"
    xdotool key Return
    # De eerste Return kan nog de lijst met aanvullingen sluiten.
    sleep 1
    venster_weg "$1" >/dev/null || xdotool key Return
    wacht_op "de dialoog '$1' blijft staan" venster_weg "$1"
}

mkdir -p "$resultaat" "$werk/thuis"
rm -f "$resultaat/ringbuffer.c" "$resultaat/venster.png"
unset WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS
export HOME="$werk/thuis" LANG=nl_NL.UTF-8 GDK_BACKEND=x11 GSETTINGS_BACKEND=memory NO_AT_BRIDGE=1

Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$werk/nummer" 2>/dev/null &
processen+=($!)
wacht_op "het virtuele beeldscherm start niet" test -s "$werk/nummer"
DISPLAY=":$(cat "$werk/nummer")"
export DISPLAY
openbox >/dev/null 2>&1 &
processen+=($!)
wacht_op "de vensterbeheerder start niet" xdotool get_num_desktops
# Het pad mag alles bevatten, maar het toetsenbord van het beeldscherm niet; een kopie heeft een eenvoudig pad.
cp "$origineel" "$werk/ringbuffer.c"
"$programma" &
knipselaar=$!
processen+=($knipselaar)

wacht_op "het venster verschijnt niet" venster_actief '^Knipselaar$'
xdotool key ctrl+o
kies_pad '^Kies een origineel bestand[.]$' "$werk/ringbuffer.c"
wacht_op "het venster komt niet terug" venster_actief '^Knipselaar$'
xdotool key ctrl+f
sleep 1
import -window "$(xdotool search --onlyvisible --name '^Knipselaar$' | tail -n 1)" "$resultaat/venster.png"
xdotool key ctrl+s
kies_pad '^Sla aangepast bestand op[.]$' "$werk/uit.c"
wacht_op "het resultaat verschijnt niet" test -s "$werk/uit.c"
wacht_op "het venster komt niet terug" venster_actief '^Knipselaar$'
xdotool key ctrl+q
wait $knipselaar || stop "het programma sloot niet netjes af"
cp "$werk/uit.c" "$resultaat/ringbuffer.c"

echo "Origineel:  $origineel"
echo "Resultaat:  $resultaat/ringbuffer.c"
echo "Venster:    $resultaat/venster.png"
echo "Verschil:"
diff "$origineel" "$resultaat/ringbuffer.c" || true
