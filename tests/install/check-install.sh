#!/usr/bin/env bash
# Installs the build into a scratch prefix, then builds and runs a consumer with
# find_package(Mosaic), another with pkg-config, and the examples.
set -euo pipefail
build=$1 src=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# Runs a consumer with its settings, data and logs in the scratch folder, never the user's.
isolated() {
  mkdir -p "$work/home/mosaic"
  HOME=$work/home MOSAIC_HOME=$work/home/mosaic XDG_CONFIG_HOME=$work/home/config \
    XDG_DATA_HOME=$work/home/data XDG_STATE_HOME=$work/home/state "$@"
}
cmake --install "$build" --prefix "$work/prefix" >/dev/null
mkdir "$work/consumer"
cp "$src/CMakeLists.txt.in" "$work/consumer/CMakeLists.txt"
cp "$src/main.cpp" "$work/consumer/main.cpp"
cmake -S "$work/consumer" -B "$work/consumer/build" -DCMAKE_PREFIX_PATH="$work/prefix" >/dev/null
cmake --build "$work/consumer/build" >/dev/null
isolated "$work/consumer/build/consumer"
flags=$(PKG_CONFIG_PATH="$work/prefix/lib/pkgconfig" pkg-config --cflags --libs mosaic)
# shellcheck disable=SC2086
c++ -std=c++20 "$src/main.cpp" -o "$work/pc-consumer" $flags -Wl,-rpath,"$work/prefix/lib"
isolated "$work/pc-consumer"

# The examples, as an application developer builds them: against the installed
# package, each run once headless; the settings come back in a second run.
cmake -S "$src/../../examples" -B "$work/examples" -DCMAKE_PREFIX_PATH="$work/prefix" >/dev/null
cmake --build "$work/examples" >/dev/null
isolated "$work/examples/clip-name-test" >/dev/null
log=$(isolated "$work/examples/export-log" --headless)
[ "$log" = "26 rows, gauge at 100%" ] || { echo "export-log: $log"; exit 1; }
first=$(isolated "$work/examples/settings-panel" --headless)
[ "$first" = 'gain 1, loop off, title ""' ] || { echo "settings-panel, first run: $first"; exit 1; }
echo '{"gain": {"type": "double", "value": "1.5"}, "loop": {"type": "bool", "value": "true"}}' >"$work/home/mosaic/settings-panel.json"
again=$(isolated "$work/examples/settings-panel" --headless)
[ "$again" = 'gain 1.5, loop on, title ""' ] || { echo "settings-panel, second run: $again"; exit 1; }
