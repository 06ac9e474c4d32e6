#!/usr/bin/env bash
# Runs clang-tidy, with the checks of .clang-tidy, over the sources of the toolkit and
# the library, in parallel, from the compile commands of a build tree (build/ unless
# another is given; it is configured when it has none). Prints the findings and fails
# when there is any.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
[ -f "$build/compile_commands.json" ] || cmake -S . -B "$build" -G Ninja >/dev/null

log=$(mktemp)
trap 'rm -f "$log"' EXIT
status=0
run-clang-tidy-14 -p "$build" -j "$(nproc)" -quiet "$PWD/(toolkit|mosaic)/.*\.cpp$" >"$log" 2>&1 || status=$?
# run-clang-tidy names each command it runs, and clang-tidy counts what it left out;
# only the findings are of interest.
grep -vE '^(clang-tidy-14 |[0-9]+ warnings? (and [0-9]+ errors? )?generated\.$|Suppressed [0-9]+ warnings|Use -header-filter|Use -system-headers)' "$log" || true
exit $status
