#!/usr/bin/env bash
# The gate over commands that only tell that they were called: which failures fail it, and what it
# prints. A line of the file "fail" names a call that fails.
#
# Usage: gate_test.sh SOURCE_FOLDER
set -euo pipefail

folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
mkdir "$folder/bin" "$folder/packaging" "$folder/tools"
cp "$1/test" "$folder"
cat >"$folder/bin/stub" <<'END'
#!/usr/bin/env bash
call="$(basename "$0") ${*:1:3}"
echo "$call" >>calls
[ "$(basename "$0")" = cmake ] && mkdir -p "build/$2" "build/$3"
[ -f "printed by $call" ] && cat "printed by $call"
! grep -qsxF "$call" fail
END
chmod +x "$folder/bin/stub"
for command in bin/cmake bin/ctest packaging/install-packages tools/check; do
    ln -s "$folder/bin/stub" "$folder/$command"
done
cd "$folder"

fault() {
    echo "gate_test: $1"
    cat output
    exit 1
}

# gate: runs it; its status is "status", what it prints is in "output".
gate() {
    rm -f calls
    status=0
    PATH=$folder/bin:$PATH ./test >output 2>&1 || status=$?
}

# refused CALL [UNCALLED]: the gate fails where this call does, and another is not made then.
refused() {
    echo "$1" >fail
    gate
    rm fail
    [ "$status" -ne 0 ] || fault "passed over a failing $1"
    [ $# -lt 2 ] || ! grep -qxF "$2" calls || fault "called $2 after a failing $1"
}

release="ctest --preset release --parallel"
asan="ctest --preset asan --parallel"
echo '1/2 Test  #1: room.Suite.Quick ....   Passed    0.10 sec
2/2 Test #12: room.Suite.Slow/"a b" ...***Failed   21.50 sec
Total Test time (real) = 90.00 sec' >"printed by $release"

gate
[ "$status" -eq 0 ] || fault "failed where nothing does"
for call in "cmake --build --preset release" "$release" "cmake --build --preset asan" "$asan"; do
    grep -qxF "$call" calls || fault "did not call $call"
done
for step in "release, build" "release, tests" "asan, build" "asan, tests"; do
    grep -qE "^ +[0-9]+ s  $step\$" output || fault "does not tell how long took: $step"
done
grep -A1 '^slowest tests, release:' output | grep -qxF '    21.5 s  room.Suite.Slow/"a' ||
    fault "does not tell the slowest test first"

refused "install-packages " "check format"
refused "check format" "cmake --preset release"
refused "cmake --preset release" "cmake --build --preset release"
refused "cmake --build --preset release" "$release"
refused "cmake --build --preset asan" "$asan"
refused "$release"
refused "$asan"

# What fails in the crowd has to pass alone, and there may be few of it.
for preset in release asan; do
    failed=build/$preset/Testing/Temporary/LastTestsFailed.log
    mkdir -p "$(dirname "$failed")"
    printf '%s\n' 1 2 3 4 5 >"$failed"
    echo "ctest --preset $preset --parallel" >fail
    gate
    [ "$status" -eq 0 ] || fault "gave a test of $preset no second try"
    grep -qxF "test: 5 failed among the others" output || fault "keeps the first try to itself"
    refused "ctest --preset $preset --parallel
ctest --preset $preset --rerun-failed"
    echo 6 >>"$failed"
    refused "ctest --preset $preset --parallel" "ctest --preset $preset --rerun-failed"
    rm "$failed"
done
for outcome in Skipped Disabled "Not Run"; do
    for preset in release asan; do
        echo "  7 - room.Suite.Test ($outcome)" >"printed by ctest --preset $preset --parallel"
        gate
        [ "$status" -ne 0 ] || fault "passed over a test of $preset that was $outcome"
        rm "printed by ctest --preset $preset --parallel"
    done
done
