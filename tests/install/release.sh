#!/usr/bin/env bash
# A release is made by one command, or not at all: on a small repository with the files that it
# writes to, whose packages are stand-ins.
#
# Usage: release.sh SOURCES
set -euo pipefail
sources=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export HOME=$folder GIT_CONFIG_NOSYSTEM=1
repository=$folder/repository

fail() {
    echo "$1"
    exit 1
}
# refuses REASON ARGUMENT...: the command says so, and nothing comes of it.
refuses() {
    local said
    ! said=$(tools/release "${@:2}" 2>&1) || fail "release ${*:2} goes through"
    [ "$(tail -n 1 <<<"$said")" = "release: $1" ] || fail "release ${*:2} says: $said"
    unchanged
}
unchanged() {
    [ "$(git rev-parse HEAD)" = "$commit" ] && [ -z "$(git tag --list 'v9*')" ] || fail "something is left"
}

mkdir -p "$repository"/{tools,tests/install}
cd "$repository"
cp "$sources"/{CMakeLists.txt,CHANGELOG.md} .
cp -r "$sources/packaging" .
cp "$sources/tools/release" tools
cp "$sources"/tests/install/{recipes.sh,files.txt,desktop_files.txt} tests/install
cat >packaging/build-packages <<'END'
#!/usr/bin/env bash
mkdir "$1" && sed -n 1p packaging/debian/changelog >"$1/horavex_all.deb"
END
sed -i 's/^## \[Unreleased\]$/&\n\n### Added\n\n- A star.\n\n## [0.0.1] - 2020-01-01\n/' CHANGELOG.md
git init --quiet --initial-branch=main
git config user.name Somebody
git config user.email somebody@example.invalid
git add .
git commit --quiet --message "Begin"
git tag v0.0.1
commit=$(git rev-parse HEAD)

refuses '"9.1" is no version as 4.2.0' 9.1
refuses '"9.1.0.1" is no version as 4.2.0' 9.1.0.1
refuses '"09.1.0" is no version as 4.2.0' 09.1.0
refuses 'v0.0.1 is not above v0.0.1' 0.0.1
refuses 'v0.0.0 is not above v0.0.1' 0.0.0
refuses "$folder is there already" 9.1.0 "$folder"
echo >>CMakeLists.txt
refuses 'there are changes that are not committed' 9.1.0
git checkout --quiet CMakeLists.txt

tools/release --dry-run 9.1.0 "$folder/dry" >/dev/null
unchanged

minisign -G -W -p "$folder/public" -s "$folder/secret" >/dev/null
refuses "there is no key $folder/none" --key "$folder/none" 9.1.0
tools/release --dry-run --key "$folder/secret" 9.1.0 "$folder/signed" >/dev/null
minisign -V -q -p "$folder/public" -m "$folder/signed/update.txt"
grep -q ' update.txt.minisig$' "$folder/signed/SHA256SUMS" || fail "the signature has no sum"

tools/release 9.1.0 "$folder/files" >/dev/null
[ "$(git log -1 --format=%s v9.1.0)" = "Release 9.1.0" ]
[ "$(git rev-parse 'v9.1.0^{commit}' main)" = "$(git rev-parse HEAD HEAD)" ] || fail "the tag is elsewhere"
[ -z "$(git status --porcelain)" ] || fail "files are not as they were committed"
today=$(git log -1 --format=%cs)
diff - <(git diff --unified=0 HEAD~ -- CMakeLists.txt CHANGELOG.md '*.xml' | grep '^+[^+]') <<END
+## [9.1.0] - $today
+project(Horavex VERSION 9.1.0 LANGUAGES CXX)
+    <release version="9.1.0" date="$today"/>
END
# The entry of the version before, which was released, stays below.
cat >"$folder/changelog" <<END
horavex (9.1.0) bookworm; urgency=medium

  * New version; changelog.gz tells what is new.

END
diff "$folder/changelog" <(head -n 4 packaging/debian/changelog)
diff <(git show HEAD~:packaging/debian/changelog) <(tail -n +7 packaging/debian/changelog)

cd "$folder/files"
diff - <(ls) <<END
NEWS.md
SHA256SUMS
horavex-9.1.0.tar.xz
horavex_all.deb
update.txt
END
sha256sum --check --quiet SHA256SUMS
[ "$(wc -l <SHA256SUMS)" -eq 4 ] || fail "a sum is missing"
diff - NEWS.md <<<$'### Added\n\n- A star.'
diff - update.txt <<<9.1.0
grep -q '^horavex (9.1.0)' horavex_all.deb || fail "the packages have another version"
mkdir "$folder/sources"
tar --extract --file horavex-9.1.0.tar.xz --directory "$folder/sources" --strip-components 1
diff <(cd "$repository" && git ls-files) <(cd "$folder/sources" && find . -type f | cut -c 3- | LC_ALL=C sort)

cd "$repository"
git reset --quiet --hard "$commit"
git tag --delete v9.1.0 >/dev/null

# A version that was prepared but never released stands in each file once.
prepared=$(sed -n 's/^project(Horavex VERSION \([^ ]*\).*/\1/p' CMakeLists.txt)
tools/release "$prepared" "$folder/prepared" >/dev/null
[ "$(grep -c "^horavex ($prepared)" packaging/debian/changelog)" -eq 1 ]
[ "$(grep -c "<release version=\"$prepared\"" packaging/*.metainfo.xml)" -eq 1 ]

git reset --quiet --hard "$commit"
echo 'echo no compiler; exit 1' >packaging/build-packages
git commit --quiet --all --message "Break"
commit=$(git rev-parse HEAD)
refuses 'the packages could not be built' 9.1.0
[ ! -e build/releases/9.1.0 ] || fail "files of a release that failed are left"

sed -i '/A star/d; /^### Added/d' CHANGELOG.md
git commit --quiet --all --message "Tell nothing"
commit=$(git rev-parse HEAD)
refuses 'CHANGELOG.md tells nothing new' 9.1.0
