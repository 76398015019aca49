# For scripts that drive the real program on the current display: folders of its own, start, waiting and a proper end.
# Sourced with $program set; leaves $work, $styles (the preview's stylesheet), $pid and $window.

. "$(dirname "${BASH_SOURCE[0]}")/places.sh"
work=$(mktemp -d)
export TMPDIR=$work/tmp XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work/run XDG_CONFIG_HOME=$work/config XDG_CACHE_HOME=$work/cache
mkdir -m 700 "$TMPDIR" "$XDG_DATA_HOME" "$XDG_RUNTIME_DIR" "$XDG_CONFIG_HOME" "$XDG_CACHE_HOME"
styles=$TMPDIR/WebFolder0/styles.css
openbox >/dev/null 2>&1 & # a window manager: it is what asks a window to close
manager=$!
trap 'kill -9 ${pid:-} $manager 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$work"' EXIT

fail() {
    echo "FAILED: $1"
    tail -n 60 "$work/log" "$styles" 2>/dev/null || true
    exit 1
}
set -E
trap 'fail "line $LINENO: $BASH_COMMAND"' ERR

# Waits for a command to succeed, on a busy machine too.
eventually() {
    for _ in $(seq 300); do
        "$@" >/dev/null 2>&1 && return
        sleep 0.1
    done
    fail "never came true: $*"
}
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
