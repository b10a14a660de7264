#!/usr/bin/env bash
# Expects that a shard of this one test is refused, and that this is its last line.
#
# Usage: refuses.sh PROGRAM TEST LINE
set -euo pipefail

if output=$(GTEST_FILTER=$2 "$(dirname "$0")/shard.sh" "$1"); then
    echo "$2 was let pass"
    exit 1
fi
[ "$(tail -n 1 <<<"$output")" = "$3" ] || {
    echo "$output"
    exit 1
}
