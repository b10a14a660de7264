#!/usr/bin/env bash
# The recipes of the Debian packages fit what is installed: every file is in exactly one package,
# the version is the program's, what builds the packages is on the list of the gate, and software
# centres are told the licences of all that is in them. That of the Flatpak has the names of the rest.
#
# Usage: recipes.sh PACKAGING VERSION LIST...
set -euo pipefail
cd "$1"
version=$2
shift 2
failures=0
fail() {
    echo "$1"
    failures=$((failures + 1))
}

# A package and a file or folder below the prefix a line. Debian's libraries lie a folder deeper.
claims() {
    for recipe in debian/*.install debian/not-installed; do
        awk -v package="$(basename "$recipe" .install)" \
            '/^usr\// { sub(/lib\/\*\//, "lib/", $1); print package, substr($1, 5) }' "$recipe"
    done
}

all_claims=$(claims)
for file in $(grep -hv '^#' "$@"); do
    owners=$(while read -r package claim; do
        # shellcheck disable=SC2053  # a claim is a pattern
        [[ $file != $claim && $file != $claim/* ]] || echo "$package"
    done <<<"$all_claims" | xargs)
    [[ $owners =~ ^[a-z0-9-]+$ ]] || fail "$file is in: ${owners:-no package}"
done

[ "$(sed -n '1s/.*(\(.*\)).*/\1/p' debian/changelog)" = "$version" ] ||
    fail "debian/changelog does not begin with $version"

for package in $(sed -n '/^Build-Depends:/,/^[^ ]*:/s/^ \([^ ,]*\).*/\1/p' debian/control); do
    [ "$package" = debhelper-compat ] ||
        grep -qx -- "$package" debian-packages.txt packaging-packages.txt ||
        fail "$package is in none of the lists of packages"
done

# Debian has a name of its own for that of MIT; what nobody owns needs no licence.
licences=$(sed -n 's/^License: //p' debian/copyright | sed 's/^Expat$/MIT/; /^public-domain$/d' | sort -u)
diff <(sed -n 's/.*<project_license>\(.*\)<.*/\1/p' org.horavex.horavex.metainfo.xml |
    sed 's/ AND /\n/g; s/LicenseRef-//g' | sort) <(echo "$licences") || fail "the metainfo names other licences"

metainfo() { sed -n "s|.*<$1[^>]*>\(.*\)</.*|\1|p" org.horavex.horavex.metainfo.xml | head -n 1; }
flatpak=$(cat flatpak/org.horavex.horavex.yml)
for line in "id: $(metainfo id)" "command: $(metainfo binary)" "  - --own-name=$(metainfo dbus)" \
    "rename-desktop-file: $(metainfo launchable)" "rename-icon: $(metainfo icon)"; do
    grep -qxF -- "$line" <<<"$flatpak" || fail "the Flatpak has no line \"$line\""
done
[ "$failures" -eq 0 ]
