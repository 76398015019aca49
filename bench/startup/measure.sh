#!/usr/bin/env bash
# Medians of ten starts each, in turn: time to the painted window and memory (proportional set), of the program, of an
# empty window, and of the program with 10,000 presets and with one of 100,000 stops. Prints benchmark, statistic and
# figure, in seconds or as a ratio to the empty window.
set -euo pipefail
bin=$1

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export TMPDIR=$work
# presets FOLDER PRESETS STOPS: stores presets of so many stops each.
presets() {
    mkdir -p "$work/$1/Tessaly"
    sqlite3 "$work/$1/Tessaly/localDB.sqlite3" "
        create table MainTable (mainIndex INTEGER PRIMARY KEY, orientationType INTEGER);
        create table AdditionalTable (additionalIndex INTEGER PRIMARY KEY, mainIndex INTEGER, position FLOAT,
            red FLOAT, green FLOAT, blue FLOAT, opacity FLOAT);
        with recursive n(i) as (select 0 union all select i + 1 from n where i < $2 - 1)
            insert into MainTable select i, 4 - i % 5 from n;
        with recursive n(i) as (select 0 union all select i + 1 from n where i < $3 - 1)
            insert into AdditionalTable (mainIndex, position, red, green, blue, opacity)
            select mainIndex, i / ($3 - 1.0), i / ($3 - 1.0), 0.5, mainIndex % 256 / 255.0, 1.0 from MainTable, n;"
}
presets many 10000 5
presets large 1 100000

stolen() { # what the host has given to others of the time of these processors
    awk '/^cpu / { print $9 }' /proc/stat
}
# start NAME PROGRAM DATA-FOLDER: appends milliseconds and KiB to NAME.starts. One that the host disturbed counts only
# when it disturbs all.
start() {
    local taken before
    for _ in $(seq 10); do
        before=$(stolen)
        taken=$(timeout 60 "$bin/tessaly_startup_$2" "$(date +%s%N)" "$work/$3" 2>"$work/log") || {
            tail -n 20 "$work/log" >&2
            exit 1
        }
        [ "$(stolen)" != "$before" ] || break
    done
    echo "$taken" >>"$work/$1.starts"
}
for _ in $(seq 11); do # the first of each only warms up
    start bare bare none
    start program program none
    start large program large
    start presets program many
    if [ "$(grep -c '^mainIndex: ' "$work/log")" -ne 10000 ]; then
        echo "The program started without its 10,000 presets." >&2
        exit 1
    fi
done

median() { # of a column of a file
    tail -n +2 "$work/$1.starts" | cut -d' ' -f"$2" | sort -n |
        awk '{ v[NR] = $1 } END { print (v[int((NR + 1) / 2)] + v[int(NR / 2) + 1]) / 2 }'
}
awk -v OFS='\t' -v pt="$(median program 1)" -v bt="$(median bare 1)" -v mt="$(median presets 1)" \
    -v lt="$(median large 1)" \
    -v pm="$(median program 2)" -v bm="$(median bare 2)" 'BEGIN {
    print "start/presets:0", "timeRatio", pt / bt
    print "start/presets:0", "memoryRatio", pm / bm
    print "start/presets:10000", "median", mt / 1e3
    print "start/stops:100000", "median", lt / 1e3
}'
