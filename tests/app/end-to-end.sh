#!/usr/bin/env bash
# Drives the real program on the current display as a person would: drags, types, keeps a preset, looks at the preview,
# closes; starts again, applies the preset and deletes it.
set -euo pipefail
program=$1

work=$(mktemp -d)
export TMPDIR=$work/tmp XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work/run
mkdir -m 700 "$TMPDIR" "$XDG_DATA_HOME" "$XDG_RUNTIME_DIR"
styles=$TMPDIR/WebFolder0/styles.css
trap 'kill -9 "$pid" 2>/dev/null || true; rm -rf "$work"' EXIT

fail() {
    echo "FAILED: $1"
    cat "$work/log" "$styles" 2>/dev/null || true
    exit 1
}

# Waits up to ten seconds for a command to succeed.
eventually() {
    for _ in $(seq 100); do
        "$@" >/dev/null 2>&1 && return
        sleep 0.1
    done
    fail "never came true: $*"
}
expect() {
    eventually grep -qF -- "$1" "$styles"
}
at() {
    xdotool mousemove --window "$window" "$1" "$2"
}
begin() {
    "$program" 2>"$work/log" &
    pid=$!
    window=$(timeout 30 xdotool search --sync --onlyvisible --pid "$pid" --name '^Tessaly$' | head -n 1)
    expect '#ffffff 100%);'
}
finish() {
    xdotool key ctrl+q
    local status=0
    wait "$pid" || status=$?
    [ "$status" -eq 0 ] || fail "the program ended with status $status"
    [ -z "$(ls "$TMPDIR")" ] || fail "left behind: $(ls "$TMPDIR")"
}
database() {
    sqlite3 "$XDG_DATA_HOME/Tessaly/localDB.sqlite3" "$1"
}

begin
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
expect '#ff0000 50%);'
expect 'a.gradient {'

at 920 29 && xdotool click 1 # "Add Preset"
stored='0|1
1|0|0.0|0.0|0.0|0.0|1.0
2|0|0.5|1.0|1.0|1.0|1.0
3|0|0.5|1.0|0.0|0.0|1.0'
rows_are_stored() {
    [ "$(database 'select * from MainTable; select * from AdditionalTable')" = "$stored" ]
}
eventually rows_are_stored
finish

begin
at 730 82 && xdotool click 1 # the thumbnail
expect '#ff0000 50%);'
rows_are_stored || fail "applying a preset changed what is stored"
xdotool click 3 && sleep 0.3 && xdotool key Down Return # "Delete"
none_is_stored() {
    [ "$(database 'select count(*) from MainTable')" = 0 ]
}
eventually none_is_stored
finish
echo "ok"
