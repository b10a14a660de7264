#!/usr/bin/env bash
# Runs a check on a sample tree and passes when the check fails with exactly the expected line.
#
# Usage: rejects.sh CHECK EXPECTED-LINE [FILE CONTENT]...
set -euo pipefail
check=$1
expected=$2
shift 2

tree=$(mktemp -d)
trap 'rm -r "$tree"' EXIT
while (($# > 0)); do
    mkdir -p "$tree/$(dirname "$1")"
    printf '%s\n' "$2" >"$tree/$1"
    shift 2
done

if output=$("$check" "$tree" 2>&1); then
    echo "the check let the sample pass"
    exit 1
fi
if [[ ${output//"$tree"/TREE} != "$expected" ]]; then
    printf 'expected: %s\ngot:      %s\n' "$expected" "$output"
    exit 1
fi
