#!/usr/bin/env bash
# Runs a program in a tree that has the built library in build/release, and with the module for
# Python. What brings no sanitizers gets those of the library.
#
# Usage: with_library.sh PROGRAM
set -euo pipefail
library=$PWD/build/release/lib/libhoravex.so.0
export PYTHONDONTWRITEBYTECODE=1 PYTHONPATH=$PWD/python HORAVEX_LIBRARY=$library
path_of() { ldd "$library" | sed -nE "s/.*$1.* => (\S+) .*/\1/p"; }
sanitizers=$(path_of libasan)
[ -z "$sanitizers" ] ||
    export LD_PRELOAD=$sanitizers:$(path_of libstdc++) ASAN_OPTIONS=detect_leaks=0
exec "$@"
