# For scripts that run the program: folders of their own, waiting, and an end that leaves nothing behind. Sourced; leaves
# $work.

work=$(mktemp -d)
export TMPDIR=$work/tmp HOME=$work/home XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work/run XDG_CONFIG_HOME=$work/config \
    XDG_CACHE_HOME=$work/cache
mkdir -m 700 "$TMPDIR" "$HOME" "$XDG_DATA_HOME" "$XDG_RUNTIME_DIR" "$XDG_CONFIG_HOME" "$XDG_CACHE_HOME"
export DBUS_SESSION_BUS_ADDRESS=disabled: # else the first who looks for one starts it

# Whoever was started from here, by others too, has our folder in its environment.
leave() {
    local left process
    while true; do
        # The search is not to find itself; it fails on what has ended meanwhile.
        left=$(env -u TMPDIR grep -lzsxF "TMPDIR=$TMPDIR" /proc/[0-9]*/environ || true)
        [ -n "$left" ] || break
        for process in $left; do
            process=${process#/proc/}
            kill -9 "${process%/environ}" 2>/dev/null || true
        done
        wait || true
    done 2>/dev/null
    rm -rf "$work"
}
trap leave EXIT

fail() {
    echo "FAILED: $1"
    tail -n 60 "$work/log" "${styles:-}" 2>/dev/null || true
    exit 1
}
set -E
trap 'fail "line $LINENO: $BASH_COMMAND"' ERR

# Starts a window manager, which gives the keyboard to the window that comes up and asks one to close. It leaves the mouse
# to the windows: a click that had to pass by it could be overtaken by the keys that follow.
manage_windows() {
    echo '<openbox_config xmlns="http://openbox.org/3.4/rc"><mouse/></openbox_config>' >"$work/openbox.xml"
    openbox --config-file "$work/openbox.xml" >/dev/null 2>&1 &
    eventually wmctrl -m # it manages what is mapped from now on; what is mapped while it starts may stay hidden
}

# Waits for a command to succeed, on a busy machine too.
eventually() {
    for _ in $(seq 300); do
        "$@" >/dev/null 2>&1 && return
        sleep 0.1
    done
    fail "never came true: $*"
}

# The window of the program, whose process is $pid. Sets $window.
find_window() {
    window=$(xdotool search --onlyvisible --pid "$pid" --name '^Tessaly$') && [ -n "$window" ]
}
