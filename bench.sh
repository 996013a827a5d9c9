#!/usr/bin/env bash
# Meet Knipselaar tegen wat een docent anders zou gebruiken. Argument: het aantal ronden (standaard 9).
set -euo pipefail
hoofdmap=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$hoofdmap/scripts/gemeen.sh"

installeer "${pakketten_bouw[@]}" "${pakketten_bediening[@]}" libgtest-dev libbenchmark-dev mawk gawk perl python3 unifdef
zorg_voor_locale
bouw metingen
als_gebruiker python3 "$hoofdmap/tests/bench/meet.py" "$hoofdmap/bouw/metingen" "$@"
als_gebruiker "$hoofdmap/bouw/metingen/tests/bench/delenmeter" --benchmark_min_time=0.2 2>/dev/null
