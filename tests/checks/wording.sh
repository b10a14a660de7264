#!/usr/bin/env bash
# The project speaks as its own developers: no file or file name refers to a document that it was
# written from or to a program that came before. Prints each place; status 1 when there is any.
#
# Usage: wording.sh PROJECT_FOLDER
set -euo pipefail
export LC_ALL=C
cd "$1"

# In pieces, so that this file does not match itself.
words='speci''fication|\bspec''\.md|\bthe ''spec\b|\bparts? ''[0-9]+\.[0-9]+|original ''program'

project_files() {
    find . \( -path ./.git -o -path ./build \) -prune -o -type f -print0
}

found=0
project_files | tr '\0' '\n' | grep -iE "$words" && found=1
project_files | xargs -0 -r grep -IinHE "$words" && found=1
exit "$found"
