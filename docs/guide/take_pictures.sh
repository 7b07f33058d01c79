#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# take_pictures.sh PICTURES: fills pictures/ from the plain ones that the target "pictures" has made in PICTURES/plain,
# as pictures.txt maps them. The target "guide_pictures" does both.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)

mkdir -p "$here/pictures"
rm -f "$here"/pictures/*.png
while read -r name source; do
    case $name in '' | '#'*) continue ;; esac
    cp "$1/plain/$source.png" "$here/pictures/$name.png"
done <"$here/pictures.txt"
