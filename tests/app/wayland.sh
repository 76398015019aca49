#!/usr/bin/env bash
# The real program on a Wayland display without a screen: its window comes up, and the preview shows the gradient.
set -euo pipefail
program=$1
here=$(realpath "$(dirname "$0")")
. "$here/../support/private.sh"

cd "$work"
# Nothing but the window is on the display, so that it can be found there.
cat >"$XDG_CONFIG_HOME/weston.ini" <<'DESKTOP'
[shell]
panel-position=none
background-color=0xffff00ff
startup-animation=none
animation=none
DESKTOP
weston --backend=headless-backend.so --use-pixman --width=1280 --height=1024 --idle-time=0 --debug \
    --socket=tessaly-test --log="$work/weston.log" >/dev/null 2>&1 &
eventually test -S "$XDG_RUNTIME_DIR/tessaly-test"
export WAYLAND_DISPLAY=tessaly-test QT_WAYLAND_DISABLE_WINDOWDECORATION=1 QT_QPA_PLATFORM=wayland QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
unset DISPLAY
unset DBUS_SESSION_BUS_ADDRESS
dbus-run-session -- bash -ec '"$1" 2>"$2" & "$3"; kill -0 $!; kill $!; wait $!' \
    bash "$program" "$work/log" "$here/wayland.py" || fail "the preview does not show the gradient"
[ -z "$(ls "$TMPDIR")" ] || fail "left behind: $(ls "$TMPDIR")"
echo "ok"
