#!/usr/bin/env bash
# Every colour has its place: those of windows in desktop/look, those of the face in its palette and
# its sky, those of drawings in src/forms/inks.h. Refuses colours that are told by numbers anywhere
# else. Web pages have a style sheet of their own. Prints each place; status 1 when there is any.
#
# Usage: colours.sh FOLDER
set -euo pipefail
export LC_ALL=C
cd "$1"

number='(0x)?[0-9a-fA-F]+'
three="$number, *$number, *$number"
literals="QColor[a-zA-Z_ ]*[({] *$three|Colour[a-zA-Z_ ]*(= *)?\{ *$three|qRgba?\(|fromRgb\(|#[0-9a-fA-F]{6}\b|<color( |>)"

places='^(desktop/look/|desktop/face/(palette\.h|sky_colours\.cpp):|src/forms/(inks|drawing)\.h:)'
sheets='^src/timetables/html_timetable\.cpp:'

folders=()
for folder in src desktop; do
    [[ ! -d $folder ]] || folders+=("$folder")
done
if ((${#folders[@]} == 0)); then
    echo "no folder of the program in $1"
    exit 1
fi
! grep -rnE "$literals" "${folders[@]}" --include='*.cpp' --include='*.h' --include='*.ui' |
    grep -vE "$places|$sheets"
