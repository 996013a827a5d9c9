#!/usr/bin/env bash
# Laat zonder beeldscherm zien wat het programma doet: start het op een virtueel beeldscherm en bedient het van
# buiten, met toetsen. Opent een voorbeeld, knipt het, bewaart het en sluit af. $1 is het programma.
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$hoofdmap/scripts/gemeen.sh"
. "$hoofdmap/scripts/bediening.sh"

programma=$1
origineel="$hoofdmap/voorbeelden/ringbuffer.c"
resultaat="$hoofdmap/resultaat"

mkdir -p "$resultaat"
rm -f "$resultaat/ringbuffer.c" "$resultaat/venster.png"
open_beeldscherm 1280x1024
# Het pad mag alles bevatten, maar het toetsenbord van het beeldscherm niet; een kopie heeft een eenvoudig pad.
cp "$origineel" "$werk/ringbuffer.c"
"$programma" &
knipselaar=$!
processen+=($knipselaar)

wacht_op "het venster verschijnt niet" venster_actief '^Knipselaar$'
xdotool key ctrl+o
kies_pad '^Kies een origineel bestand[.]$' "$werk/ringbuffer.c"
wacht_op "het venster komt niet terug" venster_actief '^Knipselaar$'
neem_verandering '^Knipselaar$' "$resultaat/venster.png" xdotool key ctrl+f
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
