#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# on_display.sh PROGRAM [ARG...]: runs a program on an X display of its own with a window manager, as on a
# desktop: windows become active there by the manager's will, and there is a selection to paste from. Ends with the
# program's status, or with 77 where the tools are missing.
set -euo pipefail

for tool in Xvfb herbstluftwm herbstclient; do
    command -v "$tool" >/dev/null || { echo "on_display.sh: $tool is not installed" >&2; exit 77; }
done
folder=$(mktemp -d)
pids=()
trap 'kill "${pids[@]}" 2>/dev/null || true; rm -rf "$folder"' EXIT
mkfifo "$folder/display"
# Left to itself the server begins anew when its last client goes, and takes those who are just coming with it.
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp -noreset 3>"$folder/display" >/dev/null 2>&1 &
pids+=($!)
read -r number <"$folder/display"
export DISPLAY=:$number QT_QPA_PLATFORM=xcb
herbstluftwm -c /bin/true >/dev/null 2>&1 &
pids+=($!)
# A manager that comes up later would take windows over in the midst of the program's work.
for _ in $(seq 100); do
    timeout 5 herbstclient version >/dev/null 2>&1 && break
    sleep 0.1
done
# Windows keep their places, a new one has the keyboard, and one that asks to comes to the front.
herbstclient rule floating=on focus=on
herbstclient set focus_stealing_prevention off
"$@"
