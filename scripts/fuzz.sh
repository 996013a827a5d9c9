#!/usr/bin/env bash
# Laat libFuzzer de doelen van tests/fuzz zoveel seconden bestoken, samen: fuzz.sh [SECONDEN], zonder
# getal 60. Begint bij de invoer in tests/fuzz/corpus; wat erbij komt blijft in bouw/fuzz/corpus voor een
# volgende keer. Bij een vondst is de afloopstatus 1 en staat de invoer die haar herhaalt in bouw/fuzz.
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$hoofdmap/scripts/gemeen.sh"

seconden=${1:-60}
[[ $seconden =~ ^[1-9][0-9]*$ ]] || stop "geen aantal seconden: $seconden"
uitvoermap="$hoofdmap/bouw/fuzz"

# Bestookt één doel. $1 is zijn naam, $2 het aantal seconden; telt de runs op bij "totaal".
bestook() {
    local doel="$uitvoermap/tests/fuzz/$1_fuzz" log="$uitvoermap/$1.log" invoer runs
    als_gebruiker mkdir -p "$uitvoermap/corpus/$1"
    # Elke run vraagt een paar megabyte; de kleine quarantaine houdt het geheugen onder de 100 MB.
    if ! als_gebruiker env ASAN_OPTIONS=quarantine_size_mb=8 UBSAN_OPTIONS=print_stacktrace=1 "$doel" \
        -max_total_time="$2" -max_len=1000 -timeout=10 -rss_limit_mb=1024 -print_final_stats=1 \
        -dict="$hoofdmap/tests/fuzz/$1.dict" -artifact_prefix="$uitvoermap/" \
        "$uitvoermap/corpus/$1" "$hoofdmap/tests/fuzz/corpus/$1" 2>&1 | als_gebruiker tee "$log" >/dev/null; then
        invoer=$(sed -n 's/.*Test unit written to //p' "$log" | tail -n 1)
        [ -n "$invoer" ] || tail -n 20 "$log" >&2
        stop "$1_fuzz: $(beschrijf "$log"); herhaal met: $doel ${invoer:-(geen invoer, zie $log)}"
    fi
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    totaal=$((totaal + runs))
}

# De eerste regel in een log die zegt wat er mis is.
beschrijf() {
    grep -m 1 -E '^Vondst: |runtime error: |ERROR: (Address|Leak)Sanitizer|ERROR: libFuzzer' "$1" ||
        echo "onverwacht einde"
}

installeer "${pakketten_bouw[@]}" clang libclang-rt-14-dev
bouw fuzz
totaal=0
doelen=(knip ontleding instellingen)
for doel in "${doelen[@]}"; do
    bestook "$doel" "$(((seconden + ${#doelen[@]} - 1) / ${#doelen[@]}))"
done
echo "Fuzzen: $totaal runs in $seconden seconden, geen vondsten"
