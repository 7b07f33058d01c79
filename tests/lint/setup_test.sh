#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# What cmake/setup.sh does on machines that lack something, played with made-up dpkg-query, apt-get, sudo and id.
set -euo pipefail
source_root=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/a tree/cmake" "$work/bin"
cp "$source_root/cmake/setup.sh" "$work/a tree/cmake/"
failures=0

# fake NAME BODY: a command of that name that notes its call in $work/calls.
fake() {
    printf '#!/bin/bash\nprintf "%%s\\n" "%s $*" >>"%s/calls"\n%s\n' "$1" "$work" "$2" >"$work/bin/$1"
    chmod +x "$work/bin/$1"
}

# machine USER_ID INSTALLED SUDO_STATUS APT_STATUS
machine() {
    rm -f "$work/calls" "$work/bin"/*
    : >"$work/calls"
    fake id "echo $1"
    fake dpkg-query "for p in $2; do echo \"installed \$p\"; done; exit 1"
    fake sudo "[ $3 -eq 0 ] || exit $3; [ \"\$2\" = true ] || exec \"\${@:2}\""
    fake apt-get "[ \"\${*: -1}\" = update ] || exit $4"
}

# need PACKAGE...: what a command that needs them prints, both streams; its status in $status.
need() {
    status=0
    printed=$(PATH="$work/bin:$PATH" bash -c 'source "$1/cmake/setup.sh"; need_packages "${@:2}"' run "$work/a tree" "$@" 2>&1) \
        || status=$?
}

expect() { # expect WHAT ACTUAL EXPECTED
    if [ "$2" != "$3" ]; then
        printf '%s\n  expected: %s\n  seen:     %s\n' "$1" "$3" "$2"
        failures=$((failures + 1))
    fi
}
calls_of() { grep -c "^$1 " "$work/calls" || true; }

machine 0 "g++ cmake" 0 0
need g++ cmake
expect "nothing missing: succeeds" "$status" 0
expect "nothing missing: says nothing" "$printed" ""
expect "nothing missing: asks no network" "$(calls_of apt-get)" 0

machine 0 "g++" 0 0
need g++ cmake xvfb
expect "root: names the missing ones in one line" "$printed" \
    "run: installing the missing packages (this may take minutes): cmake xvfb"
expect "root: one update, one install" "$(calls_of apt-get)" 2
expect "root: no sudo" "$(calls_of sudo)" 0
grep -q "install --no-install-recommends cmake xvfb$" "$work/calls" || expect "root: installs only those" no yes

machine 1000 "g++" 0 0
need g++ cmake
expect "a user with sudo: succeeds" "$status" 0
grep -q "^sudo -n env DEBIAN_FRONTEND=noninteractive apt-get .*install.* cmake$" "$work/calls" \
    || expect "a user with sudo: installs through it, unasked" no yes

machine 1000 "g++" 1 0
need g++ cmake
expect "a user without sudo: one line with the command" "$status: $printed" \
    "1: run: packages are missing; install them once: sudo apt-get install cmake"
expect "a user without sudo: no apt-get" "$(calls_of apt-get)" 0

machine 0 "g++" 0 100
need g++ cmake
expect "apt-get fails: status" "$status" 1
expect "apt-get fails: one line more" "$(tail -n +2 <<<"$printed")" \
    "run: apt-get could not install cmake (its words: $work/a tree/build/packages.log)"

machine 0 "cmake-data" 0 0
need cmake
expect "a name's beginning is not the name" "$(calls_of apt-get)" 2

[ "$failures" -eq 0 ] && echo "the set-up script does what it says"
exit "$failures"
