#!/usr/bin/env bash
# Every program below a prefix has a manual page, and each of these is set without a warning.
#
# Usage: manuals.sh PREFIX
set -euo pipefail
cd "$1"

pages=share/man/man1
diff <(ls bin | sort) <(ls $pages | sed 's/\.1$//' | sort)
for page in "$pages"/*; do
    warnings=$(groff -man -Tutf8 -ww "$page" 2>&1 >/dev/null)
    [ -z "$warnings" ] || {
        printf '%s: %s\n' "$page" "$warnings"
        exit 1
    }
done
