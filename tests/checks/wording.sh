#!/usr/bin/env bash
# The project speaks as its own developers: no file or file name refers to a document that it was
# written from or to a program that came before. Prints each place; status 1 when there is any.
#
# Usage: wording.sh PROJECT_FOLDER
set -euo pipefail
export LC_ALL=C
cd "$1"

# In pieces, so that this file does not match itself.
words='speci''fication|\bspec''\.md|\bthe ''spec\b|\bspeci''fied\b|\bpor''ted\b'
words+='|\bparts? ''[0-9]+(\.[0-9]+)*\b|original ''program'

project_files() {
    find . \( -path ./.git -o -path ./build \) -prune -o -type f -print0
}

# Licences are told in their own words.
spoken_files() {
    project_files | grep -zvx './packaging/debian/copyright'
}

found=0
project_files | tr '\0' '\n' | grep -iE "$words" && found=1
spoken_files | xargs -0 -r grep -IinHE "$words" && found=1
exit "$found"
