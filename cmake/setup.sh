# shellcheck shell=bash disable=SC2034
# SPDX-License-Identifier: GPL-3.0-or-later
# What ./run and ./test share: Debian packages, presets, builds. Sourced by them, never run by itself.
# Nothing here asks a question; whatever can't go on ends in fail() with one line.

set -Eeuo pipefail
unset CDPATH
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
program=$(basename "$0")
# Tools print and sort the same everywhere, and Persian file names pass unharmed. The program itself gets the
# user's own locale back: it decides about dead keys and input methods.
user_locale=${LC_ALL-}
export LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive

say() { printf '%s: %s\n' "$program" "$*"; }
fail() {
    printf '%s: %s\n' "$program" "$*" >&2
    exit 1
}
trap 'fail "stopped at line $LINENO of $(basename "${BASH_SOURCE[0]}"): $BASH_COMMAND"' ERR

# One list a need, so that ./run fetches nothing that only the tests use.
build_packages=(g++ cmake ninja-build qt6-base-dev libsqlite3-dev libzint-dev)
window_packages=(fonts-noto-core qt6-translations-l10n)
# The tests use a display of their own (xvfb with a window manager) with the bus of screen readers (at-spi2-core, dbus,
# gir1.2-atspi-2.0, python3-gi), readers of what is printed (PDF and bar codes) and
# of old databases, and the tools that look after the sources; clang with its run-time library builds what is fuzzed;
# clang-format and clang-tidy bring python3, the lints' language, which is named all the same.
test_packages=(libgtest-dev libgmock-dev xvfb xauth herbstluftwm at-spi2-core dbus gir1.2-atspi-2.0 python3-gi
    poppler-utils zbar-tools mdbtools sqlite3 python3 clang-format clang-tidy clang-14 libclang-rt-14-dev)

# missing_packages NAME...: those of the named packages that dpkg does not call installed, one a line.
missing_packages() {
    local installed name
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null || true)
    for name in "$@"; do
        grep -qxF "installed $name" <<<"$installed" || printf '%s\n' "$name"
    done
}

# as_root COMMAND...: runs it as root; a sudo that would ask for a password is not used.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo -n env DEBIAN_FRONTEND=noninteractive "$@"
    fi
}

# need_packages NAME...: installs those that are missing. With none missing nothing runs but dpkg-query.
need_packages() {
    command -v dpkg-query >/dev/null \
        || fail "this is no Debian: install what these packages hold, then build with cmake --preset release: $*"
    local missing log=$root/build/packages.log
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ] && ! sudo -n true 2>/dev/null; then
        fail "packages are missing; install them once: sudo apt-get install ${missing[*]}"
    fi
    say "installing the missing packages (this may take minutes): ${missing[*]}"
    mkdir -p "$root/build"
    # A source that can't be reached need not hold the packages that are wanted: only the install decides.
    as_root apt-get -q -o DPkg::Lock::Timeout=300 update >"$log" 2>&1 || true
    as_root apt-get -q -y -o DPkg::Lock::Timeout=300 install --no-install-recommends "${missing[@]}" \
        </dev/null >>"$log" 2>&1 \
        || fail "apt-get could not install ${missing[*]} (its words: $log)"
}

# use_ccache: compiles through ccache where it is at hand; nothing depends on it.
use_ccache() {
    command -v ccache >/dev/null || return 0
    export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER:-ccache}
    local folder
    folder=$(ccache --get-config cache_dir)
    if ! mkdir -p "$folder" 2>/dev/null || [ ! -w "$folder" ]; then
        export CCACHE_DIR=$root/build/ccache
    fi
}

# build PRESET: configures and builds it. A tree that was moved or copied with its build folder starts it anew.
build() {
    local preset=$1 folder=$root/build/$1 fresh=()
    use_ccache
    if [ -f "$folder/CMakeCache.txt" ] \
        && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
        fresh=(--fresh)
    fi
    mkdir -p "$folder"
    say "building the $preset preset in build/$preset"
    (cd "$root" && cmake --preset "$preset" -DZRV_PRECOMPILE=ON "${fresh[@]}") >"$folder/configure.log" 2>&1 \
        || fail "cmake could not configure the $preset preset (its words: $folder/configure.log)"
    cmake --build "$folder" || fail "the $preset preset does not build; the compiler's words stand above"
}
