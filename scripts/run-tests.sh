#!/usr/bin/env bash
# Checks the layout of the sources and the summaries of the API reference, then
# builds Mosaic and runs every test: a plain build with warnings as errors and
# clang-tidy over its sources, then the same tests under AddressSanitizer with
# UndefinedBehaviorSanitizer, then the tests of code that crosses threads under
# ThreadSanitizer, with each fuzz target run for a minute first. Each stage says how
# many seconds the run had taken when it began. Set MOSAIC_SKIP_SANITIZERS=1
# to run the plain build only.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh

jobs=$(nproc)
# ccache keys paths inside the tree relative to it, and leaves the build folder out
# of the key of objects with debug information, so any clone shares the cache.
export CCACHE_BASEDIR="$PWD" CCACHE_NOHASHDIR=1
export CTEST_OUTPUT_ON_FAILURE=1

stage() { echo "== $1 == (${SECONDS} s)"; }

fuzz_one() {
  local target=$1 corpus status=0
  corpus=$(mktemp -d)
  cp fuzz/corpus/"$target"/* "$corpus"/
  LSAN_OPTIONS="suppressions=$PWD/scripts/lsan.supp" ./build-fuzz/bin/"${target}"_fuzz -max_total_time=60 -max_len=4096 \
    "$corpus" >"$corpus.log" 2>&1 || status=$?
  echo "-- ${target}_fuzz: $(grep -a "^Done" "$corpus.log" | tail -n 1)"
  [ "$status" = 0 ] || tail -n 40 "$corpus.log"
  rm -rf "$corpus" "$corpus.log"
  return "$status"
}
export -f fuzz_one

run_suite() {
  local dir=$1; shift
  cmake -S . -B "$dir" -G Ninja -DMOSAIC_WERROR=ON "$@" >/dev/null
  cmake --build "$dir" -j "$jobs"
  (cd "$dir" && MOSAIC_TEST_OUTPUT="$PWD/test-output" ctest -j "$jobs" --timeout 600)
}

stage "layout of the sources"
bash scripts/check-format.sh

stage "API reference: a summary for every public class"
cmake -S . -B build -G Ninja -DMOSAIC_WERROR=ON -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build --target docs

stage "plain build"
run_suite build -DCMAKE_BUILD_TYPE=RelWithDebInfo

stage "clang-tidy"
bash scripts/run-tidy.sh build

if [ "${MOSAIC_SKIP_SANITIZERS:-0}" != 1 ]; then
  stage "fuzz targets, 60 seconds each"
  CC=clang CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DMOSAIC_BUILD_FUZZ=ON \
    -DMOSAIC_BUILD_TESTS=OFF -DMOSAIC_BUILD_BENCH=OFF -DMOSAIC_BUILD_APPS=OFF >/dev/null
  cmake --build build-fuzz -j "$jobs"
  # As many targets at once as there are cores, each on a copy of its seeds.
  printf '%s\n' tutorial saved_state builder media_text entry device_text | xargs -P "$jobs" -I{} bash -c 'fuzz_one {}'
  stage "AddressSanitizer + UndefinedBehaviorSanitizer"
  ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 LSAN_OPTIONS="suppressions=$PWD/scripts/lsan.supp" UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
    run_suite build-asan -DCMAKE_BUILD_TYPE=Debug -DMOSAIC_ASAN=ON -DMOSAIC_BUILD_BENCH=OFF
  stage "ThreadSanitizer"
  TSAN_OPTIONS="halt_on_error=1 suppressions=$PWD/scripts/tsan.supp" \
    run_suite build-tsan -DCMAKE_BUILD_TYPE=Debug -DMOSAIC_TSAN=ON -DMOSAIC_BUILD_BENCH=OFF -DMOSAIC_BUILD_APPS=OFF
fi
stage "done"
