#!/bin/sh
# Rewrites data/gazetteer/*.tsv. Needs node 20 or later and npm with its usual registry.
# The packages are installed in a temporary folder, so that the tree stays clean.
set -eu

here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cp -r "$here"/*.mjs "$here"/test "$here"/package.json "$here"/package-lock.json "$work"
npm ci --prefix "$work" --no-audit --no-fund --ignore-scripts --silent
npm test --prefix "$work" --silent >"$work/test.log" || { cat "$work/test.log"; exit 1; }
node "$work/refresh.mjs" "$here/../../data/gazetteer"
