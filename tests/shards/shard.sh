#!/usr/bin/env bash
# Runs one shard of a room's tests in one process: which one, GTEST_SHARD_INDEX and
# GTEST_TOTAL_SHARDS say. Fails where a test fails, is skipped or is disabled, where one ends the
# process, and after 20 minutes; the last line that begins with "[ RUN" is then of that test.
#
# Usage: shard.sh PROGRAM
set -uo pipefail

output=$(mktemp)
trap 'rm "$output"' EXIT
timeout 1200 "$1" 2>&1 | tee "$output" || exit 1
if grep -qE '^\[  SKIPPED \]|YOU HAVE [0-9]+ DISABLED TEST' "$output"; then
    echo "shard: a test was skipped"
    exit 1
fi
if ! grep -q '^\[  PASSED  \]' "$output"; then
    echo "shard: a test ended the process"
    exit 1
fi
