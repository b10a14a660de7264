#!/usr/bin/env bash
# The service can reach little beside what it needs, 2.0 at most by systemd's own measure, in which 10
# is everything; and the lines for machines that forbid name spaces take back all that wants one.
#
# Usage: confined.sh PREFIX DOCUMENT-OF-THE-SERVICE
set -euo pipefail
unit=$1/lib/systemd/user/horavex.service
document=$2
wants_name_space='Private[A-Z][a-z]+|Protect[A-Za-z]+|ReadWritePaths|CapabilityBoundingSet'

folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
export XDG_RUNTIME_DIR=$folder HOME=$folder
systemd-analyze security --offline=true --user --threshold=20 --no-pager "$unit"

options() {
    grep -oE "^($wants_name_space)=" | sort
}
diff <(options <"$unit") <(sed -n '/^```ini$/,/^```$/p' "$document" | options)
