#!/usr/bin/env bash
# Keeps the names of headers apart: no two headers of the program's folders have one name, whatever
# folder each lies in. Prints one line a name that is given twice; status 1 when there is any.
#
# Usage: header_names.sh FOLDER
set -euo pipefail
export LC_ALL=C
cd "$1"

folders=()
for folder in src ctl desktop lib linux terminal; do
    [[ ! -d $folder ]] || folders+=("$folder")
done
if ((${#folders[@]} == 0)); then
    echo "no folder of the program in $1"
    exit 1
fi

# Paths of one name stand beside each other, and the first of them waits for the others.
find "${folders[@]}" -name '*.h' -printf '%f %p\n' | sort | awk '
    $1 == name { paths = paths " " $2; count++; next }
    { report(); name = $1; paths = $2; count = 1 }
    function report() { if (count > 1) { print "headers of one name: " paths; status = 1 } }
    END { report(); exit status }'
