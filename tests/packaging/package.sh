#!/usr/bin/env bash
# Makes the Debian package of a built tree, validates what is in it, installs it below a folder, where dpkg checks the
# dependencies against what this machine has, and runs it from there on the current display.
set -euo pipefail
build=$1

build=$(realpath "$build")
. "$(dirname "$0")/../support/private.sh"
. "$(dirname "$0")/../support/places.sh"
root=$work/root
share=$root/usr/share
export PATH=$PATH:/usr/sbin:/sbin # dpkg insists on finding the programs there, for users too

# Runs a command whose output matters only when it fails.
must() {
    "$@" >"$work/log" 2>&1 || fail "$*"
}

# The same with an option that older releases of the command do not know, and need not.
must_with() {
    local option=$1
    shift
    if grep -q 'not recognized\|Unknown tag' <("$@" "$option" 2>&1); then
        must "$@"
    else
        must "$@" "$option"
    fi
}

must cpack --config "$build/CPackConfig.cmake" -B "$work/package"
deb=$(ls "$work"/package/*.deb)

mkdir -p "$root"/var/lib/dpkg/{info,triggers,updates}
cp /var/lib/dpkg/status "$root/var/lib/dpkg"
must dpkg --root="$root" --log="$work/dpkg.log" --force-not-root -i "$deb"

id=example.tessaly.Tessaly
must desktop-file-validate "$share/applications/$id.desktop"
# There is no homepage until an owner gives one, of which newer releases warn.
must_with --override=url-homepage-missing=info appstreamcli validate-tree --no-net "$root"
must grep -q "<launchable type=\"desktop-id\">$id.desktop<" "$share/metainfo/$id.metainfo.xml"
must mandoc -T lint -W warning "$share/man/man1/tessaly.1.gz"
must grep -qx "Icon=$id" "$share/applications/$id.desktop"
must test -s "$share/icons/hicolor/scalable/apps/$id.svg"
for size in 16 22 24 32 48 64 128 256 512; do
    file "$share/icons/hicolor/${size}x$size/apps/$id.png" >"$work/log"
    grep -q "PNG image data, $size x $size," "$work/log" || fail "no icon of $size pixels"
done
must_with --suppress-tags=appstream-metadata-validation-failed lintian --allow-root --fail-on error,warning "$deb"

files() {
    (cd "$1" && find usr -type f -printf '%m %p\n' | sort)
}
DESTDIR=$work/staged must cmake --install "$build" --prefix /usr
must diff <(files "$root") <(files "$work/staged")

program=$root/usr/bin/tessaly
module=$root/usr/lib/tessaly/modules/preview.so
[ "$(env -u DISPLAY -u WAYLAND_DISPLAY "$program" --version)" = "Tessaly $(dpkg-deb -f "$deb" Version)" ] || fail "no version, or another"
links_engine() {
    ldd "$1" >"$work/log" && grep -q Qt6WebEngine "$work/log"
}
! links_engine "$program" || fail "the program links the browser engine"
links_engine "$module" || fail "the module does not link the browser engine"

# It runs the engine from there, whatever folder it is started from; and without the module all but that.
engine_runs() {
    grep -qsz QtWebEngineProcess $(sed 's|[0-9]\+|/proc/&/cmdline|g' "/proc/$pid/task/$pid/children")
}
module_is_missed() {
    grep -qxF "No web preview: $module is missing" "$work/log"
}
for expected in engine_runs module_is_missed; do
    (cd / && exec "$program") 2>"$work/log" &
    pid=$!
    eventually find_window
    xdotool mousemove --window "$window" $preview_tab click 1
    eventually "$expected"
    xdotool windowfocus --sync "$window" key ctrl+q
    wait "$pid" || fail "the program ended with status $?"
    rm -f "$module"
done
echo "ok"
