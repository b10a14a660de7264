#!/usr/bin/env bash
# Nothing of the program's state is in the library: whatever is made or written while it runs is on
# the list below.
#
# Usage: state.sh LIBRARY
set -euo pipefail
export LC_ALL=C

# What letters are compared by and the published months, both made once; what the direction of no point would call, which nobody sets; and
# constants.
diff - <(nm --demangle --defined-only "$1" |
    sed -nE 's/^[0-9a-f]+ [bB] (.*horavex::.*)$/\1/p' | sed 's/(anonymous namespace):://' | sort) <<END
guard variable for horavex::FoldedOf(std::basic_string_view<char, std::char_traits<char> >, char32_t)::ranges
guard variable for horavex::PublishedMonths()::months
horavex::FoldedOf(std::basic_string_view<char, std::char_traits<char> >, char32_t)::ranges
horavex::PublishedMonths()::months
horavex::kFirstDay
horavex::undefinedAngleHandler
END
