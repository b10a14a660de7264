#!/usr/bin/env bash
# No installed file tells where it was built: another folder would make other bytes.
#
# Usage: no_build_path.sh ROOT FOLDER...
set -euo pipefail
root=$1
shift
for folder in "$@"; do
    if found=$(grep -rlF -- "$folder" "$root"); then
        printf '%s stands in\n%s\n' "$folder" "$found"
        exit 1
    fi
done
