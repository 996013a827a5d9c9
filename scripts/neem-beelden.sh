#!/usr/bin/env bash
# Bedient het programma als een docent en neemt onderweg de beelden van de handleiding; wordt door
# maak-beelden.sh in een eigen naamruimte gestart. $1 is het programma, $2 de directory voor de beelden, $3 de
# schermlezer van de tests, die zegt waar iets staat.
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$hoofdmap/scripts/gemeen.sh"
. "$hoofdmap/scripts/bediening.sh"

programma=$1
beelden=$2
schermlezer=$3
voorbeelden="$hoofdmap/voorbeelden"
venster='^Knipselaar$'
openen='^Kies een origineel bestand[.]$'
opslaan='^Sla aangepast bestand op[.]$'
breedte=1100
hoogte=774
modus_directory='radio button "Alle bestanden in een directory"'
modus_boom='radio button "Alle bestanden recursief in een directory"'
bron_veld='text "Bron directory"'
doel_veld='text "Bestemming directory"'

# De uitwerking waarmee de handleiding begint.
schrijf_som() { awk '/^```c bron/ { aan = 1; next } /^```/ && aan { exit } aan' "$hoofdmap/handleiding.md"; }

# Een uitwerking waarvan de eerste eindmarker met kleine letters is geschreven.
schrijf_slordig() {
    cat <<'EINDE'
int som(const int *getallen, int aantal)
{
    int totaal = 0;
    //**** Student Begin ****//
    for (int i = 0; i < aantal; i++) {
        totaal += getallen[i];
    }
    //**** student eind ****//
    return totaal;
}

int eerste(const int *getallen)
{
    //**** Student Begin ****//
    return getallen[0];
    //**** Student Eind ****//
}
EINDE
}

# Richt /home/docent in: lessen met uitwerkingen, klas voor de opgaven, practicum om ter plaatse te knippen en concept
# met uitwerkingen waar iets aan mankeert.
richt_in() {
    mount -t tmpfs docent /home
    export HOME=/home/docent
    mkdir -p "$HOME"/{lessen,klas,practicum/{les1,les2},concept,usb}
    schrijf_som | tee "$HOME"/{lessen,practicum/les1}/som.c >"$HOME/klas/vorige-week.c"
    echo 'Lokaal D1.07, neem een usb-kabel mee.' | tee "$HOME"/{lessen,practicum/les2}/aantekening.txt >/dev/null
    cp "$voorbeelden"/matrix.{cpp,h} "$voorbeelden/teller.vhdl" "$HOME/lessen"
    cp "$voorbeelden"/matrix.{cpp,h} "$HOME/practicum/les2"
    schrijf_som >"$HOME/concept/som.c"
    schrijf_som | grep -v Student >"$HOME/concept/ongemarkeerd.c"
    schrijf_slordig >"$HOME/concept/reeks.c"
    cp "$voorbeelden/matrix.h" "$HOME/concept"
    find "$HOME" -type f -exec touch -d '2026-09-01 09:00' {} +
    cat >"$HOME/.Knipselaar" <<EINDE
[Configuratie]
OrigineelPad=$HOME/lessen
AangepastPad=$HOME/klas
EINDE
    cd "$HOME"
}

# Of een ding van het hoofdvenster een plaats heeft; die staat dan in plek.
heeft_plek() {
    "$schermlezer" plek "$1" | tail -n 1 >"$werk/plek"
    [ -s "$werk/plek" ]
}

heeft_toetsen() { [ "$("$schermlezer" toetsen | head -n 1)" = "$1" ]; }

# Klikt midden op een ding van het hoofdvenster, een rol en een naam. Een muis die daar blijft, roept een tooltip op.
klik() {
    local links boven breed hoog
    wacht_op "$1 is er niet" heeft_plek "$1"
    read -r links boven breed hoog <"$werk/plek"
    xdotool mousemove --window "$(venster_nummer "$venster")" "$((links + breed / 2))" "$((boven + hoog / 2))" click 1
    xdotool mousemove 0 0
}

# Vult het tekstveld $1 van een directorykiezer met het pad $2.
vul_kiezer() {
    klik "$1"
    wacht_op "$1 krijgt de toetsen niet" heeft_toetsen "$1"
    xdotool key ctrl+a
    xdotool type --delay 20 "$2"
}

wacht_op_venster() { wacht_op "het venster '$1' verschijnt niet" venster_actief "$1"; }

# Of het venster $1 zo groot is als $2 zegt, zoals 1100x760.
heeft_maat() { xdotool getwindowgeometry "$(venster_nummer "$1")" | grep -F "Geometry: $2"; }

# Maakt het venster $1 $2 breed en $3 hoog.
zet_maat() {
    xdotool windowsize "$(venster_nummer "$1")" "$2" "$3"
    wacht_op "het venster '$1' krijgt zijn maat niet" heeft_maat "$1" "$2x$3"
}

# Neemt een bestandsdialoog op een maat waarop hij niet half leeg is.
neem_dialoog() {
    wacht_op_venster "$1"
    zet_maat "$1" 1000 440
    neem_beeld "$1" "$2"
}

start() {
    "$programma" &
    processen+=($!)
    wacht_op_venster "$venster"
    zet_maat "$venster" $breedte $hoogte
    neem_beeld "$venster" "$beelden/begin.png"
}

# Kiest $1 in de dialoog om te openen.
kies_origineel() {
    kies_pad "$openen" "$1"
    wacht_op_venster "$venster"
}

open_slordig() {
    xdotool key ctrl+o
    kies_origineel "$HOME/concept/reeks.c"
}

enkel_bestand() {
    xdotool key ctrl+o
    neem_dialoog "$openen" "$beelden/openen.png"
    neem_verandering "$venster" "$beelden/geopend.png" kies_origineel "$HOME/lessen/som.c"
    neem_verandering "$venster" "$beelden/geknipt.png" xdotool key ctrl+f
    xdotool key ctrl+s
    neem_dialoog "$opslaan" "$beelden/opslaan.png"
    kies_pad "$opslaan" "$HOME/klas/som.c"
    wacht_op "de opgave staat er niet" test -s "$HOME/klas/som.c"
    wacht_op_venster "$venster"
    neem_verandering "$venster" "$beelden/fouten.png" open_slordig
}

# Wijst de directories aan: $1 met originelen, $2 voor de opgaven.
kies_directories() {
    vul_kiezer "$bron_veld" "$1"
    vul_kiezer "$doel_veld" "$2"
}

een_directory() {
    neem_verandering "$venster" "$werk/modus.png" klik "$modus_directory"
    neem_verandering "$venster" "$beelden/directory.png" kies_directories "$HOME/lessen" "$HOME/klas"
    neem_verandering "$venster" "$beelden/directory-klaar.png" xdotool key ctrl+f
    grep -qF 'Dit stuk software ontbreekt' "$HOME/klas/teller.vhdl"
}

# Een batch waarbij niet alles lukt: op de usb-stick past één bestand minder dan er is.
directory_met_fouten() {
    mount -t tmpfs -o nr_blocks=3 usb "$HOME/usb"
    kies_directories "$HOME/concept" "$HOME/usb"
    neem_verandering "$venster" "$beelden/directory-fouten.png" xdotool key ctrl+f
    umount "$HOME/usb"
}

gelijke_directories() {
    kies_directories "$HOME/lessen" "$HOME/lessen"
    xdotool key ctrl+f
    wacht_op_venster '^Bevestig$'
    neem_beeld '^Bevestig$' "$beelden/gelijk.png"
    xdotool key alt+n
    wacht_op "de vraag blijft staan" venster_weg '^Bevestig$'
    wacht_op_venster "$venster"
}

een_boom() {
    neem_verandering "$venster" "$werk/modus.png" klik "$modus_boom"
    vul_kiezer "$doel_veld" "$HOME/practicum"
    neem_verandering "$venster" "$beelden/boom-klaar.png" xdotool key ctrl+f
    grep -qF 'Dit stuk software ontbreekt' "$HOME/practicum/les2/matrix.h"
}

sluit_af() {
    xdotool key ctrl+q
    wait "${processen[-1]}" || stop "het programma sloot niet netjes af"
}

open_beeldscherm 1280x1024
open_schermlezerbus
richt_in
start
enkel_bestand
een_directory
directory_met_fouten
gelijke_directories
een_boom
sluit_af
