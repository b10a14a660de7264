#!/usr/bin/env bash
# What is built does not know when: neither the sources of the program, of its tools and of its data
# nor the build ask for the day, so that the same commit gives the same bytes tomorrow. Prints each
# place; status 1 when there is any.
#
# Usage: build_time.sh FOLDER
set -euo pipefail
export LC_ALL=C
cd "$1"

folders=()
for folder in CMakeLists.txt cmake src ctl data desktop lib linux terminal tools; do
    [[ ! -e $folder ]] || folders+=("$folder")
done
if ((${#folders[@]} == 0)); then
    echo "no folder of the program in $1"
    exit 1
fi
! grep -rnHE '__(DATE|TIME|TIMESTAMP)__|string\(TIMESTAMP|\$\(date\b|COMMAND date\b' "${folders[@]}" \
    --include='*.cpp' --include='*.h' --include='*.in' --include='*.cmake' --include=CMakeLists.txt
