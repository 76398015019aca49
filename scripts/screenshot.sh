#!/usr/bin/env bash
# Starts PROGRAM on the current display, saves a picture of its window as FILE.png and ends it.
#
#   scripts/screenshot.sh PROGRAM FILE.png [COMMAND...]    COMMAND runs first, with the window's id as last argument
set -euo pipefail
program=$1
picture=$2
shift 2

home=$(mktemp -d) # the user's presets, and a copy of the program that runs already, stay out of the picture
export XDG_DATA_HOME=$home XDG_RUNTIME_DIR=$home
"$program" &
pid=$!
trap 'kill "$pid" 2>/dev/null || true; wait "$pid" 2>/dev/null || true; rm -rf "$home"' EXIT

window=$(timeout 60 xdotool search --sync --onlyvisible --pid "$pid" --name Tessaly | head -n 1)
sleep 1
if [ $# -gt 0 ]; then
    "$@" "$window"
fi
eval "$(xdotool getwindowgeometry --shell "$window")"
import -window root -crop "${WIDTH}x$HEIGHT+$X+$Y" +repage "$picture" # with the dialogs over it
echo "Saved $picture"
