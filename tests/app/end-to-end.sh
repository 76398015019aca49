#!/usr/bin/env bash
# Drives the real program on the current display as a person would: drags, types, looks at the preview, closes.
set -euo pipefail
program=$1

work=$(mktemp -d)
export TMPDIR=$work/tmp XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work/run
mkdir -m 700 "$TMPDIR" "$XDG_DATA_HOME" "$XDG_RUNTIME_DIR"
"$program" 2>"$work/log" &
pid=$!
trap 'kill -9 "$pid" 2>/dev/null || true; rm -rf "$work"' EXIT

fail() {
    echo "FAILED: $1"
    cat "$work/log" "$styles" 2>/dev/null || true
    exit 1
}

# Waits up to ten seconds for a line of the stylesheet.
expect() {
    for _ in $(seq 100); do
        grep -qF -- "$1" "$styles" 2>/dev/null && return
        sleep 0.1
    done
    fail "styles.css never had: $1"
}

styles=$TMPDIR/WebFolder0/styles.css
window=$(timeout 30 xdotool search --sync --onlyvisible --pid "$pid" --name '^Tessaly$' | head -n 1)
at() {
    xdotool mousemove --window "$window" "$1" "$2"
}

expect '#ffffff 100%);'
timeout 10 "$program" 2>"$work/second" || fail "a second start did not end"
[ ! -e "$TMPDIR/WebFolder1" ] || fail "a second copy went to work"
at 620 188 && xdotool mousedown 1 # the white marker, at the right end of the strip
at 400 188 && at 328 188 && xdotool mouseup 1
expect '#ffffff 50%);'

at 182 188 && xdotool click --repeat 2 --delay 60 1 # a new stop at a quarter, selected
expect '#000000 25%,'
at 81 242 && xdotool click --repeat 3 --delay 60 1 && xdotool type 255 && xdotool key Return
expect '#ff0000 25%,'

at 500 700 && xdotool click 1 && xdotool key ctrl+Home && xdotool type 'a' # into the stylesheet
for tab in 450 405 515; do # "HTML", "CSS 3", "Web Preview"
    at "$tab" 355 && xdotool click 1
    sleep 1
done
at 182 188 && xdotool mousedown 1
at 328 100 && xdotool mouseup 1
expect '#ffffff 50%, '
expect '#ff0000 50%);'
expect 'a.gradient {'

at 920 29 && xdotool click 1 # "Add Preset"
sleep 0.3
rows=$(sqlite3 "$XDG_DATA_HOME/Tessaly/localDB.sqlite3" 'select * from MainTable; select * from AdditionalTable')
[ "$rows" = '0|1
1|0|0.0|0.0|0.0|0.0|1.0
2|0|0.5|1.0|1.0|1.0|1.0
3|0|0.5|1.0|0.0|0.0|1.0' ] || fail "the preset database holds: $rows"

xdotool key ctrl+q
for _ in $(seq 100); do
    kill -0 "$pid" 2>/dev/null || break
    sleep 0.1
done
status=0
wait "$pid" || status=$?
[ "$status" -eq 0 ] || fail "the program ended with status $status"
[ -z "$(ls "$TMPDIR")" ] || fail "left behind: $(ls "$TMPDIR")"
echo "ok"
