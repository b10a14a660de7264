#!/usr/bin/env bash
# The unit of the service is in order, names the installed program, and is not enabled by the
# install.
#
# Usage: unit.sh PREFIX PATH-OF-THE-PREFIX-FOR-USERS
set -euo pipefail
prefix=$1
path=$2
unit=$prefix/lib/systemd/user/horavex.service

grep -qx "ExecStart=$path/bin/horavex-terminal --no-face" "$unit"
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
sed "s#=$path/bin#=$prefix/bin#" "$unit" >"$folder/horavex.service"
export XDG_RUNTIME_DIR=$folder HOME=$folder
complaints=$(systemd-analyze verify --user --man=no "$folder/horavex.service" 2>&1) || {
    echo "$complaints"
    exit 1
}
[ -z "$complaints" ] || {
    echo "$complaints"
    exit 1
}
[ -z "$(find "$prefix/lib/systemd" -name '*.preset' -o -name '*.wants')" ]
