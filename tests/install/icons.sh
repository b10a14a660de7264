#!/usr/bin/env bash
# Desktops can draw both icons at every size, and the symbolic one, which takes a panel's colour,
# has one colour alone.
#
# Usage: icons.sh PREFIX
set -euo pipefail
cd "$1/share/icons/hicolor"

for icon in scalable/apps/horavex.svg symbolic/apps/horavex-symbolic.svg; do
    for size in 16 24 48 256; do
        drawn=$(rsvg-convert --width $size --height $size "$icon" | identify -format '%wx%h %k' -)
        [ "${drawn% *}" = "${size}x$size" ] && [ "${drawn#* }" -gt 1 ] || {
            echo "$icon at $size: $drawn"
            exit 1
        }
    done
done
colours=$(grep -oE '#[0-9a-f]+' symbolic/apps/horavex-symbolic.svg | sort -u | wc -l)
[ "$colours" -eq 1 ]
