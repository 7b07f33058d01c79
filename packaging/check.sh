#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# check.sh: makes the packages, and proves the .deb in a Debian that holds nothing but itself: lintian, installation, the
# first start with its store, the whole road through the windows, removal, and that the user's data stay.
#
# Not yet whole: the first start's box is seen, but the key that should close it doesn't reach it, and all that follows
# waits there.
#
# Wants root (debootstrap), lintian, xvfb, herbstluftwm, xdotool and imagemagick; the clean Debian comes through the
# network and stays in build/clean for the next time. Pictures of the first start are left in build/release.
source "$(dirname "${BASH_SOURCE[0]}")/../cmake/setup.sh"

clean=$root/build/clean
built=$root/build/release
road=$clean/opt/road

[ "$(id -u)" -eq 0 ] || fail "run it as root: debootstrap makes a Debian"
need_packages "${build_packages[@]}" "${window_packages[@]}" debootstrap lintian xvfb herbstluftwm xdotool imagemagick
build release
(cd "$built" && cpack >cpack.log 2>&1) || fail "cpack could not make the packages (its words: $built/cpack.log)"
deb=$(ls "$built"/zrvclient_*.deb)
say "lintian"
lintian --fail-on error "$deb" || fail "lintian finds errors in $deb"

if [ ! -e "$clean/etc/debian_version" ]; then
    say "fetching a clean Debian"
    debootstrap --variant=minbase bookworm "$clean" >"$built/debootstrap.log" 2>&1 \
        || fail "debootstrap stopped (its words: $built/debootstrap.log)"
fi
inside() { chroot "$clean" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
as_clerk() { inside runuser -u clerk -- env HOME=/home/clerk DISPLAY="$DISPLAY" "$@"; }

cp /etc/resolv.conf "$clean/etc/" 2>/dev/null || true
cp "$deb" "$clean/opt/zrvclient.deb"
say "installing the package"
inside apt-get -q -y purge zrvclient >/dev/null 2>&1 || true
inside apt-get -q update >/dev/null
inside apt-get -q -y install --no-install-recommends /opt/zrvclient.deb >"$built/install.log" 2>&1 \
    || fail "the package could not be installed (apt-get's words: $built/install.log)"
inside id clerk >/dev/null 2>&1 || inside useradd -m clerk
rm -rf "$clean/home/clerk/.local" "$road"
mkdir -p "$road/folder" "$clean/tmp/.X11-unix"
# The player is no part of the package; it drives the same windows.
cp "$built/bin/zrvplay" "$road/"
cp -r "$root/tests" "$road/tests"
inside zrvstore create /opt/road/folder >/dev/null
inside chown -R clerk /opt/road

on_the_display() {
    mount --bind /tmp/.X11-unix "$clean/tmp/.X11-unix"
    trap 'umount "$clean/tmp/.X11-unix"' EXIT
    say "the first start"
    as_clerk ZRVClient >/dev/null 2>&1 &
    local window
    window=$(timeout 60 xdotool search --sync --onlyvisible --class ZRVClient | head -n 1)
    [ -n "$window" ] || fail "no window came up"
    sleep 2
    import -window root "$built/first-start.png"
    xdotool key Return
    sleep 2
    import -window root "$built/login.png"
    [ -s "$clean/home/clerk/.local/share/ZRVClient/DBZorvan.mdb" ] || fail "the first start made no store"
    as_clerk ZRVClient || fail "a second start did not end well"
    pkill -x ZRVClient
    say "the whole road through the windows"
    as_clerk /opt/road/zrvplay --widgets --folder /opt/road/folder --transcript /opt/road/transcript \
        /opt/road/tests/scenarios/whole_road.scn || fail "the whole road did not play to its end"
}
export built clean root road program
export -f on_the_display inside as_clerk say fail
bash "$root/tests/on_display.sh" bash -c 'set -euo pipefail; on_the_display'

say "removing the package"
inside apt-get -q -y purge zrvclient >/dev/null
inside test ! -e /usr/bin/ZRVClient || fail "the program is still there"
[ -s "$clean/home/clerk/.local/share/ZRVClient/DBZorvan.mdb" ] || fail "the user's store went with the package"
say "the package is sound: $deb"
