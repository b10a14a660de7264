#!/usr/bin/env bash
# The installed commands work from the prefix, with the data that lies there.
#
# Usage: programs.sh PREFIX
set -euo pipefail
prefix=$1
home=$(mktemp -d)
trap 'rm -r "$home"' EXIT
export HOME=$home XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data

# expect TEXT COMMAND...: what the command prints has the text in it.
expect() {
    local text=$1 output
    shift
    output=$("$prefix/bin/$1" "${@:2}")
    grep -qF "$text" <<<"$output" || {
        printf '%s says without "%s":\n%s\n' "$*" "$text" "$output"
        exit 1
    }
}

expect Africa/Cairo horavexctl today --city Cairo
expect Maghrib horavexctl today
expect " 0 failed" horavexctl validate
if [ -x "$prefix/libexec/horavexctl-documents" ]; then
    expect "365 days" horavexctl export --city Cairo --year 2026 --format pdf --output "$home/year.pdf"
    rm "$home/year.pdf"
fi
[ -z "$(find "$home" -mindepth 1)" ] || {
    echo "a command that only asks left files behind"
    exit 1
}
