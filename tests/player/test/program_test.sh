#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# zrvplay as whoever calls it sees it: exit status, where its words go, what it needs.
#
#   program_test.sh ZRVPLAY WORK
set -uo pipefail
play=$1 work=$2
rm -rf "$work"
mkdir -p "$work/folder" "$work/home"
chmod 700 "$work/home"
export XDG_CONFIG_HOME=$work/home XDG_RUNTIME_DIR=$work/home LC_ALL=C.UTF-8
failures=0

# check WHAT STATUS PATTERN OPTION...: plays the scenario on standard input. Status, standard output and standard error
# ("STATUS|OUT|ERR" on one line) must fit the pattern.
check() {
    local what=$1 wanted=$2 out err status
    shift 2
    cat >"$work/scenario.scn"
    out=$("$play" "$@" 2>"$work/err")
    status=$?
    err=$(<"$work/err")
    # shellcheck disable=SC2053 # the right side is a pattern
    if [[ "$status|${out//$'\n'/;}|${err//$'\n'/;}" != $wanted ]]; then
        printf 'FAILED: %s\n  wanted: %s\n  got:    %s|%s|%s\n' "$what" "$wanted" "$status" "$out" "$err"
        failures=$((failures + 1))
    fi
}
here=(--folder "$work/folder" "$work/scenario.scn")

check "all expectations held" '0|open frmEnterance_Door|' "${here[@]}" <<<'start
expect-screen frmEnterance_Door'
check "one failed: its line, what was expected and what was seen" \
    '1|open frmEnterance_Door|*scenario.scn:3: expect cmdKeyOk enabled yes;*expected: "yes";*seen:     "no"' \
    "${here[@]}" <<<'# one
start
expect cmdKeyOk enabled yes'
check "nothing is played of a scenario that can't be read" '2||*scenario.scn:2: there is no line "strat"*' \
    "${here[@]}" <<<'answer yes
strat'
check "no such folder" '2||zrvplay: there is no folder *' --folder "$work/none" "$work/scenario.scn" <<<''
check "no folder told" '2||zrvplay: --folder DIR is missing*' "$work/scenario.scn" <<<''
check "no such scenario" '2||*none.scn: the scenario can'\''t be read' --folder "$work/folder" "$work/none.scn" <<<''
check "two scenarios" '2||zrvplay: one scenario is wanted*' "${here[@]}" "$work/scenario.scn" <<<''
check "an unknown option" '2||zrvplay: Unknown option*' --widget "${here[@]}" <<<''
check "the account goes to a file" '0||' --transcript "$work/account" "${here[@]}" <<<'start'
[ "$(<"$work/account")" = "open frmEnterance_Door" ] || { echo "FAILED: the account's file"; failures=$((failures + 1)); }
check "an account that can't be written" '2||zrvplay: *can'\''t be written*' --transcript "$work/none/account" "${here[@]}" <<<'start'
check "help" '0|Plays a scenario*exit status: 0 every expectation held; 1 one failed; 2 *expect-print-text TEXT*|' --help <<<''
check "a relative folder is as good" '0|open frmEnterance_Door|' --folder "$(realpath --relative-to=. "$work/folder")" \
    "$work/scenario.scn" <<<'start'
check "a store that is missing fails its statement" '1||*scenario.scn:1: sql SELECT * FROM a;    the store says -2147467259: *' \
    "${here[@]}" <<<'sql SELECT * FROM a'

if "$play" --help >/dev/null && ! "$play" --widgets "${here[@]}" 2>&1 | grep -q 'built without windows'; then
    unset DISPLAY WAYLAND_DISPLAY
    check "windows without a display" '2||zrvplay: there is no display; set QT_QPA_PLATFORM=offscreen*' \
        --widgets "${here[@]}" <<<'start'
    DISPLAY=:987 QT_QPA_PLATFORM=xcb check "windows on a display that does not answer" \
        '2||*zrvplay: no window can be shown; set QT_QPA_PLATFORM=offscreen*' --widgets "${here[@]}" <<<'start'
    QT_QPA_PLATFORM=offscreen check "windows, and a picture of the topmost" '0|open frmEnterance_Door|' \
        --widgets "${here[@]}" <<<'start
picture login.png'
    [ "$(head -c 4 "$work/folder/login.png" | tail -c 3)" = PNG ] || { echo "FAILED: the picture"; failures=$((failures + 1)); }
fi
exit $((failures > 0))
