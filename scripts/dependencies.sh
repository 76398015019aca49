#!/usr/bin/env bash
# Installs what the project needs and the machine lacks. The one place that names Debian packages.
#
#   scripts/dependencies.sh GROUP...    groups: core, build, display, screenshot, test, package, icons, bench, systems, check
set -euo pipefail

declare -A packages=(
    [core]="cmake ninja-build g++ libexpat1-dev libpng-dev libsqlite3-dev ccache"
    [build]="cmake ninja-build g++ libexpat1-dev libpng-dev libsqlite3-dev ccache qt6-base-dev qt6-webengine-dev libgl-dev
             libfontconfig-dev qt6-wayland fonts-dejavu-core"
    [display]="xvfb xauth"
    [screenshot]="xdotool imagemagick"
    [test]="libgtest-dev libgmock-dev locales xvfb xauth xdotool sqlite3
            openbox wmctrl xclip lintian desktop-file-utils appstream mandoc
            weston dbus-daemon at-spi2-core python3-gi gir1.2-atspi-2.0 gir1.2-gdkpixbuf-2.0"
    [package]="dpkg-dev file"
    [icons]="librsvg2-bin"
    [bench]="libbenchmark-dev sqlite3 python3"
    [systems]="debootstrap util-linux git"
    [check]="clang clang-format clang-tidy cppcheck libclang-rt-dev llvm
             universal-ctags python3"
)

missing=()
for group in "$@"; do
    for package in ${packages[$group]:?no such group: $group}; do
        status=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
        [ "$status" = installed ] || missing+=("$package")
    done
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
