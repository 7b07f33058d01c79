#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# take.sh BIN DIR [NAME]: pictures of every screen at each of its stages, for the eye; nothing is tested here.
#
# Each scenario beside this script is played on the windows three times, and its pictures come to lie in
#   DIR/plain    a display of 1024x768
#   DIR/fine     the same at 200 %, with as many more pixels
#   DIR/large    the same at 200 % with no more pixels, where half as much has room
# With NAME only NAME.scn. A new screen is one more scenario with its "picture" lines.
set -euo pipefail
bin=$1 pictures=$2 only=${3-}
here=$(cd "$(dirname "$0")" && pwd)

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# in_look LOOK PROGRAM [ARG...]: runs a program without a display, as if it had one of that look.
in_look() {
    local look=$1 display=$here/../qt/display_1024.json scale=2
    shift
    case $look in
        plain) scale=1 ;;
        fine) display=$here/display_2048.json ;;
    esac
    QT_QPA_PLATFORM=offscreen:configfile=$display QT_SCALE_FACTOR=$scale XDG_CONFIG_HOME=$work XDG_RUNTIME_DIR=$work "$@"
}

# play LOOK SCENARIO
play() {
    local folder=$work/folder words
    rm -rf "$folder"
    mkdir -p "$folder" "$pictures/$1"
    read -ra words < <(sed -n 's/^#store //p' "$2" | head -n 1)
    "$bin/zrvstore" "${words[0]}" "$folder" "${words[@]:1}" >/dev/null
    in_look "$1" "$bin/zrvplay" --widgets --folder "$folder" --transcript /dev/null "$2"
    mv "$folder"/*.png "$pictures/$1/"
}

for scenario in "$here"/${only:-*}.scn; do
    for look in plain fine large; do
        play $look "$scenario"
    done
done
if [ -z "$only" ]; then
    for look in plain fine large; do
        in_look $look "$bin/zrvpictures" "$pictures/$look"
    done
fi

