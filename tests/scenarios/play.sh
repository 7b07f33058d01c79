#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Plays one scenario in a folder of its own, as its head asks (README.md beside this file tells how), or compares the
# accounts of its two plays.
#
#   play.sh headless|widgets SCENARIO WORK BIN    WORK/headless or WORK/widgets is made afresh for it
#   play.sh same SCENARIO WORK BIN                both have been played before
#   play.sh display SCENARIO WORK BIN             likewise; plays it on an X display and compares that account, too
#
# 77 when the scenario needs a file that isn't here.
set -euo pipefail
way=$1 scenario=$2 work=$3 bin=$4
files=${ZRV_JET_FILES:-${0%/*}/../../../shared/jet}

# account WAY: the transcript of a play, with its folder as ${folder}, so that two plays can be compared.
account() {
    local text
    text=$(<"$work/$1/transcript")
    printf '%s\n' "${text//"$work/$1/folder"/'${folder}'}"
}

# make_damaged_store FOLDER: a sample store with two pages overwritten, and two copies of it, the newer damaged as well.
make_damaged_store() {
    local copies=$1/Backups
    "$bin/zrvstore" sample "$1"
    mkdir "$copies"
    "$bin/zrvstore" backup "$1" "$copies/DBZorvan-13890301-101500.mdb"
    head -c 8192 /dev/zero | dd of="$1/DBZorvan.mdb" bs=4096 seek=2 conv=notrunc status=none
    cp "$1/DBZorvan.mdb" "$copies/DBZorvan-13890302-101500.mdb"
}

# make_store FOLDER: what the "#store" line of the scenario's head asks for.
make_store() {
    case ${words[0]-none} in
        none) ;;
        old) "$bin/zrvjet" "$1" "${words[@]:1}" ;;
        damaged) make_damaged_store "$1" ;;
        file) install -m 600 "$files/${words[1]}" "$1/DBZorvan.mdb" ;;
        *) "$bin/zrvstore" "${words[0]}" "$1" "${words[@]:1}" >/dev/null ;;
    esac
}

# lay_files FOLDER: the files of the structure check's approved reports that the "#files" line of the head names, each in
# a folder of its case's name.
lay_files() {
    local words file
    read -ra words < <(sed -n -e '/^#/!q' -e 's/^#files //p' "$scenario" | head -n 1) || true
    for file in "${words[@]/%//}"; do
        mkdir "$1/$file"
        cp "${0%/*}/../files/reports/$file"*.TXT "$1/$file"
    done
}

# same WAY: whether the account of that play is the headless one.
same() {
    diff -u --label headless <(account headless) --label "$1" <(account "$1")
}

read -ra words < <(sed -n -e '/^#/!q' -e 's/^#store //p' "$scenario" | head -n 1) || true
if [ "${words[0]-}" = file ] && [ ! -e "$files/${words[1]}" ]; then
    printf '%s is not here\n' "$files/${words[1]}"
    exit 77
fi

if [ "$way" = same ]; then
    same widgets
    exit
fi

here=$work/$way
rm -rf "$here"
mkdir -p "$here/folder" "$here/home"
chmod 700 "$here/home"
make_store "$here/folder"
lay_files "$here/folder"
player=("$bin/zrvplay" --folder "$here/folder" --transcript "$here/transcript")
[ "$way" = headless ] || player+=(--widgets)
# Neither settings nor files of whoever runs this are touched, nor their display.
export QT_QPA_PLATFORM=offscreen XDG_CONFIG_HOME=$here/home XDG_RUNTIME_DIR=$here/home
[ "$way" = display ] || exec "${player[@]}" "$scenario"
"${0%/*}/../on_display.sh" "${player[@]}" "$scenario"
same display
