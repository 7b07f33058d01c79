# shellcheck shell=bash disable=SC2034,SC2154
# SPDX-License-Identifier: GPL-3.0-or-later
# A user's eyes and hands at the display, for check.sh, which sources this: clerk=(COMMAND...) is how this user starts a
# program, $built where pictures and words go to.

# wait_until COMMAND...: waits for it up to a minute.
wait_until() {
    local end=$((SECONDS + 60))
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.1
    done
}

# stands COUNT [OTHER]: whether so many windows of the program are seen, and the newest, which is not OTHER, has the
# keyboard. $newest is that window.
stands() {
    local seen
    seen=$(xdotool search --onlyvisible --class ZRVClient 2>/dev/null | sort -n) || true
    newest=$(tail -n 1 <<<"$seen")
    [ "$(wc -w <<<"$seen")" -eq "$1" ] && [ "$newest" != "${2-}" ] && [ "$(xdotool getwindowfocus)" = "$newest" ]
}

is_hidden() { ! xdotool search --onlyvisible --class ZRVClient >/dev/null 2>&1; }

# start COMMAND...: starts the program, process $running, and waits for its window.
start() {
    "${clerk[@]}" "$@" >>"$built/program.log" 2>&1 &
    running=$!
    wait_until stands 1 || fail "no window came up that has the keyboard: $*"
}

# second_start COMMAND...: must end by itself, and bring the first, which the user put aside, to the front.
second_start() {
    xdotool windowminimize "$newest"
    wait_until is_hidden || fail "the window could not be put aside"
    timeout 60 "${clerk[@]}" "$@" >>"$built/program.log" 2>&1 || fail "a second start did not end well: $*"
    wait_until stands 1 || fail "a second start did not bring the first to the front: $*"
}

# press KEY COUNT: another window than before is the newest of so many then.
press() {
    local before=$newest
    xdotool key "$1"
    wait_until stands "$2" "$before" || fail "the key $1 did not lead on"
}

# picture NAME: of the whole display.
picture() {
    sleep 0.5
    import -window root "$built/$1.png"
}

# log_in_and_leave NAME: by keyboard, from the login on. The main form stands under a box that misses the payer.
log_in_and_leave() {
    xdotool type --delay 20 ADMIN
    xdotool key Tab
    xdotool type --delay 20 ADMIN
    press Tab 3
    press Return 2
    picture "$1"
    press Escape 3
    xdotool key Return
    wait "$running" || fail "the program did not end well"
}
