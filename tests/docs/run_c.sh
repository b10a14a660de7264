#!/usr/bin/env bash
# Builds a program in C, which comes on standard input, with the library of build/release, and runs
# it.
set -euo pipefail
program=$(mktemp)
trap 'rm "$program"' EXIT
env -u LD_PRELOAD cc -std=c11 -Wall -Wextra -Wpedantic -Werror -Ilib -x c -o "$program" - \
    -Lbuild/release/lib -Wl,-rpath,"$PWD/build/release/lib" -lhoravex
"$program"
