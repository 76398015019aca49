#!/usr/bin/env bash
# Drives the real program on the current display as a person would: drags, types, keeps a preset, looks at the preview,
# closes; starts again, applies the preset and deletes it, takes everything back by keys and
# by the menu, and opens and pastes gradients.
set -euo pipefail
program=$1

. "$(dirname "$0")/../support/places.sh"
. "$(dirname "$0")/../support/private.sh"
styles=$TMPDIR/WebFolder0/styles.css
manage_windows
expect() {
    eventually grep -qF -- "$1" "$styles"
}
at() {
    xdotool mousemove --window "$window" "$1" "$2"
}
click_at() {
    at "$@" && xdotool click 1
}
# Types a number into the field at x, y.
fill() {
    click_at "$1" "$2" && xdotool key ctrl+a && xdotool type "$3" && xdotool key Return
}
begin() {
    "$program" 2>"$work/log" &
    pid=$!
    eventually find_window
    expect '#ffffff 100%);'
}
# Ends the program by the command, and in order.
finish() {
    "$@"
    local status=0
    wait "$pid" || status=$?
    [ "$status" -eq 0 ] || fail "the program ended with status $status"
    [ -z "$(ls "$TMPDIR")" ] || fail "left behind: $(ls "$TMPDIR")"
}
database() {
    sqlite3 "$XDG_DATA_HOME/Tessaly/localDB.sqlite3" "$1"
}

begin
eval "$(xdotool getwindowgeometry --shell "$window")"
[ "$HEIGHT" -le 680 ] || fail "the window is higher than the screen"
timeout 10 "$program" 2>"$work/second" || fail "a second start did not end"
kill -STOP "$pid"
! timeout 4 "$program" 2>"$work/second" || fail "a first copy that hangs was taken to answer"
grep -q 'does not answer' "$work/second"
kill -CONT "$pid"
[ ! -e "$TMPDIR/WebFolder1" ] || fail "a second copy went to work"
at $last_marker && xdotool mousedown 1
at 400 208 && at $middle_of_track && xdotool mouseup 1
expect '#ffffff 50%);'
at 182 208 && xdotool click --repeat 2 --delay 1 1 # a new stop at a quarter, selected
expect '#000000 25%,'
fill $red 255
expect '#ff0000 25%,'

click_at $code && xdotool key ctrl+Home && xdotool type 'a' # into the stylesheet
copied() {
    xclip -out -selection clipboard | grep -qF "$1"
}
click_at $html_tab && click_at $copy
eventually copied '<!DOCTYPE html>'
click_at $css_tab && click_at $copy
eventually copied 'a.gradient {'
click_at $preview_tab
sleep 1
at 182 208 && xdotool mousedown 1
at 328 120 && xdotool mouseup 1
expect '#ff0000 50%);'
expect 'a.gradient {'

click_at $add_preset
stored='0|1
1|0|0.0|0.0|0.0|0.0|1.0
2|0|0.5|1.0|1.0|1.0|1.0
3|0|0.5|1.0|0.0|0.0|1.0'
rows_are_stored() {
    [ "$(database 'select * from MainTable; select * from AdditionalTable')" = "$stored" ]
}
eventually rows_are_stored
finish wmctrl -i -c "$window"

begin
click_at $first_preset
expect '#ff0000 50%);'
rows_are_stored || fail "applying a preset changed what is stored"
menu_is_open() {
    [ "$(xdotool search --onlyvisible --pid "$pid" | wc -l)" -gt "$windows" ]
}
windows=$(xdotool search --onlyvisible --pid "$pid" | wc -l)
xdotool click 3 && eventually menu_is_open && xdotool key Down Return # "Delete"
none_is_stored() {
    [ "$(database 'select count(*) from MainTable')" = 0 ]
}
eventually none_is_stored
at $middle_of_track && xdotool mousedown 1 && at 474 208 && xdotool mouseup 1 # the white one lies below
expect '75%);'
fill $red 128
expect '#80'
click_at $first_marker && xdotool key Delete # the stop, not the text
stops_in_standard_form() {
    [ "$(grep -c '^\s*#' <(sed -n '/ linear-gradient/,/;/p' "$styles"))" = "$1" ]
}
eventually stops_in_standard_form 2
xdotool key ctrl+z
eventually stops_in_standard_form 3
xdotool key ctrl+z ctrl+z
expect '#ffffff 50%,'
xdotool key alt+e Return # "Undo Delete Preset"
eventually rows_are_stored
echo '.a { background: linear-gradient(to top, teal 0%, gold 100%) }' >"$work/a.css"
timeout 10 "$program" "$work/a.css" 2>"$work/third" || fail "a second start with a file did not end"
expect '#008080 0%,'
printf 'radial-gradient(lime, navy)' | xclip -in -selection clipboard
eventually copied 'lime'
xdotool key ctrl+v
expect '#00ff00 0%,'
xdotool key ctrl+z ctrl+z
expect '#ff0000 50%);'
click_at $red && xdotool type 12 # not applied
finish kill -TERM "$pid"
echo "ok"
