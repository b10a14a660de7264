#!/usr/bin/env bash
# What software centres read is in order and says what is installed: the version, the desktop
# entry with its comment in every language, the programs.
#
# Usage: metainfo.sh PREFIX VERSION
set -euo pipefail
cd "$1"
version=$2
metainfo=share/metainfo/org.horavex.horavex.metainfo.xml

appstreamcli validate --pedantic --strict --no-net "$metainfo"
grep -m 1 '<release ' "$metainfo" | grep -F "version=\"$version\"" || {
    echo "the newest release is not $version"
    exit 1
}
[ -e "share/applications/$(sed -n 's/.*"desktop-id">\(.*\)<.*/\1/p' "$metainfo")" ]
for program in $(sed -n 's/.*<binary>\(.*\)<.*/\1/p' "$metainfo"); do
    [ -x "bin/$program" ]
done

# A language and its sentence a line.
diff <(sed -n 's/^Comment\(\[\(.*\)\]\)\?=/\2 /p' share/applications/horavex.desktop) \
    <(sed -nE 's/ *<summary( xml:lang="(.*)")?>(.*)<.*/\2 \3/p' "$metainfo")
