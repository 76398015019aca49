# For scripts that drive the real program on the current display: a window manager, start, and a proper end.
# Sourced with $program set; leaves what private.sh does, $styles (the preview's stylesheet), $pid and $window.

. "$(dirname "${BASH_SOURCE[0]}")/places.sh"
. "$(dirname "${BASH_SOURCE[0]}")/private.sh"
styles=$TMPDIR/WebFolder0/styles.css
openbox >/dev/null 2>&1 & # a window manager: it is what asks a window to close
eventually wmctrl -m # it manages what is mapped from now on; what is mapped while it starts may stay hidden
expect() {
    eventually grep -qF -- "$1" "$styles"
}
at() {
    xdotool mousemove --window "$window" "$1" "$2"
}
click_at() {
    at "$@" && xdotool click 1
}
begin() {
    "$program" 2>"$work/log" &
    pid=$!
    window=$(timeout 60 xdotool search --sync --onlyvisible --pid "$pid" --name '^Tessaly$' | head -n 1) || fail "no window"
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
