#!/usr/bin/env bash
# Medians of ten starts each, in turn: time to the painted window and resident memory, of the program and of an empty
# window that is linked to the same libraries.
set -euo pipefail
bin=$1

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for _ in $(seq 11); do # the first pair only warms up
    "$bin/tessaly_startup_bare" "$(date +%s%N)" >>"$work/bare" 2>/dev/null
    "$bin/tessaly_startup_program" "$(date +%s%N)" "$work/data" >>"$work/program" 2>/dev/null
done
median() {
    tail -n +2 "$work/$1" | cut -d' ' -f"$2" | sort -n | sed -n 5p
}
awk -v bt="$(median bare 1)" -v pt="$(median program 1)" -v bm="$(median bare 2)" -v pm="$(median program 2)" 'BEGIN {
    printf "painted after   %6.1f ms, empty window %6.1f ms: %.2f times (at most 1.6)\n", pt, bt, pt / bt
    printf "resident memory %6.1f MB, empty window %6.1f MB: %.2f times (at most 1.5)\n", pm / 1024, bm / 1024, pm / bm
}'
