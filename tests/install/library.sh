#!/usr/bin/env bash
# A program in C is built with the installed header and library, as the file for pkg-config tells
# how, and has the day of its source's comment. Nothing of the compiler's is too much for it.
#
# Usage: library.sh ROOT PREFIX SOURCES [FLAG...]     FLAGs are for the compiler
set -euo pipefail
root=$1
sources=$3
libraries=$(dirname "$(find "$root$2" -name libhoravex.so)")
shift 3
program=$(mktemp)
trap 'rm "$program"' EXIT

export PKG_CONFIG_LIBDIR=$libraries/pkgconfig PKG_CONFIG_SYSROOT_DIR=$root
export PKG_CONFIG_ALLOW_SYSTEM_CFLAGS=1 PKG_CONFIG_ALLOW_SYSTEM_LIBS=1
version=$(sed -n 's/.*HORAVEX_LIBRARY_VERSION "\(.*\)"/\1/p' "$sources/lib/horavex.h")
[ "$(pkg-config --modversion horavex)" = "$version" ]

# shellcheck disable=SC2046  # words of flags
cc -std=c11 -Wall -Wextra -Wpedantic -Werror "$@" -o "$program" "$sources/lib/examples/day.c" \
    $(pkg-config --cflags --libs horavex)
diff <(LD_LIBRARY_PATH=$libraries "$program") - <<END
2026-06-21, 1448-01-06 AH
Fajr     04:08
Shurooq  05:54
Zuhr     12:57
Asr      16:32
Maghrib  19:59
Isha     21:33
Qibla    136.2 degrees
END
