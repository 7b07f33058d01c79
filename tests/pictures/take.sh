#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# take.sh BIN DIR [NAME]: pictures of every screen at each of its stages, for the eye; nothing is tested here.
#
# Each scenario beside this script is played on the windows once for each look, and its pictures come to lie in
#   DIR/plain    a display of 1024x768
#   DIR/middle   the same at 150 %, with as many more pixels
#   DIR/fine     the same at 200 %, with as many more pixels
#   DIR/large    the same at 200 % with no more pixels, where half as much has room
# What a scenario prints becomes a picture of each page, NAME-1.png, NAME-2.png and so on.
# With NAME only NAME.scn. A new screen is one more scenario with its "picture" lines.
set -euo pipefail
bin=$1 pictures=$2 only=${3-}
here=$(cd "$(dirname "$0")" && pwd)

work=$(mktemp -d)
# The pictures show where the program lies: always in the same place.
folder=${TMPDIR:-/tmp}/ZRVClient
mkdir "$folder" || { echo "take.sh: pictures are being taken already, or remove $folder" >&2; exit 1; }
trap 'rm -rf "$work" "$folder"' EXIT

# look LOOK: its display, its scale, and the pixels that an inch of paper has in it.
look() {
    case $1 in
        plain) display=$here/../qt/display_1024.json scale=1 inch=80 ;;
        middle) display=$here/display_1536.json scale=1.5 inch=120 ;;
        fine) display=$here/display_2048.json scale=2 inch=160 ;;
        large) display=$here/../qt/display_1024.json scale=2 inch=80 ;;
    esac
}

# in_look PROGRAM [ARG...]: runs a program without a display, as if it had one of the look.
in_look() {
    QT_QPA_PLATFORM=offscreen:configfile=$display QT_SCALE_FACTOR=$scale XDG_CONFIG_HOME=$work XDG_RUNTIME_DIR=$work "$@"
}

# play SCENARIO PICTURES
play() {
    local words print
    rm -rf "$folder"
    mkdir -p "$folder" "$2"
    read -ra words < <(sed -n 's/^#store //p' "$1" | head -n 1)
    "$bin/zrvstore" "${words[0]}" "$folder" "${words[@]:1}" >/dev/null
    in_look "$bin/zrvplay" --widgets --folder "$folder" --transcript /dev/null "$1"
    for print in "$folder"/*.pdf; do
        [ -e "$print" ] && pdftoppm -png -r "$inch" "$print" "${print%.pdf}"
    done
    mv "$folder"/*.png "$2/"
}

for which in plain middle fine large; do
    look $which
    for scenario in "$here"/${only:-*}.scn; do
        play "$scenario" "$pictures/$which"
    done
    [ -n "$only" ] || in_look "$bin/zrvpictures" "$pictures/$which"
done
