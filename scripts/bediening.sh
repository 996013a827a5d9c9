# Wat de scripts delen die het programma van buiten bedienen, op een eigen beeldscherm en met een eigen
# thuisdirectory. Wordt ingelezen na gemeen.sh, niet uitgevoerd. Ruimt bij het einde van het script alles op.

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

# Of een opdracht binnen een aantal seconden slaagt. $1 is dat aantal, de rest is de opdracht. Een poging die dan
# loopt wordt afgemaakt.
slaagt_binnen() {
    local einde=$((SECONDS + $1))
    shift
    until "$@" >/dev/null 2>&1; do
        ((SECONDS < einde)) || return 1
        sleep 0.1
    done
}

# Wacht tot een opdracht slaagt. $1 is wat er anders gemeld wordt.
wacht_op() {
    local melding=$1
    shift
    slaagt_binnen 30 "$@" || stop "$melding"
}

# Het nummer van het zichtbare venster met deze titel.
venster_nummer() { xdotool search --onlyvisible --name "$1" | tail -n 1; }

venster_actief() {
    local nummer
    nummer=$(venster_nummer "$1")
    [ -n "$nummer" ] && [ "$(xdotool getactivewindow)" = "$nummer" ]
}

venster_weg() { ! xdotool search --onlyvisible --name "$1"; }

# Typt een pad in de bestandsdialoog met deze titel.
kies_pad() {
    wacht_op "de dialoog '$1' verschijnt niet" venster_actief "$1"
    xdotool key ctrl+a
    xdotool type --delay 20 "$2"
    xdotool key Return
    # De eerste Return kan nog de lijst met aanvullingen sluiten. Een tweede mag niet in het venster terechtkomen.
    slaagt_binnen 5 venster_weg "$1" || ! venster_actief "$1" || xdotool key Return
    wacht_op "de dialoog '$1' blijft staan" venster_weg "$1"
}

# Maakt een beeldscherm met vensterbeheer van $1 beeldpunten, zoals 1280x1024.
open_beeldscherm() {
    mkdir -p "$werk/thuis"
    unset WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS GTK_THEME
    export HOME="$werk/thuis" LANG=nl_NL.UTF-8 GDK_BACKEND=x11 GSETTINGS_BACKEND=memory NO_AT_BRIDGE=1
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset 3>"$werk/nummer" 2>/dev/null &
    processen+=($!)
    wacht_op "het virtuele beeldscherm start niet" test -s "$werk/nummer"
    DISPLAY=":$(cat "$werk/nummer")"
    export DISPLAY
    openbox >/dev/null 2>&1 &
    processen+=($!)
    wacht_op "de vensterbeheerder start niet" xdotool get_num_desktops
}

# Start een bus waarop de schermlezer van de tests meekijkt, met alleen deze ene dienst. Programma's die daarna starten
# doen eraan mee.
open_schermlezerbus() {
    mkdir "$werk/diensten"
    cp /usr/share/dbus-1/services/org.a11y.Bus.service "$werk/diensten"
    cat >"$werk/bus.conf" <<EINDE
<busconfig><type>session</type><listen>unix:path=$werk/bus</listen><servicedir>$werk/diensten</servicedir>
<policy context="default"><allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy></busconfig>
EINDE
    dbus-daemon --config-file="$werk/bus.conf" --nofork >/dev/null 2>&1 &
    processen+=($!)
    wacht_op "de bus voor schermlezers start niet" test -S "$werk/bus"
    export DBUS_SESSION_BUS_ADDRESS="unix:path=$werk/bus"
    unset NO_AT_BRIDGE
}

# Of twee afdrukken gelijk zijn op een knipperende tekstaanwijzer na.
lijkt_op() {
    local verschil
    verschil=$(compare -metric AE "$1" "$2" null: 2>&1) || true
    [ "$verschil" -lt 50 ] 2>/dev/null
}

# Maakt een afdruk van het venster $1 in het bestand $2, als dat venster er is. Zonder nummer zou import op een klik
# met de muis wachten.
druk_af() {
    local nummer
    nummer=$(venster_nummer "$1")
    [ -n "$nummer" ] && import -window "$nummer" "$2"
}

# Of het venster met deze titel een tijd stilstaat: ook een schuifbalk is dan uitgefaded. De afdruk is nu.png.
staat_stil() {
    local blik
    druk_af "$1" "$werk/nu.png" || return
    for ((blik = 0; blik < 8; blik++)); do
        mv "$werk/nu.png" "$werk/net.png"
        sleep 0.1
        druk_af "$1" "$werk/nu.png" || return
        lijkt_op "$werk/net.png" "$werk/nu.png" || return
    done
}

# Of het venster $1 er stilstaand anders uitziet dan op de afdruk $2.
is_veranderd() { staat_stil "$1" && ! lijkt_op "$2" "$werk/nu.png"; }

# Maakt een afdruk van het venster met deze titel zodra het stilstaat. $2 is het bestand.
neem_beeld() {
    wacht_op "het venster '$1' komt niet tot rust" staat_stil "$1"
    convert "$werk/nu.png" -strip "$2"
}

# Als neem_beeld, maar van wat de opdracht achter $2 aan het venster verandert.
neem_verandering() {
    local titel=$1 bestand=$2
    shift 2
    wacht_op "het venster '$titel' komt niet tot rust" staat_stil "$titel"
    cp "$werk/nu.png" "$werk/vooraf.png"
    "$@"
    wacht_op "het venster '$titel' verandert niet" is_veranderd "$titel" "$werk/vooraf.png"
    convert "$werk/nu.png" -strip "$bestand"
}
