#!/usr/bin/env bash
# Keeps the layers of the core apart: every include in the source folder names a header of the
# C++ standard library, or a file that the including layer may use; and files form no cycle.
# Prints one line a violation; status 1 when there is any.
#
# Usage: layers.sh SOURCE_FOLDER
set -euo pipefail
export LC_ALL=C
cd "$1"

# C++20, without the C library under its own names (math.h) and without what C++20 dropped.
standard=" algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv
chrono cinttypes climits clocale cmath codecvt compare complex concepts condition_variable coroutine
csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype deque
exception execution filesystem format forward_list fstream functional future initializer_list
iomanip ios iosfwd iostream istream iterator latch limits list locale map memory memory_resource
mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator
semaphore set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string
string_view strstream syncstream system_error thread tuple type_traits typeindex typeinfo
unordered_map unordered_set utility valarray variant vector version "
standard=${standard//$'\n'/ }

# What each layer may include besides itself, as patterns of paths. A layer may also include what
# the layers that it uses may include. The primitives are a few files that know the base
# alone: angles, the sun, the arithmetic Hijri calendar. Everybody above the forms may use them.
primitives="engine/angle.h engine/sun.h calendar/hijri_calendar.h"
declare -A uses
uses[base]=""
uses[platform]="base/*"
uses[forms]="base/*"
uses[primitives]="base/* $primitives"
uses[windows]="base/* forms/* $primitives"
uses[store]="base/* platform/* forms/* $primitives"
uses[lang]="${uses[store]} windows/*"
# Of the store, the engine knows the records, the text tables and the kinds of options; of its own
# room, everything. The names of the next prayer come from the language pack.
uses[engine]="${uses[store]} store/*_record.h store/text_*.h store/options.h store/around_options.h lang/*"
uses[calendar]="${uses[store]} engine/* store/* lang/*"
uses[geo]="${uses[calendar]} calendar/*"
uses[moon]="${uses[geo]} geo/*"
uses[sky]="${uses[moon]} moon/*"
uses[athan]="${uses[moon]} moon/* windows/*"
# The export shares its cancel with the alarm.
uses[timetables]="${uses[athan]} athan/*"
uses[skywindows]="${uses[timetables]} timetables/* sky/*"
uses[config]="${uses[moon]} windows/*"
uses[update]="${uses[moon]} windows/*"
uses[shell]="${uses[athan]} athan/* timetables/* config/* update/* sky/* skywindows/*"

# In four rooms logic asks no window: the sources of their windows, and those that bind a room to
# the windows, are named as such, and they alone may include windows. Their headers may not, so that
# nobody gets a window through them.
window_files="*_window.cpp *_page.cpp *_picker.cpp *_room.cpp"

violations=0
complain() {
    echo "$1"
    violations=$((violations + 1))
}

layer_of() {
    case $1 in
        engine/angle.* | engine/sun.* | calendar/hijri_calendar.*) layer=primitives ;;
        *) layer=${1%%/*} ;;
    esac
}

# True when the path of the first argument fits one of the patterns in the second.
fits() {
    local pattern patterns
    read -ra patterns <<<"$2"
    for pattern in "${patterns[@]}"; do
        # shellcheck disable=SC2053  # the right side is a pattern
        [[ $1 == $pattern ]] && return 0
    done
    return 1
}

# True for a file of windows in one of the four rooms.
is_window_file() { # FILE LAYER
    [[ $2 =~ ^(engine|calendar|geo|moon)$ ]] && fits "$1" "$window_files"
}

# True when the file of the first argument may include the one of the second.
may_use() {
    layer_of "$1"
    [[ $layer != primitives && $2 == "$layer"/* ]] || fits "$2" "${uses[$layer]}" ||
        { [[ $2 == windows/* ]] && is_window_file "$1" "$layer"; }
}

edges=""
check_project_include() { # PLACE FILE TARGET
    layer_of "$2"
    if [[ ! -v uses[$layer] ]]; then
        complain "$1: $layer is no layer of the core"
    elif [[ ! -f $3 ]]; then
        complain "$1: \"$3\" is no file of the core"
    elif [[ $2 == "$3" ]]; then
        complain "$1: \"$3\" includes itself"
    elif ! may_use "$2" "$3"; then
        complain "$1: $layer may not include \"$3\""
    fi
    edges+="$2 $3"$'\n'
}

check_include() { # PLACE FILE REST-OF-THE-LINE
    if [[ $3 =~ ^\<([^\>]+)\> ]]; then
        [[ $standard == *" ${BASH_REMATCH[1]} "* ]] ||
            complain "$1: <${BASH_REMATCH[1]}> is no header of the C++ standard library"
    elif [[ $3 =~ ^\"([^\"]+)\" ]]; then
        check_project_include "$1" "$2" "${BASH_REMATCH[1]}"
    else
        complain "$1: an include names neither <header> nor \"file\""
    fi
}

check_all() {
    local file number line
    while IFS=: read -r file number line; do
        line=${line#*#}
        [[ $line =~ ^[[:space:]]*[a-z_]+[[:space:]]*(.*)$ ]]
        check_include "$file:$number" "$file" "${BASH_REMATCH[1]}"
    done
}

directive='^[[:space:]]*#[[:space:]]*(include|import)'
if includes=$(grep -rnHsE "$directive" -- *); then
    check_all <<<"$includes"
else
    complain "no include in $1"
fi

# tsort names the members of each cycle on standard error, one a line.
members=$(tsort <<<"$edges" 2>&1 >/dev/null | sed -e 's/^tsort: //' -e '/^-: /d') || true
cycle=$(paste -sd ' ' <<<"$members")
[[ -z $cycle ]] || complain "a cycle of includes: $cycle"

((violations == 0))
