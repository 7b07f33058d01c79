#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# check.sh: makes both packages and proves them in a Debian that holds nothing but itself and what the .deb depends on:
# the installed files, the first start with its store, a second start, a crash, a login by keyboard, the whole road
# through the windows, removal, the user's data after it, and the portable folder.
#
# Wants root (debootstrap); the tools named below it installs. The clean Debian comes through the network and stays in
# build/clean for the next time. Pictures of what was seen are left in build/release.
source "$(dirname "${BASH_SOURCE[0]}")/../cmake/setup.sh"

clean=$root/build/clean
built=$root/build/release
home=$clean/home/clerk
programs=(ZRVClient zrvstore zrvcheck)
source "$root/packaging/hands.sh"

[ "$(id -u)" -eq 0 ] || fail "run it as root: debootstrap makes a Debian"
# On a display of its own, and with mounts of its own that go when it goes.
if [ -z "${ZRV_CHECK_APART-}" ]; then
    need_packages "${build_packages[@]}" "${window_packages[@]}" debootstrap lintian desktop-file-utils appstream man-db \
        xvfb herbstluftwm xdotool imagemagick
    ZRV_CHECK_APART=1 exec unshare --mount bash "$root/tests/on_display.sh" "$root/packaging/check.sh"
fi

# Steps -----------------------------------------------------------------------------------------------------------

make_packages() {
    build release
    rm -f "$built"/zrvclient_*.deb "$built"/ZRVClient-*.tar.gz
    (cd "$built" && cpack >cpack.log 2>&1) || fail "cpack could not make the packages (its words: $built/cpack.log)"
    deb=$(echo "$built"/zrvclient_*.deb)
    portable=$(echo "$built"/ZRVClient-*.tar.gz)
    version=$(dpkg-deb --field "$deb" Version)
}

# The files as they will lie on a user's machine, looked at by those tools that know best.
check_files() {
    say "looking at the files of version $version"
    local tree=$built/installed page
    lintian --allow-root --fail-on error,warning "$deb" || fail "lintian finds faults in $deb"
    rm -rf "$tree"
    dpkg-deb --extract "$deb" "$tree"
    desktop-file-validate "$tree"/usr/share/applications/*.desktop || fail "the desktop entry is not as it should be"
    appstreamcli validate-tree --no-net "$tree" || fail "the metainfo is not as it should be"
    grep -q "<release version=\"$version\"" "$tree"/usr/share/metainfo/*.xml || fail "the metainfo has another version"
    zcat "$tree/usr/share/doc/zrvclient/changelog.gz" | head -n 1 | grep -qF "($version)" \
        || fail "the changelog has another version"
    grep -q "^License: GPL-3+" "$tree/usr/share/doc/zrvclient/copyright" || fail "the licence is missing"
    grep -q "^Icon=zrvclient$" "$tree/usr/share/applications/zrvclient.desktop" \
        && [ -s "$tree/usr/share/icons/hicolor/scalable/apps/zrvclient.svg" ] || fail "the icon is missing"
    for page in "${programs[@]}"; do
        check_manual_page "$page" "$tree/usr/share/man/man1/$page.1.gz"
    done
}

# check_manual_page TOOL FILE: a page of this version that is well written, and names each option that the tool does.
check_manual_page() {
    local text option options
    text=$(zcat "$2" | tr -d '\\') || fail "the manual page of $1 is missing"
    [[ $text == *"\"ZRVClient $version\""* ]] || fail "the manual page of $1 has another version"
    ! man --warnings --local-file "$2" 2>&1 >/dev/null | grep . || fail "the manual page of $1 is not well written"
    [ "$1" != ZRVClient ] || return 0
    options=$("$built/bin/$1" --help | grep -oE -- '--[a-z-]+' | sort -u)
    for option in $options; do
        [[ $text == *"$option"* ]] || fail "the manual page of $1 lacks $option"
    done
}

make_clean_debian() {
    if [ ! -e "$clean/complete" ]; then
        say "fetching a clean Debian"
        rm -rf "$clean"
        debootstrap --variant=minbase bookworm "$clean" >"$built/debootstrap.log" 2>&1 \
            || fail "debootstrap stopped (its words: $built/debootstrap.log)"
        touch "$clean/complete"
    fi
    cp /etc/resolv.conf "$clean/etc/" 2>/dev/null || true
    mount -t proc proc "$clean/proc"
    mkdir -p "$clean/tmp/.X11-unix"
    mount --bind /tmp/.X11-unix "$clean/tmp/.X11-unix"
    words=(PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8)
    inside=(chroot "$clean" env -i "${words[@]}" DEBIAN_FRONTEND=noninteractive)
    clerk=(chroot --userspec=clerk:clerk "$clean" env -i "${words[@]}" HOME=/home/clerk XDG_RUNTIME_DIR=/run/clerk
        DISPLAY="$DISPLAY")
    "${inside[@]}" id clerk >/dev/null 2>&1 || "${inside[@]}" useradd -m clerk
    # What an earlier check left; the packages that only the .deb wanted go, too, so that it must name them all again.
    "${inside[@]}" apt-get -q -y purge zrvclient >/dev/null 2>&1 || true
    "${inside[@]}" apt-get -q -y autoremove --purge >/dev/null 2>&1 || fail "$clean can't be cleared; remove it"
    rm -rf "${home:?}" "$clean/run/clerk"
    "${inside[@]}" install -d -m 700 -o clerk -g clerk /home/clerk /run/clerk
}

install_package() {
    say "installing the package"
    cp "$deb" "$clean/opt/zrvclient.deb"
    "${inside[@]}" apt-get -q update >"$built/install.log" 2>&1 || true
    "${inside[@]}" apt-get -q -y install --no-install-recommends /opt/zrvclient.deb >>"$built/install.log" 2>&1 \
        || fail "the package could not be installed (apt-get's words: $built/install.log)"
    local tool
    for tool in "${programs[@]}"; do
        finds_its_libraries "/usr/bin/$tool"
    done
    for tool in zrvstore zrvcheck; do
        "${clerk[@]}" "$tool" --version | grep -qF "$version" || fail "$tool tells another version"
    done
}

finds_its_libraries() {
    local libraries
    libraries=$("${inside[@]}" ldd "$1")
    [[ $libraries != *"not found"* ]] || fail "libraries of $1 are missing: $(grep "not found" <<<"$libraries")"
}

# store_is_sound FOLDER TOOLS: the store there, and the copy that the program made of it when it was left.
store_is_sound() {
    local copies
    "${clerk[@]}" "$2/zrvstore" verify "$1" || fail "the store in $1 is not sound"
    copies=$("${clerk[@]}" "$2/zrvstore" list "$1") || fail "the copies of the store in $1 are not sound"
    [[ $copies == DBZorvan-* ]] || fail "the program left no copy of the store in $1"
}

start_for_the_first_time() {
    say "the first start, a second one meanwhile, a crash, and a login"
    start ZRVClient
    picture first-start
    second_start ZRVClient
    press Return 1
    picture login
    [ -s "$home/.local/share/ZRVClient/DBZorvan.mdb" ] || fail "the first start made no store"
    second_start ZRVClient
    kill -KILL "$running"
    wait "$running" 2>/dev/null || true
    [ -e "$home/.local/share/ZRVClient/DBZorvan.mdb.lock" ] || fail "the program that was killed held no lock"
    start ZRVClient
    log_in_and_leave main
    store_is_sound /home/clerk/.local/share/ZRVClient /usr/bin
}

# The player is no part of the package; it drives the same windows.
play_whole_road() {
    say "the whole road through the windows"
    local road=/home/clerk/road
    "${clerk[@]}" mkdir -p "$road/folder"
    cp "$built/bin/zrvplay" "$clean$road/"
    cp -r "$root/tests/scenarios" "$clean$road/"
    finds_its_libraries "$road/zrvplay"
    "${clerk[@]}" zrvstore create "$road/folder" >/dev/null
    timeout 600 "${clerk[@]}" "$road/zrvplay" --widgets --folder "$road/folder" --transcript "$road/transcript" \
        "$road/scenarios/whole_road.scn" || fail "the whole road did not play to its end"
}

remove_package() {
    say "removing the package"
    "${inside[@]}" apt-get -q -y purge zrvclient >>"$built/install.log" 2>&1 || fail "the package could not be removed"
    local file
    while read -r file; do
        [ ! -e "$clean/$file" ] || fail "the package left /$file"
    done < <(cd "$built/installed" && find usr -type f)
    [ -s "$home/.local/share/ZRVClient/DBZorvan.mdb" ] || fail "the user's store went with the package"
}

# With the package gone: the folder finds its own tools, and keeps its store to itself.
check_portable_folder() {
    say "the portable folder"
    local folder="/home/clerk/my office"
    rm -rf "$home/.local"
    "${clerk[@]}" mkdir "$folder"
    cp "$portable" "$clean/opt/portable.tar.gz"
    "${clerk[@]}" tar -xzf /opt/portable.tar.gz -C "$folder"
    folder+=/ZRVClient-$version
    start "$folder/ZRVClient"
    picture portable-first-start
    press Return 1
    second_start "$folder/ZRVClient"
    log_in_and_leave portable-main
    store_is_sound "$folder" "$folder"
    [ ! -e "$home/.local/share/ZRVClient" ] || fail "the portable folder keeps something elsewhere"
}

make_packages
check_files
make_clean_debian
install_package
start_for_the_first_time
play_whole_road
remove_package
check_portable_folder
say "both packages are sound: $deb $portable"
