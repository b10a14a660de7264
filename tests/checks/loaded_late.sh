#!/usr/bin/env bash
# Looks whether a start of built programs leaves libraries alone that only what comes later needs.
# Prints one line for each that it loads; status 1 when there is any.
#
# Usage: loaded_late.sh LIBRARIES PROGRAM...     LIBRARIES as "curl pulse"
set -euo pipefail

loaded=0
for program in "${@:2}"; do
    needed=$(readelf --dynamic --wide "$program" | sed -n 's/.*(NEEDED).*\[\(.*\)\].*/\1/p')
    for library in $1; do
        if grep -q "^lib$library\.so" <<<"$needed"; then
            echo "$(basename "$program") loads lib$library"
            loaded=$((loaded + 1))
        fi
    done
done
[ "$loaded" -eq 0 ]
