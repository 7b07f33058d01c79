#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# on_bus.sh PROGRAM [ARG...]: runs a program as on_display.sh does, on a session bus of its own through which screen
# readers ask what windows hold; programs of Qt under it answer from their start on. Ends with the program's status, or
# with 77 where the tools are missing.
set -euo pipefail

for tool in dbus-run-session dbus-daemon /usr/bin/python3; do
    command -v "$tool" >/dev/null || { echo "on_bus.sh: $tool is not installed" >&2; exit 77; }
done
/usr/bin/python3 - <<'PYTHON' || { echo "on_bus.sh: gir1.2-atspi-2.0, python3-gi or at-spi2-core is not installed" >&2; exit 77; }
import os, sys
try:
    import gi
    gi.require_version("Atspi", "2.0")
except (ImportError, ValueError):
    sys.exit(1)
sys.exit(not os.path.exists("/usr/share/dbus-1/services/org.a11y.Bus.service"))
PYTHON
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export XDG_RUNTIME_DIR=$home XDG_CONFIG_HOME=$home XDG_DATA_HOME=$home GSETTINGS_BACKEND=memory
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
"${0%/*}/on_display.sh" dbus-run-session -- "$@"
