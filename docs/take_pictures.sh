#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# take_pictures.sh BIN PICTURES: fills pictures/ and guide/pictures/ from those that the target "pictures" has made in
# PICTURES. Each folder's pictures.txt names what it holds; here each is taken at 100 % and at 200 %, in the guide at
# 100 %. The target "docs_pictures" does all of it.
set -euo pipefail
bin=$1 pictures=$2
here=$(cd "$(dirname "$0")" && pwd)

# take LIST LOOK FOLDER ENDING: the pictures that LIST names, as they are in that look.
take() {
    local name source
    while read -r name source; do
        case $name in '' | '#'*) continue ;; esac
        QT_QPA_PLATFORM=offscreen "$bin/zrvpictures" --shrink "$pictures/$2/$source.png" "$3/$name$4.png"
    done <"$1"
}

mkdir -p "$here/pictures" "$here/guide/pictures"
rm -f "$here"/pictures/*.png "$here"/guide/pictures/*.png
take "$here/pictures.txt" plain "$here/pictures" _100
take "$here/pictures.txt" fine "$here/pictures" _200
take "$here/guide/pictures.txt" plain "$here/guide/pictures" ''
