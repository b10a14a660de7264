#!/usr/bin/env bash
# The names of the texts in the code are those of their table. Prints what to do when they differ;
# status 1 then.
#
# Usage: text_entries.sh PROJECT_FOLDER
set -euo pipefail
tools=$(realpath "$(dirname "$0")/../../tools")
cd "$1"

if ! "$tools/text_entries.sh" data/texts/texts.csv | cmp --silent - src/store/text_entry.h; then
    echo "src/store/text_entry.h is not what tools/text_entries.sh makes of data/texts/texts.csv"
    exit 1
fi
