#!/usr/bin/env bash
# Medians of ten starts each, in turn: time to the painted window and resident memory, of the program and of an empty
# window that is linked to the same libraries; then the program with 10,000 presets.
set -euo pipefail
bin=$1

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for _ in $(seq 11); do # the first pair only warms up
    "$bin/tessaly_startup_bare" "$(date +%s%N)" >>"$work/bare" 2>/dev/null
    "$bin/tessaly_startup_program" "$(date +%s%N)" "$work/data" >>"$work/program" 2>/dev/null
done
mkdir -p "$work/many/Tessaly"
sqlite3 "$work/many/Tessaly/localDB.sqlite3" "
    create table MainTable (mainIndex INTEGER PRIMARY KEY, orientationType INTEGER);
    create table AdditionalTable (additionalIndex INTEGER PRIMARY KEY, mainIndex INTEGER, position FLOAT,
        red FLOAT, green FLOAT, blue FLOAT, opacity FLOAT);
    with recursive n(i) as (select 0 union all select i + 1 from n where i < 9999)
        insert into MainTable select i, i % 5 from n;
    insert into AdditionalTable (mainIndex, position, red, green, blue, opacity)
        select mainIndex, column1, column1, 0.5, mainIndex % 256 / 255.0, 1.0
        from MainTable, (values (0.0), (0.25), (0.5), (0.75), (1.0));"
for _ in $(seq 11); do
    "$bin/tessaly_startup_program" "$(date +%s%N)" "$work/many" >>"$work/presets" 2>/dev/null
done
median() {
    tail -n +2 "$work/$1" | cut -d' ' -f"$2" | sort -n | sed -n 5p
}
awk -v bt="$(median bare 1)" -v pt="$(median program 1)" -v mt="$(median presets 1)" -v bm="$(median bare 2)" -v pm="$(median program 2)" 'BEGIN {
    printf "painted after   %6.1f ms, empty window %6.1f ms: %.2f times (at most 1.6)\n", pt, bt, pt / bt
    printf "10,000 presets  %6.1f ms (at most 1000)\n", mt
    printf "resident memory %6.1f MB, empty window %6.1f MB: %.2f times (at most 1.5)\n", pm / 1024, bm / 1024, pm / bm
}'
