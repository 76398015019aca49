#!/usr/bin/env bash
# Drives the real program on the current display as a person would: drags, types, keeps a preset, looks at the preview,
# closes; starts again, applies the preset and deletes it.
set -euo pipefail
program=$1

. "$(dirname "$0")/../support/program.sh"

begin
eval "$(xdotool getwindowgeometry --shell "$window")"
[ "$HEIGHT" -le 680 ] || fail "the window is higher than the screen"
timeout 10 "$program" 2>"$work/second" || fail "a second start did not end"
[ ! -e "$TMPDIR/WebFolder1" ] || fail "a second copy went to work"
at $last_marker && xdotool mousedown 1
at 400 188 && at $middle_of_track && xdotool mouseup 1
expect '#ffffff 50%);'
at 182 188 && xdotool click --repeat 2 --delay 60 1 # a new stop at a quarter, selected
expect '#000000 25%,'
at $red && xdotool click --repeat 3 --delay 60 1 && xdotool type 255 && xdotool key Return
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
at 182 188 && xdotool mousedown 1
at 328 100 && xdotool mouseup 1
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
finish xdotool key ctrl+q
echo "ok"
