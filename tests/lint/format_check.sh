#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# format_check.sh CLANG_FORMAT FILE_LIST: names the first odd line of each source that clang-format would change.
set -euo pipefail
clang_format=$1 files=$2
status=0
said=$("$clang_format" --dry-run --Werror --files="$files" 2>&1) || status=$?
if [ "$status" -eq 0 ]; then
    echo "every source is formatted"
    exit 0
fi
grep -E '^[^ :]+:[0-9]+:.*\[-Wclang-format' <<<"$said" | sort -t: -k1,1 -u | cut -d: -f1,2 | sed 's/$/: is not formatted/' \
    || printf '%s\n' "$said"
echo "cmake --build build/dev --target format does it"
exit 1
