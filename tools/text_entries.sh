#!/usr/bin/env bash
# Prints the header with the names of the texts, src/store/text_entry.h. A check compares the two:
# whoever changes a name or adds an entry writes the header anew.
#
# Usage: text_entries.sh data/texts/texts.csv >src/store/text_entry.h
set -euo pipefail
export LC_ALL=C

# Number and name stand in the first two columns, never quoted.
enumerators=$(awk -F, '
    NR == 1 { next }
    $1 != NR - 1 || $2 !~ /^[A-Z][A-Za-z0-9]*$/ {
        print "row " NR - 1 " wants its number and a name" >"/dev/stderr"
        exit 1
    }
    { print "    k" $2 " = " $1 "," }' "$1")

cat <<END
// Written by tools/text_entries.sh from data/texts/texts.csv.
#pragma once

#include <cstdint>

namespace horavex {

// Names of the namespace may be names of texts too; g++ would warn that these hide them.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"

/// The texts of the table by name. "Of", "Or" and the like are pieces of sentences.
enum class TextEntry : std::uint16_t {
$enumerators
};

#pragma GCC diagnostic pop

inline constexpr std::uint16_t kTextEntries = $(wc -l <<<"$enumerators");

}  // namespace horavex
END
