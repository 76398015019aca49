#!/usr/bin/env bash
# Random but valid clicks, drags, keys and menu choices on the real program, from a fixed seed.
#
#   tests/app/monkey.sh PROGRAM SEED ACTIONS
#
# Whatever it did: the program goes on, ends in order, its preview shows the text of its stylesheet view, and its
# presets can be read. A build with sanitizers has nothing to report but what the browser engine leaks.
set -euo pipefail
program=$1
seed=$2
actions=$3
. "$(dirname "$0")/../support/program.sh"

# Each declaration of the gradient is there, with sound colours and positions, whatever the user wrote around it; or
# none, while there is no stop.
stylesheet_is_sound() {
    grep -q 'gradient(' "$styles" || return 0
    local color='(#[0-9a-f]{6}|(rgb|hsl)a?\([0-9.,% ]+\))' percent='[0-9]+(\.[0-9]+)?%' shape stop
    for shape in "" -moz- -webkit- -o- -ms-; do
        stop="\s*$color $percent"
        grep -qPzo "background: $shape(linear|radial)-gradient\([^\n]*\n($stop, \n)*$stop\);" "$styles" || return
    done
    stop="\s*color-stop\($percent,$color\)"
    grep -qPzo "background: -webkit-gradient\([^\n]*\n($stop, \n)*$stop\);" "$styles"
}

! nm -D "$program" | grep -q __asan_init || command -v llvm-symbolizer >/dev/null || fail "leaks could not be told apart"
begin
for ((done = 0; done < actions; done += 100)); do
    awk -v seed=$((seed * 10000 + done)) -v window="$window" -f "$(dirname "$0")/monkey.awk" >"$work/orders"
    xdotool "$work/orders" >"$work/answers" 2>&1 || fail "the window takes no orders any more"
    kill -0 "$pid" || fail "the program ended within the $done actions"
    eventually stylesheet_is_sound
done

xdotool key Escape key Escape key Escape
click_at $css_tab
click_at $orientation && xdotool key Home key Return click 1 key End key Return # a change that is written in any case
expect 'radial-gradient(center'
click_at $copy
is_shown() {
    cmp <(xclip -out -selection clipboard) "$styles"
}
eventually is_shown
presets_are_sound() {
    [ "$(database 'pragma integrity_check; select count(*) from AdditionalTable
                   where mainIndex not in (select mainIndex from MainTable)')" = $'ok\n0' ]
}
presets_are_sound || fail "the presets are not sound"
finish wmctrl -i -c "$window"
reports=$(awk -v RS= '/ERROR: AddressSanitizer|runtime error:/ || (/ leak of / && /tessaly::/)' "$work/log")
[ -z "$reports" ] || fail "the sanitizers report $reports"
echo "ok"
