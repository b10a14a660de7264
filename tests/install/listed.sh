#!/usr/bin/env bash
# Compares what is below a prefix with lists of files. Help pages and language packs are in no list:
# those of the sources are to be there.
#
# Usage: listed.sh PREFIX SOURCES LIST...
set -euo pipefail
export LC_ALL=C
prefix=$1
sources=$2
shift 2

expected() {
    grep -hv '^#' "$@"
    cd "$sources/data"
    printf 'share/horavex/%s\n' help/*/*.html lang/*.ini
}

diff <(expected "$@" | sort) <(cd "$prefix" && find . ! -type d | cut -c 3- | sort)
