#!/usr/bin/env bash
# Reads back from built programs what guards them. Prints one line for each guard that a program
# lacks; status 1 when there is any.
#
# Usage: hardened.sh PROGRAM...
set -euo pipefail
export LC_ALL=C

lacking=0
# expect WHAT PATTERN TEXT: the pattern stands in the text.
expect() {
    grep -qE "$2" <<<"$3" && return
    echo "$(basename "$program") lacks $1"
    lacking=$((lacking + 1))
}

for program in "$@"; do
    header=$(readelf --file-header --program-headers --wide "$program")
    dynamic=$(readelf --dynamic --wide "$program")
    imports=$(nm --dynamic --undefined-only "$program")
    code=$(objdump --disassemble --no-show-raw-insn "$program")
    expect "an address that differs from start to start" '\bPIE\b' "$dynamic"
    expect "a stack without code" 'GNU_STACK.* RW +0x' "$header"
    expect "relocations that are read-only" 'GNU_RELRO' "$header"
    expect "immediate binding" '\bNOW\b' "$dynamic"
    expect "guarded frames" '\b__stack_chk_fail\b' "$imports"
    expect "a guarded stack" 'or[ql] +\$0x0,' "$code"
    # The start-up code of the system's own has a few, whatever is linked to it.
    expect "guarded branches" '[0-9]{3}' "$(grep -c '\bendbr64\b' <<<"$code")"
    expect "checked library calls" '\b__[a-z]+_chk\b' "$imports"
    expect "checked containers" 'glibcxx_assert_fail' "$imports"
done
[ "$lacking" -eq 0 ]
