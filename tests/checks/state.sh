#!/usr/bin/env bash
# Keeps the table of program-wide state in docs/architecture.md true. It has one row for each
# variable that a header of the core declares, with that header; who writes it, by files; and who
# reads it, by rooms. The variable's own file is in neither, and horavexctl is "ctl" in both.
# Assignments are found, and so are names; that a variable is handed to a routine which writes it
# nobody finds, so that a writer may be named who only mentions it. Prints one line a violation;
# status 1 when there is any.
#
# Usage: state.sh FOLDER
set -euo pipefail
export LC_ALL=C
cd "$1"
table=docs/architecture.md

violations=0
complain() {
    echo "$1"
    violations=$((violations + 1))
}

# "NAME HEADER" of each variable that others may reach.
declared=$(grep -rE '^extern ' src --include='*.h' | grep -v ':extern const ' |
    sed -nE 's#^src/([^:]*):extern ([^,;()<>]|<[^;]*>)*[ &*]([A-Za-z_0-9]+);.*#\3 \1#p' | sort)

# Declarations that the line above does not take, and those that pass by the table altogether.
refuse_others() {
    local place
    while IFS= read -r place; do
        [[ -z $place ]] || complain "$place: declare each variable in a header, on a line of its own"
    done < <(
        grep -rnE '^[[:space:]]*extern [^"]' src --include='*.h' | grep -v ':extern const ' |
            grep -vE ':[0-9]+:extern ([^,;()<>]|<[^;]*>)*[ &*][A-Za-z_0-9]+;' | cut -d: -f1,2 || true
        grep -rnE '^[[:space:]]*extern [^"]' src --include='*.cpp' | cut -d: -f1,2 || true
        grep -rnE '^inline [^(]*[ &*][A-Za-z_0-9]+( = .*|\{.*)?;' src --include='*.h' |
            grep -vE ':inline (constexpr|const|FormInstance<.*>) ' | cut -d: -f1,2 || true
    )
}

# "NAME HEADER|WRITERS|READERS" of each row, the marks of code taken away.
rows=$(sed -nE 's/^\| (`[A-Za-z_0-9]+`) \| (`[^`]+\.h`) \|[^|]*\|([^|]*)\|([^|]*)\|$/\1 \2|\3|\4/p' \
    "$table" | tr -d '`,' | sort)

# "FILE:CODE" of each line without comments and texts; FILE without its ending, or ctl.
code=$(grep -rH '' src ctl --include='*.cpp' |
    sed -E 's|"([^"\\]\|\\.)*"||g; s|//.*||; s|^src/||; s|^ctl/[^:]*|ctl|; s|^([^:]*)\.cpp:|\1:|')

compare_names() {
    local listed name header
    listed=$(cut -d'|' -f1 <<<"$rows")
    while read -r name header; do
        [[ -z $name ]] || complain "$table: $name of $header stands in no row"
    done < <(comm -23 <(echo "$declared") <(echo "$listed"))
    while read -r name header; do
        [[ -z $name ]] || complain "$table: $header declares no $name"
    done < <(comm -13 <(echo "$declared") <(echo "$listed"))
}

# Files whose lines fit a pattern, but for the variable's own.
files_with() { # PATTERN OWN-FILE
    grep -E "$1" <<<"$code" | cut -d: -f1 | sort -u | grep -vx "$2" || true
}

words() { # sorts the words of a text, one a line; a dash is no word
    tr -s ' ' '\n' <<<"$1" | grep -E '[a-z]' | sort -u || true
}

compare_users() { # NAME HEADER WRITERS READERS
    local own=${2%.h} alone="^[^:]*:(.*[^A-Za-z0-9_.>:])?$1" part='(\.[A-Za-z_.]+|\[[^]]*\])*'
    local users assigners writers rooms file
    users=$(files_with "$alone([^A-Za-z0-9_]|\$)" "$own")
    assigners=$(files_with "$alone$part *([-+*/]?=[^=]|=\$|\+\+|\.clear\(|\.fill\()|\+\+$1;" "$own")
    writers=$(words "$3")
    for file in $(comm -23 <(echo "$assigners") <(echo "$writers")); do
        complain "$table: $file writes $1 and is not named"
    done
    for file in $(comm -13 <(echo "$users") <(echo "$writers")); do
        complain "$table: $file does not mention $1"
    done
    rooms=$(comm -23 <(echo "$users") <(echo "$writers") | cut -d/ -f1 | sort -u)
    for file in $(comm -23 <(echo "$rooms") <(words "$4")); do
        complain "$table: $file reads $1 and is not named"
    done
    for file in $(comm -13 <(echo "$rooms") <(words "$4")); do
        complain "$table: $file does not read $1"
    done
}

if [[ -z $declared ]]; then
    complain "no variable in $1"
fi
refuse_others
compare_names
while IFS='|' read -r variable writers readers; do
    # shellcheck disable=SC2086  # two words
    [[ -z $variable ]] || compare_users $variable "$writers" "$readers"
done <<<"$rows"

((violations == 0))
