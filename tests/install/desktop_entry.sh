#!/usr/bin/env bash
# The desktop entry is in order, its commands and its icon are installed with it, and every text
# has all languages of the program.
#
# Usage: desktop_entry.sh PREFIX
set -euo pipefail
cd "$1"
entry=share/applications/horavex.desktop

complaints=$(desktop-file-validate "$entry" 2>&1)
[ -z "$complaints" ] || {
    echo "$complaints"
    exit 1
}

for command in $(grep -oE '\bhoravex[a-z-]*' <<<"$(grep '^Exec=' "$entry")"); do
    [ -x "bin/$command" ] || {
        echo "no $command is installed"
        exit 1
    }
done
[ -e "share/icons/hicolor/scalable/apps/$(sed -n 's/^Icon=//p' "$entry").svg" ]

# Each text in the order of the file: its key, and its languages on one line.
languages_of_texts() {
    awk -F= '/^(GenericName|Comment|Keywords|Name)\[/ {
        split($1, key, /[][]/)
        printf "%s ", key[2]
        if (key[2] == "ur") print key[1]
    }' "$entry"
}
diff <(languages_of_texts) - <<END
ar bn de es fr id tr ur GenericName
ar bn de es fr id tr ur Comment
ar bn de es fr id tr ur Keywords
ar bn de es fr id tr ur Name
ar bn de es fr id tr ur Name
END
