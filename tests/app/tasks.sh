#!/usr/bin/env bash
# One task through the real program on the current display, in one of two ways: tasks.sh PROGRAM keyboard|assistive_tools
set -euo pipefail
program=$1 way=$2
here=$(realpath "$(dirname "$0")")
. "$here/../support/private.sh"

manage_windows
bus=()
[ "$way" = keyboard ] || bus=(env -u DBUS_SESSION_BUS_ADDRESS QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 dbus-run-session --)
cd "$work"
"${bus[@]}" bash -ec '"$1" 2>"$2" & "$3" "$4"; kill -0 $!; kill $!; wait $!' \
    bash "$program" "$work/log" "$here/tasks.py" "$way" || fail "the task cannot be done this way: $way"
[ -z "$(ls "$TMPDIR")" ] || fail "left behind: $(ls "$TMPDIR")"
echo "ok"
