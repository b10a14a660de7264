#!/usr/bin/env bash
# The library exports exactly the functions that its list of symbols has, its header declares and its
# Debian package promises.
#
# Usage: exports.sh LIBRARY SOURCES
set -euo pipefail
export LC_ALL=C
header=$2/lib/horavex.h

listed=$(sed -nE 's/^ +(horavex_[a-z_]+);$/\1/p' "$2/lib/symbols.map" | sort)
diff <(echo "$listed") <(nm --dynamic --defined-only --format=posix "$1" |
    awk '$2 != "A" { sub(/@.*/, "", $1); print $1 }' | sort)
diff <(echo "$listed") <(sed -nE 's/^[a-z].*[ *](horavex_[a-z_]+)\(.*/\1/p' "$header" | sort)
diff <(echo "$listed") <(sed -nE 's/^ (horavex_[a-z_]+)@.*/\1/p' \
    "$2/packaging/debian/libhoravex0.symbols" | sort)

version=$(sed -n 's/.*HORAVEX_LIBRARY_VERSION "\(.*\)"/\1/p' "$header")
[[ $(realpath "$1") == *.so."$version" ]] || {
    echo "the header has version $version, the library is $(realpath "$1")"
    exit 1
}
